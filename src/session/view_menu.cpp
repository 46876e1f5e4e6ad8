#include "session/view_menu.h"

#include "session/qt_text.h"
#include "session/section_table.h"
#include "session/text_file.h"

#include <QAction>
#include <QMenu>

namespace brooklet {

void UpdateViewMenu(const Session& session, QWidget* window) {
    auto item = [window](int index) {
        return window->findChild<QAction*>(indexedName("mnuViewItem", index));
    };
    for (int index : {0, 1, 4, 5, 6, 7, 8})
        if (QAction* action = item(index))
            action->setEnabled(false);
    bool anyFile = false;
    if (hasLineAfterFirst(session.WorkFilePath[ReachSection])) {
        item(0)->setEnabled(true);
        anyFile = true;
    }
    if (session.DataChanged)
        return;
    // The untitled marker is "> Untitled <", so this holds for every session.
    if (session.CurrentFile != "<untitled>") {
        item(1)->setEnabled(true);
        anyFile = true;
    }
    const std::string base = BaseName(session.CurrentFile);
    int index = 4;
    for (const char* extension : {"out", "err", "dbg", "hyd", "ecn"}) {
        if (hasLineAfterFirst(base + extension)) {
            item(index)->setEnabled(true);
            anyFile = true;
        }
        ++index;
    }
    if (auto* menu = window->findChild<QMenu*>("mnuView"))
        menu->menuAction()->setVisible(anyFile);
}

} // namespace brooklet
