#include "tables/storm_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/grid_editor.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_grid.h"
#include "editing/qt_lists.h"
#include "tables/pasted_text.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace brooklet {
namespace {

constexpr int StormBox = 1;
constexpr int RainGageBox = 2;
constexpr int StartBox = 3;
constexpr int RainfallBox = 4;
constexpr int RainTableBox = 5;
constexpr int RunoffBox = 6;
constexpr int TwoYearBox = 7;
constexpr int LastBox = 7;
// A grid column c belongs to box c + 1.
constexpr int BoxBase = 1;
constexpr int DesignRows = 11;
// The rows on show below the heads; a row picked further down is scrolled up to them.
constexpr int RowsOnShow = 9;
// The longest identifier a combo box keeps.
constexpr size_t IdentifierLength = 10;

const char* const Heads[StormFields] = {"Storm Id",      "Rain Gage Id", "Start", "Rain",
                                        "Rain Table Id", "ARC",          "2-Yr"};
const Qt::Alignment HeadAlignment[StormFields] = {Qt::AlignLeft,    Qt::AlignLeft, Qt::AlignHCenter,
                                                  Qt::AlignHCenter, Qt::AlignLeft, Qt::AlignHCenter,
                                                  Qt::AlignHCenter};
const int ColumnTwips[StormFields] = {1200, 1200, 500, 500, 1200, 500, 500};

bool isComboBox(int index) {
    return index == StormBox || index == RainGageBox || index == RainTableBox;
}

bool isBlank(const std::string& text) {
    return trim(text).empty();
}

} // namespace

frmStorm::frmStorm(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmStorm", "Storm Anaylsis", 14, "SA", StormSection}, parent) {
    buildControls();
    Form_Load();
    combo(StormBox)->setFocus(Qt::OtherFocusReason);
}

frmStorm::~frmStorm() = default;

QComboBox* frmStorm::addCombo(int index, const QString& accessibleName) {
    auto* list = new QComboBox(this);
    list->setEditable(true);
    // The list neither completes nor adds what is typed: leaving the box decides.
    list->setCompleter(nullptr);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMinimumWidth(140);
    nameControl(list, indexedName("cmbInp", index), accessibleName);
    setBackground(list, UntouchedColour);
    list->installEventFilter(this);
    cmbInp.add(index, list);
    // The shadow box holds the text the grid takes; it is never shown.
    addBox(index, accessibleName, 0)->hide();
    return list;
}

