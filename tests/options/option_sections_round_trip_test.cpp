// The four run-wide option sections through the whole session: a file opened with the File
// menu, each editor opened from the main list, edited, accepted, and the file saved again,
// compared byte for byte.
#include "support/ui_fixture.h"

#include "options/duration_increment_editor.h"
#include "options/global_output_editor.h"
#include "options/time_analysis_editor.h"
#include "options/verification_editor.h"
#include "session/text_file.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace brooklet::test {
namespace {

// The identification section of tests/data/run_options.inp and the blank lines that the nine
// empty sections saved before the run options give.
const std::string Identification =
    "Brooklet: Version 1.0                   0         0         1.        0         \r\n"
    "Run options of Willow Brook\r\n"
    "\r\n"
    "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";

class OptionSectionsRoundTripTest : public UiTest {
protected:
    void SetUp() override { startMain(); }

    // Opens an input file through File, "Open Existing Brooklet File".
    void openFile(const std::string& path) {
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        ASSERT_EQ(session().CurrentFile, path);
    }
    // Opens the editor of a section with a click on its row in the main list.
    QWidget* openSection(int section) {
        auto* list = control<QListWidget>(main, "CurrentLst");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(section - 1)).center());
        QWidget* window = context->windows.loaded(editorWindowName(section));
        EXPECT_NE(window, nullptr) << section;
        if (window) {
            window->activateWindow();
            QApplication::setActiveWindow(window);
        }
        return window;
    }
    template <typename T> T* element(QWidget* window, const char* array, int index) {
        return control<T>(window, indexedName(array, index));
    }
    void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(4, 4)); }
    // Replaces the text of a box as the user does, and leaves it with Tab.
    void retype(QWidget* window, int index, const QString& text) {
        QLineEdit* box = element<QLineEdit>(window, "txtInp", index);
        box->setFocus(Qt::MouseFocusReason);
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Tab);
    }
    void accept(QWidget* window) {
        click(control<QPushButton>(window, "cmdFinished"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void save() { clickMenuItem("mnuFileItem(14)"); }
};

TEST_F(OptionSectionsRoundTripTest, AcceptingTheFourEditorsUnchangedSavesTheFileAsItWas) {
    const std::string path = folder.copyTestData("run_options.inp");
    const std::string original = bytesOf(path);
    openFile(path);
    for (int section : {3, 4, 12, 14}) {
        const std::string before = bytesOf(workFile(section));
        accept(openSection(section));
        EXPECT_EQ(bytesOf(workFile(section)), section == 14 ? before + "\r\n" : before) << section;
    }
    EXPECT_TRUE(session().DataChanged);
    save();
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(bytesOf(path), original);
}

TEST_F(OptionSectionsRoundTripTest, TheExampleWatershedComesThroughTheFourEditors) {
    const std::string path = folder.file("watershed.inp");
    writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
    const std::string original = bytesOf(path);
    openFile(path);
    for (int section : {3, 4, 12, 14})
        accept(openSection(section));
    save();
    EXPECT_EQ(bytesOf(path), original);
}

TEST_F(OptionSectionsRoundTripTest, EditsInTheFourEditorsAreSavedColumnForColumn) {
    const std::string path = folder.copyTestData("run_options.inp");
    openFile(path);

    QWidget* durations = openSection(3);
    click(element<QRadioButton>(durations, "opt1", 0));
    retype(durations, 4, "48");
    accept(durations);

    QWidget* global = openSection(4);
    retype(global, 1, "3");
    click(element<QRadioButton>(global, "Opt1", 2));
    click(element<QRadioButton>(global, "Opt2", 10));
    accept(global);

    QWidget* timeAnalysis = openSection(12);
    retype(timeAnalysis, 2, "");
    retype(timeAnalysis, 7, "2.5");
    accept(timeAnalysis);

    QWidget* verification = openSection(14);
    click(element<QCheckBox>(verification, "Check1", 1));
    click(element<QCheckBox>(verification, "Check1", 40));
    accept(verification);

    save();
    EXPECT_EQ(bytesOf(path),
              Identification +
                  "DURATION INCREMENT:                     Hours     1.        7.        48.       \r\n"
                  "\r\n"
                  "GLOBAL OUTPUT:                          \r\n"
                  "          3         1.        0.5       YYYNN     YNYYNY\r\n"
                  "\r\n"
                  "TIME ANALYSIS:                          \r\n"
                  "          FLOW      10.       50.       90.                 \r\n"
                  "          ELEVATION 0.5       1.        2.5                 \r\n"
                  "\r\n"
                  "VERIFICATION:                           \r\n"
                  "          DATA PREP     Y                 Y                   Y             Y   \r\n"
                  "          PROCESSING  Y               Y Y \r\n"
                  "\r\n");
    EXPECT_FALSE(session().DataChanged);
}

TEST_F(OptionSectionsRoundTripTest, SectionsEmptiedInTheEditorsAreSavedAsBlankLines) {
    const std::string path = folder.copyTestData("run_options.inp");
    openFile(path);
    QWidget* durations = openSection(3);
    for (int index : {2, 3, 4})
        element<QLineEdit>(durations, "txtInp", index)->clear();
    accept(durations);
    QWidget* verification = openSection(14);
    for (int index : {1, 3, 12, 22, 29, 32, 41})
        click(element<QCheckBox>(verification, "Check1", index));
    accept(verification);
    save();
    // An empty work file still gives its section's blank line.
    EXPECT_EQ(bytesOf(path),
              Identification + "\r\n" +
                  crlf({"GLOBAL OUTPUT:                          ",
                        "          2         1.        0.5       YNYNN     YNYYNN", "",
                        "TIME ANALYSIS:                          ",
                        "          FLOW      10.       25.       50.       90.       ",
                        "          ELEVATION 0.5       1.        2.                  ", "", ""}));
}

} // namespace
} // namespace brooklet::test
