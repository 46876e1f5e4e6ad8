#pragma once
// frmInpHyd: the editor of section 5, the input hydrographs. Each hydrograph names its reach
// and storm, has a start time, a time increment, a drainage area and a base flow, and a run of
// flows not below 0 in any order; a new hydrograph starts at 0.
#include "tables/value_grid_window.h"

namespace brooklet {

class frmInpHyd : public NamedValueWindow {
    Q_OBJECT
public:
    explicit frmInpHyd(AppContext& context, QWidget* parent = nullptr);

protected:
    void afterLoad() override;
    void fillLists() override;
    void validateBox(int index, const std::string& text, bool& valid) override;
    bool blankRefused(int index) const override { return index != 3; }
    bool fieldsPlottable() const override;
    bool checkedOnLeaving(int index) const override { return index >= 4 && index <= 7; }

private:
    void buildControls();
};

} // namespace brooklet
