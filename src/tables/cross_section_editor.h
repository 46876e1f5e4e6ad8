#pragma once
// frmXsect: the editor of section 7, the stream cross sections. For each cross section its
// bankfull and low ground elevations, stream and station, and a rating of elevation, discharge,
// end area, top width and friction slope. Discharge, end area and top width must rise strictly
// with the elevation; the friction slope, if given, must be above 0. The stream combo box
// offers the streams of this section. Reach records name cross sections: their names are
// offered in the list too, and nothing here changes the reach section.
#include "tables/grid_editor_window.h"

namespace brooklet {

class frmXsect : public GridEditorWindow {
    Q_OBJECT
public:
    explicit frmXsect(AppContext& context, QWidget* parent = nullptr);

protected:
    void readSection(const std::vector<std::string>& lines) override;
    std::vector<std::string> sectionLines() override;
    void afterLoad() override;
    void fillIdentifierList() override;
    void validateBox(int index, const std::string& text, bool& valid) override;
    bool checkedWhenBlank(int index) const override { return index == TopWidthBox; }
    bool mustRise(int index) const override { return index >= 7 && index <= 9; }
    void enterCombo(int index) override;
    void leaveCombo(int index) override;

private:
    static constexpr int StreamBox = 4;
    static constexpr int TopWidthBox = 9;
    void buildControls();
};

} // namespace brooklet
