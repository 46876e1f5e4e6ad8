#pragma once
// Small helpers every window uses: names of controls and control arrays, accessible names,
// text conversion between file bytes and Qt, and the field colours.
#include <QColor>
#include <QString>
#include <QWidget>

class QFocusEvent;
class QLineEdit;

#include <map>
#include <string>

#include "editing/colours.h"
#include "session/qt_text.h"

namespace brooklet {

// Gives a control its design name and the name a screen reader speaks.
void nameControl(QObject* control, const QString& name, const QString& accessibleName = QString());

QColor toQColor(Rgb colour);
Rgb fromQColor(const QColor& colour);
// The background of a text box, list or other control, through its palette.
void setBackground(QWidget* control, Rgb colour);
Rgb background(const QWidget* control);

// The focus leaves for another window or for a list's own drop-down: the user has not left
// the field.
inline bool leavesTheField(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

// The columns of most fields of a record: every identifier and every number.
constexpr int StandardFieldWidth = 10;

// A box whose text goes into a record field of Width columns takes no more characters than the
// field holds, typed or pasted; a Width of 0 or less leaves the box without a limit.
void fitToField(QLineEdit* box, int width);
// The columns of the field the box fills; 0 when it fills none.
int fieldWidthOf(const QLineEdit* box);
// Whether the trimmed text of the box fits its field.
bool fitsItsField(const QLineEdit* box);
// Puts a text that was not typed (calculated, or read from a table) into a box. A text wider
// than the box's field is not cut: the box shows it whole, and the result is false, so that
// the caller paints it red and says why.
bool setTextUncut(QLineEdit* box, const QString& text);

// Screen pixels of a width given in twips, at 96 dots an inch.
constexpr int twips(int width) {
    return width / 15;
}

// Whether a focus loss is the user leaving the field: not when the focus goes to another
// window or to the field's own drop-down.
bool leavesTheField(const QFocusEvent* event);

// The container of a group of option buttons. It carries the group's label as its accessible
// name, and the accessibility layer speaks of it as a group, so that a screen reader says the
// label with each option of the group.
class OptionGroup : public QWidget {
    Q_OBJECT
public:
    explicit OptionGroup(const QString& label, QWidget* parent);
};

// Tells the accessibility layer that every top-level window of the program is a window, not a
// plain panel, and that an OptionGroup is a group. Called once, by the program's main and by
// the main of the window tests.
void installAccessibility();

// A control array: controls that share a name and differ by a meaningful index.
template <typename T> class ControlArray {
public:
    void add(int index, T* control) { controls_[index] = control; }
    T* operator()(int index) const {
        auto it = controls_.find(index);
        return it == controls_.end() ? nullptr : it->second;
    }
    bool contains(int index) const { return controls_.count(index) != 0; }
    const std::map<int, T*>& all() const { return controls_; }

private:
    std::map<int, T*> controls_;
};

// Element Index of Target takes the background colour and the text of element Index of Source.
template <typename T>
void CopyControlState(const ControlArray<T>& Source, ControlArray<T>& Target, int Index) {
    T* source = Source(Index);
    T* target = Target(Index);
    if (!source || !target)
        return;
    setBackground(target, background(source));
    target->setText(source->text());
}

} // namespace brooklet
