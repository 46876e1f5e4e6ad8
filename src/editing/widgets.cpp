#include "editing/widgets.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QDialog>
#include <QFile>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QPalette>

namespace brooklet {

QString pathToQt(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}
std::string pathFromQt(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QString indexedName(const QString& name, int index) {
    return QString("%1(%2)").arg(name).arg(index);
}

void nameControl(QObject* control, const QString& name, const QString& accessibleName) {
    control->setObjectName(name);
    if (auto* widget = qobject_cast<QWidget*>(control); widget && !accessibleName.isEmpty())
        widget->setAccessibleName(accessibleName.trimmed());
}

QColor toQColor(Rgb colour) {
    return QColor(colour.red, colour.green, colour.blue);
}
Rgb fromQColor(const QColor& colour) {
    return Rgb{static_cast<uint8_t>(colour.red()), static_cast<uint8_t>(colour.green()),
               static_cast<uint8_t>(colour.blue())};
}

void setBackground(QWidget* control, Rgb colour) {
    QPalette palette = control->palette();
    palette.setColor(QPalette::Base, toQColor(colour));
    palette.setColor(QPalette::Window, toQColor(colour));
    control->setPalette(palette);
    control->setAutoFillBackground(true);
}

Rgb background(const QWidget* control) {
    return fromQColor(control->palette().color(QPalette::Base));
}

bool leavesTheField(const QFocusEvent* event) {
    return event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
}

OptionGroup::OptionGroup(const QString& label, QWidget* parent) : QWidget(parent) {
    setAccessibleName(label.trimmed());
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
}

namespace {

// Asked for the most derived class of an object first: a window or group of the program gets
// its role here, everything else goes on to Qt's own interfaces.
QAccessibleInterface* programAccessible(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || className != QLatin1String(object->metaObject()->className()))
        return nullptr;
    if (qobject_cast<OptionGroup*>(widget))
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    // Main windows, dialogs, menus and tool tips have their own roles already.
    const bool plainWindow = widget->isWindow() && widget->windowType() == Qt::Window &&
                             !qobject_cast<QMainWindow*>(widget) && !qobject_cast<QDialog*>(widget);
    if (plainWindow)
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

void installAccessibility() {
    QAccessible::installFactory(programAccessible);
}

} // namespace brooklet
