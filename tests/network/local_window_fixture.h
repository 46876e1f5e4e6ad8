#pragma once
// What the tests of the local land use and soil windows share: opening a window as the user
// does and making it the active one, clicks, the focus, and the list of names with its typing.
#include "support/ui_fixture.h"

#include "../editing/colour_printing.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace brooklet::test {

using Texts = std::vector<std::string>;

class WindowTest : public UiTest {
protected:
    void SetUp() override { startMain(); }

    // Opens the window by name and makes it the active window.
    template <typename T> T* openWindow(const QString& name) {
        auto* opened = qobject_cast<T*>(context->windows.ShowWindowAtOrigin(name));
        EXPECT_NE(opened, nullptr);
        if (opened) {
            opened->activateWindow();
            QApplication::setActiveWindow(opened);
        }
        return opened;
    }
    // The window closed by itself; its deletion is left to the event loop.
    bool closed(const QString& name) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return context->windows.loaded(name) == nullptr;
    }
    void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(4, 4)); }
    QWidget* focused() { return QApplication::focusWidget(); }
};

// A window with the list of names cmbInp(1), its shadow box and the three buttons.
template <typename W> class LocalWindowTest : public WindowTest {
protected:
    explicit LocalWindowTest(QString name) : name_(std::move(name)) {}

    W* open() { return window = openWindow<W>(name_); }
    bool windowClosed() { return closed(name_); }

    QComboBox* list() { return control<QComboBox>(window, "cmbInp(1)"); }
    QLineEdit* box(int index) { return control<QLineEdit>(window, indexedName("txtInp", index)); }
    QPushButton* button(const char* name) { return control<QPushButton>(window, name); }
    Texts listItems() {
        Texts items;
        for (int i = 0; i < list()->count(); ++i)
            items.push_back(toBytes(list()->itemText(i)));
        return items;
    }
    // Types a name into the emptied list and presses Enter there.
    void enterName(const QString& name) {
        list()->setFocus();
        list()->setEditText(QString());
        QTest::keyClicks(list(), name);
        QTest::keyClick(list(), Qt::Key_Return);
    }
    void accept() { click(button("cmdFinished")); }

    W* window = nullptr;

private:
    QString name_;
};

} // namespace brooklet::test
