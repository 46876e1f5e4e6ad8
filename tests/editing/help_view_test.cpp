// The help box on screen and the plain help windows of the Help menu.
#include "support/ui_fixture.h"

#include "base/version.h"

#include "editing/help_box.h"
#include "editing/help_view.h"
#include "editing/help_windows.h"

#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>

#include <set>

namespace brooklet::test {
namespace {

class HelpBoxTest : public ProgramFolderTest {
protected:
    void SetUp() override {
        session.HelpListFile = folder.file("help.lst");
        writeBytes(session.HelpListFile, "DI|Duration Increment - Durations.||\r\n"
                                         "DI3|Third - The third duration.|hr|\r\n"
                                         "DI30|Thirtieth - Never asked for.|x|\r\n"
                                         "DI4|Fourth - The fourth.|hr|\r\n");
        box = makeHelpBox(&parent);
        parent.show();
    }
    Session session;
    QWidget parent;
    QPlainTextEdit* box = nullptr;
};

TEST_F(HelpBoxTest, TheBoxIsHiddenAtFirst) {
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(box->objectName(), "txtHelp");
    EXPECT_TRUE(box->isReadOnly());
}

TEST_F(HelpBoxTest, AClickShowsTheItemAndASecondClickHidesIt) {
    ShowHelpItem(session, 3, box, "DI");
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(helpBoxText(box), "          Third \r\nThe third duration.\r\n          Range - hr\r\n\r\n");
    EXPECT_EQ(session.HelpShown, 3);
    ShowHelpItem(session, 3, box, "DI");
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(box->toPlainText(), "");
    EXPECT_EQ(session.HelpShown, -999);
}

TEST_F(HelpBoxTest, AClickOnAnotherLabelReplacesTheItem) {
    ShowHelpItem(session, 3, box, "DI");
    ShowHelpItem(session, 4, box, "DI");
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(helpBoxText(box), "          Fourth \r\nThe fourth.\r\n          Range - hr\r\n\r\n");
    EXPECT_EQ(session.HelpShown, 4);
}

TEST_F(HelpBoxTest, IndexZeroIsAValidItemThatAClickHidesAgain) {
    ShowHelpItem(session, 0, box, "DI");
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(session.HelpShown, 0);
    EXPECT_EQ(helpBoxText(box), "          Duration Increment \r\nDurations.\r\n\r\n");
    ShowHelpItem(session, 0, box, "DI");
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(session.HelpShown, -999);
}

TEST_F(HelpBoxTest, LabelThreeNeverShowsTheEntryOfLabelThirty) {
    ShowHelpItem(session, 3, box, "DI");
    EXPECT_EQ(helpBoxText(box).find("Thirtieth"), std::string::npos);
}

TEST_F(HelpBoxTest, HideHelpEmptiesAndHidesTheBox) {
    ShowHelpItem(session, 4, box, "DI");
    HideHelp(box);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(box->toPlainText(), "");
}

TEST(HelpLabel, AsksForHelpOnlyWhenItShowsHelp) {
    HelpLabel label("Minimum Hydrograph Value:  ");
    int clicks = 0;
    QObject::connect(&label, &HelpLabel::clicked, [&clicks] { ++clicks; });
    label.show();
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    label.setAsksForHelp(true);
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
}

// ---- The plain help windows --------------------------------------------------------------------

class HelpWindowsTest : public UiTest {
protected:
    void SetUp() override { startMain(); }
    QWidget* loaded(const char* name) { return context->windows.loaded(name); }
    QString text(const char* window) {
        return control<QTextBrowser>(loaded(window), "txtHelpText")->document()->toPlainText();
    }
};

TEST_F(HelpWindowsTest, TheHelpMenuItemsOpenTheirWindows) {
    const std::pair<const char*, const char*> items[] = {{"mnuHelpItem(1)", "frmDiagram"},
                                                         {"mnuHelpItem(3)", "frmOverview"},
                                                         {"mnuHelpItem(4)", "frmHelpFac"},
                                                         {"mnuHelpItem(5)", "frmGettingStarted"},
                                                         {"mnuHelpItem(8)", "frmAbout"}};
    for (const auto& [item, window] : items) {
        clickMenuItem(item);
        ASSERT_NE(loaded(window), nullptr) << window;
        EXPECT_TRUE(loaded(window)->isVisible()) << window;
        EXPECT_EQ(loaded(window)->pos(), QPoint(0, 0)) << window;
    }
}

TEST_F(HelpWindowsTest, NewUserOpensGettingStartedHelpFacilitiesAndOverviewInThisOrder) {
    QTest::mouseClick(control<QPushButton>(main, "cmdHelp"), Qt::LeftButton);
    EXPECT_EQ(context->windows.shownNames(), (QStringList{"frmGettingStarted", "frmHelpFac", "frmOverview"}));
    for (const char* window : {"frmGettingStarted", "frmHelpFac", "frmOverview"})
        EXPECT_TRUE(loaded(window) && loaded(window)->isVisible()) << window;
}

TEST_F(HelpWindowsTest, EachWindowHasItsCaptionAndClosesWithItsButton) {
    const std::pair<const char*, const char*> captions[] = {
        {"frmAbout", "About Brooklet System Controller / Editor"},
        {"frmDiagram", "Brooklet System Diagram"},
        {"frmOverview", "Overviews Help"},
        {"frmHelpFac", "Help Facilities Help"},
        {"frmGettingStarted", "Getting Started Help"}};
    for (const auto& [name, caption] : captions) {
        QWidget* window = context->windows.ShowWindowAtOrigin(name);
        ASSERT_NE(window, nullptr) << name;
        EXPECT_EQ(window->windowTitle(), caption);
        auto* close = control<QPushButton>(window, "cmdClose");
        ASSERT_NE(close, nullptr);
        EXPECT_EQ(close->text(), "Close");
        QTest::mouseClick(close, Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(loaded(name), nullptr) << name;
    }
}

TEST_F(HelpWindowsTest, AboutShowsItsWordsAsGiven) {
    QWidget* about = context->windows.ShowWindowAtOrigin("frmAbout");
    EXPECT_EQ(control<QLabel>(about, "lblTitle")->text(),
              "Brooklet System Controller / Editor    \n32-bit Window Based Application");
    EXPECT_EQ(
        control<QLabel>(about, "lblDescription")->text(),
        "The Brooklet System Controller / Editor connects all the sytem software pieces (Flume model, input "
        "converter, and HEC-RAS reformatter) together.  It also allows entry or modification of Brooklet "
        "input data.");
    EXPECT_EQ(control<QLabel>(about, "lblVersion")->text(),
              "          Version - 1.00           Complied Date: 10/01/04");
    EXPECT_EQ(control<QLabel>(about, "lblProgramVersion")->text(),
              QString("Brooklet program version ") + ProgramVersion);
    EXPECT_EQ(QString(ProgramVersion).count('.'), 2) << "major.minor.patch";
    EXPECT_EQ(control<QLabel>(about, "lblDisclaimer")->text(), DisclaimerText);
    EXPECT_EQ(control<QLabel>(about, "lblDisclaimer")->text(),
              control<QLabel>(main, "lblDisclaimer")->text());
}

TEST_F(HelpWindowsTest, GettingStartedHasFourParagraphsOnEditingConvertingReformattingAndRunning) {
    context->windows.ShowWindowAtOrigin("frmGettingStarted");
    const QStringList paragraphs = text("frmGettingStarted").split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(paragraphs.size(), 4);
    EXPECT_TRUE(paragraphs[0].startsWith("Editing."));
    EXPECT_TRUE(paragraphs[1].startsWith("Converting."));
    EXPECT_TRUE(paragraphs[1].contains("Convert old Data"));
    EXPECT_TRUE(paragraphs[2].startsWith("Reformatting."));
    EXPECT_TRUE(paragraphs[2].contains("Import HEC-RAS"));
    EXPECT_TRUE(paragraphs[3].startsWith("Running."));
}

TEST_F(HelpWindowsTest, OverviewAndHelpFacilitiesTellTheirSubjects) {
    context->windows.ShowWindowAtOrigin("frmOverview");
    context->windows.ShowWindowAtOrigin("frmHelpFac");
    EXPECT_TRUE(text("frmOverview").contains("sections"));
    EXPECT_TRUE(text("frmOverview").contains("work file"));
    EXPECT_TRUE(text("frmHelpFac").contains("help box"));
    EXPECT_TRUE(text("frmHelpFac").contains("Help menu"));
}

TEST_F(HelpWindowsTest, TheDiagramDrawsEveryPartOfTheSystem) {
    const QStringList parts = DiagramPicture::partTitles();
    for (const char* part :
         {"Brooklet Controller / Editor", "Flume model", "Input converter", "HEC-RAS reformatter",
          "Input file", "Work files", "Result files", "Old input file", "HEC-RAS output"})
        EXPECT_TRUE(parts.contains(part)) << part;

    QWidget* diagram = context->windows.ShowWindowAtOrigin("frmDiagram");
    auto* picture = control<DiagramPicture>(diagram, "picDiagram");
    ASSERT_NE(picture, nullptr);
    picture->resize(picture->sizeHint());
    const QImage image = picture->grab().toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    // White ground, program and file fills, lines and text.
    EXPECT_TRUE(colours.count(qRgb(255, 255, 255)));
    EXPECT_TRUE(colours.count(qRgb(200, 225, 255)));
    EXPECT_TRUE(colours.count(qRgb(255, 250, 205)));
    EXPECT_GT(colours.size(), 10u);
}

} // namespace
} // namespace brooklet::test
