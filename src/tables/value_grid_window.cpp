#include "tables/value_grid_window.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "editing/qt_grid.h"
#include "tables/pasted_text.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

namespace brooklet {
namespace {

constexpr int ColumnWidthTwips = 850;

} // namespace

QLabel* captionLabel(QWidget* window, const QString& name, const QString& caption) {
    auto* label = new QLabel(caption, window);
    nameControl(label, name, caption.trimmed());
    label->setWordWrap(true);
    return label;
}

ValueGridPanel::ValueGridPanel(QWidget* window, AppContext& context, GridContext& tables,
                               const ValueGridRules& rules, const QString& accessibleName, Hooks hooks)
    : QObject(window), context_(context), tables_(tables), hooks_(std::move(hooks)) {
    MSFlexGrid1 = new QTableWidget(rules.Rows, FlowGridColumns, window);
    nameControl(MSFlexGrid1, "MSFlexGrid1", accessibleName);
    MSFlexGrid1->horizontalHeader()->hide();
    MSFlexGrid1->verticalHeader()->hide();
    MSFlexGrid1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    MSFlexGrid1->setSelectionMode(QAbstractItemView::NoSelection);
    for (int col = 0; col < FlowGridColumns; ++col)
        MSFlexGrid1->setColumnWidth(col, twips(ColumnWidthTwips));
    MSFlexGrid1->setFixedWidth(FlowGridColumns * twips(ColumnWidthTwips) + 2 * MSFlexGrid1->frameWidth() +
                               MSFlexGrid1->verticalScrollBar()->sizeHint().width());
    grid_ = std::make_unique<QtGrid>(MSFlexGrid1);
    values_ = std::make_unique<ValueGrid>(tables_, *grid_, rules);

    mnuPopUp = new QMenu("Insert/Delete", window);
    nameControl(mnuPopUp, "mnuPopUp", "Insert/Delete");
    mnuPopUp->addSeparator()->setObjectName("Blankline");
    mnuDelInsItem1 = mnuPopUp->addAction("Insert Point");
    mnuDelInsItem1->setObjectName("mnuDelInsItem(1)");
    mnuDelInsItem2 = mnuPopUp->addAction("Delete Point");
    mnuDelInsItem2->setObjectName("mnuDelInsItem(2)");
    connect(mnuDelInsItem1, &QAction::triggered, this, [this] { menuItem(true); });
    connect(mnuDelInsItem2, &QAction::triggered, this, [this] { menuItem(false); });
    // The first value can't be deleted: the item is off only while the menu is up on it.
    connect(mnuPopUp, &QMenu::aboutToHide, mnuDelInsItem2, [this] { mnuDelInsItem2->setEnabled(true); });

    connect(MSFlexGrid1, &QTableWidget::currentCellChanged, this, [this](int row, int col) {
        if (tables_.GridBusy || row < 0 || col < 0)
            return;
        values_->cellChanged(row, col);
        hooks_.cellChanged();
    });
    MSFlexGrid1->installEventFilter(this);
    MSFlexGrid1->viewport()->installEventFilter(this);
}

ValueGridPanel::~ValueGridPanel() = default;

void ValueGridPanel::enter() {
    MSFlexGrid1->setFocus(Qt::OtherFocusReason);
    values_->enter();
}

void ValueGridPanel::finishTyping() {
    if (values_->Typing)
        values_->leave();
}

void ValueGridPanel::menuItem(bool insert) {
    if (insert)
        values_->insertValue();
    else
        values_->deleteValue();
    mnuPopUp->hide();
    hooks_.edited();
}

void ValueGridPanel::pressCell(int row, int col, Qt::MouseButton button, const QPoint& globalPos) {
    if (row < 0 || col < 0)
        return;
    if (values_->Index <= 0) {
        hooks_.clickedEmpty();
        return;
    }
    // Whatever has the focus is left first, as a click on the grid leaves it.
    MSFlexGrid1->setFocus(Qt::MouseFocusReason);
    const bool firstCell = ValueGrid::isFirstCell(row, col);
    if (firstCell && button == Qt::LeftButton)
        values_->pickFirstCell();
    else
        values_->press(row, col);
    hooks_.cellChanged();
    if (button == Qt::RightButton && !trim(grid_->cellText(row, col)).empty()) {
        mnuDelInsItem2->setEnabled(!firstCell);
        mnuPopUp->popup(globalPos);
    }
}

bool ValueGridPanel::gridKey(QKeyEvent* key) {
    if (key->matches(QKeySequence::Paste)) {
        const bool tableOnShow = values_->Index > 0;
        const std::vector<std::string> pasted = SplitPastedValues(context_.platform.clipboardText());
        values_->paste(pasted);
        hooks_.edited();
        // The cell of a value that does not fit is red; the help box says why.
        const int width = tables_.GridCellWidth;
        for (const std::string& value : tableOnShow ? pasted : std::vector<std::string>{}) {
            if (!FieldFits(value, width, true)) {
                hooks_.note(FieldTooLongNote(trim(value), width));
                break;
            }
        }
        return true;
    }
    if (key->matches(QKeySequence::Copy)) {
        context_.platform.setClipboardText(ValuesAsColumn(values_->values()));
        return true;
    }
    // Keys with Control or Alt are the window's own (Ctrl+Enter accepts).
    if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    int code = gridKeyCode(*key);
    if (code == 0)
        return false;
    values_->key(code);
    hooks_.edited();
    return true;
}

bool ValueGridPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == MSFlexGrid1) {
        if (event->type() == QEvent::KeyPress)
            return gridKey(static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::FocusOut && leavesTheField(static_cast<QFocusEvent*>(event))) {
            values_->leave();
            hooks_.edited();
        }
    } else if (watched == MSFlexGrid1->viewport()) {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            const QPoint at = mouse->position().toPoint();
            pressCell(MSFlexGrid1->rowAt(at.y()), MSFlexGrid1->columnAt(at.x()), mouse->button(),
                      mouse->globalPosition().toPoint());
            return true;
        }
        // The grid's own handling of the mouse would move its current cell past the routines.
        if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick ||
            event->type() == QEvent::MouseMove)
            return true;
    }
    return QObject::eventFilter(watched, event);
}

