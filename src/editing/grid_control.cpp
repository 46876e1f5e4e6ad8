#include "editing/grid_control.h"

#include <algorithm>

namespace brooklet {

MemoryGrid::MemoryGrid(int rows, int cols) : cols_(std::max(cols, 0)) {
    setRows(rows);
}

void MemoryGrid::setRows(int rows) {
    cells_.resize(size_t(std::max(rows, 0)), emptyRow());
}

void MemoryGrid::AddItem(const std::string& Text, int Row) {
    std::vector<Cell> row = emptyRow();
    size_t start = 0;
    for (int col = 0; col < cols_; ++col) {
        const size_t tab = Text.find('\t', start);
        row[size_t(col)].text =
            Text.substr(start, tab == std::string::npos ? std::string::npos : tab - start);
        if (tab == std::string::npos)
            break;
        start = tab + 1;
    }
    if (Row < 0 || Row >= Rows())
        cells_.push_back(std::move(row));
    else
        cells_.insert(cells_.begin() + Row, std::move(row));
}

void MemoryGrid::RemoveItem(int Row) {
    if (Row >= 0 && Row < Rows())
        cells_.erase(cells_.begin() + Row);
}

std::string MemoryGrid::cellText(int row, int col) const {
    return hasCell(row, col) ? cells_[size_t(row)][size_t(col)].text : std::string();
}

void MemoryGrid::setCellText(int row, int col, const std::string& text) {
    if (hasCell(row, col))
        cells_[size_t(row)][size_t(col)].text = text;
}

Rgb MemoryGrid::cellColour(int row, int col) const {
    return hasCell(row, col) ? cells_[size_t(row)][size_t(col)].colour : UntouchedColour;
}

void MemoryGrid::setCellColour(int row, int col, Rgb colour) {
    if (hasCell(row, col))
        cells_[size_t(row)][size_t(col)].colour = colour;
}

std::vector<std::string> MemoryGrid::rowTexts(int row) const {
    std::vector<std::string> texts;
    for (int col = 0; col < cols_; ++col)
        texts.push_back(cellText(row, col));
    return texts;
}

} // namespace brooklet
