#include "tables/alternate_editor.h"

#include "base/text.h"
#include "editing/app_context.h"
#include "editing/identifier_lists.h"
#include "editing/qt_lists.h"
#include "editing/watershed_tables.h"
#include "tables/alternate_analysis.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace brooklet {
namespace {

constexpr int IdentifierWidth = 10;
constexpr int DescriptionWidth = 70;
const char* const Title = "Alternate Analysis";
const char* const ListCaptions[] = {"", "Sub-Areas", "Reaches"};
const char* const EntryWindows[] = {"", "frmSubArea", "frmReaches"};

bool isMoveKey(const QKeyEvent* key) {
    return (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
           !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

} // namespace

frmAlternate::frmAlternate(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmAlternate", "Alternate Anaylsis", 18, "AA", AlternateSection}, parent),
      tables(context.watershed) {
    buildControls();
    Form_Load();
    cmbInp1->setFocus(Qt::OtherFocusReason);
}

void frmAlternate::buildControls() {
    addHeader("Alternate Analysis:");
    cmbInp1 = new QComboBox(this);
    cmbInp1->setEditable(true);
    // The combo box neither completes nor adds what is typed: the leave step decides.
    cmbInp1->setCompleter(nullptr);
    cmbInp1->setInsertPolicy(QComboBox::NoInsert);
    cmbInp1->setMinimumWidth(140);
    nameControl(cmbInp1, "cmbInp(1)", "Alternate Identifier");
    setBackground(cmbInp1, UntouchedColour);
    cmbInp1->installEventFilter(this);
    // The shadow box holds the identifier's text and colour; it is never shown.
    addBox(1, "Alternate Identifier", 0)->hide();
    addRow(addLabel(1, "Alternate Identifier"), {cmbInp1});
    QLineEdit* description = addBox(2, "Alternate Description", DescriptionWidth);
    description->setMinimumWidth(480);
    addRow(addLabel(2, "Alternate Description"), {description});

    auto* outer = static_cast<QVBoxLayout*>(layout());
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    nameControl(line, "Line1(0)");
    outer->insertWidget(outer->indexOf(txtHelp), line);

    auto* items = new QGridLayout;
    for (int index : {0, 1, 2}) {
        auto* label =
            new QLabel(index == 0 ? "Items changed with this Alternate" : ListCaptions[index], this);
        nameControl(label, indexedName("LblStatic", index), label->text());
        LblStatic.add(index, label);
    }
    items->addWidget(LblStatic(0), 0, 0, 1, 2);
    for (int kind : {1, 2}) {
        auto* list = new QListWidget(this);
        nameControl(list, indexedName("lstDisp", kind), QString(ListCaptions[kind]) + " of the alternate");
        list->setAccessibleDescription(
            "Left click or Enter edits an entry, a click below the entries or Insert "
            "adds one, the middle button or Delete deletes one");
        list->installEventFilter(this);
        list->viewport()->installEventFilter(this);
        lstDisp.add(kind, list);
        items->addWidget(LblStatic(kind), 1, kind - 1);
        items->addWidget(list, 2, kind - 1);
    }
    auto* hint =
        new QLabel("Click in appropriate box on right to add, edit or delete  a Sub-Area or Reach for "
                   "current alternate. ",
                   this);
    hint->setWordWrap(true);
    nameControl(hint, "Label4(0)", "How to change the entries");
    items->addWidget(hint, 2, 2, Qt::AlignTop);
    items->setColumnStretch(2, 1);
    outer->insertLayout(outer->indexOf(txtHelp), items);

    cmdDelCur = new QPushButton("Delete Current     Alternate", this);
    nameControl(cmdDelCur, "cmdDelCur", "Delete Current Alternate");
    cmdCancel = new QPushButton("     No Changes        (Close)", this);
    nameControl(cmdCancel, "cmdCancel", "No Changes (Close)");
    cmdFinished = new QPushButton("Accept Changes (Close)", this);
    nameControl(cmdFinished, "cmdFinished", "Accept Changes (Close)");
    connect(cmdDelCur, &QPushButton::clicked, this, &frmAlternate::deleteCurrent);
    connect(cmdCancel, &QPushButton::clicked, this, &frmAlternate::noChanges);
    connect(cmdFinished, &QPushButton::clicked, this, &frmAlternate::acceptChanges);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDelCur);
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdFinished);
    outer->insertLayout(outer->indexOf(txtHelp), buttons);

    QWidget* order[] = {cmbInp1, txtInp(2), lstDisp(1), lstDisp(2), cmdDelCur, cmdCancel, cmdFinished};
    for (size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmAlternate::setDefaults() {
    current_ = 0;
    previous_ = -999;
    resetAlternateStore(tables);
}

void frmAlternate::readSection(const std::vector<std::string>& lines) {
    hadRecords_ = true;
    ReadAlternateSection(lines, tables);
}

void frmAlternate::afterLoad() {
    QStringList names;
    for (int alternate = 1; alternate <= tables.AlternateCount; ++alternate)
        names << fromBytes(tables.AlternateNames(1, alternate));
    cmbInp1->addItems(names);
    // No alternate is shown until the user chooses one.
    cmbInp1->setCurrentIndex(-1);
    cmbInp1->setEditText(QString());
    txtHelp->hide();
}

void frmAlternate::storeStep() {
    if (previous_ > 0 && previous_ <= tables.AlternateCount) {
        tables.AlternateNames(1, previous_) = trim(toBytes(txtInp(1)->text()));
        tables.AlternateNames(2, previous_) = trim(toBytes(txtInp(2)->text()));
    }
    previous_ = short(current_);
}

bool frmAlternate::showEntry(const std::string& entry, int box) {
    if (trim(entry).empty() || findAlternate(tables, trim(entry)) == 0)
        return false;
    cmbInp1->setEditText(fromBytes(entry));
    leaveIdentifier();
    focusBox(box);
    return true;
}

void frmAlternate::leaveIdentifier() {
    // An identifier is at most ten characters; a longer text is cut as it leaves the box.
    const QString text = cmbInp1->currentText().left(IdentifierWidth);
    if (text != cmbInp1->currentText())
        cmbInp1->setEditText(text);
    const std::string name = trim(toBytes(text));
    if (name.empty() || toUpper(name) == toUpper(trim(toBytes(txtInp(1)->text())))) {
        checkBox(1);
        setBackground(cmbInp1, background(txtInp(1)));
        return;
    }
    storeStep();
    current_ = findAlternate(tables, name);
    if (current_ == 0) {
        QtComboList list(cmbInp1);
        AddUnique(list, name);
        cmbInp1->setEditText(text);
        current_ = addAlternate(tables, name, std::string());
        txtInp(2)->clear();
        for (int kind : {1, 2})
            lstDisp(kind)->clear();
    }
    txtInp(1)->setText(text);
    checkBox(1);
    setBackground(cmbInp1, background(txtInp(1)));
    showAlternate(current_);
    previous_ = short(current_);
    context.CurrentAlternate = current_;
}

void frmAlternate::showAlternate(int alternate) {
    txtInp(2)->setText(fromBytes(tables.AlternateNames(2, alternate)));
    for (int kind : {1, 2}) {
        QtListWidgetList list(lstDisp(kind));
        fillAlternateEntries(tables, alternate, kind, list);
    }
}

bool frmAlternate::checkBox(int index) {
    QLineEdit* box = txtInp(index);
    const QString text = box->text();
    const int width = index == 1 ? IdentifierWidth : DescriptionWidth;
    if (!trim(toBytes(text)).empty() && text.size() > width)
        box->setText(text.left(width));
    const bool valid = index <= 1 || current_ > 0;
    setBackground(box, valid ? UntouchedColour : RefusedColour);
    return valid;
}

int frmAlternate::nextBox(int index) const {
    if (trim(toBytes(cmbInp1->currentText())).empty())
        return 1;
    return index + 1 > 2 ? 1 : index + 1;
}

void frmAlternate::focusBox(int index) {
    if (index == 1)
        cmbInp1->setFocus(Qt::OtherFocusReason);
    else
        EntryWindow::focusBox(index);
}

void frmAlternate::editEntry(int kind, const QString& text) {
    if (current_ == 0)
        return;
    tables.AlternatePickedRow = 0;
    if (!trim(toBytes(text)).empty())
        tables.AlternatePickedRow = findAlternateEntry(tables, current_, kind, toBytes(text), true);
    lstDisp(kind)->clearSelection();
    context.windows.ShowWindowAtOrigin(EntryWindows[kind]);
}

void frmAlternate::askToDeleteEntry(int kind, int row) {
    QListWidget* list = lstDisp(kind);
    QListWidgetItem* item = list->item(row);
    const std::string text = item ? trim(toBytes(item->text())) : std::string();
    // The sub-area and reach windows hold copies of the entries, which their Accept would put
    // back: they close first, asked about their changes.
    if (current_ == 0 || text.empty() || !closeChildren()) {
        list->clearSelection();
        return;
    }
    const BoxRequest question{"Delete " + text + " from Current Alternate ?", Title, BoxButtons::YesNo,
                              BoxIcon::Question};
    if (context.platform.showBox(question) != BoxAnswer::No) {
        deleteAlternateEntry(tables, current_, kind, findAlternateEntry(tables, current_, kind, text, false));
        delete list->takeItem(row);
    }
    list->clearSelection();
}

void frmAlternate::deleteCurrent() {
    // The sub-area and reach windows work on an alternate by its place in the store, which the
    // deletion changes: they close first, asked about their changes.
    if (trim(toBytes(cmbInp1->currentText())).empty() || !closeChildren()) {
        cmbInp1->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (context.platform.showBox({"Delete Current Alternate Data ?", Title, BoxButtons::YesNo,
                                  BoxIcon::Question}) != BoxAnswer::No) {
        QtComboList list(cmbInp1);
        RemoveCurrentFromList(list);
        deleteAlternate(tables, current_);
        for (int index : {1, 2}) {
            txtInp(index)->clear();
            setBackground(txtInp(index), UntouchedColour);
            lstDisp(index)->clear();
        }
        cmbInp1->setCurrentIndex(-1);
        cmbInp1->setEditText(QString());
        setBackground(cmbInp1, UntouchedColour);
        previous_ = -999;
        // The boxes show no alternate now, so the lists take no clicks until one is chosen.
        current_ = 0;
        context.CurrentAlternate = 0;
    }
    movingOn_ = true;
    cmbInp1->setFocus(Qt::OtherFocusReason);
    movingOn_ = false;
}

std::vector<std::string> frmAlternate::sectionRecords() {
    storeStep();
    std::vector<std::string> lines = AlternateSectionRecords(tables);
    wrote_ = !lines.empty();
    return lines;
}

QStringList frmAlternate::editState() const {
    // The sub-area and reach windows change the store, not the controls of this window.
    QStringList state = EntryWindow::editState();
    for (const std::string& line : AlternateSectionRecords(tables))
        state << fromBytes(line);
    return state;
}

bool frmAlternate::event(QEvent* event) {
    // The windows opened from here set their own help code.
    if (event->type() == QEvent::WindowActivate)
        session.HelpCode = design().HelpCode;
    return EntryWindow::event(event);
}

int frmAlternate::listOf(QObject* watched) const {
    for (const auto& [kind, list] : lstDisp.all())
        if (watched == list || watched == list->viewport())
            return kind;
    return 0;
}

bool frmAlternate::listMouse(int kind, QMouseEvent* mouse) {
    QListWidget* list = lstDisp(kind);
    if (mouse->type() != QEvent::MouseButtonPress) {
        list->clearSelection();
        return true;
    }
    QListWidgetItem* item = list->itemAt(mouse->position().toPoint());
    if (item)
        list->setCurrentItem(item, QItemSelectionModel::NoUpdate);
    if (mouse->button() == Qt::LeftButton)
        editEntry(kind, item ? item->text() : QString());
    else if (mouse->button() == Qt::MiddleButton && item)
        askToDeleteEntry(kind, list->row(item));
    // The right button does nothing here.
    list->clearSelection();
    return true;
}

bool frmAlternate::listKey(int kind, QKeyEvent* key) {
    QListWidget* list = lstDisp(kind);
    QListWidgetItem* item = list->currentItem();
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        editEntry(kind, item ? item->text() : QString());
        return true;
    case Qt::Key_Insert:
        editEntry(kind, QString());
        return true;
    case Qt::Key_Delete:
        if (item)
            askToDeleteEntry(kind, list->row(item));
        return true;
    default:
        return false;
    }
}

bool frmAlternate::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == cmbInp1) {
        if (type == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (isMoveKey(key)) {
                movingOn_ = true;
                leaveIdentifier();
                focusBox(nextBox(1));
                movingOn_ = false;
                return true;
            }
            if (key->key() == Qt::Key_F1) {
                showHelp(1);
                return true;
            }
        } else if (type == QEvent::FocusIn && leavesTheField(static_cast<QFocusEvent*>(event))) {
            cmbInp1->setEditText(txtInp(1)->text());
            setBackground(cmbInp1, background(txtInp(1)));
        } else if (type == QEvent::FocusOut && !movingOn_ &&
                   leavesTheField(static_cast<QFocusEvent*>(event))) {
            leaveIdentifier();
        }
        return EntryWindow::eventFilter(watched, event);
    }
    if (const int kind = listOf(watched)) {
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
            type == QEvent::MouseButtonDblClick)
            return listMouse(kind, static_cast<QMouseEvent*>(event));
        if (type == QEvent::KeyPress && watched == lstDisp(kind) &&
            listKey(kind, static_cast<QKeyEvent*>(event)))
            return true;
        return EntryWindow::eventFilter(watched, event);
    }
    if (watched == txtInp(2)) {
        // Only Enter in the description is handled; Tab moves on through the window.
        if (type == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Tab && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
                return false;
        } else if (type == QEvent::FocusOut && !Accepting &&
                   leavesTheField(static_cast<QFocusEvent*>(event))) {
            checkBox(2);
        }
    }
    return EntryWindow::eventFilter(watched, event);
}

} // namespace brooklet
