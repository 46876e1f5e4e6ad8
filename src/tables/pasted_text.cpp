#include "tables/pasted_text.h"

#include "editing/numbers.h"

namespace brooklet {
namespace {

bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

bool separatesValues(char c) {
    return c == '\t' || c == ' ' || isLineEnd(c);
}

} // namespace

std::vector<std::string> SplitPastedValues(const std::string& text) {
    std::vector<std::string> values;
    size_t start = 0;
    while (start < text.size()) {
        while (start < text.size() && separatesValues(text[start]))
            ++start;
        size_t end = start;
        while (end < text.size() && !separatesValues(text[end]))
            ++end;
        if (end > start)
            values.push_back(text.substr(start, end - start));
        start = end;
    }
    return values;
}

std::vector<std::vector<std::string>> SplitPastedRows(const std::string& text) {
    std::vector<std::vector<std::string>> rows;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = start;
        while (end < text.size() && !isLineEnd(text[end]))
            ++end;
        const std::string line = text.substr(start, end - start);
        // CR LF is one line end.
        start = end + ((end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n') ? 2 : 1);
        if (trim(line).empty())
            continue;
        std::vector<std::string> cells;
        size_t cell = 0;
        while (true) {
            const size_t tab = line.find('\t', cell);
            cells.push_back(
                trim(line.substr(cell, tab == std::string::npos ? std::string::npos : tab - cell)));
            if (tab == std::string::npos)
                break;
            cell = tab + 1;
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

std::string RowsAsText(const std::vector<std::vector<std::string>>& rows) {
    std::string text;
    for (const auto& row : rows) {
        for (size_t cell = 0; cell < row.size(); ++cell) {
            if (cell > 0)
                text += '\t';
            text += row[cell];
        }
        text += "\r\n";
    }
    return text;
}

std::string ValuesAsColumn(const std::vector<std::string>& values) {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(values.size());
    for (const std::string& value : values)
        rows.push_back({value});
    return RowsAsText(rows);
}

} // namespace brooklet
