#pragma once
// frmVerification: the editor of section 14, the switches of the model's tracing of its own
// steps, one labelled check box for each, in three columns: the data read, the data prepared,
// and the processing.
#include "options/entry_window.h"

class QCheckBox;

namespace brooklet {

class frmVerification : public EntryWindow {
    Q_OBJECT
public:
    explicit frmVerification(AppContext& context, QWidget* parent = nullptr);

    // The label of check Index; empty for the places that carry no check.
    static QString checkLabel(int index);

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    std::vector<std::string> sectionRecords() override;
    // The window has no boxes to check.
    bool checkBox(int) override { return true; }

private:
    void buildControls();

    ControlArray<QCheckBox> Check1;
    ControlArray<QLabel> lblStatic; // the column heads "Yes"
};

} // namespace brooklet
