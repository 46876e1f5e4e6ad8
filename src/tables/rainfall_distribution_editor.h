#pragma once
// frmRainDist: the editor of section 6, the rainfall distributions. Each rain table has a time
// increment and a run of mass rainfall points that must not fall; a new table starts at 0.
// Storms name the tables; nothing here changes the storm section.
#include "tables/value_grid_window.h"

namespace brooklet {

class frmRainDist : public NamedValueWindow {
    Q_OBJECT
public:
    explicit frmRainDist(AppContext& context, QWidget* parent = nullptr);

protected:
    void fillLists() override;
    void validateBox(int index, const std::string& text, bool& valid) override;
    bool fieldsPlottable() const override;

private:
    void buildControls();
};

} // namespace brooklet
