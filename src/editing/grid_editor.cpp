#include "editing/grid_editor.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"

#include <algorithm>

namespace brooklet {
namespace {

bool isBlank(const std::string& text) {
    return trim(text).empty();
}

// Cells of a flow grid by position in the series, from 0.
int positionOf(int row, int col) {
    return row * FlowGridColumns + col;
}
int rowOf(int position) {
    return position / FlowGridColumns;
}
int colOf(int position) {
    return position % FlowGridColumns;
}

std::string textAt(const GridControl& grid, int position) {
    return grid.cellText(rowOf(position), colOf(position));
}
void setTextAt(GridControl& grid, int position, const std::string& text) {
    grid.setCellText(rowOf(position), colOf(position), text);
}
Rgb colourAt(const GridControl& grid, int position) {
    return grid.cellColour(rowOf(position), colOf(position));
}
void setColourAt(GridControl& grid, int position, Rgb colour) {
    grid.setCellColour(rowOf(position), colOf(position), colour);
}

void moveCurrentCell(GridControl& grid, int row, int col) {
    grid.setRow(row);
    grid.setCol(col);
}

// The top row follows a cursor that has gone below the rows on show.
void followWithTopRow(const GridContext& context, GridControl& grid, int row) {
    if (row - context.GridVisibleRows > 0 && row >= grid.TopRow() + context.GridVisibleRows)
        grid.setTopRow(row - context.GridVisibleRows);
}

void ensureTableArrays(GridContext& context, int tables) {
    const size_t size = size_t(std::max(tables, 1)) + 1;
    if (context.TableFirst.size() < size)
        context.TableFirst.resize(size, 0);
    if (context.TableLast.size() < size)
        context.TableLast.resize(size, 0);
}

// Gives table t room for count positions in the store. A table that has a place and needs more
// grows where it stands: everything behind it moves up, and every table behind it with it. A
// table without a place is put behind all others. A table that needs fewer keeps its place.
void placeTable(GridContext& context, int t, int count) {
    int& first = context.TableFirst[size_t(t)];
    int& last = context.TableLast[size_t(t)];
    if (first != 0) {
        const int extra = count - (last - first + 1);
        if (extra < 1)
            return;
        const int oldCount = context.ValueCount;
        context.ValueCount += extra;
        context.ValueStore.ensureRows(context.ValueCount);
        context.ValueStore.moveRowsUp(last + 1, oldCount, extra);
        last += extra;
        const int tables = static_cast<int>(context.TableFirst.size()) - 1;
        for (int other = 1; other <= tables; ++other) {
            if (other == t || context.TableFirst[size_t(other)] <= first)
                continue;
            context.TableFirst[size_t(other)] += extra;
            context.TableLast[size_t(other)] += extra;
        }
        return;
    }
    first = context.ValueCount + 1;
    last = first + count - 1;
    context.ValueCount = last;
    context.ValueStore.ensureRows(context.ValueCount);
    if (first > last)
        first = last = 0;
}

bool rowHasData(const GridContext& context, const GridControl& grid, int row) {
    for (int col = context.GridFirstCol; col < grid.Cols(); ++col)
        if (!isBlank(grid.cellText(row, col)))
            return true;
    return false;
}

void emptyRow(const GridContext& context, GridControl& grid, int row) {
    for (int col = context.GridFirstCol; col < grid.Cols(); ++col)
        grid.setCellText(row, col, std::string());
}

} // namespace

void resetTabularTables(GridContext& context, int identifierFields, int valueFields,
                        const std::string& valueFill) {
    context.IdentifierTable.redim(std::max(identifierFields, 1), 1);
    context.TableFirst.assign(2, 0);
    context.TableLast.assign(2, 0);
    context.TableCount = 0;
    context.ValueCount = 0;
    context.TableCurrent = 0;
    context.TableNext = 0;
    context.ValueStore.redim(std::max(valueFields, 1), 1);
    context.ValueStore.fillRow(1, valueFill);
}

int addTable(GridContext& context) {
    const int table = ++context.TableCount;
    context.IdentifierTable.ensureRows(table);
    ensureTableArrays(context, table);
    context.TableFirst[size_t(table)] = 0;
    context.TableLast[size_t(table)] = 0;
    return table;
}

int findTable(const GridContext& context, const std::string& text) {
    const std::string wanted = toUpper(trim(text));
    int found = 0;
    for (int table = 1; table <= context.TableCount && table <= context.IdentifierTable.rows(); ++table)
        if (toUpper(trim(context.IdentifierTable(1, table))) == wanted)
            found = table;
    return found;
}

void deleteTable(GridContext& context, int t) {
    if (t < 1 || t >= static_cast<int>(context.TableFirst.size()))
        return;
    const int first = context.TableFirst[size_t(t)];
    const int n = context.TableLast[size_t(t)] - first;
    if (first > 0 && n > 0) {
        for (int position = first + 1 + n; position <= context.ValueCount; ++position)
            context.ValueStore.copyRow(position, position - n);
        context.ValueCount -= n;
        const int tables = static_cast<int>(context.TableFirst.size()) - 1;
        for (int other = 1; other <= tables; ++other) {
            if (context.TableFirst[size_t(other)] > first) {
                context.TableFirst[size_t(other)] -= n;
                context.TableLast[size_t(other)] -= n;
            }
        }
    }
    context.TableFirst[size_t(t)] = 0;
    context.TableLast[size_t(t)] = 0;
    if (t <= context.IdentifierTable.rows())
        for (int field = 2; field <= context.IdentifierTable.fields(); ++field)
            context.IdentifierTable(field, t).clear();
}

// Flow grid

void HandleGridKey(GridContext& context, int& Key, GridControl& Grid, int& Row, int& Col, int& Index,
                   bool& Typing, int WrapCol, int Step) {
    if (Key == BackspaceKey) {
        const std::string text = trim(Grid.Text());
        if (!text.empty() && Typing)
            Grid.setText(text.substr(0, text.size() - 1));
        return;
    }
    if (Key == PointKey || (Key >= FirstDigitKey && Key <= LastDigitKey)) {
        const std::string typed(1, static_cast<char>(Key));
        if (Typing) {
            if (static_cast<int>(trim(Grid.Text()).size()) >= context.GridCellWidth)
                return;
            Grid.setText(Grid.Text() + typed);
        } else {
            // The first key typed in a cell overwrites it.
            Grid.setText(typed);
            Typing = true;
        }
        return;
    }
    if (Key != TabKey && Key != EnterKey && Key != ApostropheKey)
        return;

    const bool blank = isBlank(Grid.Text());
    if (!blank || Index < 0) {
        const int numberPlusOne = Row * Grid.Cols() + Col + 2;
        if (Index >= 0 && Index < numberPlusOne)
            Index = numberPlusOne;
        if (Col + Step + 1 == Grid.Cols()) {
            const bool furtherRow = Row + 1 < Grid.Rows();
            if (furtherRow || Index > 0) {
                context.GridGrew = true;
                if (!furtherRow)
                    Grid.setRows(Row + 2);
                Row += 1;
                Col = WrapCol;
            }
        } else {
            Col = Col + Step + 1;
        }
    }
    bool valid = true;
    // Enter on a blank cell inside the series takes the cell out.
    if (blank && Index > 0)
        DeleteGridCell(context, Grid, Row, Col, Index, valid, Typing);
    followWithTopRow(context, Grid, Row);
    Key = 0;
    MoveGridCursor(context, Grid, Row, Col, Index, valid, Typing);
}

void MoveGridCursor(GridContext& context, GridControl& Grid, int& Row, int& Col, int& Index, bool& Valid,
                    bool& Typing) {
    context.GridBusy = true;
    if (Index == 0) {
        Row = 0;
        Col = 1;
    } else if (Index > 0 && positionOf(Row, Col) + 1 > Index + 1) {
        // Beyond the cell after the last value: back to the last value, or behind it.
        Row = rowOf(Index - 1);
        Col = colOf(Index - 1);
        if (!isBlank(Grid.cellText(Row, Col))) {
            Index += 1;
            Row = rowOf(Index - 1);
            Col = colOf(Index - 1);
        }
    }
    // The cursor does not stop on the series' first value.
    if (Row == 0 && Col == 0)
        Col = 1;
    if (context.MarkedRow >= 0 && Grid.hasCell(context.MarkedRow, context.MarkedCol)) {
        Grid.setCellColour(context.MarkedRow, context.MarkedCol, UntouchedColour);
        CheckGridCell(context, Grid, context.MarkedRow, context.MarkedCol, Index, Valid);
    }
    if (Row >= Grid.Rows())
        Grid.setRows(Row + 1);
    moveCurrentCell(Grid, Row, Col);
    Grid.setCellBackColor(CurrentColour);
    context.MarkedRow = Row;
    context.MarkedCol = Col;
    // A cell the cursor comes to is overwritten by the first key typed in it.
    Typing = false;
    followWithTopRow(context, Grid, Row);
    context.GridBusy = false;
}

void CheckGridCell(GridContext& context, GridControl& Grid, int Row, int Col, int Index, bool& Valid) {
    Valid = true;
    const std::string text = Grid.cellText(Row, Col);
    if (!isBlank(text)) {
        if (context.GridHighLimit > 0)
            ValidRealRange(true, 0, context.GridHighLimit, text, Valid);
        else
            ValidRealAtLeast(true, 0, text, Valid);
        if (context.GridCheckOrder && !(Row == 0 && Col == 0)) {
            const int position = positionOf(Row, Col);
            const double value = leadingNumber(text);
            if (value < leadingNumber(textAt(Grid, position - 1)))
                Valid = false;
            // The next value bounds it from above while there is one: the blank cell the cursor
            // has moved on to at the end of the series is no value.
            if (position + 1 < Index) {
                const std::string next = textAt(Grid, position + 1);
                if (!isBlank(next) && value > leadingNumber(next))
                    Valid = false;
            }
        }
        if (!FieldFits(text, context.GridCellWidth, true))
            Valid = false;
    }
    moveCurrentCell(Grid, Row, Col);
    if (!Valid)
        Grid.setCellBackColor(RefusedColour);
}

void DeleteGridCell(GridContext& context, GridControl& Grid, int& Row, int& Col, int& Index, bool& Valid,
                    bool& Typing) {
    MoveGridCursor(context, Grid, Row, Col, Index, Valid, Typing);
    const int cell = positionOf(Row, Col);
    int lastReached = cell;
    for (int position = cell; position < Index - 1; ++position) {
        setTextAt(Grid, position, textAt(Grid, position + 1));
        // The cursor's own cell keeps its green.
        if (position > cell)
            setColourAt(Grid, position, colourAt(Grid, position + 1));
        lastReached = position + 1;
    }
    setTextAt(Grid, lastReached, std::string());
    setColourAt(Grid, lastReached, UntouchedColour);
    Row = rowOf(cell);
    Col = colOf(cell);
    moveCurrentCell(Grid, Row, Col);
    if (Index >= 1)
        Index -= 1;
}

void InsertGridCell(GridContext& context, GridControl& Grid, int& Row, int& Col, int& Index, bool& Valid,
                    bool& Typing) {
    MoveGridCursor(context, Grid, Row, Col, Index, Valid, Typing);
    context.GridBusy = true;
    if (!isBlank(Grid.cellText(Grid.Rows() - 1, Grid.Cols() - 1)))
        Grid.AddItem(" ", Grid.Rows());
    const int cell = positionOf(Row, Col);
    for (int position = Index; position >= cell + 1; --position) {
        while (rowOf(position) >= Grid.Rows())
            Grid.AddItem(std::string(), Grid.Rows());
        const std::string before = textAt(Grid, position - 1);
        if (!isBlank(before))
            setTextAt(Grid, position, before);
        if (position > cell + 2)
            setColourAt(Grid, position, colourAt(Grid, position - 1));
        // The grid keeps a free row behind the series.
        if (position == Grid.Rows() * FlowGridColumns - 1 && !isBlank(before))
            Grid.AddItem(std::string(), Grid.Rows());
    }
    // The inserted cell starts as a copy of the value it pushed on.
    Row = rowOf(cell);
    Col = colOf(cell);
    moveCurrentCell(Grid, Row, Col);
    Index += 1;
}

void StoreFlowGrid(GridContext& context, GridControl& Grid, int Count) {
    context.GridBusy = true;
    const int table = context.TableCurrent;
    if (table < 1)
        return;
    ensureTableArrays(context, std::max(table, context.TableCount));
    if (Count > 1)
        placeTable(context, table, Count);
    const int first = context.TableFirst[size_t(table)];
    if (first == 0)
        return;
    context.ValueStore.ensureRows(first + Count - 1);
    for (int value = 1; value <= Count; ++value) {
        moveCurrentCell(Grid, rowOf(value - 1), colOf(value - 1));
        context.ValueStore(first + value - 1) = Grid.Text();
    }
    int& last = context.TableLast[size_t(table)];
    last = first + Count - 1;
    // The cursor's blank cell behind the last value is no value.
    if (Count >= 1 && isBlank(Grid.Text()))
        last -= 1;
}

// Row grid

void SelectGridRow(GridContext& context, GridControl& Grid, GridBoxes& Boxes, bool Load) {
    if (context.MarkedRow >= 0)
        UnmarkGridRow(context, Grid);
    if (context.GridRow > context.GridRowsUsed + 1)
        context.GridRow = context.GridRowsUsed + 1;
    Grid.setRow(context.GridRow);
    context.MarkedRow = context.GridRow;
    MarkGridRow(context, Grid);
    if (Load)
        LoadRowIntoBoxes(context, Boxes, Grid);
}

void MarkGridRow(GridContext& context, GridControl& Grid) {
    for (int col = context.GridFirstCol; col < Grid.Cols(); ++col)
        Grid.setCellColour(context.MarkedRow, col, CurrentColour);
}

void UnmarkGridRow(GridContext& context, GridControl& Grid) {
    if (context.MarkedRow < 0)
        return;
    for (int col = context.GridFirstCol; col < Grid.Cols(); ++col)
        Grid.setCellColour(context.MarkedRow, col, UntouchedColour);
    Grid.setRow(Grid.MouseRow());
    context.MarkedRow = NoMarkedRow;
}

void LoadRowIntoBoxes(GridContext& context, GridBoxes& Boxes, GridControl& Grid) {
    Grid.setRow(context.GridRow);
    for (int col = context.GridFirstCol; col < Grid.Cols(); ++col) {
        Boxes.setBoxText(context.GridBoxBase + col, trim(Grid.cellText(context.GridRow, col)));
        Boxes.setBoxColour(context.GridBoxBase + col, UntouchedColour);
    }
}

void PutRowInOrder(GridContext& context, GridControl& Grid) {
    if (context.GridRowsUsed < 1) {
        context.GridRowsUsed = 1;
        context.GridRow = 1;
        if (Grid.Rows() > 1)
            Grid.AddItem(std::string(), 1);
    } else {
        const double key = leadingNumber(context.GridKeyText);
        const std::string secondKey = toUpper(trim(context.GridSecondKeyText));
        bool found = false;
        int row = context.GridFirstRow;
        for (; row <= context.GridRowsUsed; ++row) {
            const double value = leadingNumber(Grid.cellText(row, context.GridKeyCol));
            if (value > key)
                break;
            if (value == key) {
                if (context.GridSecondKeyCol < 0 ||
                    toUpper(trim(Grid.cellText(row, context.GridSecondKeyCol))) == secondKey) {
                    found = true;
                    break;
                }
            }
        }
        context.GridRow = row;
        if (found) {
            Grid.setRow(row);
        } else if (rowHasData(context, Grid, row) || row <= context.GridRowsUsed) {
            context.GridRowsUsed += 1;
            UnmarkGridRow(context, Grid);
            Grid.AddItem(std::string(), row);
            context.MarkedRow = row;
            MarkGridRow(context, Grid);
        } else {
            context.GridRowsUsed = row;
        }
    }
    if (context.GridRow >= Grid.Rows())
        Grid.setRows(context.GridRow + 1);
    Grid.setCellText(context.GridRow, context.GridKeyCol, context.GridKeyText);
}

void DeleteGridRow(GridContext& context, GridControl& Grid, GridBoxes& Boxes) {
    const int lastUsed = context.GridRowsUsed;
    context.GridRowsUsed -= 1;
    if (context.GridRow > context.GridRowsUsed) {
        emptyRow(context, Grid, context.GridRow);
    } else {
        for (int row = context.GridRow; row <= Grid.Rows() - 2; ++row)
            for (int col = context.GridFirstCol; col < Grid.Cols(); ++col)
                Grid.setCellText(row, col, Grid.cellText(row + 1, col));
        emptyRow(context, Grid, lastUsed);
    }
    LoadRowIntoBoxes(context, Boxes, Grid);
}

void ClearRowGrid(GridContext& context, GridControl& Grid) {
    UnmarkGridRow(context, Grid);
    for (int row = context.GridFirstRow; row <= context.GridRowsUsed; ++row)
        emptyRow(context, Grid, row);
    context.GridRowsUsed = 0;
}

void StoreRowGrid(GridContext& context, GridControl& Grid) {
    const int table = context.TableCurrent;
    if (table >= 1) {
        context.GridBusy = true;
        ensureTableArrays(context, std::max(table, context.TableCount));
        const int count = std::max(context.GridRowsUsed - context.GridFirstRow + 1, 0);
        const int fields = std::max(Grid.Cols() - context.GridFirstCol, 0);
        if (fields > context.ValueStore.fields())
            context.ValueStore.resizeFields(fields);
        const int oldFirst = context.TableFirst[size_t(table)];
        const int oldRows = oldFirst > 0 ? context.TableLast[size_t(table)] - oldFirst + 1 : 0;
        if (count > 0)
            placeTable(context, table, count);
        const int first = context.TableFirst[size_t(table)];
        if (first > 0) {
            context.ValueStore.ensureRows(first + std::max(count, oldRows) - 1);
            for (int i = 1; i <= count; ++i) {
                const int row = context.GridFirstRow + i - 1;
                for (int col = context.GridFirstCol; col < Grid.Cols(); ++col)
                    context.ValueStore(col - context.GridFirstCol + 1, first + i - 1) =
                        Grid.cellText(row, col);
            }
            // Rows the table no longer uses keep their place, blank. A table emptied of all its
            // rows keeps its place too, with its last position just before its first, as a flow
            // grid's table does.
            for (int position = first + count; position <= first + oldRows - 1; ++position)
                context.ValueStore.fillRow(position, " ");
            context.TableLast[size_t(table)] = first + count - 1;
        }
    }
    context.TableCurrent = context.TableNext;
    context.GridBusy = false;
}

void loadTableIntoRowGrid(GridContext& context, GridControl& Grid, int t) {
    ClearRowGrid(context, Grid);
    // GridRowsUsed is the last row in use; the rows above GridFirstRow hold the heads.
    int lastUsed = context.GridFirstRow - 1;
    if (t >= 0 && t < static_cast<int>(context.TableFirst.size()) && context.TableFirst[size_t(t)] > 0) {
        const int last = std::min(context.TableLast[size_t(t)], context.ValueStore.rows());
        const int fields = std::min(context.ValueStore.fields(), Grid.Cols() - context.GridFirstCol);
        for (int position = context.TableFirst[size_t(t)]; position <= last; ++position) {
            if (isBlank(context.ValueStore(1, position)))
                continue;
            lastUsed += 1;
            if (lastUsed + 1 >= Grid.Rows())
                Grid.setRows(lastUsed + 2);
            for (int field = 1; field <= fields; ++field)
                Grid.setCellText(lastUsed, context.GridFirstCol + field - 1,
                                 context.ValueStore(field, position));
        }
    }
    context.GridRowsUsed = std::max(lastUsed, 0);
    context.GridRow = lastUsed + 1;
}

} // namespace brooklet
