#include "support/ui_fixture.h"

#include <QAction>
#include <QPointer>

#include "app/window_catalog.h"

namespace brooklet::test {

UiTest::UiTest() : context(std::make_unique<AppContext>(platform)) {
    registerAllWindows(context->windows);
}

UiTest::~UiTest() {
    // Close every window before the context they refer to goes.
    // Deleting one window may delete others with it, so hold them by guarded pointers.
    QList<QPointer<QWidget>> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != main && !window->parentWidget())
            windows << window;
    for (const QPointer<QWidget>& window : windows)
        delete window.data();
    delete main;
}

frmMain& UiTest::startMain() {
    // The check before Run and Save As asks its own question; its tests turn it back on.
    context->CheckBeforeRunAndSaveAs = false;
    main = new frmMain(*context);
    main->show();
    return *main;
}

std::string UiTest::inputFile(const std::string& name, const std::vector<std::string>& lines) {
    writeBytes(folder.file(name), crlf(lines));
    return folder.file(name);
}

void UiTest::openFile(const std::string& path) {
    platform.openPicks.push_back(path);
    clickMenuItem("mnuFileItem(2)");
}

void UiTest::acceptEdit(int section, const std::vector<std::string>& lines) {
    writeBytes(workFile(section), crlf(lines));
    session().DataChanged = true;
}

void UiTest::clickMenuItem(const QString& name) {
    QAction* action = control<QAction>(main, name);
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->isEnabled()) << name.toStdString() << " is disabled";
    action->trigger();
}

} // namespace brooklet::test
