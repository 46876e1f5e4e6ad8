#include "network/network_window.h"

#include "editing/app_context.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace brooklet {
namespace {

bool isMoveKey(const QKeyEvent* key) {
    return (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
           !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

const char* const CodeCaptions[] = {"Yes", "No", "Blank"};

} // namespace

void FillAlternateChoices(AppContext& context, int Kind) {
    QWidget* alternates = context.windows.loaded("frmAlternate");
    if (!alternates)
        return;
    auto* list = alternates->findChild<QListWidget*>(indexedName("lstDisp", Kind == 1 ? 1 : 2));
    if (!list)
        return;
    QtListWidgetList items(list);
    fillAlternateEntries(context.watershed, context.CurrentAlternate, Kind, items);
}

namespace {

// The window a new network window works for: the sub-area window for a calculator, the
// alternate window for a window opened on an alternate.
QWidget* ownerOf(AppContext& context, NetworkWindow::OpenedFrom from) {
    if (from == NetworkWindow::OpenedFrom::SubAreaWindow)
        return context.windows.loaded("frmSubArea");
    return context.CurrentAlternate > 0 ? context.windows.loaded("frmAlternate") : nullptr;
}

int alternateOf(AppContext& context, NetworkWindow::OpenedFrom from, QWidget* owner) {
    if (from == NetworkWindow::OpenedFrom::SubAreaWindow)
        if (auto* subAreas = qobject_cast<NetworkWindow*>(owner))
            return subAreas->workingAlternate();
    return context.CurrentAlternate;
}

} // namespace

NetworkWindow::NetworkWindow(AppContext& context, EntryDesign design, OpenedFrom from, QWidget* parent)
    : EntryWindow(context, std::move(design), parent), Owner(ownerOf(context, from)),
      hadOwner_(!Owner.isNull()),
      ownerCaption_(from == OpenedFrom::SubAreaWindow ? "Sub-Area" : "Alternate Analysis"),
      WorkingAlternate(alternateOf(context, from, Owner)) {
    // The window closes with the one it works for, which asks about its changes first.
    if (auto* owner = qobject_cast<EntryWindow*>(Owner.data()))
        owner->adoptChild(this);
}

void NetworkWindow::tellSubAreaDeleted(const std::string& name) {
    context.platform.showBox({"The sub-area " + trim(name) +
                                  " was deleted in the Sub-Area window after this window opened, so what "
                                  "was entered for it here is not written.",
                              toBytes(design().Caption), BoxButtons::Ok, BoxIcon::Exclamation});
}

bool NetworkWindow::alternateMode() const {
    return WorkingAlternate > 0;
}

bool NetworkWindow::ownerClosed() const {
    return hadOwner_ && !Owner;
}

void NetworkWindow::closeForClosedOwner() {
    context.platform.showBox({"The " + toBytes(ownerCaption_) +
                                  " window that this window was opened from has closed, so what was "
                                  "entered here cannot be written. The window closes without writing it.",
                              toBytes(design().Caption), BoxButtons::Ok, BoxIcon::Exclamation});
    close();
}

QComboBox* NetworkWindow::addList(int index, const QString& accessibleName) {
    auto* list = new QComboBox(this);
    list->setEditable(true);
    // The list neither completes nor adds what is typed: the leave step decides.
    list->setCompleter(nullptr);
    list->setInsertPolicy(QComboBox::NoInsert);
    // Sized for an identifier of ten characters, not by measuring thousands of items.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(12);
    nameControl(list, indexedName("cmbInp", index), accessibleName.simplified());
    setBackground(list, UntouchedColour);
    list->installEventFilter(this);
    cmbInp.add(index, list);
    // The shadow box holds the text and colour of the field; it is never shown.
    addBox(index, accessibleName.simplified(), 0)->hide();
    return list;
}

QGroupBox* NetworkWindow::addCodeGroup(int group, const QString& accessibleName) {
    auto* frame = new QGroupBox(this);
    nameControl(frame, indexedName("Frame1", group - 1), accessibleName.simplified());
    frame->setFlat(true);
    auto* line = new QHBoxLayout(frame);
    line->setContentsMargins(0, 0, 0, 0);
    auto* buttons = new QButtonGroup(frame);
    for (int k = 0; k < 3; ++k) {
        const int index = 3 * group - 2 + k;
        QRadioButton* option = addOption(Opt1, "Opt1", index, CodeCaptions[k], buttons);
        option->setAccessibleDescription(accessibleName.simplified());
        // Chosen with the mouse only; the keyboard's order of fields passes the groups by.
        option->setFocusPolicy(Qt::ClickFocus);
        option->installEventFilter(this);
        line->addWidget(option);
    }
    Frame1.add(group - 1, frame);
    return frame;
}

void NetworkWindow::addAlternateLabels() {
    for (int index : {1, 2}) {
        auto* label = new QLabel(index == 1 ? "Alternate" : QString(), this);
        nameControl(label, indexedName("lblStatic", index), index == 1 ? "Alternate" : "Alternate name");
        label->hide();
        lblStatic.add(index, label);
    }
    QFont font = lblStatic(2)->font();
    font.setBold(true);
    lblStatic(2)->setFont(font);
    addRow(lblStatic(1), {lblStatic(2)});
}

void NetworkWindow::showAlternateName() {
    if (!alternateMode())
        return;
    const TextTable& names = context.watershed.AlternateNames;
    lblStatic(2)->setText(fromBytes(names(1, std::min(workingAlternate(), names.rows()))));
    lblStatic(1)->show();
    lblStatic(2)->show();
}

void NetworkWindow::addReturnButtons(const QString& deleteCaption,
                                     std::initializer_list<QPushButton*> others) {
    cmdDelCur = new QPushButton(deleteCaption, this);
    nameControl(cmdDelCur, "cmdDelCur", deleteCaption.simplified());
    cmdFinished = new QPushButton("Return to Sub-Area", this);
    nameControl(cmdFinished, "cmdFinished", "Return to Sub-Area");
    connect(cmdDelCur, &QPushButton::clicked, this, &NetworkWindow::deleteCurrent);
    connect(cmdFinished, &QPushButton::clicked, this, &NetworkWindow::acceptChanges);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDelCur);
    for (QPushButton* other : others)
        buttons->addWidget(other);
    buttons->addStretch();
    buttons->addWidget(cmdFinished);
    auto* outer = static_cast<QVBoxLayout*>(layout());
    outer->insertLayout(outer->indexOf(txtHelp), buttons);
}

void NetworkWindow::addCommandButtons(const QString& deleteCaption, const QString& cancelCaption,
                                      const QString& finishedCaption) {
    cmdDelCur = makeButton("cmdDelCur", deleteCaption);
    connect(cmdDelCur, &QPushButton::clicked, this, &NetworkWindow::deleteCurrent);
    addButtons(cancelCaption, finishedCaption, {cmdDelCur});
}

void NetworkWindow::fillList(std::initializer_list<int> indexes,
                             const std::function<void(ListControl&)>& fill) {
    // Gathered once and handed over at once: lists of thousands of names fill in one step.
    StringList names;
    fill(names);
    QStringList items;
    items.reserve(int(names.items.size()));
    for (const std::string& name : names.items)
        items << fromBytes(name);
    for (int index : indexes) {
        QComboBox* list = cmbInp(index);
        list->addItems(items);
        // Filling the list chooses no item.
        list->setCurrentIndex(-1);
        list->setEditText(QString());
    }
}

void NetworkWindow::showCode(int group, const std::string& code) {
    const char letter = code.empty() ? ' ' : toUpper(code.substr(0, 1))[0];
    if (letter == 'Y')
        Opt1(3 * group - 2)->setChecked(true);
    else if (letter == 'N')
        Opt1(3 * group - 1)->setChecked(true);
    else if (letter == ' ')
        Opt1(3 * group)->setChecked(true);
}

void NetworkWindow::storeCode(int group, std::string& code) const {
    if (Opt1(3 * group - 2)->isChecked())
        code = "Y";
    else if (Opt1(3 * group - 1)->isChecked())
        code = "N";
    else if (Opt1(3 * group)->isChecked())
        code = " ";
}

void NetworkWindow::blankCodes() {
    for (int group = 1; group <= int(Frame1.all().size()); ++group)
        Opt1(3 * group)->setChecked(true);
}

void NetworkWindow::listFollowsBox(int index) {
    if (QComboBox* list = cmbInp(index)) {
        list->setEditText(txtInp(index)->text());
        listTakesColour(index);
    }
}

void NetworkWindow::listTakesColour(int index) {
    if (QComboBox* list = cmbInp(index))
        setBackground(list, background(txtInp(index)));
}

std::string NetworkWindow::boxText(int index) const {
    return toBytes(txtInp(index)->text());
}

std::string NetworkWindow::listText(int index) const {
    return toBytes(cmbInp(index)->currentText());
}

bool NetworkWindow::boxBlank(int index) const {
    return trim(boxText(index)).empty();
}

void NetworkWindow::setBoxText(int index, const std::string& text) {
    setTextUncut(txtInp(index), fromBytes(text));
}

void NetworkWindow::clearBox(int index) {
    txtInp(index)->clear();
    setBackground(txtInp(index), UntouchedColour);
}

bool NetworkWindow::showEntry(const std::string& entry, int box) {
    // A window working on an alternate holds that alternate's rows, not the section's.
    if (alternateMode() || entryRow(entry) == 0)
        return false;
    cmbInp(1)->setEditText(fromBytes(entry));
    leaveList(1);
    focusBox(box);
    return true;
}

void NetworkWindow::focusBox(int index) {
    if (QComboBox* list = cmbInp(index))
        list->setFocus(Qt::OtherFocusReason);
    else
        EntryWindow::focusBox(index);
}

int NetworkWindow::listIndexOf(QObject* control) const {
    for (const auto& [index, list] : cmbInp.all())
        if (list == control)
            return index;
    return -1;
}

void NetworkWindow::listKey(int index) {
    movingOn_ = true;
    const bool valid = leaveList(index);
    focusBox(nextBox(valid ? index : index - 1));
    movingOn_ = false;
}

bool NetworkWindow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (const int list = listIndexOf(watched); list >= 0) {
        if (type == QEvent::KeyPress && isMoveKey(static_cast<QKeyEvent*>(event))) {
            listKey(list);
            return true;
        }
        if (type == QEvent::FocusIn && leavesTheField(static_cast<QFocusEvent*>(event)))
            listFollowsBox(list);
        else if (type == QEvent::FocusOut && !movingOn_ && leavesTheField(static_cast<QFocusEvent*>(event)))
            leaveList(list);
        return EntryWindow::eventFilter(watched, event);
    }
    if (qobject_cast<QRadioButton*>(watched)) {
        if (type == QEvent::FocusIn &&
            static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
            focusBox(optionFocusBox());
        return EntryWindow::eventFilter(watched, event);
    }
    for (const auto& [index, box] : txtInp.all()) {
        if (box != watched)
            continue;
        if (type == QEvent::KeyPress && isMoveKey(static_cast<QKeyEvent*>(event))) {
            movingOn_ = true;
            const bool handled = EntryWindow::eventFilter(watched, event);
            movingOn_ = false;
            return handled;
        }
        if (type == QEvent::FocusOut && !movingOn_ && !Accepting &&
            leavesTheField(static_cast<QFocusEvent*>(event)))
            checkBox(index);
        break;
    }
    return EntryWindow::eventFilter(watched, event);
}

} // namespace brooklet
