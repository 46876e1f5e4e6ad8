// frmGraphicsOutput as the user meets it: the graphic type and what varies chosen by clicks, the
// lists picked by keys and mouse, the Multiple list with its allowance, the request handed to
// the plot window and the boxes.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "plots/graphics_output_window.h"
#include "plots/plot_selection.h"
#include "support/report_builder.h"
#include "support/ui_fixture.h"

namespace brooklet::test {
namespace {

// Takes the place of the modal plot window: notes the request it was handed and closes.
class PlotStandIn : public QWidget {
public:
    explicit PlotStandIn(AppContext& context) : context_(context) {}
    static inline PlotData plot;
    static inline int opened = 0;

protected:
    void showEvent(QShowEvent*) override {
        plot = context_.plots;
        opened += 1;
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    }

private:
    AppContext& context_;
};

// A field of ten columns.
std::string f(const std::string& text) {
    return ReportBuilder::field(text);
}

class GraphicsOutputTest : public UiTest {
protected:
    void SetUp() override {
        startMain();
        PlotStandIn::opened = 0;
        PlotStandIn::plot = PlotData();
        context->windows.registerWindow("frmIO_Plots",
                                        [](AppContext& context) { return new PlotStandIn(context); });
        session().CurrentFile = folder.file("willow.inp");
        session().OutputPath = folder.file("willow.out");
        session().Units.OutputFlowUnit = "cfs";
        session().Units.OutputUnitFlowUnit = "csm";
        writeBytes(workFile(StormSection),
                   crlf({"Storm Analysis:", f("") + f("100-YR"), f("") + f("10-YR")}));
        writeBytes(workFile(AlternateSection), crlf({"Alternate:", "PLAN-B"}));
        writeBytes(workFile(SubAreaSection), crlf({"Sub-Area:", f("") + f("SA-1") + f("R-1") + f("FIELD-1"),
                                                   f("") + f("SA-2") + f("R-1")}));
        writeBytes(workFile(ReachSection), crlf({"Stream Reach:", f("") + f("R-1") + f("OUTLET")}));
    }

    // A report of both storms with a hydrograph at each location, the peak table and the
    // duration table.
    void writeReport() {
        ReportBuilder report;
        report.banner();
        for (const char* storm : {"100-YR", "10-YR"}) {
            report.storm("", storm);
            const std::vector<std::string> flows = {"1.", "5.", "3."};
            report.hydrograph("SA-1", "FIELD-1", 0.0, "0.1000 hr", flows, 0.7);
            report.hydrograph("SA-2", "", 0.0, "0.1000 hr", flows, 0.7);
            report.hydrograph("R-1", "UPSTREAM", 0.0, "0.1000 hr", flows, 0.7);
            report.hydrograph("R-1", "DOWNSTREAM", 0.0, "0.1000 hr", {"2.", "6.", "4."}, 0.7);
            report.hydrograph("OUTLET", "", 0.0, "0.1000 hr", {"2.", "6.", "4."}, 0.7);
        }
        report.peakTable({"100-YR", "10-YR"});
        report.peakRow("SA-1", "2.", "", {"40.", "20."});
        report.peakRow("SA-2", "3.", "", {"60.", "30."});
        report.peakRow("R-1", "5.", "", {"100.", "50."});
        report.peakRow("DOWNSTREAM", "", "", {"90.", "45."});
        report.peakRow("OUTLET", "5.", "", {"90.", "45."});
        report.durationTable(false, false, {"90", "75", "50", "25"});
        report.durationRow("SA-1", "", "100-YR", {"1.", "2.", "3.", "4.", "5."});
        report.durationRow("DOWNSTREAM", "", "100-YR", {"1.5", "2.5", "3.5", "4.5", "5.5"});
        report.blank().blank();
        writeBytes(folder.file("willow.out"), report.text());
    }

    frmGraphicsOutput* open() {
        window = qobject_cast<frmGraphicsOutput*>(context->windows.ShowWindowAtOrigin("frmGraphicsOutput"));
        return window;
    }
    QComboBox* list(int i) { return control<QComboBox>(window, QString("Cmbinp(%1)").arg(i)); }
    QRadioButton* option(const char* array, int i) {
        return control<QRadioButton>(window, QString("%1(%2)").arg(array).arg(i));
    }
    QCheckBox* check(const QString& name) { return control<QCheckBox>(window, name); }
    QListWidget* multiple() { return control<QListWidget>(window, "List1"); }
    QPushButton* display() { return control<QPushButton>(window, "CmdPlot"); }
    bool shown(const QString& name) { return control<QWidget>(window, name)->isVisible(); }
    void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(4, 4)); }

