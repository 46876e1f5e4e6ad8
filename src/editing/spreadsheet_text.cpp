#include "editing/spreadsheet_text.h"

#include "editing/numbers.h"

namespace brooklet {
namespace {

std::vector<std::string> splitAt(const std::string& line, char separator, bool mergeRuns) {
    std::vector<std::string> cells;
    std::string cell;
    for (char c : line) {
        if (c == separator) {
            if (!mergeRuns || !cell.empty())
                cells.push_back(trim(cell));
            cell.clear();
        } else {
            cell += c;
        }
    }
    if (!mergeRuns || !cell.empty())
        cells.push_back(trim(cell));
    return cells;
}

void addRow(SpreadsheetRows& rows, const std::string& line) {
    std::vector<std::string> cells =
        line.find('\t') != std::string::npos ? splitAt(line, '\t', false) : splitAt(line, ' ', true);
    for (const std::string& cell : cells) {
        if (!cell.empty()) {
            rows.push_back(std::move(cells));
            return;
        }
    }
}

} // namespace

SpreadsheetRows SplitSpreadsheetText(const std::string& text) {
    SpreadsheetRows rows;
    std::string line;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            addRow(rows, line);
            line.clear();
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            line += c;
        }
    }
    addRow(rows, line);
    return rows;
}

std::string JoinSpreadsheetRows(const SpreadsheetRows& rows) {
    std::string text;
    for (const auto& row : rows) {
        for (size_t i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += '\t';
            text += row[i];
        }
        text += "\r\n";
    }
    return text;
}

} // namespace brooklet
