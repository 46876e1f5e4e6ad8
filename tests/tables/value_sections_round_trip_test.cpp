// The rainfall distribution, input hydrograph and unit hydrograph sections through the whole
// session: the example watershed opened with the File menu, each value window opened from the
// main list, a table shown or typed into, accepted, and the file saved again, compared byte
// for byte.
#include "value_window_fixture.h"

#include "options/entry_window.h"

#include <QListWidget>

namespace brooklet::test {
namespace {

class ValueSectionsRoundTripTest : public WindowTest {
protected:
    std::string openExample() {
        const std::string path = folder.file("watershed.inp");
        writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        EXPECT_EQ(session().CurrentFile, path);
        context->windows.unload("frmFlume");
        return path;
    }
    QWidget* openSection(int section, const QString& name) {
        auto* list = control<QListWidget>(main, "CurrentLst");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(section - 1)).center());
        QWidget* window = context->windows.loaded(name);
        EXPECT_NE(window, nullptr) << section;
        if (window) {
            window->activateWindow();
            QApplication::setActiveWindow(window);
        }
        return window;
    }
    void chooseEntry(QWidget* window, const QString& name) {
        auto* combo = control<QComboBox>(window, "cmbInp(1)");
        combo->setFocus();
        combo->setEditText(QString());
        QTest::keyClicks(combo, name);
        QTest::keyClick(combo, Qt::Key_Return);
    }
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
    void accept(QWidget* window) {
        click(control<QPushButton>(window, "cmdFinished"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void save() { clickMenuItem("mnuFileItem(14)"); }
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
