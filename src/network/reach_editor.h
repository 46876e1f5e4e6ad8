#pragma once
// frmReaches: the editor of section 8, the stream reaches. The lists name the reach, its
// receiving reach, its cross section and structure, and the split flow's reach and cross
// section; the boxes take lengths, base flow and split flows; six groups of options the output
// codes. A split flow is given either by a cross section or by a starting and ending flow,
// never both. The reach loss fields are shown but closed: read from the file, they are carried
// through unchanged. An accepted field goes white; this window has no cyan.
//
// Opened from the alternate window (CurrentAlternate above 0), the window works on that
// alternate's reaches in the alternate store and gives them back there on Accept.
// It belongs to the alternate window and closes with it, asked first about its changes.
#include "editing/text_table.h"
#include "network/network_window.h"

namespace brooklet {

class frmReaches : public NetworkWindow {
    Q_OBJECT
public:
    explicit frmReaches(AppContext& context, QWidget* parent = nullptr);

    // cmdFinished: the boxes are stored, then work file 8 is rewritten, or in alternate mode the
    // rows go back to the alternate and the alternate window's reach list is refreshed.
    void acceptChanges() override;
    void deleteCurrent() override;
    bool leaveList(int index) override;

    const TextTable& reachTable() const { return ReachTable; }
    int reachCount() const { return ReachCount; }

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    // The entries stored away from the controls.
    void addHeldData(std::string& data) const override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    int optionFocusBox() const override { return 14; }
    int entryRow(const std::string& name) const override { return findRow(name); }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void showRow(int row);
    // The boxes and options go back into the row shown before; its identifier stays.
    void storeBoxes();
    // Empties the boxes behind the identifier and their lists; every group to Blank.
    void clearBoxes();
    // The last row whose identifier is Name, trimmed and case not counting; 0 for none.
    int findRow(const std::string& name) const;

    TextTable ReachTable;
    int ReachCount = 0;
};

} // namespace brooklet