    // Picks item Item of list I by the keyboard: Home, then Down Item times, then Tab.
    void pick(int i, int item) {
        QComboBox* box = list(i);
        box->setFocus(Qt::OtherFocusReason);
        QTest::keyClick(box, Qt::Key_Home);
        for (int k = 0; k < item; ++k)
            QTest::keyClick(box, Qt::Key_Down);
        QTest::keyClick(box, Qt::Key_Tab);
    }
    // Tab again in list I, its pick unchanged.
    void tabIn(int i) {
        list(i)->setFocus(Qt::OtherFocusReason);
        QTest::keyClick(list(i), Qt::Key_Tab);
    }
    // Display pressed, and the request the plot window was handed.
    const PlotData& displayedPlot() {
        click(display());
        EXPECT_EQ(PlotStandIn::opened, 1);
        return PlotStandIn::plot;
    }
    QStringList entries() {
        QStringList items;
        for (int i = 0; i < multiple()->count(); ++i)
            items << multiple()->item(i)->text();
        return items;
    }
    void clickEntry(int row) {
        QListWidget* list1 = multiple();
        QTest::mouseClick(list1->viewport(), Qt::LeftButton, {},
                          list1->visualItemRect(list1->item(row)).center());
    }
    int exceededBoxes() {
        int count = 0;
        for (const BoxRequest& box : platform.boxes)
            count += box == MultipleSelectionsExceededBox();
        return count;
    }
    // Eleven storms in the storm section.
    void writeElevenStorms() {
        std::vector<std::string> lines = {"Storm Analysis:"};
        for (int s = 1; s <= 11; ++s)
            lines.push_back(f("") + f("S-" + std::to_string(s)));
        writeBytes(workFile(StormSection), crlf(lines));
    }

    frmGraphicsOutput* window = nullptr;
};

TEST_F(GraphicsOutputTest, LoadsItsCaptionListsAndAHydrographOfOneLocation) {
    open();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(),
              "Graphics Output   Current File - " + QString::fromStdString(folder.file("willow.inp")));
    EXPECT_EQ(session().HelpCode, "GP");
    auto items = [this](int i) {
        QStringList texts;
        for (int k = 0; k < list(i)->count(); ++k)
            texts << list(i)->itemText(k);
        return texts;
    };
    EXPECT_EQ(items(3), QStringList({"100-YR", "10-YR"}));
    EXPECT_EQ(items(4), QStringList({"", "PLAN-B", "          "}));
    EXPECT_EQ(items(5), QStringList({"SA-1", "SA-2"}));
    EXPECT_EQ(items(6), QStringList({"R-1"}));
    for (int i = 3; i <= 6; ++i)
        EXPECT_EQ(list(i)->currentIndex(), -1);
    EXPECT_TRUE(option("opt1", 1)->isChecked());
    EXPECT_TRUE(option("Opt2", 1)->isChecked());
    EXPECT_TRUE(shown("Frame1(2)"));
    EXPECT_FALSE(shown("Frame1(3)"));
    EXPECT_FALSE(shown("List1"));
    EXPECT_FALSE(display()->isEnabled());
    EXPECT_EQ(display()->text(), "Display");
    EXPECT_EQ(control<QPushButton>(window, "cmdCancel")->text(), "Close");
}

TEST_F(GraphicsOutputTest, EachGraphicTypeShowsItsControlsAndHidesTheOthers) {
    open();
    click(option("Opt2", 2));
    EXPECT_TRUE(shown("List1"));
    click(option("opt1", 2));
    for (const char* name :
         {"lblInput(3)", "lblInput(4)", "Cmbinp(3)", "Cmbinp(4)", "Frame1(3)", "Frame1(4)"})
        EXPECT_TRUE(shown(name)) << name;
    for (const char* name : {"lblInput(0)", "List1", "ListLabel", "lblInput(2)", "lblInput(5)", "lblInput(6)",
                             "Cmbinp(5)", "Cmbinp(6)", "Frame1(2)", "Frame1(6)", "lblInput(7)", "Chk7"})
        EXPECT_FALSE(shown(name)) << name;
    click(option("opt1", 3));
    for (const char* name : {"lblInput(3)", "lblInput(4)", "lblInput(5)", "lblInput(6)", "Cmbinp(3)",
                             "Cmbinp(4)", "Cmbinp(5)", "Cmbinp(6)", "lblInput(7)", "Chk7"})
        EXPECT_TRUE(shown(name)) << name;
    for (const char* name :
         {"lblInput(0)", "List1", "lblInput(2)", "Frame1(2)", "Frame1(3)", "Frame1(4)", "Frame1(6)"})
        EXPECT_FALSE(shown(name)) << name;
    // Back to the hydrograph: the varying storm is chosen again and its list shows, emptied.
    click(option("opt1", 1));
    for (const char* name :
         {"lblInput(2)", "Cmbinp(5)", "Cmbinp(6)", "Frame1(2)", "Chk7", "lblInput(0)", "List1", "ListLabel"})
        EXPECT_TRUE(shown(name)) << name;
    EXPECT_FALSE(shown("Frame1(3)"));
    EXPECT_FALSE(shown("Frame1(4)"));
    EXPECT_EQ(control<QLabel>(window, "lblInput(0)")->text(), "Multiple Storms");
}

