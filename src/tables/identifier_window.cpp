#include "tables/identifier_window.h"

#include "editing/app_context.h"
#include "editing/grid_editor.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace brooklet {
namespace {

// Identifiers are at most this long; a longer text is cut on leaving its combo box.
constexpr int IdentifierLength = 10;

bool isMoveKey(const QKeyEvent* key) {
    const bool move =
        key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    return move && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

} // namespace

IdentifierWindow::IdentifierWindow(AppContext& context, EntryDesign design, TabularDesign tabularDesign,
                                   QWidget* parent)
    : EntryWindow(context, std::move(design), parent), tabularDesign_(std::move(tabularDesign)) {}

int IdentifierWindow::currentEntry() const {
    return tabular.TableNext;
}

QComboBox* IdentifierWindow::addCombo(int index, const QString& accessibleName) {
    auto* combo = new QComboBox(this);
    combo->setEditable(true);
    // The list neither completes nor adds what is typed: the leave step decides.
    combo->setCompleter(nullptr);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setMinimumWidth(140);
    nameControl(combo, indexedName("cmbInp", index), accessibleName);
    setBackground(combo, UntouchedColour);
    combo->installEventFilter(this);
    cmbInp.add(index, combo);
    // The shadow box carries the text and colour of the entry's field; it is never shown.
    addBox(index, accessibleName, 0)->hide();
    return combo;
}

QComboBox* IdentifierWindow::addIdentifierCombo(const QString& accessibleName) {
    return addCombo(1, accessibleName);
}

void IdentifierWindow::addCommandButtons(const QString& plotCaption, const QString& deleteCaption,
                                         const QString& cancelCaption, const QString& finishedCaption) {
    CmdPlot = makeButton("CmdPlot", plotCaption);
    CmdPlot->setEnabled(false);
    cmdDelCur = makeButton("cmdDelCur", deleteCaption);
    connect(CmdPlot, &QPushButton::clicked, this, &IdentifierWindow::displayData);
    connect(cmdDelCur, &QPushButton::clicked, this, &IdentifierWindow::deleteCurrent);
    addButtons(cancelCaption, finishedCaption, {CmdPlot, cmdDelCur});
}

std::string IdentifierWindow::boxText(int index) const {
    QLineEdit* box = txtInp(index);
    return box ? toBytes(box->text()) : std::string();
}

void IdentifierWindow::setBoxAndCombo(int index, const std::string& text) {
    if (QLineEdit* box = txtInp(index))
        box->setText(fromBytes(text));
    if (QComboBox* combo = cmbInp(index))
        combo->setEditText(fromBytes(text));
}

void IdentifierWindow::comboCopiesShadow(int index) {
    QComboBox* combo = cmbInp(index);
    QLineEdit* shadow = txtInp(index);
    combo->setEditText(shadow->text());
    setBackground(combo, background(shadow));
}

void IdentifierWindow::storeStep() {
    const int shown = tabular.TableCurrent;
    if (shown > 0 && shown <= tabular.TableCount) {
        tabular.IdentifierTable.ensureRows(shown);
        for (int field = 1; field <= tabularDesign_.IdentifierFields; ++field)
            tabular.IdentifierTable(field, shown) = boxText(field);
    }
    storeGrid();
    tabular.TableCurrent = tabular.TableNext;
}

QString IdentifierWindow::cutComboText(int index) {
    QComboBox* combo = cmbInp(index);
    const QString text = combo->currentText().left(IdentifierLength);
    if (text != combo->currentText())
        combo->setEditText(text);
    return text;
}

void IdentifierWindow::leaveIdentifier() {
    QComboBox* combo = cmbInp(1);
    const QString text = cutComboText(1);
    storeStep();
    tabular.TableNext = findTable(tabular, toBytes(text));
    if (tabular.TableNext > 0) {
        const int entry = tabular.TableNext;
        for (int field = 2; field <= tabularDesign_.IdentifierFields; ++field) {
            setBoxAndCombo(field, tabular.IdentifierTable(field, entry));
            setBackground(txtInp(field), UntouchedColour);
        }
        showEntryGrid(entry);
    } else if (!text.isEmpty()) {
        // A new name: it joins the list, trimmed, and the table as an entry with no rows.
        QtComboList list(combo);
        AddUnique(list, toBytes(text));
        combo->setEditText(text);
        tabular.TableNext = addTable(tabular);
        startNewEntry();
    }
    txtInp(1)->setText(text);
    if (tabularDesign_.ChecksShadowBox)
        checkBox(1);
    setBackground(combo, background(txtInp(1)));
    tabular.TableCurrent = tabular.TableNext;
    updatePlotButton();
}

bool IdentifierWindow::showEntry(const std::string& entry, int box) {
    // A blank name finds a deleted slot: no entry to show.
    if (trim(entry).empty() || findTable(tabular, entry) == 0)
        return false;
    cmbInp(1)->setEditText(fromBytes(entry));
    leaveIdentifier();
    focusBox(box);
    return true;
}

void IdentifierWindow::displayData() {
    if (tabular.TableNext == 0) {
        context.platform.showBox({"None Selected", DefaultBoxTitle, BoxButtons::Ok, BoxIcon::None});
        return;
    }
    storeStep();
    Tag_ = QString::number(tabular.TableNext);
    context.plots.PlotKind = tabularDesign_.PlotKind;
    context.windows.ShowModal("frmIO_Plots");
}

void IdentifierWindow::deleteCurrent() {
    QComboBox* combo = cmbInp(1);
    // A name typed but not yet left counts as left.
    if (combo->hasFocus())
        leaveIdentifier();
    if (trim(toBytes(combo->currentText())).empty())
        return;
    if (context.platform.showBox(tabularDesign_.DeleteQuestion) != BoxAnswer::No) {
        QtComboList list(combo);
        RemoveCurrentFromList(list);
        deleteTable(tabular, tabular.TableNext);
        for (int field = 1; field <= tabularDesign_.IdentifierFields; ++field)
            setBoxAndCombo(field, std::string());
        clearGrid();
        comboCopiesShadow(1);
        CmdPlot->setEnabled(false);
    }
    movingOn_ = true;
    combo->setFocus(Qt::OtherFocusReason);
    movingOn_ = false;
}

void IdentifierWindow::addHeldData(std::string& data) const {
    appendTable(data, tabular.IdentifierTable);
    appendTable(data, tabular.ValueStore);
}

std::vector<std::string> IdentifierWindow::sectionRecords() {
    storeStep();
    return sectionLines();
}

bool IdentifierWindow::acceptSetsDataChanged() const {
    return tabular.TableCount > 0;
}

void IdentifierWindow::focusBox(int index) {
    if (QComboBox* combo = cmbInp(index))
        combo->setFocus(Qt::OtherFocusReason);
    else
        EntryWindow::focusBox(index);
}

int IdentifierWindow::comboIndexOf(QObject* control) const {
    for (const auto& [index, combo] : cmbInp.all())
        if (combo == control)
            return index;
    return -1;
}

bool IdentifierWindow::eventFilter(QObject* watched, QEvent* event) {
    const int index = comboIndexOf(watched);
    if (index < 0)
        return EntryWindow::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (isMoveKey(key)) {
            // The combo box is left here, once, before the focus moves on.
            movingOn_ = true;
            if (index == 1)
                leaveIdentifier();
            else
                leaveCombo(index);
            moveOn(index);
            movingOn_ = false;
            return true;
        }
        if (key->key() == Qt::Key_F1) {
            showHelp(labelOfBox(index));
            return true;
        }
    } else if (event->type() == QEvent::FocusIn) {
        if (leavesTheField(static_cast<QFocusEvent*>(event)->reason())) {
            comboCopiesShadow(index);
            enterCombo(index);
        }
    } else if (event->type() == QEvent::FocusOut) {
        if (!movingOn_ && leavesTheField(static_cast<QFocusEvent*>(event)->reason())) {
            if (index == 1)
                leaveIdentifier();
            else
                leaveCombo(index);
        }
    }
    return EntryWindow::eventFilter(watched, event);
}

} // namespace brooklet
