#pragma once
// The fixture of the run-wide option editors' window tests: opens the editor as the section
// list does, finds its controls by their design names, types, presses keys and clicks as the
// user does, and reads the work file on disk.
#include "support/ui_fixture.h"

#include "editing/help_view.h"
#include "session/text_file.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <algorithm>
#include <string>
#include <vector>

namespace brooklet::test {

template <typename Window> class OptionEditorTest : public UiTest {
protected:
    OptionEditorTest(QString name, int section) : name_(std::move(name)), section_(section) {}

    void SetUp() override { startMain(); }

    // Opens the window as a click on its section in the main list does, and makes it active.
    Window* open() {
        QListWidget* list = sectionList();
        const QRect row = list->visualItemRect(list->item(section_ - 1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
        window = context->windows.loadedAs<Window>(name_);
        EXPECT_NE(window, nullptr);
        if (window) {
            window->show();
            window->activateWindow();
            QApplication::setActiveWindow(window);
        }
        return window;
    }
    // The window closed by itself; its deletion is left to the event loop.
    bool windowClosed() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return context->windows.loaded(name_) == nullptr;
    }
    // Accepts, and opens the window again on what it wrote.
    Window* reopen() {
        accept();
        EXPECT_TRUE(windowClosed());
        return open();
    }

    template <typename T> T* element(const char* array, int index) {
        return control<T>(window, indexedName(array, index));
    }
    QLineEdit* box(int index) { return element<QLineEdit>("txtInp", index); }
    HelpLabel* label(int index) { return element<HelpLabel>("lblInput", index); }
    QRadioButton* option(const char* array, int index) { return element<QRadioButton>(array, index); }
    QPlainTextEdit* helpBox() { return control<QPlainTextEdit>(window, "txtHelp"); }
    QPushButton* button(const char* name) { return control<QPushButton>(window, name); }
    // The widget that has the focus in the window.
    QWidget* focused() { return window->focusWidget(); }

    // Types into a box as the user does, the box having the focus.
    void type(int index, const QString& text) {
        box(index)->setFocus(Qt::MouseFocusReason);
        QTest::keyClicks(box(index), text);
    }
    void press(int index, Qt::Key key) { QTest::keyClick(box(index), key); }
    // Types into a box and leaves it with Tab.
    void enter(int index, const QString& text) {
        type(index, text);
        press(index, Qt::Key_Tab);
    }
    // Types into a box, leaves it with Tab, and states the colour the box took and the box that
    // has the focus then.
    void expectEntered(int index, const QString& text, Rgb colour, int focusedBox) {
        enter(index, text);
        EXPECT_EQ(background(box(index)), colour) << "box " << index << ": " << text.toStdString();
        EXPECT_EQ(focused(), box(focusedBox)) << "box " << index << ": " << text.toStdString();
    }
    void click(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(4, 4)); }
    void accept() { click(button("cmdFinished")); }
    void cancel() { click(button("cmdCancel")); }
    // Shows the help of a label and gives the text of the help box.
    std::string helpOf(QLabel* helpLabel) {
        click(helpLabel);
        return helpBoxText(helpBox());
    }

    void writeWorkFile(const std::vector<std::string>& lines) { writeBytes(workFile(section_), crlf(lines)); }
    std::string workFileBytes() { return bytesOf(workFile(section_)); }
    // A work file with content, marked with its X in the main list.
    void startWithSection(const std::vector<std::string>& lines) {
        writeWorkFile(lines);
        main->Form_Activate();
        EXPECT_EQ(listItem(), "X   " + session().SectionTable[section_]);
    }
    // Accepts, and states that the section is left empty: its work file stays, empty, and the
    // X goes from the main list.
    void acceptExpectingEmptySection() {
        accept();
        EXPECT_TRUE(fileExists(workFile(section_)));
        EXPECT_EQ(workFileBytes(), "");
        EXPECT_TRUE(session().DataChanged);
        EXPECT_EQ(listItem(), "     " + session().SectionTable[section_]);
    }
    // "No Changes": the work file stays as it was before the window opened, and DataChanged
    // stays False.
    void cancelExpectingNothingWritten(const std::string& before) {
        cancel();
        EXPECT_EQ(workFileBytes(), before);
        EXPECT_FALSE(session().DataChanged);
        EXPECT_TRUE(windowClosed());
    }
    QListWidget* sectionList() { return control<QListWidget>(main, "CurrentLst"); }
    // The text of the window's section in the main list, with its X when it has content.
    std::string listItem() { return toBytes(sectionList()->item(section_ - 1)->text()); }

    Window* window = nullptr;

private:
    QString name_;
    int section_;
};

// A field of Width columns, left-justified and blank-padded.
inline std::string field(std::string text, size_t width = 10) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

} // namespace brooklet::test