TEST_F(GraphicsOutputTest, TheEleventhDistinctItemIsRefusedUntilAnOptionOfWhatVariesIsClicked) {
    writeElevenStorms();
    open();
    click(option("Opt2", 2));
    for (int s = 0; s < 10; ++s)
        pick(3, s);
    EXPECT_EQ(multiple()->count(), 10);
    EXPECT_EQ(exceededBoxes(), 0);
    pick(3, 10);
    EXPECT_EQ(exceededBoxes(), 1);
    EXPECT_EQ(platform.boxes.back().title, "Multiple Selections Exceeded");
    tabIn(3);
    EXPECT_EQ(exceededBoxes(), 2);
    EXPECT_EQ(multiple()->count(), 10);
    // Taking entries out by clicking makes no room.
    platform.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    clickEntry(0);
    clickEntry(0);
    EXPECT_EQ(multiple()->count(), 8);
    pick(3, 10);
    EXPECT_EQ(exceededBoxes(), 3);
    EXPECT_EQ(multiple()->count(), 8);
    EXPECT_FALSE(entries().contains("S-11"));
    // Any option of what varies starts the allowance anew.
    click(option("Opt2", 2));
    EXPECT_EQ(multiple()->count(), 0);
    EXPECT_EQ(window->multiCount(), 0);
    pick(3, 10);
    EXPECT_EQ(entries(), QStringList({"S-11"}));
    EXPECT_EQ(exceededBoxes(), 3);
}

TEST_F(GraphicsOutputTest, TenAttemptsOnOneItemFillTheAllowance) {
    open();
    click(option("Opt2", 2));
    pick(3, 0);
    for (int k = 1; k < 10; ++k)
        tabIn(3);
    EXPECT_EQ(entries(), QStringList({"100-YR"}));
    EXPECT_EQ(window->multiCount(), 10);
    EXPECT_EQ(exceededBoxes(), 0);
    pick(3, 1);
    EXPECT_EQ(exceededBoxes(), 1);
    EXPECT_EQ(entries(), QStringList({"100-YR"}));
}

TEST_F(GraphicsOutputTest, AnEmptyListOfStormsGivesNoRowsAndTheNoDataBox) {
    writeReport();
    open();
    pick(3, 0);
    click(check("Chk7"));
    click(option("Opt2", 2));
    ASSERT_EQ(multiple()->count(), 0);
    ASSERT_TRUE(display()->isEnabled());
    click(display());
    EXPECT_EQ(context->plots.PlotKind, OutputHydrographPlot);
    EXPECT_EQ(context->plots.SeriesCount, 0);
    EXPECT_EQ(context->plots.MultiStormCount, 0);
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes.back(), NoPlotDataBox());
    EXPECT_EQ(platform.boxes.back().title, "Graphics Output");
    EXPECT_EQ(PlotStandIn::opened, 0);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(GraphicsOutputTest, AReachListsNothingUntilAnEndIsClickedAndBothEndsMakeTwoSeries) {
    writeReport();
    open();
    pick(3, 0);
    click(option("Opt2", 4));
    EXPECT_EQ(control<QLabel>(window, "lblInput(0)")->text(), "Multiple Locations");
    pick(6, 0);
    EXPECT_EQ(multiple()->count(), 0);
    EXPECT_TRUE(shown("Frame1(6)"));
    EXPECT_FALSE(display()->isEnabled());
    click(option("Opt6", 1));
    click(option("Opt6", 2));
    EXPECT_EQ(entries(), QStringList({"R-1 - Upstream", "R-1 - Downstream"}));
    ASSERT_TRUE(display()->isEnabled());
    const PlotData& plot = displayedPlot();
    EXPECT_EQ(plot.PlotKind, OutputHydrographPlot);
    ASSERT_EQ(plot.SeriesCount, 2);
    EXPECT_EQ(plot.PlotRequest[1].T[2], "100-YR");
    EXPECT_EQ(plot.PlotRequest[1].T[3], "R-1");
    EXPECT_EQ(plot.PlotRequest[1].T[4], "Upstream");
    EXPECT_EQ(plot.PlotRequest[2].T[4], "Downstream");
    EXPECT_EQ(plot.PlotRequest[1].T7, 3);
    EXPECT_EQ(plot.PlotY.get(2, 2), 6.0f);
    // The window stays behind the plot for the next one.
    EXPECT_TRUE(window->isVisible());
    click(display());
    EXPECT_EQ(PlotStandIn::opened, 2);
}

