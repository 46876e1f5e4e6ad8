#pragma once
// frmLandUse: the land use and curve number calculator, opened from the sub-area window for the
// row selected there. One grid lists the local land uses and then the standard ones with their
// curve numbers by hydrologic soil group; the user spreads the sub-area's area over their area
// cells and sees the accumulated area and the area-weighted curve number. "Return to
// Sub-Area" hands the entered cells back as the sub-area's land use records and rewrites work
// file 11 (in alternate mode the sub-area window keeps them until it accepts). No area or
// curve number goes back into the sub-area record. It works for the sub-area window it was
// opened from and closes with it: each sub-area's records go back to that sub-area, wherever it
// stands by then, and a sub-area deleted in the meantime takes nothing.
#include "network/land_use_calculator.h"
#include "network/network_window.h"

#include <memory>

class QMenu;
class QTableWidget;

namespace brooklet {

class QtGrid;
struct WatershedTables;

class frmLandUse : public NetworkWindow {
    Q_OBJECT
public:
    explicit frmLandUse(AppContext& context, QWidget* parent = nullptr);
    ~frmLandUse() override;

    // cmdFinished, "Return to Sub-Area".
    void acceptChanges() override;
    // cmdDelCur, "Delete Land Use Details", after its question.
    void deleteCurrent() override;
    bool leaveList(int index) override;
    // mnuDelInsItem(2), "Delete Value", of the menu a right press on a cell opens.
    void deleteValue();

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>&) override {}
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    // The entries stored away from the controls.
    void addHeldData(std::string& data) const override;
    bool checkBox(int) override { return true; }
    // From the list, Tab and Enter lead into the grid.
    int nextBox(int index) const override { return index + 1; }
    void focusBox(int index) override;
    int optionFocusBox() const override { return 1; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    // The sums go to their displays.
    void showSums();
    void clearGrid();
    void storeGrid();
    // The grid is painted with the cursor at row 1, column 1.
    void cursorHome();

    WatershedTables& tables;
    LandUseWork work;
    QTableWidget* MSFlexGrid1 = nullptr;
    std::unique_ptr<QtGrid> grid;
    QMenu* mnupopup = nullptr;
    QPushButton* CmdPopup = nullptr;
    ControlArray<QLineEdit> txtlbl;
    ControlArray<QLabel> lblComment;
    // The sub-area whose cells the grid shows.
    int shownRow_ = 0;
};

} // namespace brooklet