void frmStorm::buildControls() {
    addHeader("Storm Analysis:");
    auto* outer = static_cast<QVBoxLayout*>(layout());
    auto* comment0 = new QLabel(
        "Repeat the following for each Storm Identifier and Rain Gage Identifier combination", this);
    nameControl(comment0, indexedName("lblComment", 0), comment0->text());
    lblComment.add(0, comment0);
    outer->insertWidget(1, comment0);

    const QString captions[LastBox + 1] = {"",
                                           "Storm Identifier:",
                                           "Rain Gage Identifier",
                                           "Gage Starting Time:",
                                           "Gage Rainfall:",
                                           "Gage Rain Table Identifier:",
                                           "Gage Antecedent Runoff Condition:",
                                           "2-Yr 24-Hr Rainfall:"};
    for (int index = 1; index <= LastBox; ++index) {
        const QString& caption = captions[index];
        HelpLabel* label = addLabel(index, caption);
        if (isComboBox(index)) {
            addRow(label, {addCombo(index, caption)});
        } else if (index == RunoffBox) {
            addBox(RunoffBox, caption, 0)->hide();
            Frame1 = new QGroupBox(this);
            nameControl(Frame1, "Frame1", caption);
            auto* line = new QHBoxLayout(Frame1);
            auto* group = new QButtonGroup(this);
            for (int k = 1; k <= 3; ++k) {
                QRadioButton* option = addOption(Opt1, "Opt1", k, QString::number(k), group);
                option->setParent(Frame1);
                option->setAccessibleDescription(caption);
                line->addWidget(option);
                connect(option, &QRadioButton::clicked, this, [this, k] { optionPressed(k); });
                passFocusOn(option, TwoYearBox);
            }
            addRow(label, {Frame1});
        } else {
            QLineEdit* box = addBox(index, caption);
            box->setFixedWidth(90);
            addRow(label, {box}, addUnitLabel(index));
        }
    }

    auto* comment1 =
        new QLabel("Click row in grid to edit previously entered data.  RIGHT click to delete row.", this);
    nameControl(comment1, indexedName("lblComment", 1), comment1->text());
    lblComment.add(1, comment1);
    outer->insertWidget(outer->indexOf(txtHelp), comment1);

    MSFlexGrid1 = new QTableWidget(DesignRows, StormFields, this);
    nameControl(MSFlexGrid1, "MSFlexGrid1", "Storms entered");
    MSFlexGrid1->horizontalHeader()->hide();
    MSFlexGrid1->verticalHeader()->hide();
    MSFlexGrid1->setSelectionMode(QAbstractItemView::NoSelection);
    MSFlexGrid1->setFocusPolicy(Qt::StrongFocus);
    int width = 0;
    for (int col = 0; col < StormFields; ++col) {
        MSFlexGrid1->setColumnWidth(col, twips(ColumnTwips[col]));
        width += twips(ColumnTwips[col]);
    }
    MSFlexGrid1->setMinimumWidth(width + 2 * MSFlexGrid1->frameWidth() + 20);
    MSFlexGrid1->setMinimumHeight(MSFlexGrid1->verticalHeader()->defaultSectionSize() * (RowsOnShow + 2));
    grid = std::make_unique<QtGrid>(MSFlexGrid1);
    // The heads stand in the fixed row above the storms.
    for (int col = 0; col < StormFields; ++col) {
        grid->setCellText(0, col, Heads[col]);
        QTableWidgetItem* head = MSFlexGrid1->item(0, col);
        head->setFlags(Qt::ItemIsEnabled);
        head->setTextAlignment(HeadAlignment[col] | Qt::AlignVCenter);
        QFont bold = head->font();
        bold.setBold(true);
        head->setFont(bold);
    }
    MSFlexGrid1->installEventFilter(this);
    MSFlexGrid1->viewport()->installEventFilter(this);
    outer->insertWidget(outer->indexOf(txtHelp), MSFlexGrid1);
    boxes = std::make_unique<QtBoxes>(txtInp);

    addButtons("      No Changes    (Close)", "Accept Changes  (Close)");
    setTabOrder(combo(StormBox), combo(RainGageBox));
    setTabOrder(combo(RainGageBox), txtInp(StartBox));
    setTabOrder(txtInp(StartBox), txtInp(RainfallBox));
    setTabOrder(txtInp(RainfallBox), combo(RainTableBox));
    setTabOrder(combo(RainTableBox), Opt1(1));
    setTabOrder(Opt1(1), txtInp(TwoYearBox));
    setTabOrder(txtInp(TwoYearBox), MSFlexGrid1);
    setTabOrder(MSFlexGrid1, cmdFinished);
}

QComboBox* frmStorm::combo(int index) const {
    return cmbInp(index);
}

std::string frmStorm::boxText(int index) const {
    return toBytes(txtInp(index)->text());
}

void frmStorm::setDefaults() {
    GridContext& g = tabular;
    g.GridRowsUsed = 0;
    g.GridRow = NoCurrentRow;
    g.MarkedRow = NoMarkedRow;
    g.GridBusy = false;
    g.GridFirstRow = 1;
    g.GridFirstCol = 0;
    g.GridBoxBase = BoxBase;
    lblInUnit(StartBox)->setText("hr");
    for (int index : {RainfallBox, TwoYearBox})
        lblInUnit(index)->setText(fromBytes(session.Units.DepthUnit));
}

