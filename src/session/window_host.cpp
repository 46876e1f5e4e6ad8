#include "session/window_host.h"

#include <QEvent>
#include <QEventLoop>

namespace brooklet {
namespace {

// Hands every event of the watched object to a function, and lets it through.
class EventWatcher : public QObject {
public:
    explicit EventWatcher(std::function<void(QEvent*)> watch) : watch_(std::move(watch)) {}
    bool eventFilter(QObject*, QEvent* event) override {
        watch_(event);
        return false;
    }

private:
    std::function<void(QEvent*)> watch_;
};

} // namespace

void WindowHost::registerWindow(const QString& name, Factory factory) {
    factories_[name] = std::move(factory);
}

void WindowHost::adopt(const QString& name, QWidget* window) {
    instances_[name] = window;
}

QWidget* WindowHost::loaded(const QString& name) const {
    auto it = instances_.find(name);
    return it == instances_.end() ? nullptr : it->second.data();
}

QWidget* WindowHost::load(const QString& name) {
    QWidget* window = loaded(name);
    if (!window) {
        auto factory = factories_.find(name);
        if (factory == factories_.end())
            return nullptr;
        window = factory->second(context_);
        // A window unloads itself when it is closed.
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setObjectName(name);
        instances_[name] = window;
    }
    return window;
}

QWidget* WindowHost::ShowWindowAtOrigin(const QString& name) {
    shown_ << name;
    QWidget* window = load(name);
    if (!window)
        return nullptr;
    window->setWindowState(window->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    window->show();
    window->move(0, 0);
    window->raise();
    window->activateWindow();
    return window;
}

void WindowHost::ShowModal(const QString& name) {
    shown_ << name;
    QPointer<QWidget> window = load(name);
    if (!window)
        return;
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    window->move(0, 0);
    window->raise();
    window->activateWindow();
    // The window's own events run until it is hidden or gone.
    QEventLoop loop;
    EventWatcher watcher([&loop](QEvent* event) {
        if (event->type() == QEvent::Hide)
            loop.quit();
    });
    window->installEventFilter(&watcher);
    QObject::connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
    if (window->isVisible())
        loop.exec();
    if (window)
        window->removeEventFilter(&watcher);
}

void WindowHost::unload(const QString& name) {
    if (QWidget* window = loaded(name)) window->close();
}

QStringList WindowHost::registeredNames() const {
    QStringList names;
    for (const auto& entry : factories_)
        names << entry.first;
    return names;
}

} // namespace brooklet
