// A session that ends while a window's own dialog is open: a screen reader reaches the main
// window's File menu past the dialog and opens another file. The dialog closes as Cancel, its
// window sees Cancel and is deleted only once the dialog has returned to it, and the new session
// begins. One test for each window with a dialog.
#include "plots/plot_window_fixture.h"

#include "session/input_file.h"
#include "session/text_file.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QTest>

namespace brooklet::test {
namespace {

const std::vector<std::string> Shed = {"Brooklet: Version 1.0", "A WATERSHED", "",
                                       "Duration Increment:",   "  0.1",       ""};
const std::vector<std::string> Second = {"Brooklet: Version 1.0", "THE NEXT WATERSHED", ""};

class SessionEndDialogTest : public PlotWindowTest {
protected:
    void SetUp() override {
        startMain();
        shed = folder.file("shed.inp");
        second = folder.file("second.inp");
        writeBytes(shed, crlf(Shed));
        writeBytes(second, crlf(Second));
        platform.openPicks.push_back(shed);
        clickMenuItem("mnuFileItem(2)");
        platform.boxes.clear();
    }

    // Presses an item of the main window's File menu as a screen reader does, through the
    // menu's accessible item.
    void pressFileItemByScreenReader(const QString& caption) {
        QAccessibleInterface* menu = QAccessible::queryAccessibleInterface(control<QMenu>(main, "mnuFile"));
        ASSERT_NE(menu, nullptr);
        for (int i = 0; i < menu->childCount(); ++i) {
            QAccessibleInterface* item = menu->child(i);
            if (item && item->text(QAccessible::Name) == caption && item->actionInterface()) {
                item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
                return;
            }
        }
        ADD_FAILURE() << "no item " << caption.toStdString() << " in the File menu";
    }
    // While the next dialog of the window is open, the file "second.inp" is opened from the
    // main window.
    void openSecondFileWhileDialogOfIsOpen(QWidget* window) {
        platform.openPicks.push_back(second);
        platform.whileNextDialogOpen(window,
                                     [this] { pressFileItemByScreenReader("Open Existing Brooklet File"); });
    }
    bool deleted(const QPointer<QWidget>& window) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.isNull();
    }
    // The new session has begun on the second file, and the window of the old one is gone.
    void expectNewSessionWithout(const QPointer<QWidget>& window, const char* name,
                                 int dialogsCancelled = 1) {
        EXPECT_EQ(platform.dialogsCancelled, dialogsCancelled) << "the dialog was not closed as Cancel";
        EXPECT_EQ(session().CurrentFile, second);
        EXPECT_FALSE(session().DataChanged);
        ASSERT_NE(context->windows.loaded("frmFlume"), nullptr);
        EXPECT_TRUE(context->windows.loaded("frmFlume")->isVisible());
        EXPECT_TRUE(deleted(window)) << name;
        EXPECT_EQ(context->windows.loaded(name), nullptr);
        EXPECT_EQ(bytesOf(shed), crlf(Shed));
    }

