#include "editing/widgets.h"

#include <QFile>
#include <QFocusEvent>
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

} // namespace brooklet
