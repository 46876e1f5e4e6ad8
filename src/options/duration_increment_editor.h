#pragma once
// frmDurInc: the editor of section 3, the durations for which the model reports flow
// statistics, in hours or in days.
#include "options/entry_window.h"

class QRadioButton;

namespace brooklet {

class frmDurInc : public EntryWindow {
    Q_OBJECT
public:
    explicit frmDurInc(AppContext& context, QWidget* parent = nullptr);

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;

private:
    void buildControls();
    // Shows the unit word of hours or days beside the three durations.
    void showUnitWord(bool days);

    ControlArray<QRadioButton> opt1; // Hours, Days
    ControlArray<QLabel> lblUnits;   // the unit word beside boxes 2 to 4
};

} // namespace brooklet