    std::string shed;
    std::string second;
};

TEST_F(SessionEndDialogTest, SchematicSaveAs) {
    QPointer<QWidget> schematic = context->windows.ShowWindowAtOrigin("frmTopoModel");
    ASSERT_FALSE(schematic.isNull());
    openSecondFileWhileDialogOfIsOpen(schematic);
    control<QAction>(schematic, "mnuSaveAs")->trigger();
    ASSERT_EQ(platform.saveDialogs.size(), 1u);
    EXPECT_EQ(platform.saveDialogs[0].DialogTitle, "Save Schematic As");
    // The dialog's Cancel saves nothing.
    EXPECT_FALSE(fileExists(folder.file("shed.png")));
    expectNewSessionWithout(schematic, "frmTopoModel");
}

TEST_F(SessionEndDialogTest, SchematicPrint) {
    QPointer<QWidget> schematic = context->windows.ShowWindowAtOrigin("frmTopoModel");
    ASSERT_FALSE(schematic.isNull());
    openSecondFileWhileDialogOfIsOpen(schematic);
    control<QAction>(schematic, "mnuPrint")->trigger();
    EXPECT_EQ(platform.printRangeDialogs.size(), 1u);
    EXPECT_TRUE(platform.printJobs.empty());
    expectNewSessionWithout(schematic, "frmTopoModel");
}

TEST_F(SessionEndDialogTest, FileViewerPrint) {
    session().ViewIndex = 1;
    QPointer<QWidget> viewer = context->windows.ShowWindowAtOrigin("frmFileDisp");
    ASSERT_FALSE(viewer.isNull());
    openSecondFileWhileDialogOfIsOpen(viewer);
    control<QAction>(viewer, "mnuPrint")->trigger();
    EXPECT_EQ(platform.printerDialogs.size(), 1u);
    EXPECT_TRUE(platform.printJobs.empty());
    expectNewSessionWithout(viewer, "frmFileDisp");
}

TEST_F(SessionEndDialogTest, PlotWindowSaveAs) {
    handOverHydrographs();
    QPointer<QWidget> plot = open();
    ASSERT_FALSE(plot.isNull());
    openSecondFileWhileDialogOfIsOpen(plot);
    control<QAction>(plot, "saveas")->trigger();
    EXPECT_EQ(platform.saveDialogs.size(), 1u);
    expectNewSessionWithout(plot, "frmIO_Plots");
}

// The preview is a modal window of the plot window's own.
TEST_F(SessionEndDialogTest, PlotWindowPreview) {
    handOverHydrographs();
    QPointer<QWidget> plot = open();
    ASSERT_FALSE(plot.isNull());
    platform.openPicks.push_back(second);
    QPointer<QWidget> preview;
    bool plotAliveAfterOpen = false;
    bool checked = false;
    // Runs inside the preview's own events, as a screen reader's press would.
    QMetaObject::invokeMethod(
        main,
        [&] {
            preview = context->windows.loaded("frmGraphPP");
            pressFileItemByScreenReader("Open Existing Brooklet File");
            // After the events the Open left behind have run, still inside the preview's.
            QMetaObject::invokeMethod(
                main,
                [&] {
                    plotAliveAfterOpen = !plot.isNull();
                    checked = true;
                },
                Qt::QueuedConnection);
        },
        Qt::QueuedConnection);
    control<QAction>(plot, "preview")->trigger();
    QCoreApplication::processEvents();
    ASSERT_TRUE(checked);
    EXPECT_TRUE(plotAliveAfterOpen) << "the plot window was deleted while its preview was open";
    EXPECT_TRUE(deleted(preview));
    expectNewSessionWithout(plot, "frmIO_Plots", 0);
}

// The close box's question about typing is the editor's own box, asked inside its close event.
TEST_F(SessionEndDialogTest, EditorCloseBoxQuestion) {
    QPointer<QWidget> editor = context->windows.ShowWindowAtOrigin("frmDurInc");
    ASSERT_FALSE(editor.isNull());
    auto* box = control<QLineEdit>(editor, "txtInp(2)");
    box->setFocus();
    QTest::keyClicks(box, "9");
    const std::string workFileBefore = bytesOf(workFile(DurationIncrementSection));
    // Open asks about the typing too, inside the close box's question: No discards it.
    platform.answers.push_back(BoxAnswer::No);
    openSecondFileWhileDialogOfIsOpen(editor);
    QCloseEvent closing;
    QApplication::sendEvent(editor->windowHandle(), &closing);
    QCoreApplication::processEvents();

    ASSERT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(platform.boxes[0].text,
              "Keep the changes made in this window? Yes accepts them, No discards them, "
              "Cancel returns to the window.");
    EXPECT_EQ(platform.boxes[1].title, "Duration Increment");
    EXPECT_TRUE(platform.answers.empty());
    expectNewSessionWithout(editor, "frmDurInc");
    // The work files are those of the new file: the old typing went nowhere.
    EXPECT_EQ(bytesOf(workFile(DurationIncrementSection)), "");
    EXPECT_NE(workFileBefore, "");
}

} // namespace
} // namespace brooklet::test
