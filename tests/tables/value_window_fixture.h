#pragma once
// What the tests of the value grid windows share: values typed straight into the grid with
// Enter, clicks on its cells, the pop-up menu "Insert/Delete", and records of values.
#include "grid_window_fixture.h"

#include "tables/value_records.h"

#include <QAction>
#include <QMenu>

namespace brooklet::test {

// A value record: twenty blanks and the values in ten columns each.
inline std::string valueRecord(std::initializer_list<std::string> values) {
    return std::string(20, ' ') + tens(values);
}

template <typename W> class ValueWindowTest : public GridWindowTest<W> {
protected:
    using GridWindowTest<W>::GridWindowTest;

    // Each value typed into the grid, with Enter behind it.
    void typeValues(std::initializer_list<QString> values) {
        for (const QString& value : values) {
            QTest::keyClicks(this->grid(), value);
            QTest::keyClick(this->grid(), Qt::Key_Return);
        }
    }
    void clickCell(int row, int col, Qt::MouseButton button = Qt::LeftButton) {
        const QRect rect = this->grid()->visualRect(this->grid()->model()->index(row, col));
        QTest::mouseClick(this->grid()->viewport(), button, {}, rect.center());
    }
    // The cell the grid shows as current, painted green.
    std::pair<int, int> currentCell() { return {this->grid()->currentRow(), this->grid()->currentColumn()}; }
    QMenu* popUp() { return this->template control<QMenu>(this->window, "mnuPopUp"); }
    QAction* menuItem(int index) {
        return this->window->template findChild<QAction*>(indexedName("mnuDelInsItem", index));
    }
    // A right click on the cell, then a click on item Index of the pop-up menu.
    void chooseFromMenu(int row, int col, int index) {
        clickCell(row, col, Qt::RightButton);
        ASSERT_TRUE(popUp()->isVisible());
        QTest::mouseClick(popUp(), Qt::LeftButton, {}, popUp()->actionGeometry(menuItem(index)).center());
        EXPECT_FALSE(popUp()->isVisible());
    }
    Texts rows(int count) {
        Texts texts;
        for (int row = 0; row < count; ++row)
            for (const std::string& text : this->gridRow(row))
                texts.push_back(text);
        return texts;
    }
};

} // namespace brooklet::test
