#pragma once
// frmDimHyd: the editor of section 2, the dimensionless unit hydrograph: one table of values
// from 0 to 1 in any order, typed into the value grid; no identifier and no box beside it.
// The table is written only with more than two values.
#include "editing/grid_editor.h"
#include "options/entry_window.h"

class QTableWidget;

namespace brooklet {

class ValueGridPanel;

class frmDimHyd : public EntryWindow, public TabularTablesHolder {
    Q_OBJECT
public:
    explicit frmDimHyd(AppContext& context, QWidget* parent = nullptr);
    const GridContext& tabularTables() const override { return tabular; }

    ValueGridPanel& panel() { return *panel_; }
    QTableWidget* grid() const;

    // CmdPlot: with more than one value, they go to the store and the plot window shows them.
    void displayData();
    // cmdDelAll: the values go to the store, then the table is reset after the question.
    void deleteAll();

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int) override { return true; }
    void changeEvent(QEvent* event) override;

private:
    void buildControls();
    // The grid starting afresh with its zero, and no table in the store.
    void resetTable();
    void updatePlotButton();

    // The window's own tables: its one table in the value store.
    GridContext tabular;
    ValueGridPanel* panel_ = nullptr;
    QPushButton* CmdPlot = nullptr;
    QPushButton* cmdDelAll = nullptr;
};

} // namespace brooklet
