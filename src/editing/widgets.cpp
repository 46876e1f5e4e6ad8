#include "editing/widgets.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QDialog>
#include <QFile>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QPalette>

#include <algorithm>

namespace brooklet {

void nameControl(QObject* control, const QString& name, const QString& accessibleName) {
    control->setObjectName(name);
    if (auto* widget = qobject_cast<QWidget*>(control); widget && !accessibleName.isEmpty())
        widget->setAccessibleName(accessibleName.trimmed());
}

namespace {

// The property that keeps a box's field width, since a calculated text may widen its limit.
const char* const FieldWidthProperty = "fieldWidth";
// A box's limit when it fills no field: Qt's own default.
constexpr int NoLimit = 32767;

} // namespace

void fitToField(QLineEdit* box, int width) {
    box->setProperty(FieldWidthProperty, width > 0 ? width : 0);
    box->setMaxLength(width > 0 ? width : NoLimit);
    if (width <= 0)
        return;
    // A box widened for a text that was not typed narrows again once the user's editing has
    // brought the text within the field.
    QObject::connect(box, &QLineEdit::textEdited, box, [box, width](const QString& text) {
        if (box->maxLength() > width && text.size() <= width)
            box->setMaxLength(width);
    });
}

int fieldWidthOf(const QLineEdit* box) {
    return box->property(FieldWidthProperty).toInt();
}

bool fitsItsField(const QLineEdit* box) {
    const int width = fieldWidthOf(box);
    return width <= 0 || box->text().trimmed().size() <= width;
}

bool setTextUncut(QLineEdit* box, const QString& text) {
    const int width = fieldWidthOf(box);
    // The limit follows the text, so the box never cuts what was not typed, and stays the
    // field's width for a text that fits.
    box->setMaxLength(width > 0 ? std::max<int>(width, text.size()) : NoLimit);
    box->setText(text);
    return fitsItsField(box);
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
