#pragma once
// frmFlume: the editor of section 13, the identification of the input file. It is the first
// window of every session, and the one that sets the unit words all other windows use.
#include "options/entry_window.h"

class QButtonGroup;
class QRadioButton;

namespace brooklet {

class frmFlume : public EntryWindow {
    Q_OBJECT
public:
    explicit frmFlume(AppContext& context, QWidget* parent = nullptr);

    // Sets EnglishUnits and the unit words from the input and the output unit options, and
    // shows the flow word beside the minimum hydrograph value.
    void ApplyUnits();

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    void afterLoad() override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    int labelOfBox(int index) const override;

private:
    void buildControls();
    QButtonGroup* addOptionRow(ControlArray<QRadioButton>& array, const QString& arrayName, int labelIndex,
                               const QString& label, const QString& first, const QString& second);

    ControlArray<QRadioButton> opt1; // input units: English, Metric
    ControlArray<QRadioButton> opt2; // output units: English, Metric
    ControlArray<QRadioButton> opt4; // Screen Output, No Screen Output
};

} // namespace brooklet
