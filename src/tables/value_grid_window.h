#pragma once
// The value grid windows: frmRainDist, frmInpHyd and frmDimHyd. A table is one long run of
// values, five to a grid row, typed straight into the grid (the ValueGrid beside it).
//
// ValueGridPanel is the grid of such a window with everything the user does in it: keys typed
// and moved with, the grid left, clicks on cells, the pop-up menu "Insert/Delete" on a right
// click, Ctrl+V pasting a run of spreadsheet numbers from the current cell on and Ctrl+C
// copying the table's values as one column. The window tells it, through its hooks, how the
// buttons follow the grid and where a click goes while no table is on show.
//
// NamedValueWindow is the window of named tables (rainfall distributions, input hydrographs)
// on the identifier handling: its boxes, their checks and the keyboard flow into the grid.
// A window derives from it with its NamedValueDesign, builds its controls and tells its box
// checks and the rule of "Display Data".
#include <functional>
#include <memory>

#include <QObject>

#include "tables/identifier_window.h"
#include "tables/value_grid.h"
#include "tables/value_records.h"

class QAction;
class QLabel;
class QMenu;
class QTableWidget;

namespace brooklet {

class QtGrid;

// A plain label of a value window, named Name, word-wrapped.
QLabel* captionLabel(QWidget* window, const QString& name, const QString& caption);

class ValueGridPanel : public QObject {
    Q_OBJECT
public:
    struct Hooks {
        // After a key, a menu item or a paste: the buttons by the window's rule.
        std::function<void()> edited;
        // After the grid's own cell change and a click on a cell.
        std::function<void()> cellChanged;
        // A click in the grid while no value is in it.
        std::function<void()> clickedEmpty;
        // A pasted value wider than its field: the words the help box shows.
        std::function<void(const std::string& note)> note;
    };

    // The panel works on the window's own tables.
    ValueGridPanel(QWidget* window, AppContext& context, GridContext& tables, const ValueGridRules& rules,
                   const QString& accessibleName, Hooks hooks);
    ~ValueGridPanel() override;

    QTableWidget* MSFlexGrid1 = nullptr;
    QMenu* mnuPopUp = nullptr;
    QAction* mnuDelInsItem1 = nullptr;
    QAction* mnuDelInsItem2 = nullptr;
    ValueGrid& values() { return *values_; }

    // The grid takes the focus on row 0, column 1, and marks it.
    void enter();
    // A value being typed is finished, as leaving the grid does.
    void finishTyping();
    // A mouse button pressed on a cell, as the window's user does it.
    void pressCell(int row, int col, Qt::MouseButton button, const QPoint& globalPos);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool gridKey(QKeyEvent* key);
    void menuItem(bool insert);

    AppContext& context_;
    GridContext& tables_;
    Hooks hooks_;
    std::unique_ptr<QtGrid> grid_;
    std::unique_ptr<ValueGrid> values_;
};

// What a window of named value tables is beyond its entry and tabular designs.
struct NamedValueDesign {
    int GridBox;        // the index of the grid in the keyboard flow, behind the last box
    int NewTableValues; // the values in the grid of a new table, its zero among them
    ValueGridRules Rules;
    // The section's codec.
    std::vector<ValueTable> (*Read)(const std::vector<std::string>& lines);
    std::vector<std::string> (*Write)(const std::vector<ValueTable>& tables);
};

class NamedValueWindow : public IdentifierWindow {
    Q_OBJECT
public:
    ValueGridPanel& panel() { return *panel_; }
    QTableWidget* grid() const { return panel_->MSFlexGrid1; }

protected:
    NamedValueWindow(AppContext& context, EntryDesign design, TabularDesign tabularDesign,
                     NamedValueDesign valueDesign, QWidget* parent = nullptr);

    // The grid with its label and comment, named by the label of the values.
    QTableWidget* addValueGrid(const QString& accessibleName);
    // The field's own check of box Index while an entry is current.
    virtual void validateBox(int index, const std::string& text, bool& valid) = 0;
    // Whether a blank combo box Index is refused.
    virtual bool blankRefused(int) const { return true; }
    // Whether "Display Data" is possible by the entry's fields.
    virtual bool fieldsPlottable() const = 0;
    // Whether box Index is checked when it loses the focus, not only on Tab and Enter.
    virtual bool checkedOnLeaving(int) const { return false; }
    // Fills the lists of the combo boxes at load.
    virtual void fillLists() = 0;

    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    // The lists filled, no identifier chosen.
    void afterLoad() override;
    std::vector<std::string> sectionLines() override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int index) override;
    void storeGrid() override;
    void showEntryGrid(int entry) override;
    void clearGrid() override;
    void startNewEntry() override;
    void updatePlotButton() override;
    void moveOn(int from) override;
    void leaveCombo(int index) override;
    void focusBox(int index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    const NamedValueDesign valueDesign;

private:
    ValueGridPanel* panel_ = nullptr;
    // The outcome of the last check of a further combo box, for the move on from it.
    bool comboValid_ = true;
};

} // namespace brooklet
