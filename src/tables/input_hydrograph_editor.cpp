#include "tables/input_hydrograph_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/identifier_lists.h"
#include "editing/qt_lists.h"
#include "tables/input_hydrograph.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace brooklet {

frmInpHyd::frmInpHyd(AppContext& context, QWidget* parent)
    : NamedValueWindow(
          context, {"frmInpHyd", "Input Hydrograph", 16, "IH", InputHydrographSection},
          {InputHydrographFields,
           2,
           {"Delete Current input hydrograph ?", "Input Hydrograph", BoxButtons::YesNo, BoxIcon::Question}},
          // A new hydrograph counts two values, its zero and the cell behind it.
          {8, 2, {10, false, -999}, ReadInputHydrographSection, WriteInputHydrographSection}, parent) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmInpHyd::buildControls() {
    addHeader("Input Hydrograph:");
    addRow(addLabel(1, "Input Hydrograph Identifier"), {addIdentifierCombo("Input Hydrograph Identifier")});
    addRow(addLabel(2, "Input Hydrograph Reach Identifier"),
           {addCombo(2, "Input Hydrograph Reach Identifier")});
    addRow(addLabel(3, "Input Hydrograph Storm Identifier"),
           {addCombo(3, "Input Hydrograph Storm Identifier")});
    addRow(addLabel(4, "Input Hydrograph Start Time"), {addBox(4, "Input Hydrograph Start Time")},
           addUnitLabel(4));
    addRow(addLabel(5, "Input Hydrograph Time Increment"), {addBox(5, "Input Hydrograph Time Increment")},
           addUnitLabel(5));
    addRow(addLabel(6, "Input Hydrograph Drainage Area"), {addBox(6, "Input Hydrograph Drainage Area")},
           addUnitLabel(6));
    addRow(addLabel(7, "Input Hydrograph Base Flow"), {addBox(7, "Input Hydrograph Base Flow")},
           addUnitLabel(7));
    // The shadow box of the flows is never shown.
    addBox(8, "Input Hydrograph Flows", 0)->hide();
    addRow(addLabel(8, "Input Hydrograph Flows"),
           {captionLabel(this, "Label2(1)", "@ Input Hydrograph Time Increment")}, addUnitLabel(8));
    lblInUnit(4)->setText("hr");
    lblInUnit(5)->setText("hr");
    lblInUnit(6)->setText("sq mi");
    lblInUnit(7)->setText("cfs");
    lblInUnit(8)->setText("cfs");
    addRow(captionLabel(this, "lblDispBox(0)", "Entered Data:"),
           {captionLabel(this, "Label4(0)",
                         " Click grid cell to edit previously entered data. RIGHT click to insert "
                         "or delete  a value.")});
    addRow(nullptr, {addValueGrid("Input Hydrograph Flows")});
    addCommandButtons("Display Data", "   Delete    Hydrograph", "    No Changes   (Close)",
                      "Accept Changes (Close)");
}

void frmInpHyd::afterLoad() {
    lblInUnit(6)->setText(fromBytes(session.Units.AreaUnit));
    lblInUnit(7)->setText(fromBytes(session.Units.FlowUnit));
    lblInUnit(8)->setText(fromBytes(session.Units.FlowUnit));
    NamedValueWindow::afterLoad();
}

void frmInpHyd::fillLists() {
    QtComboList hydrographs(cmbInp(1));
    FillInputHydrographList(session, hydrographs);
    QtComboList reaches(cmbInp(2));
    FillReachList(session, reaches, false);
    QtComboList storms(cmbInp(3));
    FillHydrographNameList(session, storms);
}

void frmInpHyd::validateBox(int index, const std::string& text, bool& valid) {
    if (index == 5)
        ValidRealAbove(false, 0, text, valid);
    else if (index >= 4 && index <= 7)
        ValidRealAtLeast(true, 0, text, valid);
}

bool frmInpHyd::fieldsPlottable() const {
    return !boxText(5).empty();
}

} // namespace brooklet
