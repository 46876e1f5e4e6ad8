#pragma once
// frmTc: the time of concentration calculator, opened from the sub-area window for the row
// selected there. It edits a sub-area's flow path (one sheet flow, one shallow concentrated flow
// and one channel flow segment) on a working copy of the segments, shows each segment's travel
// time and their sum, and on "Return to Sub-Area" hands the segments back to the sub-area table
// and rewrites work file 11 (in alternate mode the sub-area window keeps them until it accepts).
// It works for the sub-area window it was opened from and closes with it: each row goes back
// to the sub-area it was copied from, wherever that stands by then, and a sub-area deleted in
// the meantime takes nothing.
// No time of concentration goes back into the sub-area record: the model computes it from the
// segments.
#include "editing/text_table.h"
#include "network/network_window.h"

namespace brooklet {

struct WatershedTables;

class frmTc : public NetworkWindow {
    Q_OBJECT
public:
    explicit frmTc(AppContext& context, QWidget* parent = nullptr);

    // cmdFinished, "Return to Sub-Area": the boxes go to the working copy, the working copy to
    // the sub-area table, and the sub-area section is rewritten.
    void acceptChanges() override;
    // cmdDelCur, "Delete Tc Details", after its question.
    void deleteCurrent() override;
    bool leaveList(int index) override;

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>&) override {}
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    // The entries stored away from the controls.
    void addHeldData(std::string& data) const override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    int optionFocusBox() const override { return 1; }

private:
    void buildControls();
    void showRow(int row);
    void storeBoxes();
    // The segment of box Index is computed again, with the sum.
    void compute(int index);
    // The rainfall box, or the hint that the rainfall comes from the storm data.
    void showRainfall();
    // A surface list shows the item of the letter in its shadow box, or the blank item.
    void pointSurfaceList(int index, const std::string& letters);
    // The last row whose trimmed identifier is Name, case counting; 0 for none.
    int findRow(const std::string& name) const;

    // The sub-area row that row Row of the working copy was made from, where it stands now; 0
    // when the sub-area window has deleted it since.
    int subAreaRow(int row) const;

    WatershedTables& tables;
    TextTable TcTable;
    // The identities of the sub-area rows the working copy was made from, index from 1.
    std::vector<int> rowIds_{0};
};

} // namespace brooklet
