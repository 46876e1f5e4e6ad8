#include "tables/rainfall_distribution_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"
#include "tables/rainfall_distribution.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace brooklet {

frmRainDist::frmRainDist(AppContext& context, QWidget* parent)
    : NamedValueWindow(
          context, {"frmRainDist", "Rainfall Distribution", 21, "RD", RainfallDistributionSection},
          {RainTableFields,
           3,
           {"Delete Current rainfall distribution ?", "Rainfall Distribution", BoxButtons::YesNo,
            BoxIcon::Question}},
          {3, 1, {12, true, -999}, ReadRainfallDistributionSection, WriteRainfallDistributionSection},
          parent) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmRainDist::buildControls() {
    addHeader("Rainfall Distribution:");
    addRow(addLabel(1, "Rain Table Identifier"), {addIdentifierCombo("Rain Table Identifier")});
    addRow(addLabel(2, "Rain Table Time Increment"), {addBox(2, "Rain Table Time Increment")},
           addUnitLabel(2));
    lblInUnit(2)->setText("hr");
    addRow(addLabel(3, "Mass Rainfall Points"),
           {captionLabel(this, "Label3", "@ Rain Table Time Increment")});
    addRow(captionLabel(this, "lblDispBox(0)", "Entered Data:"),
           {captionLabel(this, "Label4(0)",
                         " Click cell in grid to edit previously entered data. RIGHT click to "
                         "insert or delete  a value.")});
    addRow(nullptr, {addValueGrid("Mass Rainfall Points")});
    addCommandButtons("Display Data", "Delete Distribution", "   No Changes  (Close)",
                      "Accept Changes (Close)");
}

void frmRainDist::fillLists() {
    QtComboList list(cmbInp(1));
    FillRainTableList(session, false, list);
}

void frmRainDist::validateBox(int index, const std::string& text, bool& valid) {
    if (index == 2)
        ValidRealAbove(false, 0, text, valid);
}

bool frmRainDist::fieldsPlottable() const {
    return leadingNumber(boxText(2)) > 0;
}

} // namespace brooklet
