#pragma once
// Opens the program's windows by name, one instance of each, at the top left of the screen.
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>
#include <vector>

#include "session/messages.h"

namespace brooklet {

struct AppContext;
class Platform;

// A window that edits data of the session: before a command closes it to begin another session
// or to end the program, it says whether it holds typing not yet accepted, and keeps it on the
// user's word.
class SessionEditor {
public:
    // True when the user changed something in the window since it showed.
    virtual bool holdsTyping() const = 0;
    // The question asked about the typing, titled with the window's caption, Yes, No and Cancel.
    virtual BoxRequest typingQuestion() const = 0;
    // Stores the typing as "Accept Changes" does, which closes the window; false when it could
    // not be stored (the window then stays open and has said why).
    virtual bool keepTyping() = 0;

protected:
    ~SessionEditor() = default;
};

class WindowHost {
public:
    using Factory = std::function<QWidget*(AppContext&)>;

    // The context is handed to the windows the host makes; the platform's dialogs are counted.
    WindowHost(AppContext& context, Platform& platform);
    ~WindowHost();
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;

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
    // Before a command closes the session's windows: asks about each window that holds typing,
    // the newest first. When every answer is given, the windows answered Yes store their typing
    // as Accept does and close; those answered No are left to the closing. A window that holds
    // typing only after that (handed over by a window it opened) is asked in a further round.
    // False when the command must stop: Cancel was answered (in the first round nothing has
    // changed then), or typing could not be stored.
    bool askAboutTypingInSessionWindows();
    // Closes every editor and tool window as "No Changes" would, asking nothing, before a new
    // session begins: no window of the old session may write its data into the new one. Their
    // open boxes and dialogs close first, as Cancel. A window still inside its own dialog or
    // modal window is deleted only once that has returned to it.
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
    // The loaded session windows, the one loaded last first.
    std::vector<QWidget*> sessionWindowsNewestFirst() const;
    // Closes the window without deleting it: it leaves the instances and waits to be deleted.
    // False when it refused to close.
    bool closeAndRetire(QWidget* window);
    // A closed window that still stands in the instances leaves them and waits to be deleted.
    void retire(QWidget* window);
    // Deletes the closed windows once no dialog or modal window is open, so none of them is
    // deleted inside its own dialog.
    void deleteRetiredWindows();

    AppContext& context_;
    Platform& platform_;
    std::map<QString, Factory> factories_;
    std::map<QString, Kind> kinds_;
    std::function<void()> mainActivation_;
    bool closingSessionWindows_ = false;
    std::map<QString, QPointer<QWidget>> instances_;
    // When each instance was loaded, by name.
    std::map<QString, unsigned> loadOrder_;
    unsigned loads_ = 0;
    std::vector<QPointer<QWidget>> retired_;
    int modalDepth_ = 0;
    QStringList shown_;
};

} // namespace brooklet
