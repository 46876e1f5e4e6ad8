#include "tables/cross_section_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/grid_editor.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"
#include "tables/cross_section.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace brooklet {

frmXsect::frmXsect(AppContext& context, QWidget* parent)
    : GridEditorWindow(
          context, {"frmXsect", "Stream Cross Section", 20, "XS", CrossSectionSection},
          {5,
           5,
           {"Delete Current Cross Section ?", "Stream Cross Section", BoxButtons::YesNo, BoxIcon::Question},
           true},
          {6,
           10,
           9,
           {"Elevation", "Discharge", "End Area", "Top Width", "Friction Slope"},
           450,
           {"Delete Cross Section Rating Row ?", "Stream Cross Section", BoxButtons::YesNo,
            BoxIcon::Question},
           true},
          parent) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmXsect::buildControls() {
    addHeader("Stream Cross Section:");
    addRow(addLabel(1, "Cross Section Identifier"), {addIdentifierCombo("Cross Section Identifier")});
    addRow(addLabel(2, "Bankfull Elevation"), {addBox(2, "Bankfull Elevation")}, addUnitLabel(2));
    addRow(addLabel(3, "Low Ground Elevation"), {addBox(3, "Low Ground Elevation")}, addUnitLabel(3));
    addRow(addLabel(4, "Stream Identifier"), {addCombo(StreamBox, "Stream Identifier")});
    addRow(addLabel(5, "Stream Station"), {addBox(5, "Stream Station")}, addUnitLabel(5));
    addRow(addLine(0), {});
    addRow(nullptr, {addComment(0, "Repeat following variables for each cross section rating point in the "
                                   "Cross Section Identifier")});
    const char* rowLabels[] = {"Cross Section Elevation", "Cross Section Discharge", "Cross Section End Area",
                               "Cross Section Top Width", "Cross Section Friction Slope"};
    for (int index = 6; index <= 10; ++index) {
        const QString caption = rowLabels[index - 6];
        addRow(addLabel(index, caption), {addBox(index, caption)},
               index == 10 ? nullptr : addUnitLabel(index));
    }
    addRow(nullptr,
           {addComment(1, "Click row in grid to edit previously entered data. RIGHT click to delete row.")});
    addRow(nullptr, {addGrid("Cross Section Rating Points", 850)});
    addRow(addLine(1), {});
    for (int index : {2, 3, 5, 6, 9})
        lblInUnit(index)->setText("ft");
    lblInUnit(7)->setText("cfs");
    lblInUnit(8)->setText("sq ft");
    addCommandButtons("Display Data", "      Delete       Cross Section", "    No Changes  (Close)",
                      "Accept Changes  (Close)");
}

void frmXsect::readSection(const std::vector<std::string>& lines) {
    ReadCrossSectionSection(lines, tabular);
}

std::vector<std::string> frmXsect::sectionLines() {
    return WriteCrossSectionSection(tabular);
}

void frmXsect::afterLoad() {
    const UnitWords& units = session.Units;
    for (int index : {2, 3, 5, 6, 9})
        lblInUnit(index)->setText(fromBytes(units.LengthUnit));
    lblInUnit(7)->setText(fromBytes(units.FlowUnit));
    lblInUnit(8)->setText(fromBytes(units.SmallAreaUnit));
    cmbInp(StreamBox)->clear();
    GridEditorWindow::afterLoad();
}

void frmXsect::fillIdentifierList() {
    QtComboList list(cmbInp(1));
    FillCrossSectionList(session, list);
}

void frmXsect::validateBox(int index, const std::string& text, bool& valid) {
    switch (index) {
    case 2:
    case 6:
        ValidNumber(false, text, valid);
        break;
    case 3:
        ValidNumber(true, text, valid);
        break;
    case 5:
        ValidRealAtLeast(true, 0, text, valid);
        break;
    case 7:
    case 8:
    case TopWidthBox:
        // Blank is allowed on the first row only.
        ValidRealAtLeast(tabular.GridRow == tabular.GridFirstRow, 0, text, valid);
        break;
    case 10:
        ValidRealAbove(true, 0, text, valid);
        break;
    default:
        break;
    }
}

void frmXsect::enterCombo(int index) {
    if (index != StreamBox)
        return;
    // The streams of this section, growing as entries are typed.
    QtComboList list(cmbInp(StreamBox));
    const QString text = cmbInp(StreamBox)->currentText();
    for (int entry = 1; entry <= tabular.TableCount; ++entry)
        if (!trim(tabular.IdentifierTable(4, entry)).empty())
            AddUnique(list, tabular.IdentifierTable(4, entry));
    cmbInp(StreamBox)->setEditText(text);
}

void frmXsect::leaveCombo(int index) {
    if (index != StreamBox)
        return;
    const QString text = cutComboText(StreamBox);
    txtInp(StreamBox)->setText(text);
    if (tabular.TableNext > 0 && tabular.TableNext <= tabular.TableCount)
        tabular.IdentifierTable(StreamBox, tabular.TableNext) = toBytes(text);
}

} // namespace brooklet
