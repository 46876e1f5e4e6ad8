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

void WindowHost::registerWindow(const QString& name, Factory factory, Kind kind) {
    factories_[name] = std::move(factory);
    kinds_[name] = kind;
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
    QWidget* window = load(name);
    if (!window)
        return nullptr;
    shown_ << name;
    window->setWindowState(window->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    window->show();
    window->move(0, 0);
    window->raise();
    window->activateWindow();
    return window;
}

void WindowHost::ShowModal(const QString& name) {
    QPointer<QWidget> window = load(name);
    if (!window)
        return;
    shown_ << name;
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
    if (QWidget* window = loaded(name))
        window->close();
}

void WindowHost::closeSessionWindows() {
    closingSessionWindows_ = true;
    for (auto it = instances_.begin(); it != instances_.end();) {
        auto kind = kinds_.find(it->first);
        // Only windows the host made belong to a session; the main window was adopted.
        const bool sessionWindow = kind != kinds_.end() && kind->second == Kind::Session;
        if (sessionWindow && it->second && it->second->close()) {
            // The closed window is deleted later; a window of the same name opened by the new
            // session must be a new one.
            it = instances_.erase(it);
        } else {
            ++it;
        }
    }
    closingSessionWindows_ = false;
}

QStringList WindowHost::registeredNames() const {
    QStringList names;
    for (const auto& entry : factories_)
        names << entry.first;
    return names;
}

} // namespace brooklet
