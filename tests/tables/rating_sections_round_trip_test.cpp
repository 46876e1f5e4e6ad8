// The structure rating and cross section sections through the whole session: the example
// watershed opened with the File menu, each editor opened from the main list, edited or not,
// accepted, and the file saved again, compared byte for byte.
#include "grid_window_fixture.h"
#include "section_round_trip_fixture.h"

#include "tables/cross_section_editor.h"
#include "tables/structure_rating_editor.h"

namespace brooklet::test {
namespace {

class RatingSectionsRoundTripTest : public SectionRoundTripTest {
protected:
    QWidget* element(QWidget* window, const char* array, int index) {
        return control<QWidget>(window, indexedName(array, index));
    }
    void typeAndTab(QWidget* window, int index, const QString& text) {
        QWidget* box = element(window, "txtInp", index);
        EXPECT_EQ(focused(), box) << index;
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Tab);
    }
};

TEST_F(RatingSectionsRoundTripTest, TheExampleWatershedComesThroughBothEditorsUnchanged) {
    const std::string path = openExample();
    const std::string original = bytesOf(path);
    QWidget* structures = openSection(StructureSection, "frmStruct");
    chooseEntry(structures, "MILLDAM");
    accept(structures);
    QWidget* sections = openSection(CrossSectionSection, "frmXsect");
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

    QWidget* structures = openSection(StructureSection, "frmStruct");
    chooseEntry(structures, "MILLDAM");
    QTest::keyClick(element(structures, "txtInp", 2), Qt::Key_Tab);
    int box = 3;
    for (const char* text : {"846.25", "5", "4"})
        typeAndTab(structures, box++, text);
    accept(structures);

    QWidget* sections = openSection(CrossSectionSection, "frmXsect");
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