NamedValueWindow::NamedValueWindow(AppContext& context, EntryDesign design, TabularDesign tabularDesign,
                                   NamedValueDesign valueDesign, QWidget* parent)
    : IdentifierWindow(context, std::move(design), std::move(tabularDesign), parent),
      valueDesign(std::move(valueDesign)) {}

QTableWidget* NamedValueWindow::addValueGrid(const QString& accessibleName) {
    panel_ =
        new ValueGridPanel(this, context, tabular, valueDesign.Rules, accessibleName,
                           {[this] { updatePlotButton(); },
                            [this] {
                                if (panel_->values().Index > 2) {
                                    CmdPlot->setEnabled(true);
                                    cmdDelCur->setEnabled(true);
                                }
                            },
                            [this] { focusBox(1); }, [this](const std::string& note) { showNote(note); }});
    return panel_->MSFlexGrid1;
}

void NamedValueWindow::setDefaults() {
    resetTabularTables(tabular, tabularDesign().IdentifierFields, 1);
    panel_->values().startTable(std::string(), 0);
}

void NamedValueWindow::readSection(const std::vector<std::string>& lines) {
    LoadValueTables(tabular, valueDesign.Read(lines), tabularDesign().IdentifierFields);
}

void NamedValueWindow::afterLoad() {
    for (const auto& [index, combo] : cmbInp.all())
        combo->clear();
    fillLists();
    // Filling a list chooses no item: the window opens with no identifier.
    for (const auto& [index, combo] : cmbInp.all()) {
        combo->setCurrentIndex(-1);
        combo->setEditText(QString());
    }
}

std::vector<std::string> NamedValueWindow::sectionLines() {
    return valueDesign.Write(StoredValueTables(tabular));
}

std::vector<std::string> NamedValueWindow::sectionRecords() {
    panel_->finishTyping();
    return IdentifierWindow::sectionRecords();
}

bool NamedValueWindow::checkBox(int index) {
    QLineEdit* box = txtInp(index);
    QComboBox* combo = cmbInp(index);
    if (!box)
        return true;
    // The check runs on what was typed; a combo box's text is then cut to an identifier.
    const bool typedBlank = trim(combo ? toBytes(combo->currentText()) : boxText(index)).empty();
    const std::string text = combo ? toBytes(cutComboText(index)) : boxText(index);
    const bool blank = trim(text).empty();
    if (typedBlank && !Accepting) {
        updatePlotButton();
        return true;
    }
    const bool current = tabular.TableNext > 0;
    bool valid = true;
    if (combo) {
        box->setText(fromBytes(text));
        if (blank && blankRefused(index)) {
            valid = false;
            if (index == 1) {
                // No table: the grid and the entry's fields are emptied.
                panel_->values().clear();
                for (int field = 2; field <= tabularDesign().IdentifierFields; ++field) {
                    setBoxAndCombo(field, " ");
                    setBackground(txtInp(field), UntouchedColour);
                    if (QComboBox* other = cmbInp(field))
                        setBackground(other, UntouchedColour);
                }
            }
        }
    } else if (current) {
        validateBox(index, text, valid);
    }
    if (index > 1 && !current && !blank)
        valid = false;
    setBackground(box, valid ? UntouchedColour : RefusedColour);
    if (combo)
        setBackground(combo, valid ? UntouchedColour : RefusedColour);
    updatePlotButton();
    return valid;
}

void NamedValueWindow::storeGrid() {
    panel_->values().store();
}

void NamedValueWindow::showEntryGrid(int entry) {
    panel_->values().showTable(entry);
}

void NamedValueWindow::clearGrid() {
    // A deleted table leaves a single blank in the first cell and no value in the grid.
    panel_->values().startTable(" ", 0);
}

void NamedValueWindow::startNewEntry() {
    for (int field = 2; field <= tabularDesign().IdentifierFields; ++field) {
        setBoxAndCombo(field, std::string());
        setBackground(txtInp(field), UntouchedColour);
    }
    // Every new table starts at 0.
    panel_->values().startTable("0", valueDesign.NewTableValues);
}

void NamedValueWindow::updatePlotButton() {
    CmdPlot->setEnabled(tabular.TableNext > 0 && fieldsPlottable() && panel_->values().Index > 2);
}

void NamedValueWindow::leaveCombo(int index) {
    comboValid_ = checkBox(index);
}

void NamedValueWindow::moveOn(int from) {
    const bool refused = from > 1 && !comboValid_;
    comboValid_ = true;
    focusBox(refused ? from : from + 1);
}

void NamedValueWindow::focusBox(int index) {
    if (index >= valueDesign.GridBox)
        panel_->enter();
    else
        IdentifierWindow::focusBox(index);
}

bool NamedValueWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && leavesTheField(static_cast<QFocusEvent*>(event)))
        for (const auto& [index, box] : txtInp.all())
            if (box == watched && checkedOnLeaving(index) && !Accepting)
                checkBox(index);
    return IdentifierWindow::eventFilter(watched, event);
}

} // namespace brooklet
