// The rainfall distribution, input hydrograph and unit hydrograph sections through the whole
// session: the example watershed opened with the File menu, each value window opened from the
// main list, a table shown or typed into, accepted, and the file saved again, compared byte
// for byte.
#include "section_round_trip_fixture.h"
#include "value_window_fixture.h"

#include "options/entry_window.h"

namespace brooklet::test {
namespace {

class ValueSectionsRoundTripTest : public SectionRoundTripTest {
protected:
    QTableWidget* gridOf(QWidget* window) { return control<QTableWidget>(window, "MSFlexGrid1"); }
    // A click on a cell of the window's grid, then the values typed with Enter.
    void typeAt(QWidget* window, int row, int col, std::initializer_list<QString> values) {
        QTableWidget* grid = gridOf(window);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                          grid->visualRect(grid->model()->index(row, col)).center());
        for (const QString& value : values) {
            QTest::keyClicks(grid, value);
            QTest::keyClick(grid, Qt::Key_Return);
        }
    }
};

TEST_F(ValueSectionsRoundTripTest, TheExampleWatershedComesThroughTheThreeValueWindowsUnchanged) {
    const std::string path = openExample();
    const std::string original = bytesOf(path);
    QWidget* distributions = openSection(RainfallDistributionSection, "frmRainDist");
    chooseEntry(distributions, "WB-24HR");
    accept(distributions);
    QWidget* hydrographs = openSection(InputHydrographSection, "frmInpHyd");
    chooseEntry(hydrographs, "QUARRY");
    accept(hydrographs);
    QWidget* unit = openSection(UnitHydrographSection, "frmDimHyd");
    accept(unit);
    EXPECT_TRUE(session().DataChanged);
    save();
    EXPECT_FALSE(session().DataChanged);
    EXPECT_EQ(bytesOf(path), original);
}

TEST_F(ValueSectionsRoundTripTest, ValuesTypedInTheValueWindowsAreSavedInTheirPlaces) {
    const std::string path = openExample();
    std::string expected = bytesOf(path);
    const auto replace = [&expected](const std::string& line, const std::string& by) {
        const size_t at = expected.find(line);
        ASSERT_NE(at, std::string::npos) << line;
        expected.replace(at, line.size(), by);
    };

    QWidget* hydrographs = openSection(InputHydrographSection, "frmInpHyd");
    chooseEntry(hydrographs, "QUARRY");
    typeAt(hydrographs, 0, 1, {"5"});
    accept(hydrographs);
    replace("                    0.        4.        11.       24.       41.       \r\n",
            "                    0.        5.        11.       24.       41.       \r\n");

    QWidget* unit = openSection(UnitHydrographSection, "frmDimHyd");
    typeAt(unit, 4, 2, {"0.0005"});
    accept(unit);
    // The last value typed over the closing zero is above 0: a new closing zero follows it.
    replace("                    0.003     0.001     0.        \r\n",
            "                    0.003     0.001     0.0005    0.        \r\n");
    save();
    EXPECT_EQ(bytesOf(path), expected);
}

} // namespace
} // namespace brooklet::test
