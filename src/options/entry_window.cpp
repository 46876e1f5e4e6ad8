#include "options/entry_window.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/help_box.h"
#include "editing/text_table.h"
#include "session/text_file.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace brooklet {
namespace {

bool isMoveKey(const QKeyEvent* key) {
    return key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
}

bool byKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

EntryWindow::EntryWindow(AppContext& context, EntryDesign design, QWidget* parent)
    : QWidget(parent), context(context), session(context.session), design_(std::move(design)) {
    setObjectName(design_.Window);
    auto* layout = new QVBoxLayout(this);
    form_ = new QGridLayout;
    form_->setColumnStretch(1, 1);
    layout->addLayout(form_);
    // The help box opens below everything else.
    txtHelp = makeHelpBox(this);
    layout->addWidget(txtHelp);
    addCloseKeys();
}

void EntryWindow::addCloseKeys() {
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, [this] { press(cmdCancel, &EntryWindow::noChanges); });
    auto* accept = new QShortcut(this);
    accept->setKeys({QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)});
    connect(accept, &QShortcut::activated, this, [this] { press(cmdFinished, &EntryWindow::acceptChanges); });
}

void EntryWindow::press(QPushButton* button, void (EntryWindow::*routine)()) {
    if (!button) {
        (this->*routine)();
    } else if (button->isEnabled() && button->isVisible()) {
        // A click gives the button the focus first, and the box or list being typed in is left
        // and stores its text; a key must do the same, or the typing is lost.
        if (button->focusPolicy() & Qt::ClickFocus)
            button->setFocus(Qt::MouseFocusReason);
        button->click();
    }
}

void EntryWindow::describeCloseKeys() {
    const std::pair<QPushButton*, QString> descriptions[] = {
        {cmdCancel, "No Changes (Esc): closes the window; nothing is written"},
        {cmdFinished, "Accept Changes (Ctrl+Enter): writes the changes and closes the window"}};
    for (const auto& [button, description] : descriptions) {
        if (!button)
            continue;
        button->setToolTip(description);
        button->setAccessibleDescription(description);
    }
}

void EntryWindow::Form_Load() {
    setWindowTitle(design_.Caption.left(design_.CaptionKeep) + "   Current File - " +
                   pathToQt(session.CurrentFile));
    session.HelpCode = design_.HelpCode;
    Accepting = false;
    session.HelpShown = NoHelpShown;
    setDefaults();
    const std::vector<std::string> lines = readLines(session.WorkFilePath[design_.Section]);
    if (!lines.empty())
        readSection(lines);
    afterLoad();
}

void EntryWindow::acceptChanges() {
    if (!boxesFitTheirFields())
        return;
    // What the children hold goes into this window's data first, or the Accept waits.
    if (!closeChildren())
        return;
    Accepting = true;
    const std::string& path = session.WorkFilePath[design_.Section];
    FieldFitWatch watch;
    const std::vector<std::string> records = sectionRecords();
    if (!watch.allFit()) {
        // A value wider than its field would shift every later column of its record, and the
        // model would read wrong data: the work file stays as it was, the window stays open.
        showNote(FieldTooLongNote(watch.firstValue(), watch.firstWidth()));
        Accepting = false;
        return;
    }
    const WriteResult written = writeLines(path, records);
    if (!written.ok) {
        // The work file stays as it was, and so does the window, so nothing typed is lost.
        context.platform.showBox({"The work file " + path + " could not be written (" + written.error +
                                      "). The section is as it was before; the window stays open.",
                                  DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation});
        Accepting = false;
        return;
    }
    if (acceptSetsDataChanged())
        session.DataChanged = true;
    close();
}

void EntryWindow::noChanges() {
    close();
}

bool EntryWindow::closeAsking() {
    const QPointer<EntryWindow> self(this);
    const bool asks = stateTaken_ && editState() != shownState_;
    const BoxAnswer answer = asks ? context.platform.showBox(keepChangesQuestion()) : BoxAnswer::No;
    if (answer == BoxAnswer::Cancel)
        return false;
    if (answer == BoxAnswer::Yes)
        press(cmdFinished, &EntryWindow::acceptChanges);
    else
        close();
    return !self || !self->isVisible();
}

void EntryWindow::adoptChild(EntryWindow* child) {
    children_.emplace_back(child);
}

bool EntryWindow::closeChildren() {
    const bool unasked = context.windows.closingSessionWindows();
    while (!children_.empty()) {
        const QPointer<EntryWindow> child = children_.front();
        if (child && child->isVisible() && !(unasked ? child->close() : child->closeAsking()))
            return false;
        children_.erase(children_.begin());
    }
    return true;
}

void EntryWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (stateTaken_)
        return;
    // The buttons exist by now, whoever built them.
    describeCloseKeys();
    shownState_ = editState();
    addHeldData(shownData_);
    stateTaken_ = true;
}

