#include "run/file_viewer.h"
#include "session/text_file.h"
#include "support/ui_fixture.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace brooklet::test {
namespace {

class FileViewerTest : public UiTest {
protected:
    FileViewerTest() {
        startMain();
        shed = folder.file("shed.inp");
        writeBytes(shed, crlf({"Brooklet: Version 1.0", "SAVED TITLE", "", "Stream Reach:", "  R1"}));
        session().CurrentFile = shed;
        writeBytes(workFile(13), crlf({"Brooklet: Version 1.0", "UNSAVED TITLE"}));
        writeBytes(workFile(8), crlf({"Stream Reach:", "  R1"}));
    }
    frmFileDisp* open(int viewIndex) {
        session().ViewIndex = static_cast<short>(viewIndex);
        ShowFileViewer(*context);
        return context->windows.loadedAs<frmFileDisp>("frmFileDisp");
    }
    QString text(frmFileDisp* viewer) {
        return control<QPlainTextEdit>(viewer, "RichTextBox1")->toPlainText();
    }
    QString label(frmFileDisp* viewer) { return control<QLabel>(viewer, "lblWindow")->text(); }
    QAction* viewItem(frmFileDisp* viewer, int index) {
        return control<QAction>(viewer, indexedName("mnuViewItem", index));
    }
    std::string shed;
};

TEST_F(FileViewerTest, ShowsTheSavedInputFileNotTheWorkFiles) {
    frmFileDisp* viewer = open(1);
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(text(viewer), "Brooklet: Version 1.0\nSAVED TITLE\n\nStream Reach:\n  R1\n");
    EXPECT_EQ(label(viewer), "Brooklet Input File");
    EXPECT_EQ(viewer->windowTitle().toStdString(), "File Display   Current File - " + shed);
    EXPECT_EQ(viewer->pos(), QPoint(0, 0));
    EXPECT_TRUE(control<QPlainTextEdit>(viewer, "RichTextBox1")->isReadOnly());
    EXPECT_EQ(control<QPlainTextEdit>(viewer, "RichTextBox1")->font().family(), "Courier New");
    EXPECT_EQ(control<QPushButton>(viewer, "cmdCancel")->text(), "Close");
}

TEST_F(FileViewerTest, EachFileHasItsLabel) {
    const std::map<int, std::pair<const char*, QString>> files = {{4, {"out", "Brooklet Printed Page File"}},
                                                                  {5, {"err", "Brooklet Error File"}},
                                                                  {6, {"dbg", "Brooklet Debug File"}},
                                                                  {7, {"hyd", "Brooklet Hydrograph File"}},
                                                                  {8, {"ecn", "Brooklet Tally File"}}};
    for (const auto& [index, file] : files) {
        writeBytes(folder.file(std::string("shed.") + file.first), crlf({file.first, "second line"}));
        frmFileDisp* viewer = open(index);
        EXPECT_EQ(label(viewer), file.second) << index;
        EXPECT_EQ(text(viewer), QString(file.first) + "\nsecond line\n") << index;
        EXPECT_EQ(viewer->shownPath(), folder.file(std::string("shed.") + file.first));
    }
}

TEST_F(FileViewerTest, AFileThatDoesNotExistGivesAnEmptyBox) {
    frmFileDisp* viewer = open(5);
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(text(viewer), "");
    EXPECT_EQ(label(viewer), "Brooklet Error File");
    EXPECT_EQ(viewer->windowTitle().toStdString(),
              "File Display   Current File - " + folder.file("shed.err"));
}

TEST_F(FileViewerTest, ItsViewMenuReloadsAndItsSchematicItemDoesNothing) {
    writeBytes(folder.file("shed.out"), crlf({"PAGE", "TWO"}));
    writeBytes(folder.file("shed.dbg"), crlf({"DEBUG", "TWO"}));
    frmFileDisp* viewer = open(1);
    EXPECT_EQ(viewItem(viewer, 7)->text(), "Hydrograph");
    EXPECT_TRUE(viewItem(viewer, 0)->isEnabled()); // the reach section has a record
    EXPECT_TRUE(viewItem(viewer, 4)->isEnabled());
    EXPECT_FALSE(viewItem(viewer, 5)->isEnabled());
    EXPECT_TRUE(viewItem(viewer, 6)->isEnabled());
    viewItem(viewer, 4)->trigger();
    EXPECT_EQ(session().ViewIndex, 4);
    EXPECT_EQ(text(viewer), "PAGE\nTWO\n");
    viewItem(viewer, 6)->trigger();
    EXPECT_EQ(label(viewer), "Brooklet Debug File");
    const int shown = context->windows.shownNames().size();
    viewItem(viewer, 0)->trigger();
    EXPECT_EQ(session().ViewIndex, 6);
    EXPECT_EQ(label(viewer), "Brooklet Debug File");
    EXPECT_EQ(context->windows.shownNames().size(), shown);
}

TEST_F(FileViewerTest, TheInputFileItemIsDisabledWhileDataChanged) {
    session().DataChanged = true;
    frmFileDisp* viewer = open(1);
    EXPECT_FALSE(viewItem(viewer, 1)->isEnabled());
    EXPECT_TRUE(viewItem(viewer, 0)->isEnabled());
}

TEST_F(FileViewerTest, ASecondOpenShowsTheNewChoice) {
    writeBytes(folder.file("shed.out"), crlf({"PAGE", "TWO"}));
    frmFileDisp* first = open(1);
    frmFileDisp* second = open(4);
    EXPECT_EQ(first, second);
    EXPECT_EQ(label(second), "Brooklet Printed Page File");
    EXPECT_EQ(text(second), "PAGE\nTWO\n");
}

TEST_F(FileViewerTest, AByteOrderMarkIsNotShownAndEveryLineEndBreaksTheLine) {
    writeBytes(folder.file("shed.out"), "\xEF\xBB\xBFPAGE\rCR ALONE\nLF ALONE\r\nLAST");
    frmFileDisp* viewer = open(4);
    EXPECT_EQ(text(viewer), "PAGE\nCR ALONE\nLF ALONE\nLAST");
}

TEST_F(FileViewerTest, CloseUnloadsTheWindow) {
    QPointer<frmFileDisp> viewer = open(1);
    QTest::mouseClick(control<QPushButton>(viewer, "cmdCancel"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(viewer.isNull());
    EXPECT_EQ(context->windows.loaded("frmFileDisp"), nullptr);
}

TEST_F(FileViewerTest, PrintingPutsAMarginOfFiveBlanksAndBreaksPagesAtFormFeeds) {
    writeBytes(folder.file("shed.out"),
               crlf({"TITLE", "LINE 2", "\fPAGE TWO HEADING IS DROPPED", "LINE 4", "AB\fCD", "LINE 6"}));
    frmFileDisp* viewer = open(4);
    platform.printerAnswers.push_back(PrintNoPageNumbersFlag | PrintHideToFileFlag);
    control<QAction>(viewer, "mnuPrint")->trigger();

    ASSERT_EQ(platform.printerDialogs.size(), 1u);
    const PrinterDialogSettings& dialog = platform.printerDialogs[0];
    EXPECT_EQ(dialog.Flags, 0x8 | 0x100000);
    EXPECT_EQ(dialog.FileName, "*.inp");
    EXPECT_TRUE(dialog.CancelError);
    EXPECT_EQ(dialog.DialogTitle, "Print" + folder.file("shed.out"));
    ASSERT_EQ(platform.printJobs.size(), 1u);
    const auto& job = platform.printJobs[0];
    EXPECT_EQ(job.font, "Courier");
    EXPECT_EQ(job.points, 10);
    EXPECT_TRUE(job.ended);
    const std::vector<std::vector<std::string>> pages = {
        {"     TITLE", "     LINE 2"}, {"     LINE 4", "     AB\fCD"}, {"     LINE 6"}};
    EXPECT_EQ(job.pages, pages);
}

TEST_F(FileViewerTest, PrintingTheSelectionPrintsOnlyIt) {
    writeBytes(folder.file("shed.out"), crlf({"FIRST", "SECOND", "THIRD"}));
    frmFileDisp* viewer = open(4);
    auto* box = control<QPlainTextEdit>(viewer, "RichTextBox1");
    QTextCursor cursor = box->textCursor();
    cursor.setPosition(6);                           // start of SECOND
    cursor.setPosition(15, QTextCursor::KeepAnchor); // up to TH
    box->setTextCursor(cursor);
    platform.printerAnswers.push_back(1048585);
    control<QAction>(viewer, "mnuPrint")->trigger();
    ASSERT_EQ(platform.printJobs.size(), 1u);
    EXPECT_EQ(platform.printJobs[0].pages, (std::vector<std::vector<std::string>>{{"SECOND", "TH"}}));
}

TEST_F(FileViewerTest, ASelectionFlagWithOtherFlagsPrintsTheWholeFile) {
    writeBytes(folder.file("shed.out"), crlf({"FIRST", "SECOND"}));
    frmFileDisp* viewer = open(4);
    platform.printerAnswers.push_back(1048585 | 0x4);
    control<QAction>(viewer, "mnuPrint")->trigger();
    ASSERT_EQ(platform.printJobs.size(), 1u);
    EXPECT_EQ(platform.printJobs[0].pages,
              (std::vector<std::vector<std::string>>{{"     FIRST", "     SECOND"}}));
}

TEST_F(FileViewerTest, CancellingThePrinterDialogPrintsNothing) {
    frmFileDisp* viewer = open(1);
    platform.printerAnswers.push_back(std::nullopt);
    control<QAction>(viewer, "mnuPrint")->trigger();
    EXPECT_TRUE(platform.printJobs.empty());
}

} // namespace
} // namespace brooklet::test
