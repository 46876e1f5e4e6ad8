// The table editors open at once: frmStruct, frmXsect, frmRainDist, frmInpHyd, frmDimHyd and
// frmStorm. Each keeps the tables it read from its own work file, so with any two open, each
// typed into and accepted in turn writes its own section and nothing of the other's. A plot
// opened from one editor while another is open shows the table of the editor that opened it.
#include "value_window_fixture.h"

#include "plots/plot_window.h"

#include <QLabel>

namespace brooklet::test {
namespace {

const std::string StructureHeader = "STRUCTURE RATING:" + std::string(23, ' ');
const std::string CrossSectionHeader = "STREAM CROSS SECTION:" + std::string(19, ' ');
const std::string RainHeader = "RAINFALL DISTRIBUTION:" + std::string(28, ' ');
const std::string HydrographHeader = "INPUT HYDROGRAPH:" + std::string(23, ' ');
const std::string UnitHydrographHeader = "DIMENSIONLESS UNIT HYDROGRAPH:" + std::string(10, ' ');

// A record of ten-column fields behind twenty blanks.
std::string points(std::initializer_list<std::string> values) {
    return std::string(20, ' ') + tens(values);
}

QLineEdit* boxOf(QWidget* window, int index) {
    return window->findChild<QLineEdit*>(indexedName("txtInp", index));
}
QComboBox* comboOf(QWidget* window, int index) {
    return window->findChild<QComboBox*>(indexedName("cmbInp", index));
}
QTableWidget* gridOf(QWidget* window) {
    return window->findChild<QTableWidget*>("MSFlexGrid1");
}
QPushButton* buttonOf(QWidget* window, const char* name) {
    return window->findChild<QPushButton*>(name);
}
void clickOn(QWidget* control) {
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(4, 4));
}
// Types into the control that has the focus, then presses the key.
void typeAndPress(QWidget* control, const QString& text, Qt::Key key = Qt::Key_Tab) {
    EXPECT_EQ(QApplication::focusWidget(), control)
        << control->objectName().toStdString() << " has not the focus";
    QTest::keyClicks(control, text);
    QTest::keyClick(control, key);
}
// A name typed into the emptied identifier list, with Enter.
void enterName(QWidget* window, const QString& name) {
    QComboBox* list = comboOf(window, 1);
    list->setFocus();
    list->setEditText(QString());
    QTest::keyClicks(list, name);
    QTest::keyClick(list, Qt::Key_Return);
}
// Values typed straight into the grid, each with Enter.
void typeValues(QWidget* window, std::initializer_list<QString> values) {
    QTableWidget* grid = gridOf(window);
    EXPECT_EQ(QApplication::focusWidget(), grid) << "the grid has not the focus";
    for (const QString& value : values) {
        QTest::keyClicks(grid, value);
        QTest::keyClick(grid, Qt::Key_Return);
    }
}

// One of the five editors: its section as it starts, what the user types into it, and the
// section its Accept writes.
struct EditorScript {
    const char* window;
    int section;
    std::vector<std::string> before;
    void (*type)(QWidget* window);
    std::vector<std::string> after;
};

const EditorScript Structure{"frmStruct",
                             StructureSection,
                             {StructureHeader, tens({"", "DAM1", "100."}), points({"100.", "0.", "0."}),
                              points({"102.", "50.", "10."}), ""},
                             [](QWidget* window) {
                                 enterName(window, "GATE");
                                 typeAndPress(boxOf(window, 2), "95");
                                 for (const char* text : {"95", "0", "0", "96", "8", "2"})
                                     typeAndPress(QApplication::focusWidget(), text);
                             },
                             {StructureHeader, tens({"", "DAM1", "100."}), points({"100.", "0.", "0."}),
                              points({"102.", "50.", "10."}), tens({"", "GATE", "95."}),
                              points({"95.", "0.", "0."}), points({"96.", "8.", "2."}), ""}};

const EditorScript CrossSection{
    "frmXsect",
    CrossSectionSection,
    {CrossSectionHeader, tens({"", "X1", "100.", "", "90.", "MILL.", "1200."}),
     points({"90.", "0.", "0.", "0.", ".001"}), points({"95.", "100.", "40.", "20.", ".002"}), ""},
    [](QWidget* window) {
        enterName(window, "X2");
        typeAndPress(boxOf(window, 2), "80");
        typeAndPress(boxOf(window, 3), "70");
        typeAndPress(comboOf(window, 4), "CREEK");
        typeAndPress(boxOf(window, 5), "300");
        for (const char* text : {"70", "0", "0", "10", ".01"})
            typeAndPress(QApplication::focusWidget(), text);
    },
    {CrossSectionHeader, tens({"", "X1", "100.", "", "90.", "MILL.", "1200."}),
     points({"90.", "0.", "0.", "0.", ".001"}), points({"95.", "100.", "40.", "20.", ".002"}),
     tens({"", "X2", "80.", "", "70.", "CREEK.", "300."}), points({"70.", "0.", "0.", "10.", ".01"}), ""}};

const EditorScript RainDistribution{
    "frmRainDist",
    RainfallDistributionSection,
    {RainHeader, tens({"", "A", "", "0.5"}), points({"0.", "0.2", "0.6", "1."}), ""},
    [](QWidget* window) {
        enterName(window, "B");
        typeAndPress(boxOf(window, 2), "1", Qt::Key_Return);
        typeValues(window, {"0.4", "1"});
    },
    {RainHeader, tens({"", "A", "", "0.5"}), points({"0.", "0.2", "0.6", "1."}), tens({"", "B", "", "1."}),
     points({"0.", "0.4", "1."}), ""}};

const EditorScript InputHydrograph{
    "frmInpHyd",
    InputHydrographSection,
    {HydrographHeader, tens({"", "QUARRY", "EASTFORK", "100-YR", "0.", "0.5", "0.35", "2."}),
     points({"0.", "4.", "0."}), ""},
    [](QWidget* window) {
        enterName(window, "MILLRACE");
        typeAndPress(comboOf(window, 2), "WESTFORK");
        typeAndPress(comboOf(window, 3), "10-YR");
        for (const char* text : {"1", "0.25", "2", "3"})
            typeAndPress(QApplication::focusWidget(), text);
        typeValues(window, {"6", "9"});
    },
    {HydrographHeader, tens({"", "QUARRY", "EASTFORK", "100-YR", "0.", "0.5", "0.35", "2."}),
     points({"0.", "4.", "0."}), tens({"", "MILLRACE", "WESTFORK", "10-YR", "1.", "0.25", "2.", "3."}),
     points({"0.", "6.", "9.", "0."}), ""}};

const EditorScript UnitHydrograph{"frmDimHyd",
                                  UnitHydrographSection,
                                  {UnitHydrographHeader, points({"0.", "1.", "0."})},
                                  [](QWidget* window) {
                                      // The cursor stands on the second value: both are typed over.
                                      typeValues(window, {"0.8", "0.3"});
                                  },
                                  {UnitHydrographHeader, points({"0.", "0.8", "0.3", "0."})}};

// A storm record: ten blanks, then the fields in ten columns each, to column 80.
std::string storm(std::initializer_list<std::string> fields) {
    std::string record = tens({""}) + tens(fields);
    record.resize(80, ' ');
    return record;
}

const EditorScript Storm{"frmStorm",
                         StormSection,
                         {"STORM ANALYSIS:" + std::string(25, ' '),
                          storm({"100-YR", "NORTHGAGE", "0.", "6.4", "Type II", "2", ""})},
                         [](QWidget* window) {
                             comboOf(window, 1)->setFocus();
                             for (const char* text : {"10-YR", "SOUTHGAGE", "1", "4.2", "Type II", "2.5"})
                                 typeAndPress(QApplication::focusWidget(), text, Qt::Key_Return);
                         },
                         {"STORM ANALYSIS:" + std::string(25, ' '),
                          storm({"100-YR", "NORTHGAGE", "0.", "6.4", "Type II", "2", ""}),
                          storm({"10-YR", "SOUTHGAGE", "1.", "4.2", "Type II", "2", "2.5"})}};

// The storm editor keeps grid variables of its own too.
const EditorScript* const Editors[] = {&Structure,       &CrossSection,   &RainDistribution,
                                       &InputHydrograph, &UnitHydrograph, &Storm};
constexpr int EditorCount = int(std::size(Editors));

class TableEditorsTogetherTest : public WindowTest,
                                 public ::testing::WithParamInterface<std::pair<int, int>> {
protected:
    QWidget* openEditor(const EditorScript& editor) {
        QWidget* window = context->windows.ShowWindowAtOrigin(editor.window);
        EXPECT_NE(window, nullptr) << editor.window;
        activate(window);
        return window;
    }
    void activate(QWidget* window) {
        window->activateWindow();
        QApplication::setActiveWindow(window);
    }
    // The editor typed into and accepted with a click on its button.
    void typeAndAccept(const EditorScript& editor, QWidget* window) {
        activate(window);
        editor.type(window);
        clickOn(buttonOf(window, "cmdFinished"));
        EXPECT_TRUE(closed(editor.window)) << editor.window;
    }
};

TEST_P(TableEditorsTogetherTest, EachOfTwoOpenEditorsWritesItsOwnSection) {
    const EditorScript& first = *Editors[GetParam().first];
    const EditorScript& second = *Editors[GetParam().second];
    writeBytes(workFile(first.section), crlf(first.before));
    writeBytes(workFile(second.section), crlf(second.before));
    QWidget* firstWindow = openEditor(first);
    QWidget* secondWindow = openEditor(second);
    ASSERT_TRUE(firstWindow && secondWindow);

    typeAndAccept(first, firstWindow);
    EXPECT_EQ(bytesOf(workFile(first.section)), crlf(first.after)) << first.window;
    EXPECT_EQ(bytesOf(workFile(second.section)), crlf(second.before)) << second.window;

    typeAndAccept(second, secondWindow);
    EXPECT_EQ(bytesOf(workFile(second.section)), crlf(second.after)) << second.window;
    EXPECT_EQ(bytesOf(workFile(first.section)), crlf(first.after)) << first.window;
}

std::vector<std::pair<int, int>> everyPairInBothOrders() {
    std::vector<std::pair<int, int>> pairs;
    for (int a = 0; a < EditorCount; ++a)
        for (int b = 0; b < EditorCount; ++b)
            if (a != b)
                pairs.emplace_back(a, b);
    return pairs;
}

std::string pairName(const ::testing::TestParamInfo<std::pair<int, int>>& info) {
    return std::string(Editors[info.param.first]->window) + "_then_" + Editors[info.param.second]->window;
}

INSTANTIATE_TEST_SUITE_P(EveryPair, TableEditorsTogetherTest, ::testing::ValuesIn(everyPairInBothOrders()),
                         pairName);

// The plot window as the program has it, noting what it shows and closing itself once its
// events run, as a user closing it would.
class PlotOpenedFromAnEditorTest : public TableEditorsTogetherTest {
protected:
    void SetUp() override {
        TableEditorsTogetherTest::SetUp();
        session().Units.LengthUnit = "ft";
        context->windows.registerWindow("frmIO_Plots", [this](AppContext& context) {
            auto* plot = new frmIO_Plots(context);
            title = toBytes(plot->findChild<QLabel*>("Label1")->text());
            const PlotData& data = context.plots;
            x.clear();
            y.clear();
            for (int p = 1; p <= data.pointCount(1); ++p) {
                x.push_back(data.PlotX.get(1, p));
                y.push_back(data.PlotY.get(1, p));
            }
            QMetaObject::invokeMethod(plot, &QWidget::close, Qt::QueuedConnection);
            return plot;
        });
    }
    std::string title;
    std::vector<float> x;
    std::vector<float> y;
};

TEST_F(PlotOpenedFromAnEditorTest, AStructurePlottedWhileACrossSectionIsOpenShowsTheStructuresRows) {
    writeBytes(workFile(StructureSection), crlf(Structure.before));
    writeBytes(workFile(CrossSectionSection), crlf(CrossSection.before));
    QWidget* structure = openEditor(Structure);
    QWidget* crossSection = openEditor(CrossSection);
    activate(structure);
    enterName(structure, "DAM1");
    clickOn(buttonOf(structure, "CmdPlot"));
    EXPECT_EQ(title, "Structure - DAM1");
    EXPECT_EQ(x, (std::vector<float>{100, 102}));
    EXPECT_EQ(y, (std::vector<float>{0, 50}));
    EXPECT_TRUE(closed("frmIO_Plots"));

    activate(crossSection);
    enterName(crossSection, "X1");
    clickOn(buttonOf(crossSection, "CmdPlot"));
    EXPECT_EQ(title, "Cross Section - X1");
    EXPECT_EQ(x, (std::vector<float>{90, 95}));
    EXPECT_EQ(y, (std::vector<float>{0, 100}));
}

TEST_F(PlotOpenedFromAnEditorTest, ARainTablePlottedWhileAHydrographIsOpenShowsTheRainTable) {
    writeBytes(workFile(RainfallDistributionSection), crlf(RainDistribution.before));
    writeBytes(workFile(InputHydrographSection), crlf(InputHydrograph.before));
    QWidget* rain = openEditor(RainDistribution);
    openEditor(InputHydrograph);
    activate(rain);
    enterName(rain, "A");
    clickOn(buttonOf(rain, "CmdPlot"));
    EXPECT_EQ(title, "Rainfall Distribution - A");
    EXPECT_EQ(x, (std::vector<float>{0, 0.5, 1, 1.5}));
    EXPECT_EQ(y, (std::vector<float>{0, 0.2f, 0.6f, 1}));
}

} // namespace
} // namespace brooklet::test
