#include "support/ui_fixture.h"

#include <QAction>

#include "session/window_catalog.h"

namespace brooklet::test {

UiTest::UiTest() : context(std::make_unique<AppContext>(platform)) {
    registerAllWindows(context->windows);
}

UiTest::~UiTest() {
    // Close every window before the context they refer to goes.
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != main && !window->parentWidget()) delete window;
    delete main;
}

frmMain& UiTest::startMain() {
    main = new frmMain(*context);
    main->show();
    return *main;
}

void UiTest::clickMenuItem(const QString& name) {
    QAction* action = control<QAction>(main, name);
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->isEnabled()) << name.toStdString() << " is disabled";
    action->trigger();
}

} // namespace brooklet::test
