#include "tables/value_grid.h"

#include "editing/numbers.h"

namespace brooklet {

ValueGrid::ValueGrid(GridContext& context, GridControl& grid, const ValueGridRules& rules)
    : context_(context), grid_(grid), designRows_(rules.Rows) {
    context_.GridCheckOrder = rules.CheckOrder;
    context_.GridHighLimit = rules.HighLimit;
    context_.GridVisibleRows = rules.VisibleRows;
    context_.MarkedRow = NoMarkedRow;
    context_.GridBusy = false;
}

void ValueGrid::clear() {
    context_.GridBusy = true;
    grid_.setRows(0);
    grid_.setRows(designRows_);
    grid_.setTopRow(0);
    context_.MarkedRow = NoMarkedRow;
    context_.GridBusy = false;
}

void ValueGrid::startTable(const std::string& FirstCell, int Values) {
    clear();
    grid_.setCellText(0, 0, FirstCell);
    Row = 0;
    Col = 1;
    context_.GridBusy = true;
    grid_.setRow(Row);
    grid_.setCol(Col);
    context_.GridBusy = false;
    Index = Values;
    Typing = false;
}

void ValueGrid::showTable(int t) {
    clear();
    context_.GridBusy = true;
    const int first = t >= 1 && size_t(t) < context_.TableFirst.size() ? context_.TableFirst[size_t(t)] : 0;
    const int last = first > 0 ? context_.TableLast[size_t(t)] : 0;
    const int count = first > 0 ? last - first + 1 : 0;
    if (count > 0) {
        const int lastRow = (count - 1) / FlowGridColumns;
        // Rows for every value, and a spare row behind a last value in the last row.
        if (lastRow + 1 >= grid_.Rows())
            grid_.setRows(lastRow + 2);
        for (int n = 1; n <= count; ++n)
            grid_.setCellText((n - 1) / FlowGridColumns, (n - 1) % FlowGridColumns,
                              context_.ValueStore(first + n - 1));
        Row = lastRow;
        Col = (count - 1) % FlowGridColumns;
    } else {
        Row = 0;
        Col = 0;
    }
    grid_.setRow(Row);
    grid_.setCol(Col);
    Index = count;
    Typing = false;
    context_.GridBusy = false;
}

void ValueGrid::enter() {
    Row = 0;
    Col = 1;
    MoveGridCursor(context_, grid_, Row, Col, Index, Valid, Typing);
}

void ValueGrid::key(int& Key) {
    HandleGridKey(context_, Key, grid_, Row, Col, Index, Typing, 0, 0);
    if (Row == grid_.Rows() - 1 && Col == grid_.Cols() - 1)
        grid_.AddItem(" ", grid_.Rows());
}

void ValueGrid::cellChanged(int row, int col) {
    if (context_.GridBusy)
        return;
    press(row, col);
}

void ValueGrid::press(int row, int col) {
    Row = row;
    Col = col;
    MoveGridCursor(context_, grid_, Row, Col, Index, Valid, Typing);
}

void ValueGrid::pickFirstCell() {
    press(0, 0);
    context_.GridBusy = true;
    grid_.setCellColour(Row, Col, UntouchedColour);
    Row = 0;
    Col = 0;
    grid_.setRow(Row);
    grid_.setCol(Col);
    grid_.setCellColour(Row, Col, CurrentColour);
    context_.MarkedRow = Row;
    context_.MarkedCol = Col;
    Typing = false;
    context_.GridBusy = false;
}

void ValueGrid::leave() {
    int enterKey = EnterKey;
    key(enterKey);
    context_.GridBusy = true;
    if (context_.MarkedRow >= 0 && grid_.hasCell(context_.MarkedRow, context_.MarkedCol)) {
        grid_.setCellColour(context_.MarkedRow, context_.MarkedCol, UntouchedColour);
        CheckGridCell(context_, grid_, context_.MarkedRow, context_.MarkedCol, Index, Valid);
    }
    context_.MarkedRow = NoMarkedRow;
    context_.GridBusy = false;
}

void ValueGrid::insertValue() {
    if (Index > 0)
        InsertGridCell(context_, grid_, Row, Col, Index, Valid, Typing);
    context_.GridBusy = false;
}

void ValueGrid::deleteValue() {
    if (Index > 0 && !isFirstCell(Row, Col))
        DeleteGridCell(context_, grid_, Row, Col, Index, Valid, Typing);
}

void ValueGrid::store() {
    if (Index > 1)
        StoreFlowGrid(context_, grid_, Index);
    // The store moved the current cell over the values; it is the window's again.
    grid_.setRow(Row);
    grid_.setCol(Col);
    context_.GridBusy = false;
}

void ValueGrid::paste(const std::vector<std::string>& values) {
    if (Index <= 0)
        return;
    MoveGridCursor(context_, grid_, Row, Col, Index, Valid, Typing);
    for (const std::string& value : values) {
        grid_.setCellText(Row, Col, value);
        Typing = true;
        int enterKey = EnterKey;
        key(enterKey);
    }
}

std::vector<std::string> ValueGrid::values() const {
    std::vector<std::string> texts;
    for (int n = 0; n < Index; ++n) {
        const std::string text = trim(grid_.cellText(n / FlowGridColumns, n % FlowGridColumns));
        if (!text.empty())
            texts.push_back(text);
    }
    return texts;
}

} // namespace brooklet
