#include "network/local_table_window.h"

#include "editing/app_context.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"
#include "session/text_file.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace brooklet {

LocalTableWindow::LocalTableWindow(AppContext& context, EntryDesign design, int previousAtLoad,
                                   QWidget* parent)
    : EntryWindow(context, std::move(design), parent), previousAtLoad_(previousAtLoad) {}

QComboBox* LocalTableWindow::addList(const QString& accessibleName) {
    auto* list = new QComboBox(this);
    list->setEditable(true);
    // The list neither completes nor adds what is typed: the leave step decides.
    list->setCompleter(nullptr);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMinimumWidth(260);
    nameControl(list, indexedName("cmbInp", 1), accessibleName);
    setBackground(list, UntouchedColour);
    list->installEventFilter(this);
    cmbInp.add(1, list);
    // The shadow box holds the name the boxes belong to; it is never shown.
    addBox(1, accessibleName, 0)->hide();
    return list;
}

void LocalTableWindow::addCommandButtons(const QString& deleteCaption, const QString& cancelCaption,
                                         const QString& finishedCaption) {
    cmdDelCur = makeButton("cmdDelCur", deleteCaption);
    connect(cmdDelCur, &QPushButton::clicked, this, &LocalTableWindow::deleteCurrent);
    addButtons(cancelCaption, finishedCaption, {cmdDelCur});
    // "Accept Changes" here is the window's own finish step.
    disconnect(cmdFinished, &QPushButton::clicked, this, nullptr);
    connect(cmdFinished, &QPushButton::clicked, this, &LocalTableWindow::finish);
}

void LocalTableWindow::resetTable() {
    Table.reset(previousAtLoad_);
    cmbInp(1)->clear();
}

void LocalTableWindow::addLoadedRow(const FiveTexts& row, bool unique) {
    Table.addRow(row);
    QtComboList list(cmbInp(1));
    if (unique)
        AddUnique(list, row[0]);
    else
        list.AddItem(row[0]);
    // Filling the list chooses no item: the list's text stays empty.
    cmbInp(1)->setCurrentIndex(-1);
    cmbInp(1)->setEditText(QString());
}

std::string LocalTableWindow::listText() const {
    return toBytes(cmbInp(1)->currentText());
}

void LocalTableWindow::listCopiesShadow() {
    cmbInp(1)->setEditText(txtInp(1)->text());
}

void LocalTableWindow::cutShadowBox(size_t Length) {
    QLineEdit* box = txtInp(1);
    const QString cut = fromBytes(CutName(toBytes(box->text()), Length));
    if (cut != box->text())
        box->setText(cut);
}

void LocalTableWindow::leaveList() {
    QComboBox* list = cmbInp(1);
    const QString typed = list->currentText();
    txtInp(1)->setText(typed);
    storeBoxes();
    Table.Selected = Table.findLast(toBytes(typed));
    if (Table.Selected > 0) {
        showRow(Table.Selected);
    } else if (!trim(toBytes(typed)).empty()) {
        QtComboList items(list);
        AddUnique(items, toBytes(typed));
        // Adding to the list leaves its text as typed.
        list->setEditText(typed);
        Table.Selected = Table.addRow(toBytes(typed));
        clearBoxes();
    }
    setBackground(list, background(txtInp(1)));
    Table.Previous = Table.Selected;
}

void LocalTableWindow::deleteCurrent() {
    if (cmbInp(1)->hasFocus())
        leaveList();
    if (!trim(listText()).empty() && context.platform.showBox(deleteQuestion()) == BoxAnswer::Yes) {
        Table.emptyRow(Table.Selected);
        QtComboList list(cmbInp(1));
        RemoveCurrentFromList(list);
        txtInp(1)->clear();
        forgetDeletedRow();
        listCopiesShadow();
        clearBoxes();
    }
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void LocalTableWindow::finish() {
    // A name typed but not yet left counts as left.
    if (cmbInp(1)->hasFocus())
        leaveList();
    // A file that cannot be written stays as it was; so does the window, so nothing typed is lost.
    const WriteResult written = writeLines(filePath(), fileLines(), LocalFileWriting(session));
    if (!written.ok) {
        context.platform.showBox({"The file " + filePath() + " could not be written (" + written.error +
                                      "). The file is as it was before; the window stays open.",
                                  DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation});
        return;
    }
    close();
}

void LocalTableWindow::focusBox(int index) {
    if (index == 1)
        cmbInp(1)->setFocus(Qt::OtherFocusReason);
    else
        EntryWindow::focusBox(index);
}

QStringList LocalTableWindow::editState() const {
    QStringList state = EntryWindow::editState();
    for (int row = 1; row <= Table.Count; ++row)
        for (const std::string& field : Table.row(row))
            state << fromBytes(field);
    return state;
}

void LocalTableWindow::listKey(bool enter) {
    if (enter)
        leaveList();
    const int from = checkBox(1) ? 1 : 0;
    // Enter has left the list already: the focus it sends on is no second leaving. After Tab
    // the list is left when the focus goes.
    movingOn_ = enter;
    focusBox(nextBox(from));
    movingOn_ = false;
}

bool LocalTableWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == cmbInp(1)) {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
            const bool move = enter || key->key() == Qt::Key_Tab;
            if (move && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
                listKey(enter);
                return true;
            }
        } else if (event->type() == QEvent::FocusOut && !movingOn_ &&
                   leavesTheField(static_cast<QFocusEvent*>(event)->reason())) {
            leaveList();
        }
    }
    return EntryWindow::eventFilter(watched, event);
}

} // namespace brooklet
