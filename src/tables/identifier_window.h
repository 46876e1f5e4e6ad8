#pragma once
// The identifier handling of the tabular windows: the editable combo box cmbInp(1) of the
// section's identifiers with its hidden shadow box txtInp(1), the tabular tables that the window
// holds as its own and fills from its work file on load (two windows open at once never share
// them), and the steps that every tabular window runs on them:
// - entering the combo box: it takes over the text and colour of its shadow box;
// - leaving it: the text is cut to 10 characters, the store step runs, the identifier table is
//   searched (trimmed, case not counting, the last match winning; a blank text finds a deleted
//   entry), and the entry found is shown, or a new entry is made for a new name;
// - the store step: the boxes of the per-identifier fields go to the entry on show, then the
//   window's grid goes to the store, and the entry chosen becomes the entry on show;
// - "Display Data", "Delete ..." and Accept.
//
// How a window plugs in: derive from IdentifierWindow with a TabularDesign, build the controls
// with addIdentifierCombo (and addCombo for further combo boxes), addBox, addCommandButtons,
// then call Form_Load. Boxes 1 to IdentifierFields are the entry's fields, box i holding field i
// of the identifier table. Implement:
//   readSection / sectionLines   the section's codec on the window's tables;
//   storeGrid                    the grid into table TableCurrent (StoreRowGrid or StoreFlowGrid);
//   showEntryGrid, clearGrid     the grid of an entry shown, and of a new or deleted entry;
//   startNewEntry                the boxes of a new entry;
//   updatePlotButton             CmdPlot by the window's own rule;
//   moveOn                       the keyboard flow from a box or combo box index.
// The row grid windows (structure rating, cross section) build on GridEditorWindow, which
// implements these for a row grid.
#include "editing/grid_editor.h"
#include "options/entry_window.h"
#include "session/messages.h"

class QComboBox;

namespace brooklet {

// What a tabular window is beyond its entry design.
struct TabularDesign {
    int IdentifierFields = 1;     // boxes 1..IdentifierFields are the entry's fields
    int PlotKind = 0;             // what "Display Data" asks the plot window to draw
    BoxRequest DeleteQuestion;    // the question of "Delete ..."
    bool ChecksShadowBox = false; // the shadow box is checked before the combo box takes its colour
};

class IdentifierWindow : public EntryWindow, public TabularTablesHolder {
    Q_OBJECT
    // The entry handed to the plot window: the number of the entry on show, as text.
    Q_PROPERTY(QString Tag READ Tag)
public:
    QString Tag() const { return Tag_; }
    // The entry named by the combo box, 0 when none (TableNext).
    int currentEntry() const;
    const GridContext& tabularTables() const override { return tabular; }

    // Leaving cmbInp(1).
    void leaveIdentifier();
    // The store step.
    void storeStep();
    // CmdPlot: "None Selected" with no entry; otherwise the store step, the entry published in
    // Tag, the plot kind set and the plot window shown modally.
    void displayData();
    // cmdDelCur: after the question, the entry leaves the list and the store, its slot stays
    // empty in the identifier table.
    void deleteCurrent();
    // The named entry is shown as if chosen in the combo box, and box Box takes the focus; a
    // name the table has not is not made a new entry.
    bool showEntry(const std::string& entry, int box) override;

protected:
    IdentifierWindow(AppContext& context, EntryDesign design, TabularDesign tabularDesign,
                     QWidget* parent = nullptr);

    // The combo box cmbInp(1) and its shadow box, named by the label of the identifier.
    QComboBox* addIdentifierCombo(const QString& accessibleName);
    // A further editable combo box cmbInp(Index) with its shadow box txtInp(Index).
    QComboBox* addCombo(int index, const QString& accessibleName);
    // CmdPlot, cmdDelCur, cmdCancel and cmdFinished in a row, the help box below them.
    void addCommandButtons(const QString& plotCaption, const QString& deleteCaption,
                           const QString& cancelCaption, const QString& finishedCaption);

    // The section from the window's tables, at Accept, after the store step.
    virtual std::vector<std::string> sectionLines() = 0;
    virtual void storeGrid() = 0;
    virtual void showEntryGrid(int entry) = 0;
    virtual void clearGrid() = 0;
    virtual void startNewEntry() = 0;
    virtual void updatePlotButton() = 0;
    virtual void moveOn(int from) = 0;
    // A further combo box left, and entered after it took over its shadow box.
    virtual void leaveCombo(int) {}
    virtual void enterCombo(int) {}

    std::vector<std::string> sectionRecords() override;
    // The entries and values stored away from the controls.
    void addHeldData(std::string& data) const override;
    // With no entry in the table, Accept leaves the work file empty and DataChanged as it was.
    bool acceptSetsDataChanged() const override;
    void focusBox(int index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    // The texts of a box and a combo box, as file bytes.
    std::string boxText(int index) const;
    // The text of combo box Index, cut to the length of an identifier on leaving it.
    QString cutComboText(int index);
    // Box Index and its combo box, if it has one, take the text.
    void setBoxAndCombo(int index, const std::string& text);

    const TabularDesign& tabularDesign() const { return tabularDesign_; }

    // The window's own tabular tables.
    GridContext tabular;
    ControlArray<QComboBox> cmbInp;
    QPushButton* CmdPlot = nullptr;
    QPushButton* cmdDelCur = nullptr;

private:
    int comboIndexOf(QObject* control) const;
    // The combo box takes over the text and colour of its shadow box.
    void comboCopiesShadow(int index);

    TabularDesign tabularDesign_;
    QString Tag_;
    // Set while a key moves the focus on, so that the combo box it leaves is left once.
    bool movingOn_ = false;
};

} // namespace brooklet
