#pragma once
// frmSubArea: the editor of section 11, the sub-areas. The lists name the sub-area, its
// receiving reach and its rain gage; the boxes take the drainage area, weighted curve number
// and time of concentration; five groups of options the output codes. The rows live in the
// shared sub-area tables of the program context, where the land use and time of concentration
// calculators, opened from here, edit their detail records. A sub-area has either typed values
// or detail records: a typed area or curve number hides the land use button, a typed time of
// concentration the Tc button, and existing detail hides the typed field. The calculators close
// with the window, and give back what they hold before it writes.
//
// Opened from the alternate window (CurrentAlternate above 0), the window works on that
// alternate's sub-areas in the alternate store and gives them back there on Accept.
// It belongs to the alternate window and closes with it, asked first about its changes.
#include "network/network_window.h"

namespace brooklet {

struct WatershedTables;

class frmSubArea : public NetworkWindow {
    Q_OBJECT
public:
    explicit frmSubArea(AppContext& context, QWidget* parent = nullptr);

    // cmdFinished: the boxes are stored, then work file 11 is rewritten, or in alternate mode
    // the rows go back to the alternate and the alternate window's sub-area list is refreshed.
    void acceptChanges() override;
    void deleteCurrent() override;
    bool leaveList(int index) override;
    // cmdSub(0) and cmdSub(1): the row selected is handed to the land use or the time of
    // concentration calculator.
    void openCalculator(int index);

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    // The entries stored away from the controls.
    void addHeldData(std::string& data) const override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    int optionFocusBox() const override { return 1; }
    // On an alternate, what the calculators gave back waits in the tables for this window's
    // Accept, so it counts as a change too.
    QStringList editState() const override;
    int entryRow(const std::string& name) const override { return findRow(name); }

private:
    void buildControls();
    void showRow(int row);
    // The boxes and options go back into the row shown before; its identifier stays.
    void storeBoxes();
    // Shows or hides the typed fields and the calculator buttons of the row selected.
    void refresh();
    // The last row whose trimmed identifier is Name, case counting; 0 for none.
    int findRow(const std::string& name) const;

    WatershedTables& tables;
    ControlArray<QPushButton> cmdSub;
};

} // namespace brooklet