void frmStorm::readSection(const std::vector<std::string>& lines) {
    GridContext& g = tabular;
    const std::vector<StormRecord> rows = ReadStormSection(lines);
    if (grid->Rows() < int(rows.size()) + 1)
        grid->setRows(int(rows.size()) + 1);
    for (const StormRecord& row : rows) {
        ++g.GridRowsUsed;
        for (int col = 0; col < StormFields; ++col)
            grid->setCellText(g.GridRowsUsed, col, row[size_t(col)]);
    }
}

void frmStorm::afterLoad() {
    txtInp(RunoffBox)->setText("2");
    Opt1(2)->setChecked(true);
    txtHelp->hide();
    addSpareRowIfFull();
    QtComboList storms(combo(StormBox));
    FillHydrographNameList(session, storms);
    QtComboList gages(combo(RainGageBox));
    FillStormRainList(session, context.watershed.Rainfall, gages);
    QtComboList tables(combo(RainTableBox));
    FillRainTableList(session, true, tables);
    // Filling a list chooses no item: the boxes start empty.
    for (int index : {StormBox, RainGageBox, RainTableBox}) {
        combo(index)->setCurrentIndex(-1);
        combo(index)->setEditText(QString());
    }
}

void frmStorm::addSpareRowIfFull() {
    if (tabular.GridRowsUsed + 1 >= grid->Rows())
        grid->AddItem(std::string(), grid->Rows());
}

std::vector<StormRecord> frmStorm::gridRows() const {
    std::vector<StormRecord> rows;
    for (int row = 1; row <= tabular.GridRowsUsed; ++row) {
        StormRecord record;
        for (int col = 0; col < StormFields; ++col)
            record[size_t(col)] = grid->cellText(row, col);
        rows.push_back(std::move(record));
    }
    return rows;
}

int frmStorm::currentRow() const {
    return tabular.GridRow;
}

std::vector<std::string> frmStorm::sectionRecords() {
    // The grid is written as it stands; text in the boxes that never reached it is dropped.
    return WriteStormSection(gridRows());
}

void frmStorm::lookUpPair() {
    GridContext& g = tabular;
    g.GridRow = NoCurrentRow;
    const std::string storm = trim(boxText(StormBox));
    const std::string gage = trim(boxText(RainGageBox));
    for (int row = 1; row <= g.GridRowsUsed; ++row) {
        if (trim(grid->cellText(row, StormIdColumn)) == storm &&
            trim(grid->cellText(row, RainGageColumn)) == gage) {
            g.GridRow = row;
            break;
        }
    }
    if (g.GridRow == NoCurrentRow)
        return;
    LoadRowIntoBoxes(g, *boxes, *grid);
    optionFollowsBox6();
    combosFollowBoxes();
    if (g.GridRow > RowsOnShow)
        grid->setTopRow(g.GridRow - 8);
}

void frmStorm::optionFollowsBox6() {
    const double value = leadingNumber(boxText(RunoffBox));
    if (value > 0) {
        if (QRadioButton* option = Opt1(int(roundHalfEven(value))))
            option->setChecked(true);
    } else {
        Opt1(2)->setChecked(true);
        txtInp(RunoffBox)->setText("2");
    }
}

void frmStorm::combosFollowBoxes() {
    for (int index : {StormBox, RainGageBox, RainTableBox}) {
        combo(index)->setEditText(txtInp(index)->text());
        setBackground(combo(index), background(txtInp(index)));
    }
}

