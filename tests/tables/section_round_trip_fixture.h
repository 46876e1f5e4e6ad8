#pragma once
// What the round trips of sections through the whole session share: the example watershed
// opened with the File menu, an editor opened with a click on its row in the main list, an
// entry chosen in its combo box, Accept, and a save.
#include "../network/local_window_fixture.h"

#include "support/program_folder.h"

#include <QListWidget>

namespace brooklet::test {

class SectionRoundTripTest : public WindowTest {
protected:
    // The example watershed, opened through File, "Open Existing Brooklet File".
    std::string openExample() {
        const std::string path = folder.file("watershed.inp");
        writeBytes(path, bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
        platform.openPicks.push_back(path);
        clickMenuItem("mnuFileItem(2)");
        EXPECT_EQ(session().CurrentFile, path);
        context->windows.unload("frmFlume");
        return path;
    }
    // Opens the editor of a section with a click on its row in the main list.
    QWidget* openSection(int section, const QString& name) {
        auto* list = control<QListWidget>(main, "CurrentLst");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(section - 1)).center());
        QWidget* window = context->windows.loaded(name);
        EXPECT_NE(window, nullptr) << section;
        if (window) {
            window->activateWindow();
            QApplication::setActiveWindow(window);
        }
        return window;
    }
    void chooseEntry(QWidget* window, const QString& name) {
        auto* combo = control<QComboBox>(window, "cmbInp(1)");
        combo->setFocus();
        combo->setEditText(QString());
        QTest::keyClicks(combo, name);
        QTest::keyClick(combo, Qt::Key_Return);
    }
    void accept(QWidget* window) {
        click(control<QPushButton>(window, "cmdFinished"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void save() { clickMenuItem("mnuFileItem(14)"); }
};

} // namespace brooklet::test