TEST_F(GraphicsOutputTest, WithPeakFlowTabFromTheAlternateReturnsToTheStorm) {
    open();
    click(option("opt1", 2));
    list(4)->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(list(4), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), list(3));
    // A hydrograph goes on through the locations, and Enter from the reach returns to the storm.
    click(option("opt1", 1));
    list(4)->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(list(4), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), list(5));
    QTest::keyClick(list(5), Qt::Key_Return);
    EXPECT_EQ(window->focusWidget(), list(6));
    QTest::keyClick(list(6), Qt::Key_Return);
    EXPECT_EQ(window->focusWidget(), list(3));
}

TEST_F(GraphicsOutputTest, StormsAndAlternatesVaryInTheirColumnsAndCounts) {
    writeReport();
    open();
    click(option("Opt2", 2));
    pick(3, 1);
    pick(3, 0);
    pick(5, 0);
    const PlotData& plot = displayedPlot();
    EXPECT_EQ(plot.MultiStormCount, 2);
    EXPECT_EQ(plot.MultiAlternateCount, 1);
    ASSERT_EQ(plot.SeriesCount, 2);
    EXPECT_EQ(plot.PlotRequest[1].T[2], "10-YR");
    EXPECT_EQ(plot.PlotRequest[2].T[2], "100-YR");
    EXPECT_EQ(plot.PlotRequest[1].T[3], "SA-1");
    EXPECT_EQ(plot.PlotRequest[1].T[4], "FIELD-1");
    EXPECT_EQ(plot.PlotRequest[2].T[1], "");
}

TEST_F(GraphicsOutputTest, PeakFlowsAskForUnitsAndLocationsAndRequestOneRowForEach) {
    writeReport();
    open();
    click(option("opt1", 2));
    pick(3, 0);
    EXPECT_FALSE(display()->isEnabled());
    click(option("Opt3", 2));
    EXPECT_FALSE(display()->isEnabled());
    click(check("Chk4(1)"));
    click(check("Chk4(3)"));
    ASSERT_TRUE(display()->isEnabled());
    const PlotData& plot = displayedPlot();
    EXPECT_EQ(plot.PlotKind, PeakFlowPlot);
    ASSERT_EQ(plot.SeriesCount, 2);
    EXPECT_EQ(plot.PlotRequest[1].T[3], "Subarea");
    EXPECT_EQ(plot.PlotRequest[2].T[3], "Outlet");
    EXPECT_EQ(plot.PlotRequest[1].T[2], "100-YR");
    EXPECT_EQ(plot.FlowUnitLabel, "csm");
    // 40 cfs from 2 of area.
    EXPECT_EQ(plot.PlotY.get(1, 1), 20.0f);
}

TEST_F(GraphicsOutputTest, TheTimeAnalysisOfOneLocationStartsItsCurveFromNought) {
    writeReport();
    open();
    click(option("opt1", 3));
    pick(3, 0);
    EXPECT_FALSE(display()->isEnabled());
    pick(5, 0);
    ASSERT_TRUE(display()->isEnabled());
    const PlotData& plot = displayedPlot();
    EXPECT_EQ(plot.PlotKind, TimeAnalysisPlot);
    EXPECT_EQ(plot.SeriesCount, 1);
    EXPECT_EQ(plot.PlotRequest[1].T[3], "SA-1");
    EXPECT_EQ(plot.PlotRequest[1].T[5], "0.0");
    EXPECT_EQ(plot.PlotRequest[1].T[16], "1.5");
}

