#include "tables/structure_rating_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/identifier_lists.h"
#include "editing/qt_lists.h"
#include "tables/structure_rating.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace brooklet {

frmStruct::frmStruct(AppContext& context, QWidget* parent)
    : GridEditorWindow(
          context, {"frmStruct", "Structure Rating", 16, "SR", StructureSection},
          {2,
           4,
           {"Delete Current Structure Data ?", "Structure Rating", BoxButtons::YesNo, BoxIcon::Question}},
          {3,
           5,
           5,
           {"Elevation", "Discharge", "Storage"},
           0,
           {"Delete Structure Rating Row ?", "Structure Rating", BoxButtons::YesNo, BoxIcon::Question}},
          parent) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmStruct::buildControls() {
    addHeader("Structure Rating:");
    addRow(addLabel(1, "Structure Identifier:"), {addIdentifierCombo("Structure Identifier:")});
    addRow(addLabel(2, "Structure Starting Elevation:"), {addBox(2, "Structure Starting Elevation:")},
           addUnitLabel(2));
    addRow(addLine(0), {});
    addRow(
        nullptr,
        {addComment(0, "Repeat the following for each structure rating point for the Structure Identifier")});
    addRow(addLabel(3, "Structure Elevation:"), {addBox(3, "Structure Elevation:")}, addUnitLabel(3));
    addRow(addLabel(4, "Structure Discharge:"), {addBox(4, "Structure Discharge:")}, addUnitLabel(4));
    addRow(addLabel(5, "Structure Storage:"), {addBox(5, "Structure Storage:")}, addUnitLabel(5));
    addRow(nullptr,
           {addComment(1, "Click row in grid to edit previously entered data.  RIGHT click to delete row.")});
    addRow(nullptr, {addGrid("Structure Rating Points", 850)});
    addRow(addLine(1), {});
    lblInUnit(2)->setText("ft");
    lblInUnit(3)->setText("ft");
    lblInUnit(4)->setText("cfs");
    lblInUnit(5)->setText("ac ft");
    addCommandButtons("Display Data", "Delete Structure", "    No Changes     (Close)",
                      "Accept Changes  (Close)");
}

void frmStruct::readSection(const std::vector<std::string>& lines) {
    ReadStructureRatingSection(lines, tabular);
}

std::vector<std::string> frmStruct::sectionLines() {
    return WriteStructureRatingSection(tabular);
}

void frmStruct::afterLoad() {
    const UnitWords& units = session.Units;
    lblInUnit(2)->setText(fromBytes(units.LengthUnit));
    lblInUnit(3)->setText(fromBytes(units.LengthUnit));
    lblInUnit(4)->setText(fromBytes(units.FlowUnit));
    lblInUnit(5)->setText(fromBytes(units.VolumeUnit));
    GridEditorWindow::afterLoad();
}

void frmStruct::fillIdentifierList() {
    QtComboList list(cmbInp(1));
    FillStructureList(session, list);
}

void frmStruct::validateBox(int index, const std::string& text, bool& valid) {
    if (index == 2)
        ValidNumber(true, text, valid);
    else if (index == 3)
        ValidNumber(false, text, valid);
    else if (index == 4 || index == 5)
        ValidRealAtLeast(false, 0, text, valid);
}

} // namespace brooklet
