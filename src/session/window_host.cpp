#include "session/window_host.h"

#include "session/platform.h"

#include <QEvent>
#include <QEventLoop>

#include <algorithm>

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

WindowHost::WindowHost(AppContext& context, Platform& platform) : context_(context), platform_(platform) {
    platform_.setWhenDialogsClosed([this] { deleteRetiredWindows(); });
}

WindowHost::~WindowHost() {
    platform_.setWhenDialogsClosed(nullptr);
}

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
        loadOrder_[name] = ++loads_;
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
    ++modalDepth_;
    if (window->isVisible())
        loop.exec();
    --modalDepth_;
    if (window)
        window->removeEventFilter(&watcher);
    // A window closed while this one was shown may have been waiting here.
    deleteRetiredWindows();
}

void WindowHost::unload(const QString& name) {
    if (QWidget* window = loaded(name))
        window->close();
}

std::vector<QWidget*> WindowHost::sessionWindowsNewestFirst() const {
    std::vector<std::pair<unsigned, QWidget*>> windows;
    for (const auto& [name, window] : instances_) {
        auto kind = kinds_.find(name);
        // Only windows the host made belong to a session; the main window was adopted.
        if (!window || kind == kinds_.end() || kind->second != Kind::Session)
            continue;
        auto order = loadOrder_.find(name);
        windows.emplace_back(order == loadOrder_.end() ? 0u : order->second, window.data());
    }
    std::sort(windows.begin(), windows.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<QWidget*> newestFirst;
    for (const auto& entry : windows)
        newestFirst.push_back(entry.second);
    return newestFirst;
}

bool WindowHost::askAboutTypingInSessionWindows() {
    std::vector<QPointer<QWidget>> discarded;
    // A window that stores its typing may hand it to a window that opened it (a sub-area window
    // of an alternate): that one is asked in a further round.
    for (;;) {
        std::vector<QPointer<QWidget>> keep;
        bool asked = false;
        for (QWidget* window : sessionWindowsNewestFirst()) {
            auto* editor = dynamic_cast<SessionEditor*>(window);
            if (!editor || !window->isVisible() || !editor->holdsTyping() ||
                std::find(discarded.begin(), discarded.end(), window) != discarded.end())
                continue;
            asked = true;
            const BoxAnswer answer = platform_.showBox(editor->typingQuestion());
            if (answer == BoxAnswer::Yes)
                keep.emplace_back(window);
            else if (answer == BoxAnswer::No)
                discarded.emplace_back(window);
            else
                return false;
        }
        if (!asked)
            return true;
        for (const QPointer<QWidget>& window : keep) {
            if (!window)
                continue;
            // The window may be inside a dialog of its own: it is deleted only when that returns.
            window->setAttribute(Qt::WA_DeleteOnClose, false);
            const bool kept = dynamic_cast<SessionEditor*>(window.data())->keepTyping();
            if (window->isHidden())
                retire(window);
            else
                window->setAttribute(Qt::WA_DeleteOnClose, true);
            if (!kept) {
                deleteRetiredWindows();
                return false;
            }
        }
        deleteRetiredWindows();
    }
}

void WindowHost::closeSessionWindows() {
    // Their dialogs first: each hands Cancel to its window once control returns to it.
    platform_.cancelOpenDialogs();
    closingSessionWindows_ = true;
    for (QWidget* window : sessionWindowsNewestFirst())
        closeAndRetire(window);
    closingSessionWindows_ = false;
    deleteRetiredWindows();
}

bool WindowHost::closeAndRetire(QWidget* window) {
    // Windows the window opened over itself (a preview) go with it.
    for (QWidget* child : window->findChildren<QWidget*>()) {
        if (child->isWindow() && child->isVisible()) {
            child->setAttribute(Qt::WA_DeleteOnClose, false);
            child->close();
            retired_.emplace_back(child);
        }
    }
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    if (!window->close()) {
        window->setAttribute(Qt::WA_DeleteOnClose, true);
        return false;
    }
    retire(window);
    return true;
}

void WindowHost::retire(QWidget* window) {
    // A window of the same name opened later must be a new one.
    for (auto it = instances_.begin(); it != instances_.end(); ++it) {
        if (it->second == window) {
            instances_.erase(it);
            break;
        }
    }
    retired_.emplace_back(window);
}

void WindowHost::deleteRetiredWindows() {
    if (platform_.openDialogCount() > 0 || modalDepth_ > 0)
        return;
    // Deleted when control returns to the event loop, after the routine that runs now.
    for (const QPointer<QWidget>& window : retired_)
        if (window)
            window->deleteLater();
    retired_.clear();
}

QStringList WindowHost::registeredNames() const {
    QStringList names;
    for (const auto& entry : factories_)
        names << entry.first;
    return names;
}

} // namespace brooklet
