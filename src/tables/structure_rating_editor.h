#pragma once
// frmStruct: the editor of section 10, the structure ratings. For each structure its starting
// elevation and a table of elevation, discharge and storage; discharge and storage must rise
// strictly with the elevation. Reach records name structures: their names are offered in the
// list too, and nothing here changes the reach section.
#include "tables/grid_editor_window.h"

namespace brooklet {

class frmStruct : public GridEditorWindow {
    Q_OBJECT
public:
    explicit frmStruct(AppContext& context, QWidget* parent = nullptr);

protected:
    void readSection(const std::vector<std::string>& lines) override;
    std::vector<std::string> sectionLines() override;
    void afterLoad() override;
    void fillIdentifierList() override;
    void validateBox(int index, const std::string& text, bool& valid) override;
    bool mustRise(int index) const override { return index == 4 || index == 5; }

private:
    void buildControls();
};

} // namespace brooklet
