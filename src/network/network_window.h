#pragma once
// What the sub-area window and the stream reach window share: editable lists of identifiers,
// each with a hidden shadow box txtInp(i) that holds its text and colour; groups of three
// options (Yes, No, Blank) that stand for the one-letter output codes; the two labels that name
// the alternate being edited; and the delete, No Changes and Accept buttons.
//
// Leaving a list (by the mouse, Tab or Enter) runs the window's leave step; Tab or Enter then
// moves the focus by the window's order of fields, staying on a refused field. A box that loses
// the focus is checked. An option button never keeps the focus: it hands it on to a list.
#include "editing/list_control.h"
#include "options/entry_window.h"

#include <QPointer>

#include <functional>
#include <initializer_list>
#include <string>

class QComboBox;
class QGroupBox;

namespace brooklet {

// The lists of an alternate in the alternate window: Kind 1 the sub-areas of CurrentAlternate
// in lstDisp(1), any other Kind its reaches in lstDisp(2). Nothing happens while the alternate
// window is not open.
void FillAlternateChoices(AppContext& context, int Kind);

class NetworkWindow : public EntryWindow {
    Q_OBJECT
public:
    // cmdDelCur.
    virtual void deleteCurrent() = 0;
    // Leaving list Index: its text goes to the shadow box and the window does what the name
    // asks for. False when the field check refused the text.
    virtual bool leaveList(int index) = 0;
    // The row of the named entry is shown as if chosen in list 1, and box Box takes the focus.
    // Only an entry the window has: a name it has not is not made a new row, and a window
    // working on an alternate shows no row of the section.
    bool showEntry(const std::string& entry, int box) override;

    // The window works on an alternate of the alternate store.
    bool alternateMode() const;
    // The alternate the window was opened on, 0 for the base data. It is taken once, when the
    // window opens, so choosing another alternate later never turns a window's Accept towards it.
    // A calculator takes the alternate of the sub-area window it was opened from.
    int workingAlternate() const { return WorkingAlternate; }
    int rowSelected() const { return Selected; }

    // What the window is opened from, and so works for: the section list or the alternate
    // window (the sub-area and reach windows), or the sub-area window (its calculators).
    enum class OpenedFrom { SectionOrAlternate, SubAreaWindow };

protected:
    NetworkWindow(AppContext& context, EntryDesign design, OpenedFrom from, QWidget* parent = nullptr);

    // The window it was opened from has closed since (the alternate window for a window on an
    // alternate, the sub-area window for a calculator): what this window holds has nowhere to
    // go.
    bool ownerClosed() const;
    // Says that what was entered here cannot be written since the window it was opened from
    // has closed, then closes as "No Changes" does.
    void closeForClosedOwner();
    // Says that what a calculator holds for the sub-area Name is not written, since the
    // sub-area window deleted that sub-area after the calculator opened.
    void tellSubAreaDeleted(const std::string& name);

    // An editable list cmbInp(Index) and its hidden shadow box txtInp(Index).
    QComboBox* addList(int index, const QString& accessibleName);
    // Frame1(Group - 1) holding Opt1(3g-2) "Yes", Opt1(3g-1) "No", Opt1(3g) "Blank".
    QGroupBox* addCodeGroup(int group, const QString& accessibleName);
    // lblStatic(1) "Alternate" and lblStatic(2) with the alternate's name, shown in alternate mode.
    void addAlternateLabels();
    // In alternate mode, lblStatic(2) takes the alternate's name and both labels show.
    void showAlternateName();
    // The calculators' buttons: cmdDelCur and any further buttons on the left, cmdFinished
    // "Return to Sub-Area" on the right, the help box below them.
    void addReturnButtons(const QString& deleteCaption, std::initializer_list<QPushButton*> others = {});
    // cmdDelCur, cmdCancel and cmdFinished in a row, with the help box below them.
    void addCommandButtons(const QString& deleteCaption, const QString& cancelCaption,
                           const QString& finishedCaption);
    // Fills the lists of the indexes with what a fill routine of the identifier lists gives.
    void fillList(std::initializer_list<int> indexes, const std::function<void(ListControl&)>& fill);

    // Group Group selects by the first letter of a code, in upper case: "Y" Yes, "N" No, empty
    // or a blank Blank; any other letter leaves the group as it is.
    void showCode(int group, const std::string& code);
    // The selected option of the group gives its code: "Y", "N" or " "; with none selected the
    // code stays as it is.
    void storeCode(int group, std::string& code) const;
    void blankCodes();

    // List Index takes the text and colour of its shadow box.
    void listFollowsBox(int index);
    // List Index takes the colour of its shadow box.
    void listTakesColour(int index);
    std::string boxText(int index) const;
    std::string listText(int index) const;
    bool boxBlank(int index) const;
    void setBoxText(int index, const std::string& text);
    // Empties box Index and whitens it.
    void clearBox(int index);

    // The list that an option button hands the focus to.
    virtual int optionFocusBox() const = 0;
    // The row that choosing Name in list 1 shows; 0 when it names no row.
    virtual int entryRow(const std::string&) const { return 0; }
    // Gives box Index the focus, or its list.
    void focusBox(int index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    ControlArray<QComboBox> cmbInp;
    ControlArray<QRadioButton> Opt1;
    ControlArray<QGroupBox> Frame1;
    ControlArray<QLabel> lblStatic;
    QPushButton* cmdDelCur = nullptr;
    // The row the lists name, 0 when none; the row whose data the boxes show.
    int Selected = 0;
    short Previous = -999;

private:
    // The window this one works for; null when opened from the section list.
    const QPointer<QWidget> Owner;
    const bool hadOwner_;
    const QString ownerCaption_;
    const int WorkingAlternate;
    int listIndexOf(QObject* control) const;
    // Tab or Enter in list Index: the list is left, then the focus moves on.
    void listKey(int index);
    // Set while a key moves the focus: the focus leaving on the way is no second leaving.
    bool movingOn_ = false;
};

} // namespace brooklet