bool frmStorm::applyBox(int index) {
    GridContext& g = tabular;
    bool valid = true;
    const std::string text = boxText(index);
    if (isBlank(text)) {
        // The storm identifier and the rain table are required.
        valid = index != StormBox && index != RainTableBox;
    } else {
        if ((index == StormBox || index == RainGageBox) && !isBlank(boxText(StormBox)))
            lookUpPair();
        if (index == StartBox)
            ValidRealAtLeast(true, 0, text, valid);
        else if (index == RainfallBox || index == TwoYearBox)
            ValidRealAbove(true, 0, text, valid);
    }
    // No field can be entered before the storm identifier.
    if (isBlank(boxText(StormBox)) && !isBlank(text))
        valid = false;
    // A pasted value wider than its field is refused, and the help box says why.
    if (!fitsItsField(txtInp(index))) {
        valid = false;
        showNote(FieldTooLongNote(trim(text), fieldWidthOf(txtInp(index))));
    }
    if (valid)
        setBackground(txtInp(index), isBlank(text) ? UntouchedColour : AcceptedColour);
    else
        setBackground(txtInp(index), RefusedColour);
    if (isComboBox(index))
        setBackground(combo(index), background(txtInp(index)));

    if (!isBlank(boxText(StormBox)) && !isBlank(boxText(RainTableBox))) {
        // A new pair, or a row picked beyond the rows in use, starts a new row.
        if (g.GridRow == NoCurrentRow || g.GridRow > g.GridRowsUsed) {
            g.GridRowsUsed += 1;
            g.GridRow = g.GridRowsUsed;
        }
        if (g.GridRow + 1 >= grid->Rows())
            grid->AddItem(std::string(), grid->Rows());
        for (int col = 0; col < StormFields; ++col)
            grid->setCellText(g.GridRow, col, boxText(BoxBase + col));
        if (g.MarkedRow != g.GridRow) {
            SelectGridRow(g, *grid, *boxes, true);
            combosFollowBoxes();
        }
    }
    return valid;
}

bool frmStorm::checkBox(int index) {
    return applyBox(index);
}

int frmStorm::nextBox(int index) const {
    int next = index + 1;
    // The option buttons are passed over.
    if (next == RunoffBox)
        next = TwoYearBox;
    if (next > LastBox)
        next = StormBox;
    return next;
}

void frmStorm::focusBox(int index) {
    if (isComboBox(index))
        combo(index)->setFocus(Qt::OtherFocusReason);
    else
        EntryWindow::focusBox(index);
}

bool frmStorm::leaveCombo(int index) {
    QComboBox* list = combo(index);
    const std::string text = toBytes(list->currentText()).substr(0, IdentifierLength);
    // The lists grow as the user types.
    QtComboList items(list);
    if (!isBlank(text))
        AddUnique(items, text);
    list->setEditText(fromBytes(text));
    txtInp(index)->setText(fromBytes(text));
    return applyBox(index);
}

void frmStorm::enterKey(int index) {
    const bool valid = isComboBox(index) ? leaveCombo(index) : applyBox(index);
    movingOn_ = true;
    focusBox(nextBox(valid ? index : index - 1));
    movingOn_ = false;
}

void frmStorm::optionPressed(int k) {
    txtInp(RunoffBox)->setText(QString::number(k));
    Opt1(k)->setChecked(true);
    applyBox(RunoffBox);
}

bool frmStorm::showEntry(const std::string& entry, int box) {
    const size_t bar = entry.find('|');
    if (bar == std::string::npos)
        return false;
    const std::string storm = toUpper(trim(entry.substr(0, bar)));
    const std::string gage = toUpper(trim(entry.substr(bar + 1)));
    const std::vector<StormRecord> rows = gridRows();
    for (size_t row = 0; row < rows.size(); ++row) {
        if (toUpper(trim(rows[row][0])) != storm || toUpper(trim(rows[row][1])) != gage)
            continue;
        pickRow(static_cast<int>(row) + 1);
        focusBox(box);
        return true;
    }
    return false;
}

void frmStorm::pickRow(int row) {
    GridContext& g = tabular;
    g.GridRow = row;
    SelectGridRow(g, *grid, *boxes, true);
    optionFollowsBox6();
    combosFollowBoxes();
}

void frmStorm::deleteRow(int row) {
    GridContext& g = tabular;
    pickRow(row);
    if (g.GridRow < 1 || g.GridRow > g.GridRowsUsed)
        return;
    const BoxRequest question{"Delete Storm Id - Rain Gage Id combination Row ?", "Storm Analysis",
                              BoxButtons::YesNo, BoxIcon::Question};
    if (context.platform.showBox(question) != BoxAnswer::Yes)
        return;
    DeleteGridRow(g, *grid, *boxes);
    optionFollowsBox6();
    combosFollowBoxes();
    if (grid->Rows() >= DesignRows + 1)
        grid->RemoveItem(grid->Rows() - 1);
}

