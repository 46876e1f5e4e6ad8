#pragma once
// The grid cell editor on the ui's table widget: a QTableWidget seen as a grid control, the
// character codes of its key presses handed to the grid routines, and the row boxes of a row
// grid over a control array of text boxes.
#include <QKeyEvent>
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QTableWidget>

#include <functional>

#include "editing/grid_control.h"
#include "editing/widgets.h"

namespace brooklet {

// The table only shows: it takes no typing of its own, and it scrolls only when the routines
// set its top row. Moving the current cell selects nothing.
class QtGrid : public GridControl {
public:
    explicit QtGrid(QTableWidget* table);
    ~QtGrid() override;
    QtGrid(const QtGrid&) = delete;
    QtGrid& operator=(const QtGrid&) = delete;

    QTableWidget* table() const { return table_; }

    int Rows() const override { return table_->rowCount(); }
    void setRows(int rows) override { table_->setRowCount(rows < 0 ? 0 : rows); }
    int Cols() const override { return table_->columnCount(); }
    int Row() const override;
    void setRow(int row) override;
    int Col() const override;
    void setCol(int col) override;
    int TopRow() const override;
    void setTopRow(int row) override;
    int MouseRow() const override { return mouseRow_; }
    void setMouseRow(int row) { mouseRow_ = row; }
    void AddItem(const std::string& Text, int Row) override;
    void RemoveItem(int Row) override;
    std::string cellText(int row, int col) const override;
    void setCellText(int row, int col, const std::string& text) override;
    Rgb cellColour(int row, int col) const override;
    void setCellColour(int row, int col, Rgb colour) override;

private:
    class MouseWatcher;
    void moveTo(int row, int col);
    QTableWidgetItem* itemAt(int row, int col);

    QTableWidget* table_;
    int mouseRow_ = 0;
    int row_ = 0;
    int col_ = 0;
    // Owned by the table's viewport, so that it goes with the table; dropped with the adapter.
    QPointer<MouseWatcher> watcher_;
};

// The character code a key press gives the grid routines: Backspace 8, Tab 9, Enter 13, a typed
// character its own code; 0 for any other key.
int gridKeyCode(const QKeyEvent& event);

// Hands every key press on a table that has a character code to the handler, and keeps it from
// the table, so that the table neither moves nor searches on it. Other keys reach the table.
class GridKeyFeeder : public QObject {
public:
    GridKeyFeeder(QTableWidget* table, std::function<void(int& Key)> handler);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTableWidget* table_;
    std::function<void(int& Key)> handler_;
};

// The text boxes of a window that show a row grid's row.
class QtBoxes : public GridBoxes {
public:
    explicit QtBoxes(const ControlArray<QLineEdit>& boxes) : boxes_(boxes) {}
    void setBoxText(int index, const std::string& text) override;
    void setBoxColour(int index, Rgb colour) override;

private:
    const ControlArray<QLineEdit>& boxes_;
};

} // namespace brooklet
