#pragma once
// frmGlobal: the editor of section 4, the defaults of what the model prints and files for all
// sub-areas and reaches: three values and a Yes/No pair for each output code, sub-areas in
// the left column and reaches in the right.
#include "options/entry_window.h"

class QRadioButton;

namespace brooklet {

class frmGlobal : public EntryWindow {
    Q_OBJECT
public:
    explicit frmGlobal(AppContext& context, QWidget* parent = nullptr);

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;

private:
    void buildControls();
    // A Yes/No pair of one column, 2 Code and 2 Code + 1, in a group of its own.
    QWidget* addPair(ControlArray<QRadioButton>& array, const QString& arrayName, int code,
                     const QString& description);

    ControlArray<QRadioButton> Opt1; // sub-area codes: Yes at even indexes, No at odd
    ControlArray<QRadioButton> Opt2; // reach codes, the same
    ControlArray<QLabel> lblStatic;  // the column heads
};

} // namespace brooklet