void frmStorm::copyRows() {
    std::vector<std::vector<std::string>> rows;
    for (const StormRecord& record : gridRows())
        rows.emplace_back(record.begin(), record.end());
    QApplication::clipboard()->setText(fromBytes(RowsAsText(rows)));
}

void frmStorm::pasteRows() {
    for (const auto& cells : SplitPastedRows(toBytes(QApplication::clipboard()->text()))) {
        const auto cell = [&cells](int col) {
            return size_t(col) < cells.size() ? cells[size_t(col)] : std::string();
        };
        // Each row goes in through the boxes, as if typed into emptied boxes: the pair first,
        // so that an existing row is found and taken over, then the other fields in their
        // order. With the rain table still empty, a new pair makes no row before its fields
        // are in.
        for (int index = 1; index <= LastBox; ++index) {
            txtInp(index)->clear();
            setBackground(txtInp(index), UntouchedColour);
        }
        for (int index = 1; index <= LastBox; ++index) {
            const std::string text = cell(index - BoxBase);
            if (isComboBox(index)) {
                combo(index)->setEditText(fromBytes(text));
                leaveCombo(index);
            } else {
                setTextUncut(txtInp(index), fromBytes(text));
                if (index == RunoffBox)
                    optionFollowsBox6();
                applyBox(index);
            }
        }
    }
}

bool frmStorm::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    // Events of the controls built before the grid.
    if (!MSFlexGrid1)
        return EntryWindow::eventFilter(watched, event);
    if (watched == MSFlexGrid1->viewport() && type == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int row = MSFlexGrid1->rowAt(mouse->position().toPoint().y());
        grid->setMouseRow(row);
        // Taking the focus first lets the box that loses it write into the grid.
        MSFlexGrid1->setFocus(Qt::MouseFocusReason);
        if (row >= 1 && mouse->button() == Qt::LeftButton)
            pickRow(row);
        else if (row >= 1 && mouse->button() == Qt::RightButton)
            deleteRow(row);
        return true;
    }
    if (watched == MSFlexGrid1 && type == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy)) {
            copyRows();
            return true;
        }
        if (key->matches(QKeySequence::Paste)) {
            pasteRows();
            return true;
        }
        // Without a mouse: Enter shows the row of the grid's current cell, Delete deletes it.
        const int row = MSFlexGrid1->currentRow();
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && row >= 1) {
            pickRow(row);
            return true;
        }
        if (key->key() == Qt::Key_Delete && row >= 1) {
            deleteRow(row);
            return true;
        }
    }
    for (const auto& [index, list] : cmbInp.all()) {
        if (watched != list)
            continue;
        if (type == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
                !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
                enterKey(index);
                return true;
            }
        } else if (type == QEvent::FocusIn && leavesTheField(static_cast<QFocusEvent*>(event))) {
            list->setEditText(txtInp(index)->text());
            setBackground(list, background(txtInp(index)));
        } else if (type == QEvent::FocusOut && !movingOn_ &&
                   leavesTheField(static_cast<QFocusEvent*>(event))) {
            leaveCombo(index);
        }
        return EntryWindow::eventFilter(watched, event);
    }
    for (int index : {StartBox, RainfallBox, TwoYearBox}) {
        if (watched != txtInp(index))
            continue;
        if (type == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            // Only Enter is the window's; Tab follows the tab order, and the box is applied as
            // it loses the focus.
            if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
                return false;
            if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
                !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
                enterKey(index);
                return true;
            }
        } else if (type == QEvent::FocusOut) {
            if (!movingOn_ && leavesTheField(static_cast<QFocusEvent*>(event)))
                applyBox(index);
            return false;
        }
    }
    return EntryWindow::eventFilter(watched, event);
}

} // namespace brooklet
