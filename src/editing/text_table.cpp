#include "editing/text_table.h"

#include <algorithm>

namespace brooklet {

void TextTable::redim(int fields, int rows) {
    fields_ = std::max(fields, 0);
    rows_ = std::max(rows, 0);
    cells_.assign(size_t(fields_) * size_t(rows_), std::string());
}

void TextTable::resizeRows(int rows) {
    rows_ = std::max(rows, 0);
    cells_.resize(size_t(fields_) * size_t(rows_));
}

void TextTable::resizeFields(int fields) {
    fields = std::max(fields, 0);
    if (fields == fields_)
        return;
    std::vector<std::string> cells(size_t(fields) * size_t(rows_));
    const int kept = std::min(fields, fields_);
    for (int row = 1; row <= rows_; ++row)
        for (int field = 1; field <= kept; ++field)
            cells[size_t(row - 1) * size_t(fields) + size_t(field - 1)] = std::move((*this)(field, row));
    fields_ = fields;
    cells_ = std::move(cells);
}

void TextTable::copyRow(int from, int to) {
    if (from == to)
        return;
    for (int field = 1; field <= fields_; ++field)
        (*this)(field, to) = (*this)(field, from);
}

void TextTable::moveRowsUp(int first, int last, int by) {
    if (by <= 0 || last < first)
        return;
    const auto begin = cells_.begin() + std::ptrdiff_t(index(1, first));
    const auto end = cells_.begin() + std::ptrdiff_t(index(1, last + 1));
    std::move_backward(begin, end, end + std::ptrdiff_t(by) * fields_);
}

void TextTable::fillRow(int row, const std::string& text) {
    for (int field = 1; field <= fields_; ++field)
        (*this)(field, row) = text;
}

} // namespace brooklet