TEST_F(GraphicsOutputTest, TheTimeAnalysisClearsTwoLocationsSetAtOnce) {
    open();
    pick(5, 0);
    click(check("Chk7"));
    // The outlet took the place of the sub-area; a reach then makes two locations with the outlet
    // switched back on.
    EXPECT_EQ(list(5)->currentIndex(), -1);
    pick(6, 0);
    click(check("Chk7"));
    pick(5, 1);
    list(6)->setCurrentIndex(0);
    click(option("opt1", 3));
    EXPECT_EQ(list(5)->currentIndex(), -1);
    EXPECT_EQ(list(6)->currentIndex(), -1);
    EXPECT_FALSE(check("Chk7")->isChecked());
}

TEST_F(GraphicsOutputTest, AReachOfOneHydrographNeedsItsEnd) {
    open();
    pick(3, 0);
    pick(6, 0);
    EXPECT_TRUE(shown("Frame1(6)"));
    EXPECT_FALSE(display()->isEnabled());
    click(option("Opt6", 2));
    EXPECT_TRUE(display()->isEnabled());
    // Picking the reach again clears its end.
    pick(6, 0);
    EXPECT_FALSE(option("Opt6", 2)->isChecked());
    EXPECT_FALSE(display()->isEnabled());
    pick(5, 0);
    EXPECT_FALSE(shown("Frame1(6)"));
    EXPECT_EQ(list(6)->currentIndex(), -1);
    EXPECT_TRUE(display()->isEnabled());
}

TEST_F(GraphicsOutputTest, TheOutletEntryGoesWithItsCheckBox) {
    open();
    click(option("Opt2", 4));
    pick(5, 0);
    click(check("Chk7"));
    EXPECT_EQ(entries(), QStringList({"SA-1", "Outlet"}));
    EXPECT_EQ(list(5)->currentIndex(), -1);
    click(check("Chk7"));
    EXPECT_EQ(entries(), QStringList({"SA-1"}));
    click(check("Chk7"));
    // No keeps the entry; Yes takes it out and the box goes off.
    platform.answers = {BoxAnswer::No, BoxAnswer::Yes};
    clickEntry(1);
    EXPECT_EQ(entries(), QStringList({"SA-1", "Outlet"}));
    EXPECT_EQ(platform.boxes.back(), DeleteSelectedItemBox());
    EXPECT_EQ(platform.boxes.back().text, "Delete Current selected item ?");
    clickEntry(1);
    EXPECT_EQ(entries(), QStringList({"SA-1"}));
    EXPECT_FALSE(check("Chk7")->isChecked());
}

TEST_F(GraphicsOutputTest, AMouseClickInTheDropDownPicksAndLeavesTheFocusOnTheList) {
    open();
    click(option("Opt2", 4));
    QComboBox* subAreas = list(5);
    subAreas->showPopup();
    QAbstractItemView* view = subAreas->view();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(1, 0)).center());
    EXPECT_EQ(subAreas->currentText(), "SA-2");
    EXPECT_EQ(entries(), QStringList({"SA-2"}));
    EXPECT_EQ(window->focusWidget(), subAreas);
}

TEST_F(GraphicsOutputTest, AMissingPrintedPageFileGivesTheNoDataBox) {
    open();
    pick(3, 0);
    click(check("Chk7"));
    click(display());
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes.back().text, "No data for requested plot found");
    EXPECT_EQ(PlotStandIn::opened, 0);
}

TEST_F(GraphicsOutputTest, EveryControlHasItsOwnAccessibleName) {
    open();
    QStringList names;
    for (QWidget* control : window->findChildren<QWidget*>()) {
        if (!qobject_cast<QAbstractButton*>(control) && !qobject_cast<QComboBox*>(control) &&
            !qobject_cast<QListWidget*>(control))
            continue;
        EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
        names << control->accessibleName();
    }
    EXPECT_EQ(names.size(), 22);
    EXPECT_EQ(names.removeDuplicates(), 0) << names.join(", ").toStdString();
}

TEST_F(GraphicsOutputTest, CloseUnloadsTheWindow) {
    open();
    click(control<QPushButton>(window, "cmdCancel"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(context->windows.loaded("frmGraphicsOutput"), nullptr);
}

TEST_F(GraphicsOutputTest, ThePlotsCommandOpensTheWindowWhenThePrintedPageFileExists) {
    writeReport();
    session().DataChanged = false;
    main->Form_Activate();
    clickMenuItem("mnuPlots");
    EXPECT_TRUE(context->windows.shownNames().contains("frmGraphicsOutput"));
    ASSERT_NE(context->windows.loaded("frmGraphicsOutput"), nullptr);
    EXPECT_TRUE(context->windows.loaded("frmGraphicsOutput")->isVisible());
}

} // namespace
} // namespace brooklet::test
