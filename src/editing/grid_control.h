#pragma once
// What the grid cell editor needs of a grid: rows and columns, a current cell with its text and
// background, the cells by position, the top row on show, the row under the mouse, and adding,
// inserting and removing rows. Setting Row and Col moves the current cell without any visible
// change. The ui adapts its table widget to it; the core tests use the grid held in memory.
// Also the edit boxes of a row grid, by index.
#include <map>
#include <string>
#include <vector>

#include "editing/colours.h"

namespace brooklet {

class GridControl {
public:
    virtual ~GridControl() = default;

    virtual int Rows() const = 0;
    // Rows added at the bottom are empty and white; rows cut at the bottom are dropped.
    virtual void setRows(int rows) = 0;
    virtual int Cols() const = 0;

    virtual int Row() const = 0;
    virtual void setRow(int row) = 0;
    virtual int Col() const = 0;
    virtual void setCol(int col) = 0;

    virtual int TopRow() const = 0;
    virtual void setTopRow(int row) = 0;
    // The row under the mouse at its last press.
    virtual int MouseRow() const = 0;

    // Inserts a row at Row (at the bottom when Row is the row count or negative); Text gives
    // its cells from column 0, separated by tabs.
    virtual void AddItem(const std::string& Text, int Row) = 0;
    virtual void RemoveItem(int Row) = 0;

    // A cell by position; a cell outside the grid reads as empty and white and takes nothing.
    virtual std::string cellText(int row, int col) const = 0;
    virtual void setCellText(int row, int col, const std::string& text) = 0;
    virtual Rgb cellColour(int row, int col) const = 0;
    virtual void setCellColour(int row, int col, Rgb colour) = 0;

    // The current cell.
    std::string Text() const { return cellText(Row(), Col()); }
    void setText(const std::string& text) { setCellText(Row(), Col(), text); }
    Rgb CellBackColor() const { return cellColour(Row(), Col()); }
    void setCellBackColor(Rgb colour) { setCellColour(Row(), Col(), colour); }

    bool hasCell(int row, int col) const { return row >= 0 && row < Rows() && col >= 0 && col < Cols(); }
};

// A grid held in memory, for the core and its tests.
class MemoryGrid : public GridControl {
public:
    MemoryGrid(int rows, int cols);

    int Rows() const override { return static_cast<int>(cells_.size()); }
    void setRows(int rows) override;
    int Cols() const override { return cols_; }
    int Row() const override { return row_; }
    void setRow(int row) override { row_ = row; }
    int Col() const override { return col_; }
    void setCol(int col) override { col_ = col; }
    int TopRow() const override { return topRow_; }
    void setTopRow(int row) override { topRow_ = row; }
    int MouseRow() const override { return mouseRow_; }
    void setMouseRow(int row) { mouseRow_ = row; }
    void AddItem(const std::string& Text, int Row) override;
    void RemoveItem(int Row) override;
    std::string cellText(int row, int col) const override;
    void setCellText(int row, int col, const std::string& text) override;
    Rgb cellColour(int row, int col) const override;
    void setCellColour(int row, int col, Rgb colour) override;

    // The texts of a row, for tests.
    std::vector<std::string> rowTexts(int row) const;

private:
    struct Cell {
        std::string text;
        Rgb colour = UntouchedColour;
    };
    std::vector<Cell> emptyRow() const { return std::vector<Cell>(size_t(cols_)); }
    int cols_;
    int row_ = 0, col_ = 0, topRow_ = 0, mouseRow_ = 0;
    std::vector<std::vector<Cell>> cells_;
};

// The edit boxes that show a row of a row grid, by their index in the window.
class GridBoxes {
public:
    virtual ~GridBoxes() = default;
    virtual void setBoxText(int index, const std::string& text) = 0;
    virtual void setBoxColour(int index, Rgb colour) = 0;
};

// Boxes held in memory.
class MemoryBoxes : public GridBoxes {
public:
    struct Box {
        std::string text;
        Rgb colour = UntouchedColour;
    };
    void setBoxText(int index, const std::string& text) override { boxes[index].text = text; }
    void setBoxColour(int index, Rgb colour) override { boxes[index].colour = colour; }
    std::map<int, Box> boxes;
};

} // namespace brooklet
