#pragma once
// What the window tests of the sub-area and reach windows share: the editor fixture, the lists
// with their typing, the option groups, an alternate store with a stand-in alternate window
// whose two lists the windows refresh, and the sections of the reference input file.
#include "../editing/colour_printing.h"
#include "../options/option_editor_fixture.h"
#include "network_records.h"

#include <QComboBox>
#include <QListWidget>

namespace brooklet::test {

template <typename Window> class NetworkWindowTest : public OptionEditorTest<Window> {
protected:
    using Base = OptionEditorTest<Window>;
    NetworkWindowTest(const QString& name, int section) : Base(name, section), name_(name) {}
    const QString& windowName() const { return name_; }

    QComboBox* list(int index) { return this->template element<QComboBox>("cmbInp", index); }
    Lines listItems(int index) {
        Lines items;
        for (int i = 0; i < list(index)->count(); ++i)
            items.push_back(toBytes(list(index)->itemText(i)));
        return items;
    }
    // Types into the emptied list and leaves it with Tab, as the user does.
    void enterList(int index, const QString& text, Qt::Key key = Qt::Key_Tab) {
        list(index)->setFocus(Qt::MouseFocusReason);
        list(index)->setEditText(QString());
        QTest::keyClicks(list(index), text);
        QTest::keyClick(list(index), key);
    }
    // Option k (0 Yes, 1 No, 2 Blank) of group g.
    QRadioButton* code(int group, int k) { return this->option("Opt1", 3 * group - 2 + k); }
    // The option checked in group g: 0 Yes, 1 No, 2 Blank, -1 none.
    int checkedCode(int group) {
        for (int k = 0; k < 3; ++k)
            if (code(group, k)->isChecked())
                return k;
        return -1;
    }
    void answer(BoxAnswer reply) { this->platform.answers.push_back(reply); }

    // An alternate window standing in for the real one: a window known to the host by its
    // name, holding the two lists of entries.
    QListWidget* lstDisp(int index) {
        return alternateWindow_->findChild<QListWidget*>(indexedName("lstDisp", index));
    }
    void standInAlternateWindow() {
        alternateWindow_ = new QWidget;
        alternateWindow_->setAttribute(Qt::WA_DeleteOnClose);
        for (int index : {1, 2}) {
            auto* entries = new QListWidget(alternateWindow_);
            entries->setObjectName(indexedName("lstDisp", index));
            entries->addItem("stale");
        }
        this->context->windows.adopt("frmAlternate", alternateWindow_);
    }
    Lines lstDispItems(int index) {
        Lines items;
        for (int i = 0; i < lstDisp(index)->count(); ++i)
            items.push_back(toBytes(lstDisp(index)->item(i)->text()));
        return items;
    }
    // Opens the window as the alternate window does, on alternate Alternate and its entry Picked.
    Window* openOnAlternate(int alternate, int picked) {
        this->context->CurrentAlternate = alternate;
        this->context->watershed.AlternatePickedRow = picked;
        this->window = qobject_cast<Window*>(this->context->windows.ShowWindowAtOrigin(this->windowName()));
        EXPECT_NE(this->window, nullptr);
        if (this->window) {
            this->window->activateWindow();
            QApplication::setActiveWindow(this->window);
        }
        return this->window;
    }
    void TearDown() override { delete alternateWindow_.data(); }

    QPointer<QWidget> alternateWindow_;
    QString name_;
};

} // namespace brooklet::test
