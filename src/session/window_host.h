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

    // Makes a window known by its name, for example "frmFlume".
    void registerWindow(const QString& name, Factory factory);
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
    // Every name passed to ShowWindowAtOrigin, in order.
    const QStringList& shownNames() const { return shown_; }
    QStringList registeredNames() const;

private:
    // The loaded instance, loaded now if need be; null for a name not registered.
    QWidget* load(const QString& name);

    AppContext& context_;
    std::map<QString, Factory> factories_;
    std::map<QString, QPointer<QWidget>> instances_;
    QStringList shown_;
};

} // namespace brooklet
