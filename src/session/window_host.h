#pragma once
// Opens the program's windows by name, one instance of each, at the top left of the screen.
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>

namespace brooklet {

struct AppContext;

class WindowHost {
public:
    using Factory = std::function<QWidget*(AppContext&)>;

    explicit WindowHost(AppContext& context) : context_(context) {}

    // What a window holds, which decides whether it outlives the session it was opened in.
    enum class Kind {
        Session, // an editor or tool window: it shows the data of one session
        Help,    // a help text: it holds no data of a session
    };

    // Makes a window known by its name, for example "frmFlume".
    void registerWindow(const QString& name, Factory factory, Kind kind = Kind::Session);
    bool isRegistered(const QString& name) const { return factories_.count(name) != 0; }
    // A window that lives outside the host's factories, such as the main window.
    void adopt(const QString& name, QWidget* window);

    // Loads the window if it is not loaded, sets it to its normal state, shows it and moves it
    // to the top left of the screen. A window not yet part of the program opens nothing.
    QWidget* ShowWindowAtOrigin(const QString& name);
    // Loads the window and shows it modally at the top left; returns when it has closed. A
    // window not yet part of the program opens nothing.
    void ShowModal(const QString& name);

    // The loaded instance, or null.
    QWidget* loaded(const QString& name) const;
    template <typename T> T* loadedAs(const QString& name) const { return qobject_cast<T*>(loaded(name)); }
    // Closes the window if it is loaded.
    void unload(const QString& name);
    // Closes every editor and tool window as "No Changes" would, asking nothing, before a new
    // session begins: no window of the old session may write its data into the new one.
    void closeSessionWindows();
    // True while closeSessionWindows closes windows: they close without a question.
    bool closingSessionWindows() const { return closingSessionWindows_; }

    // The main window's activation step, run when an editor closes, for platforms that do not
    // activate the main window when another goes.
    void setMainActivation(std::function<void()> activation) { mainActivation_ = std::move(activation); }
    void runMainActivation() const {
        if (mainActivation_)
            mainActivation_();
    }

    // The name of every window ShowWindowAtOrigin opened or brought forward, in order; a name
    // that opened nothing is not among them.
    const QStringList& shownNames() const { return shown_; }
    QStringList registeredNames() const;

private:
    // The loaded instance, loaded now if need be; null for a name not registered.
    QWidget* load(const QString& name);

    AppContext& context_;
    std::map<QString, Factory> factories_;
    std::map<QString, Kind> kinds_;
    std::function<void()> mainActivation_;
    bool closingSessionWindows_ = false;
    std::map<QString, QPointer<QWidget>> instances_;
    QStringList shown_;
};

} // namespace brooklet
