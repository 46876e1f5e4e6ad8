#pragma once
// Tables of texts indexed from 1, as the shared stores of the editors keep them: a field index
// and a row (or position) index. Rows are kept one after another, so adding rows at the end
// costs no more than the rows added, and the stores can grow one row at a time.
#include <string>
#include <vector>

namespace brooklet {

class TextTable {
public:
    TextTable() = default;
    // A table of the given fields and rows, every text empty.
    TextTable(int fields, int rows) { redim(fields, rows); }

    int fields() const { return fields_; }
    int rows() const { return rows_; }

    // New bounds, every text empty.
    void redim(int fields, int rows);
    // New row bound; the rows that stay keep their texts, new rows are empty.
    void resizeRows(int rows);
    // Raises the row bound to at least rows; a table never shrinks here.
    void ensureRows(int rows) {
        if (rows > rows_)
            resizeRows(rows);
    }
    // New field bound; texts whose field and row stay within the bounds are kept.
    void resizeFields(int fields);

    std::string& operator()(int field, int row) { return cells_[index(field, row)]; }
    const std::string& operator()(int field, int row) const { return cells_[index(field, row)]; }
    // Field 1 of a position, for stores of a single field.
    std::string& operator()(int position) { return cells_[index(1, position)]; }
    const std::string& operator()(int position) const { return cells_[index(1, position)]; }

    // Every field of row `to` takes the texts of row `from`.
    void copyRow(int from, int to);
    // Rows first..last move up by `by` places, the highest first; the table must hold them.
    void moveRowsUp(int first, int last, int by);
    // Every field of the row takes the text.
    void fillRow(int row, const std::string& text);

    bool operator==(const TextTable& other) const {
        return fields_ == other.fields_ && rows_ == other.rows_ && cells_ == other.cells_;
    }
    bool operator!=(const TextTable& other) const { return !(*this == other); }

private:
    size_t index(int field, int row) const { return size_t(row - 1) * size_t(fields_) + size_t(field - 1); }
    int fields_ = 0;
    int rows_ = 0;
    std::vector<std::string> cells_;
};

} // namespace brooklet
