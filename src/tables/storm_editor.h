#pragma once
// frmStorm: the editor of section 9, the storms. The grid is the data of the window: each grid
// row is one storm record. The boxes above it show a row; they write into the current row as
// soon as the storm identifier and the rain table are both given, and a storm and rain gage
// pair that has no row yet starts a new one. A left click on a row shows it in the boxes, a
// right click deletes it after a question. Ctrl+C in the grid copies the rows as a spreadsheet
// takes them, Ctrl+V takes rows from a spreadsheet in through the boxes, as if typed.
#include "editing/grid_editor.h"
#include "options/entry_window.h"
#include "tables/storm_analysis.h"

#include <memory>

class QComboBox;
class QGroupBox;
class QTableWidget;

namespace brooklet {

class QtGrid;
class QtBoxes;

class frmStorm : public EntryWindow {
    Q_OBJECT
public:
    explicit frmStorm(AppContext& context, QWidget* parent = nullptr);
    ~frmStorm() override;

    // The rows in use, as the grid holds them.
    std::vector<StormRecord> gridRows() const;
    // The current row; NoCurrentRow when the boxes show no existing row.
    int currentRow() const;
    static constexpr int NoCurrentRow = -999;

    // The grid's clipboard commands.
    void copyRows();
    void pasteRows();
    // Entry is "storm|gage": the row of that storm and rain gage is shown, as a click on it
    // shows it, and box Box takes the focus.
    bool showEntry(const std::string& entry, int box) override;

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    void focusBox(int index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    QComboBox* addCombo(int index, const QString& accessibleName);
    // Box Index is checked and painted, the pair looked up for boxes 1 and 2, and the boxes go
    // into the current row once boxes 1 and 5 hold text; false when the box is refused.
    bool applyBox(int index);
    // The row of the storm and rain gage in boxes 1 and 2 becomes current and is shown.
    void lookUpPair();
    // Leaving a combo box: its text, cut to ten characters, joins its list and its box, and
    // the box is applied.
    bool leaveCombo(int index);
    // Enter in box Index: the box is applied and the focus moves on, or stays on a refusal.
    void enterKey(int index);
    void optionPressed(int k);
    // The option buttons follow box 6: a blank or 0 there shows "2".
    void optionFollowsBox6();
    // The combo boxes show their boxes' texts and colours.
    void combosFollowBoxes();
    void pickRow(int row);
    void deleteRow(int row);
    void addSpareRowIfFull();
    QComboBox* combo(int index) const;
    std::string boxText(int index) const;

    QTableWidget* MSFlexGrid1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    ControlArray<QComboBox> cmbInp;
    ControlArray<QRadioButton> Opt1;
    ControlArray<QLabel> lblComment;
    // The window's own grid variables: the rows in use, the current and the marked row.
    GridContext tabular;
    std::unique_ptr<QtGrid> grid;
    std::unique_ptr<QtBoxes> boxes;
    // While Enter moves the focus on, the box it leaves has been applied already.
    bool movingOn_ = false;
};

} // namespace brooklet