QStringList EntryWindow::editState() const {
    QStringList state;
    for (const QWidget* control : findChildren<QWidget*>()) {
        const QString name = control->objectName() + "=";
        if (const auto* box = qobject_cast<const QLineEdit*>(control)) {
            if (!box->isReadOnly())
                state << name + box->text();
        } else if (const auto* text = qobject_cast<const QPlainTextEdit*>(control)) {
            if (!text->isReadOnly())
                state << name + text->toPlainText();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
            if (button->isCheckable())
                state << name + (button->isChecked() ? "1" : "0");
        } else if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
            state << name + combo->currentText();
            for (int i = 0; i < combo->count(); ++i)
                state << combo->itemText(i);
        } else if (const auto* list = qobject_cast<const QListWidget*>(control)) {
            state << name + QString::number(list->count());
            for (int i = 0; i < list->count(); ++i)
                state << list->item(i)->text();
        } else if (const auto* grid = qobject_cast<const QTableWidget*>(control)) {
            state << name + QString::number(grid->rowCount()) + "x" + QString::number(grid->columnCount());
            for (int row = 0; row < grid->rowCount(); ++row)
                for (int col = 0; col < grid->columnCount(); ++col)
                    if (const QTableWidgetItem* cell = grid->item(row, col))
                        state << cell->text();
        }
    }
    return state;
}

BoxRequest EntryWindow::keepChangesQuestion() const {
    return {"Keep the changes made in this window? Yes accepts them, No discards them, Cancel returns to the "
            "window.",
            toBytes(design_.Caption.trimmed()), BoxButtons::YesNoCancel, BoxIcon::Question};
}

bool EntryWindow::holdsTyping() const {
    if (!stateTaken_)
        return false;
    if (editState() != shownState_)
        return true;
    std::string data;
    addHeldData(data);
    return data != shownData_;
}

void EntryWindow::appendTable(std::string& data, const TextTable& table) {
    // Rows the table has grown by, still empty, change nothing.
    int last = table.rows();
    auto rowEmpty = [&table](int row) {
        for (int field = 1; field <= table.fields(); ++field)
            if (!table(field, row).empty())
                return false;
        return true;
    };
    while (last > 0 && rowEmpty(last))
        --last;
    for (int row = 1; row <= last; ++row) {
        for (int field = 1; field <= table.fields(); ++field) {
            data += table(field, row);
            data += '\x1f';
        }
        data += '\x1e';
    }
    data += '\x1d';
}

BoxRequest EntryWindow::typingQuestion() const {
    const QString caption = design_.Caption.trimmed();
    return {toBytes("Keep the changes made in the window " + caption +
                    " before it closes (Yes accepts them, No discards them, Cancel stops the command and "
                    "returns to the window)?"),
            toBytes(caption), BoxButtons::YesNoCancel, BoxIcon::Question};
}

bool EntryWindow::keepTyping() {
    press(cmdFinished, &EntryWindow::acceptChanges);
    return isHidden();
}

void EntryWindow::closeEvent(QCloseEvent* event) {
    // Only the close box asks here: the buttons close as they are told, and the commands that
    // close every session window have asked before (WindowHost::askAboutTypingInSessionWindows).
    const bool byCloseBox = event->spontaneous() && !context.windows.closingSessionWindows();
    if (byCloseBox && holdsTyping()) {
        const BoxAnswer answer = context.platform.showBox(keepChangesQuestion());
        if (answer == BoxAnswer::Cancel) {
            event->ignore();
            return;
        }
        if (answer == BoxAnswer::Yes) {
            // Accept closes the window itself once this close has been turned down; a work
            // file that cannot be written keeps it open.
            event->ignore();
            QMetaObject::invokeMethod(
                this, [this] { press(cmdFinished, &EntryWindow::acceptChanges); }, Qt::QueuedConnection);
            return;
        }
    }
    // The windows opened from this one on its data close with it.
    if (!closeChildren()) {
        event->ignore();
        return;
    }
    event->accept();
    // The main window's activation refreshes the X marks and the Run and View menus; it runs
    // here too, for platforms that do not activate it when this window goes.
    context.windows.runMainActivation();
}

HelpLabel* EntryWindow::addHeader(const QString& caption) {
    lblHeader = new HelpLabel(caption, this);
    nameControl(lblHeader, "lblHeader", caption);
    QFont font = lblHeader->font();
    font.setBold(true);
    font.setPointSize(font.pointSize() + 2);
    lblHeader->setFont(font);
    lblHeader->setAsksForHelp(!HelpCodeFor(toBytes(design_.Window), 0).empty());
    connect(lblHeader, &HelpLabel::clicked, this, [this] { showHelp(0); });
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, lblHeader);
    return lblHeader;
}

HelpLabel* EntryWindow::addLabel(int index, const QString& caption) {
    auto* label = new HelpLabel(caption, this);
    nameControl(label, indexedName("lblInput", index), caption);
    label->setAsksForHelp(!HelpCodeFor(toBytes(design_.Window), index).empty());
    connect(label, &HelpLabel::clicked, this, [this, index] { showHelp(index); });
    lblInput.add(index, label);
    return label;
}

QLineEdit* EntryWindow::addBox(int index, const QString& accessibleName, int fieldWidth) {
    auto* box = new QLineEdit(this);
    nameControl(box, indexedName("txtInp", index), accessibleName);
    fitToField(box, fieldWidth);
    setBackground(box, UntouchedColour);
    box->installEventFilter(this);
    txtInp.add(index, box);
    return box;
}

