#pragma once
// frmAlternate: the editor of section 1, the alternates. An alternate is a named variant of the
// watershed: sub-areas and reaches, each a full record, that replace the base data under the
// alternate's name. The window shows the alternate's identifier and description and the two
// lists of its entries; a click in a list hands the entry over to the sub-area or the reach
// window, which work on the alternate store in the program context while CurrentAlternate is
// set and refresh the lists here when they close. The section reaches its work file only
// through Accept: No Changes forgets what those windows put into the store.
//
// Mouse on a list: the left button edits the entry under the pointer, or a new one below the
// entries; the middle button asks to delete the entry; the right button does nothing. From the
// keyboard, Enter or Space edits the list's current entry, Insert starts a new one, Delete asks
// to delete the current entry.
//
// The sub-area and reach windows opened from here belong to this window: they close with it,
// and before an alternate or an entry is deleted, each asked about its changes first.
#include "options/entry_window.h"

class QComboBox;
class QListWidget;

namespace brooklet {

struct WatershedTables;

class frmAlternate : public EntryWindow {
    Q_OBJECT
public:
    explicit frmAlternate(AppContext& context, QWidget* parent = nullptr);

    // Leaving cmbInp(1): the alternate named there is shown, or made when it is new.
    void leaveIdentifier();
    // The named alternate is shown as if chosen in the combo box, and box Box takes the focus;
    // a name the section has not is not made a new alternate.
    bool showEntry(const std::string& entry, int box) override;
    // cmdDelCur.
    void deleteCurrent();
    // A left click in list Kind on the entry named Text (empty: below the entries).
    void editEntry(int kind, const QString& text);
    // A middle click in list Kind on the entry at Row.
    void askToDeleteEntry(int kind, int row);
    // The alternate whose data the boxes show; 0 for none.
    int currentAlternate() const { return current_; }

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    // An Accept that writes records sets DataChanged, and so does one that empties a work file
    // that had them (every alternate deleted): the section then differs from the input file.
    bool acceptSetsDataChanged() const override { return wrote_ || hadRecords_; }
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    void focusBox(int index) override;
    QStringList editState() const override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    // Boxes 1 and 2 go to the alternate shown before; the current alternate becomes it.
    void storeStep();
    void showAlternate(int alternate);
    // The list whose viewport or self is Watched: 1 or 2, 0 for neither.
    int listOf(QObject* watched) const;
    bool listMouse(int kind, QMouseEvent* mouse);
    bool listKey(int kind, QKeyEvent* key);

    WatershedTables& tables;
    QComboBox* cmbInp1 = nullptr;
    ControlArray<QListWidget> lstDisp;
    ControlArray<QLabel> LblStatic;
    QPushButton* cmdDelCur = nullptr;
    int current_ = 0;
    short previous_ = -999;
    bool wrote_ = false;
    // The work file had records when the window loaded.
    bool hadRecords_ = false;
    // Set while a key moves the focus on, so that the combo box it leaves is left once.
    bool movingOn_ = false;
};

} // namespace brooklet
