// The structure rating and cross section sections through the whole session: the example
// watershed opened with the File menu, each editor opened from the main list, edited or not,
// accepted, and the file saved again, compared byte for byte.
#include "grid_window_fixture.h"

#include "tables/cross_section_editor.h"
#include "tables/structure_rating_editor.h"

#include <QListWidget>

namespace brooklet::test {
namespace {

class RatingSectionsRoundTripTest : public WindowTest {
protected:
    // The example watershed, opened through File, "Open Existing Brooklet File".
    std::string openExample() {
        const std::string path = folder.file("watershed.inp");
        writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        EXPECT_EQ(session().CurrentFile, path);
        context->windows.unload("frmFlume");
        return path;
    }
    // Opens the editor of a section with a click on its row in the main list.
    GridEditorWindow* openSection(int section, const QString& name) {
        auto* list = control<QListWidget>(main, "CurrentLst");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(section - 1)).center());
        auto* window = context->windows.loadedAs<GridEditorWindow>(name);
        EXPECT_NE(window, nullptr) << section;
        if (window) {
            window->activateWindow();
            QApplication::setActiveWindow(window);
        }
        return window;
    }
    QWidget* element(QWidget* window, const char* array, int index) {
        return control<QWidget>(window, indexedName(array, index));
    }
    void chooseEntry(QWidget* window, const QString& name) {
        auto* combo = control<QComboBox>(window, "cmbInp(1)");
        combo->setFocus();
        combo->setEditText(QString());
        QTest::keyClicks(combo, name);
        QTest::keyClick(combo, Qt::Key_Return);
    }
    void typeAndTab(QWidget* window, int index, const QString& text) {
        QWidget* box = element(window, "txtInp", index);
        EXPECT_EQ(focused(), box) << index;
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Tab);
    }
    void accept(QWidget* window) {
        click(control<QPushButton>(window, "cmdFinished"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void save() { clickMenuItem("mnuFileItem(14)"); }
};

TEST_F(RatingSectionsRoundTripTest, TheExampleWatershedComesThroughBothEditorsUnchanged) {
    const std::string path = openExample();
    const std::string original = bytesOf(path);
    GridEditorWindow* structures = openSection(StructureSection, "frmStruct");
    chooseEntry(structures, "MILLDAM");
    accept(structures);
    GridEditorWindow* sections = openSection(CrossSectionSection, "frmXsect");
    chooseEntry(sections, "XS-UPPER");
    accept(sections);
    EXPECT_TRUE(session().DataChanged);
    save();
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(bytesOf(path), original);
}

TEST_F(RatingSectionsRoundTripTest, RowsTypedInBothEditorsAreSavedInTheirPlaces) {
    const std::string path = openExample();
    std::string expected = bytesOf(path);

    GridEditorWindow* structures = openSection(StructureSection, "frmStruct");
    chooseEntry(structures, "MILLDAM");
    QTest::keyClick(element(structures, "txtInp", 2), Qt::Key_Tab);
    int box = 3;
    for (const char* text : {"846.25", "5", "4"})
        typeAndTab(structures, box++, text);
    accept(structures);

    GridEditorWindow* sections = openSection(CrossSectionSection, "frmXsect");
    chooseEntry(sections, "XS-UPPER");
    element(sections, "txtInp", 6)->setFocus();
    int index = 6;
    for (const char* text : {"872.5", "10", "5", "7", "0.0046"})
        typeAndTab(sections, index++, text);
    accept(sections);

    save();
    const auto insertAfter = [&expected](const std::string& line, const std::string& added) {
        const size_t at = expected.find(line);
        ASSERT_NE(at, std::string::npos) << line;
        expected.insert(at + line.size(), added);
    };
    insertAfter("                    846.0     0.        0.        \r\n",
                "                    846.25    5.        4.        \r\n");
    insertAfter("                    872.0     0.        0.        0.        0.0046    \r\n",
                "                    872.5     10.       5.        7.        0.0046    \r\n");
    EXPECT_EQ(bytesOf(path), expected);
}

} // namespace
} // namespace brooklet::test