QLabel* EntryWindow::addUnitLabel(int index) {
    auto* label = new QLabel(this);
    nameControl(label, indexedName("lblInUnit", index));
    lblInUnit.add(index, label);
    return label;
}

QRadioButton* EntryWindow::addOption(ControlArray<QRadioButton>& array, const QString& arrayName, int index,
                                     const QString& caption, QButtonGroup* group) {
    auto* option = new QRadioButton(caption, this);
    nameControl(option, indexedName(arrayName, index), caption);
    group->addButton(option, index);
    array.add(index, option);
    return option;
}

void EntryWindow::addRow(QWidget* label, std::initializer_list<QWidget*> fields, QWidget* unit) {
    const int row = form_->rowCount();
    if (label)
        form_->addWidget(label, row, 0, Qt::AlignLeft | Qt::AlignTop);
    auto* line = new QHBoxLayout;
    // Option buttons of a row form a group that carries the row's label, so a screen reader
    // says it with each option.
    const auto* caption = qobject_cast<QLabel*>(label);
    const bool options =
        caption && fields.size() > 0 && std::all_of(fields.begin(), fields.end(), [](QWidget* field) {
            return qobject_cast<QRadioButton*>(field) != nullptr;
        });
    if (options) {
        auto* group = new OptionGroup(caption->text(), this);
        for (QWidget* field : fields)
            group->layout()->addWidget(field);
        line->addWidget(group);
    } else {
        for (QWidget* field : fields)
            line->addWidget(field);
    }
    if (unit)
        line->addWidget(unit);
    line->addStretch();
    form_->addLayout(line, row, 1);
}

QPushButton* EntryWindow::makeButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    nameControl(button, name, caption.trimmed());
    return button;
}

void EntryWindow::addButtons(const QString& cancelCaption, const QString& finishedCaption,
                             std::initializer_list<QPushButton*> leading) {
    cmdCancel = makeButton("cmdCancel", cancelCaption);
    cmdFinished = makeButton("cmdFinished", finishedCaption);
    connect(cmdCancel, &QPushButton::clicked, this, &EntryWindow::noChanges);
    connect(cmdFinished, &QPushButton::clicked, this, &EntryWindow::acceptChanges);
    // The window's own buttons on the left, the two closing ones on the right.
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : leading)
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdFinished);
    auto* outer = static_cast<QVBoxLayout*>(layout());
    outer->insertLayout(outer->indexOf(txtHelp), buttons);
}

void EntryWindow::passFocusOn(QWidget* control, int index) {
    passOn_[control] = index;
    control->installEventFilter(this);
}

void EntryWindow::paintBox(int index, bool valid) {
    if (QLineEdit* box = txtInp(index))
        setBackground(box, valid ? AcceptedColour : RefusedColour);
}

void EntryWindow::showHelp(int index) {
    const std::string code = HelpCodeFor(toBytes(design_.Window), index);
    if (!code.empty())
        ShowHelpItem(session, index, txtHelp, code);
}

bool EntryWindow::showEntry(const std::string&, int box) {
    focusBox(box);
    return true;
}

void EntryWindow::showNote(const std::string& note) {
    session.HelpShown = NoHelpShown;
    txtHelp->setPlainText(fromBytes(note));
    txtHelp->show();
}

bool EntryWindow::boxesFitTheirFields() {
    for (const auto& [index, box] : txtInp.all()) {
        if (fitsItsField(box))
            continue;
        paintBox(index, false);
        showNote(FieldTooLongNote(toBytes(box->text().trimmed()), fieldWidthOf(box)));
        if (box->isVisible())
            box->setFocus(Qt::OtherFocusReason);
        return false;
    }
    return true;
}

void EntryWindow::focusBox(int index) {
    if (QLineEdit* box = txtInp(index))
        box->setFocus(Qt::OtherFocusReason);
}

void EntryWindow::boxKey(int index) {
    int moveFrom = index;
    // A refused box: the next box is figured from the index before it, so the focus stays.
    if (!checkBox(index))
        moveFrom = index - 1;
    focusMovedTo_ = nextBox(moveFrom);
    focusBox(focusMovedTo_);
}

int EntryWindow::boxIndexOf(QObject* control) const {
    for (const auto& [index, box] : txtInp.all())
        if (box == control)
            return index;
    return -1;
}

bool EntryWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        auto passOn = passOn_.find(watched);
        if (passOn != passOn_.end() && byKeyboard(static_cast<QFocusEvent*>(event)->reason())) {
            focusBox(passOn->second);
            return false;
        }
    }
    const int index = boxIndexOf(watched);
    if (index < 0)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (isMoveKey(key) && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            boxKey(index);
            return true;
        }
        if (key->key() == Qt::Key_F1) {
            showHelp(labelOfBox(index));
            return true;
        }
    } else if (event->type() == QEvent::FocusOut && Accepting) {
        // Only while accepting: leaving a box with the mouse checks nothing.
        checkBox(index);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace brooklet
