#include "tables/grid_editor_window.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/grid_editor.h"
#include "editing/numbers.h"
#include "editing/qt_grid.h"
#include "editing/spreadsheet_text.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

namespace brooklet {
namespace {

// Rows of a row grid at load: the fixed row of heads and ten rows; it never shrinks below.
constexpr int GridRowsAtLoad = 11;
// Beyond this row, placing a row scrolls the grid so that it stands ninth from the top.
constexpr int LastRowOnShow = 9;
constexpr int TwipsPerPixel = 15;

bool isMoveKey(const QKeyEvent* key) {
    const bool move =
        key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    return move && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

} // namespace

GridEditorWindow::GridEditorWindow(AppContext& context, EntryDesign design, TabularDesign tabularDesign,
                                   RowGridDesign rowDesign, QWidget* parent)
    : IdentifierWindow(context, std::move(design), std::move(tabularDesign), parent),
      rowDesign_(std::move(rowDesign)) {}

GridEditorWindow::~GridEditorWindow() = default;

QTableWidget* GridEditorWindow::addGrid(const QString& accessibleName, int columnWidthTwips) {
    const int columns = rowDesign_.LastBox - rowDesign_.KeyBox + 1;
    MSFlexGrid1 = new QTableWidget(GridRowsAtLoad, columns, this);
    nameControl(MSFlexGrid1, "MSFlexGrid1", accessibleName);
    MSFlexGrid1->horizontalHeader()->hide();
    MSFlexGrid1->verticalHeader()->hide();
    MSFlexGrid1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int col = 0; col < columns; ++col) {
        MSFlexGrid1->setColumnWidth(col, columnWidthTwips / TwipsPerPixel);
        auto* head = new QTableWidgetItem(col < rowDesign_.Heads.size() ? rowDesign_.Heads[col] : QString());
        head->setTextAlignment(Qt::AlignCenter);
        head->setBackground(QColor(Qt::lightGray));
        MSFlexGrid1->setItem(0, col, head);
    }
    if (rowDesign_.HeadHeightTwips > 0)
        MSFlexGrid1->setRowHeight(0, rowDesign_.HeadHeightTwips / TwipsPerPixel);
    MSFlexGrid1->setFixedWidth(columns * columnWidthTwips / TwipsPerPixel + 2 * MSFlexGrid1->frameWidth() +
                               MSFlexGrid1->verticalScrollBar()->sizeHint().width());
    MSFlexGrid1->setSelectionMode(QAbstractItemView::ContiguousSelection);
    MSFlexGrid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    MSFlexGrid1->viewport()->installEventFilter(this);
    MSFlexGrid1->installEventFilter(this);
    Grid = std::make_unique<QtGrid>(MSFlexGrid1);
    Boxes = std::make_unique<QtBoxes>(txtInp);
    return MSFlexGrid1;
}

QLabel* GridEditorWindow::addComment(int index, const QString& caption) {
    auto* label = new QLabel(caption, this);
    nameControl(label, indexedName("lblComment", index), caption);
    label->setWordWrap(true);
    return label;
}

QWidget* GridEditorWindow::addLine(int index) {
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    nameControl(line, indexedName("Line1", index));
    return line;
}

void GridEditorWindow::setDefaults() {
    GridContext& grid = tabular;
    grid.MarkedRow = NoMarkedRow;
    grid.GridBusy = false;
    grid.GridRow = -999;
    grid.GridRowsUsed = 0;
    grid.GridFirstRow = 1;
    grid.GridFirstCol = 0;
    grid.GridKeyCol = 0;
    grid.GridSecondKeyCol = -999;
    grid.GridBoxBase = rowDesign_.KeyBox;
    resetTabularTables(grid, tabularDesign().IdentifierFields, rowDesign_.LastBox - rowDesign_.KeyBox + 1,
                       " ");
}

void GridEditorWindow::afterLoad() {
    tabular.GridRow = 1;
    Grid->setRow(1);
    cmbInp(1)->clear();
    fillIdentifierList();
    // Filling the list chooses no item: the window opens with no identifier.
    cmbInp(1)->setCurrentIndex(-1);
    cmbInp(1)->setEditText(QString());
}

bool GridEditorWindow::checkBox(int index) {
    QLineEdit* box = txtInp(index);
    if (!box)
        return true;
    const std::string text = toBytes(box->text());
    // A blank box is not checked and keeps its colour.
    if (trim(text).empty() && !checkedWhenBlank(index))
        return true;
    bool valid = true;
    validateBox(index, text, valid);
    const bool current = tabular.TableNext > 0;
    if (index == rowDesign_.KeyBox)
        placeKey(text, valid && current);
    else if (isRowBox(index) && valid && current && tabular.GridRow > 0)
        valid = putValue(index, text);
    if (index > 1 && !current)
        valid = false;
    setBackground(box, valid ? UntouchedColour : RefusedColour);
    if (tabular.GridRowsUsed > 1)
        CmdPlot->setEnabled(true);
    return valid;
}

void GridEditorWindow::placeKey(const std::string& text, bool valid) {
    if (!valid) {
        tabular.GridRow = -999;
        return;
    }
    tabular.GridKeyText = text;
    PutRowInOrder(tabular, *Grid);
    SelectGridRow(tabular, *Grid, *Boxes, true);
    if (tabular.GridRow > LastRowOnShow)
        Grid->setTopRow(tabular.GridRow - (LastRowOnShow - 1));
}

bool GridEditorWindow::putValue(int index, const std::string& text) {
    const int row = tabular.GridRow;
    const int col = index - rowDesign_.KeyBox;
    Grid->setCellText(row, col, text);
    if (!mustRise(index))
        return true;
    // The value stays in the grid even when it is refused.
    const double value = leadingNumber(text);
    if (row > tabular.GridFirstRow && value <= leadingNumber(Grid->cellText(row - 1, col)))
        return false;
    if (row < tabular.GridRowsUsed && value >= leadingNumber(Grid->cellText(row + 1, col)))
        return false;
    return true;
}

void GridEditorWindow::storeGrid() {
    StoreRowGrid(tabular, *Grid);
}

void GridEditorWindow::showEntryGrid(int entry) {
    loadTableIntoRowGrid(tabular, *Grid, entry);
}

void GridEditorWindow::clearGrid() {
    ClearRowGrid(tabular, *Grid);
}

void GridEditorWindow::startNewEntry() {
    for (int index = 2; index <= rowDesign_.NewEntryClearsTo; ++index) {
        setBoxAndCombo(index, std::string());
        if (QLineEdit* box = txtInp(index))
            setBackground(box, UntouchedColour);
    }
    tabular.GridRow = 1;
    ClearRowGrid(tabular, *Grid);
}

void GridEditorWindow::updatePlotButton() {
    CmdPlot->setEnabled(tabular.TableNext > 0 && tabular.GridRowsUsed > 1);
}

void GridEditorWindow::nextRow() {
    tabular.GridRow += 1;
    if (tabular.GridRow >= Grid->Rows())
        Grid->AddItem(std::string(), Grid->Rows());
    SelectGridRow(tabular, *Grid, *Boxes, true);
    for (int index = rowDesign_.KeyBox; index <= rowDesign_.LastBox; ++index)
        setBackground(txtInp(index), UntouchedColour);
    if (rowDesign_.ScrollsAfterLastBox && tabular.GridRow > LastRowOnShow)
        Grid->setTopRow(tabular.GridRow - (LastRowOnShow - 1));
}

void GridEditorWindow::moveOn(int from) {
    int next = from + 1;
    const bool keyBlank = trim(boxText(rowDesign_.KeyBox)).empty();
    if (next > rowDesign_.KeyBox && keyBlank)
        next = rowDesign_.KeyBox;
    if (next > rowDesign_.LastBox) {
        nextRow();
        next = rowDesign_.KeyBox;
    }
    focusAndSelect(next);
}

void GridEditorWindow::focusAndSelect(int index) {
    movingOn_ = true;
    focusBox(index);
    movingOn_ = false;
    // What the box shows is typed over, as the row it shows is edited through it.
    if (QLineEdit* box = txtInp(index); box && !cmbInp.contains(index))
        box->selectAll();
}

void GridEditorWindow::pickRow(int Row, bool extendSelection) {
    if (Row < tabular.GridFirstRow)
        return;
    MSFlexGrid1->clearSelection();
    selectionEnd_ = -1;
    if (extendSelection) {
        selectionEnd_ = Row;
        const int from = std::max(std::min(Row, tabular.GridRow), tabular.GridFirstRow);
        MSFlexGrid1->setRangeSelected(QTableWidgetSelectionRange(from, 0, std::max(Row, tabular.GridRow),
                                                                 MSFlexGrid1->columnCount() - 1),
                                      true);
        // The grid takes the focus, so that Ctrl+C copies the rows.
        MSFlexGrid1->setFocus(Qt::MouseFocusReason);
        return;
    }
    // A box being edited is left, and checked, before the row changes.
    if (boxIndexOf(QApplication::focusWidget()) >= 2)
        MSFlexGrid1->setFocus(Qt::MouseFocusReason);
    tabular.GridRow = Row;
    SelectGridRow(tabular, *Grid, *Boxes, true);
    focusAndSelect(rowDesign_.KeyBox);
}

void GridEditorWindow::deleteRow() {
    // A current row of -999 (after a refused key) is no row: the heads are never deleted.
    if (tabular.GridRow < tabular.GridFirstRow || tabular.GridRow > tabular.GridRowsUsed)
        return;
    if (context.platform.showBox(rowDesign_.RowQuestion) == BoxAnswer::No)
        return;
    if (tabular.GridRowsUsed < 1)
        return;
    DeleteGridRow(tabular, *Grid, *Boxes);
    storeStep();
    if (Grid->Rows() > GridRowsAtLoad)
        Grid->RemoveItem(Grid->Rows() - 1);
    updatePlotButton();
}

void GridEditorWindow::pasteRows() {
    const SpreadsheetRows rows = SplitSpreadsheetText(context.platform.clipboardText());
    const int columns = rowDesign_.LastBox - rowDesign_.KeyBox + 1;
    // Refused values by the key of their row, as later rows may move them down.
    std::vector<std::pair<double, int>> refused;
    for (const auto& cells : rows) {
        // Each cell is typed into its box and checked, the key first, as it places the row.
        // A value wider than its field is taken whole, refused, and the help box says why.
        const auto typeCell = [&](int col) {
            const int index = rowDesign_.KeyBox + col;
            const std::string text = size_t(col) < cells.size() ? cells[size_t(col)] : "";
            const bool fits = setTextUncut(txtInp(index), fromBytes(text));
            const bool valid = checkBox(index) && fits;
            if (!fits) {
                paintBox(index, false);
                showNote(FieldTooLongNote(trim(text), fieldWidthOf(txtInp(index))));
            }
            return valid;
        };
        if (!typeCell(0)) {
            focusAndSelect(rowDesign_.KeyBox);
            break;
        }
        const double key = leadingNumber(boxText(rowDesign_.KeyBox));
        for (int col = 1; col < columns; ++col)
            if (!typeCell(col))
                refused.emplace_back(key, col);
        nextRow();
        focusAndSelect(rowDesign_.KeyBox);
    }
    for (const auto& [key, col] : refused)
        for (int row = tabular.GridFirstRow; row <= tabular.GridRowsUsed; ++row)
            if (leadingNumber(Grid->cellText(row, tabular.GridKeyCol)) == key)
                Grid->setCellColour(row, col, RefusedColour);
}

void GridEditorWindow::copyRows() {
    const int end = selectionEnd_ > 0 ? selectionEnd_ : tabular.GridRow;
    const int first = std::max(std::min(end, tabular.GridRow), tabular.GridFirstRow);
    const int last = std::min(std::max(end, tabular.GridRow), tabular.GridRowsUsed);
    SpreadsheetRows rows;
    for (int row = first; row <= last; ++row) {
        rows.emplace_back();
        for (int col = tabular.GridFirstCol; col < Grid->Cols(); ++col)
            rows.back().push_back(trim(Grid->cellText(row, col)));
    }
    if (!rows.empty())
        context.platform.setClipboardText(JoinSpreadsheetRows(rows));
}

bool GridEditorWindow::clipboardKey(QObject* watched, QKeyEvent* key) {
    const bool paste = key->matches(QKeySequence::Paste);
    const bool copy = key->matches(QKeySequence::Copy);
    if (!paste && !copy)
        return false;
    if (watched != MSFlexGrid1) {
        // In a box, the keys keep their own meaning unless they are meant for rows: a paste of
        // more than one cell, a copy with no text chosen in the box.
        auto* box = qobject_cast<QLineEdit*>(watched);
        if (!box)
            return false;
        if (paste) {
            const SpreadsheetRows rows = SplitSpreadsheetText(context.platform.clipboardText());
            if (rows.empty() || (rows.size() == 1 && rows[0].size() == 1)) {
                box->insert(fromBytes(rows.empty() ? std::string() : rows[0][0]));
                return true;
            }
        } else if (box->hasSelectedText()) {
            context.platform.setClipboardText(toBytes(box->selectedText()));
            return true;
        }
    }
    if (paste)
        pasteRows();
    else
        copyRows();
    return true;
}

int GridEditorWindow::boxIndexOf(QObject* control) const {
    for (const auto& [index, box] : txtInp.all())
        if (box == control)
            return index;
    return -1;
}

bool GridEditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (MSFlexGrid1 && watched == MSFlexGrid1->viewport() && event->type() == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int row = MSFlexGrid1->rowAt(mouse->position().toPoint().y());
        Grid->setMouseRow(row);
        if (mouse->button() == Qt::LeftButton)
            pickRow(row, mouse->modifiers() & Qt::ShiftModifier);
        else if (mouse->button() == Qt::RightButton)
            deleteRow();
        return true;
    }
    const int index = boxIndexOf(watched);
    if (event->type() == QEvent::KeyPress && (watched == MSFlexGrid1 || isRowBox(index)) &&
        clipboardKey(watched, static_cast<QKeyEvent*>(event)))
        return true;
    if (index < 2 || cmbInp.contains(index))
        return IdentifierWindow::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (isMoveKey(static_cast<QKeyEvent*>(event))) {
            movingOn_ = true;
            const bool valid = checkBox(index);
            moveOn(valid ? index : index - 1);
            movingOn_ = false;
            return true;
        }
        break;
    case QEvent::FocusOut:
        if (!movingOn_ && leavesTheField(static_cast<QFocusEvent*>(event)->reason()))
            checkBox(index);
        return false;
    case QEvent::FocusIn:
        // A click in a value box while no key is typed goes to the key box.
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason && index > rowDesign_.KeyBox &&
            isRowBox(index) && trim(boxText(rowDesign_.KeyBox)).empty()) {
            movingOn_ = true;
            focusBox(rowDesign_.KeyBox);
            movingOn_ = false;
        }
        break;
    default:
        break;
    }
    return IdentifierWindow::eventFilter(watched, event);
}

} // namespace brooklet
