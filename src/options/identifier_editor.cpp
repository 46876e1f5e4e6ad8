#include "options/identifier_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/identifier_record.h"

#include <QButtonGroup>
#include <QLineEdit>
#include <QRadioButton>

namespace brooklet {
namespace {

// Boxes 1, 2 and 4 exist in the window's box array but carry no field.
constexpr int UnusedBoxes[] = {1, 2, 4};

} // namespace

frmFlume::frmFlume(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmFlume", "Brooklet Identifier", 16, "FL", IdentificationSection}, parent) {
    buildControls();
    Form_Load();
    txtInp(3)->setFocus(Qt::OtherFocusReason);
}

QButtonGroup* frmFlume::addOptionRow(ControlArray<QRadioButton>& array, const QString& arrayName,
                                     int labelIndex, const QString& label, const QString& first,
                                     const QString& second) {
    auto* group = new QButtonGroup(this);
    QRadioButton* option0 = addOption(array, arrayName, 0, first, group);
    QRadioButton* option1 = addOption(array, arrayName, 1, second, group);
    addRow(addLabel(labelIndex, label), {option0, option1});
    return group;
}

void frmFlume::buildControls() {
    addHeader("Brooklet Identifier:");
    for (int index : UnusedBoxes)
        addBox(index, QString(), 0)->hide();

    QButtonGroup* inputUnits = addOptionRow(opt1, "opt1", 1, "Input Units Code:  ", "English", "Metric");
    addOptionRow(opt2, "opt2", 2, "Output Units Code:", "English", "Metric");
    addRow(addLabel(3, "Minimum Hydrograph Value:  "), {addBox(3, "Minimum Hydrograph Value:")},
           addUnitLabel(3));
    addOptionRow(opt4, "opt4", 4, "Screen Output Code:  ", "Screen Output", "No Screen Output");
    // The description lines are written whole as lines, not into fields; their check cuts them.
    addRow(addLabel(5, "Watershed Description:"), {addBox(5, "Watershed Description:", 0)});
    addRow(nullptr, {addBox(6, "Watershed Description: second line", 0)});
    for (int index : {5, 6})
        txtInp(index)->setMinimumWidth(560);
    addButtons("    No Changes   (Close)", " Accept Changes   (Close)");

    // A click on an input units option shows its flow word at once; the words themselves are
    // set on load and on Accept.
    connect(inputUnits, &QButtonGroup::buttonClicked, this,
            [this] { lblInUnit(3)->setText(fromBytes(InputFlowUnit(opt1(0)->isChecked()))); });
    // The options are chosen with the mouse; reached by the keyboard they hand the focus on.
    for (int index : {0, 1}) {
        passFocusOn(opt1(index), 3);
        passFocusOn(opt4(index), 5);
    }
}

void frmFlume::setDefaults() {
    opt1(0)->setChecked(true);
    opt2(0)->setChecked(true);
    opt4(0)->setChecked(true);
}

void frmFlume::readSection(const std::vector<std::string>& lines) {
    const IdentifierRecord record = ReadIdentifierSection(lines);
    opt1(record.MetricInput ? 1 : 0)->setChecked(true);
    opt2(record.MetricOutput ? 1 : 0)->setChecked(true);
    txtInp(3)->setText(fromBytes(record.MinimumHydrograph));
    opt4(record.NoScreenOutput ? 1 : 0)->setChecked(true);
    txtInp(5)->setText(fromBytes(record.Description1));
    txtInp(6)->setText(fromBytes(record.Description2));
}

void frmFlume::afterLoad() {
    ApplyUnits();
}

void frmFlume::ApplyUnits() {
    SetInputUnitWords(session, opt1(0)->isChecked());
    lblInUnit(3)->setText(fromBytes(session.Units.FlowUnit));
    SetOutputUnitWords(session.Units, opt2(0)->isChecked());
}

std::vector<std::string> frmFlume::sectionRecords() {
    ApplyUnits();
    IdentifierRecord record;
    record.MetricInput = opt1(1)->isChecked();
    record.MetricOutput = opt2(1)->isChecked();
    record.MinimumHydrograph = toBytes(txtInp(3)->text());
    record.NoScreenOutput = opt4(1)->isChecked();
    record.Description1 = toBytes(txtInp(5)->text());
    record.Description2 = toBytes(txtInp(6)->text());
    return WriteIdentifierSection(record);
}

bool frmFlume::checkBox(int index) {
    QLineEdit* box = txtInp(index);
    const std::string text = toBytes(box->text());
    if (trim(text).empty()) {
        // The first description line is the one field the window expects.
        if (index != 5)
            return true;
        paintBox(index, false);
        return false;
    }
    bool valid = true;
    if (index == 3) {
        ValidRealAtLeast(true, 0, text, valid);
    } else if (index == 5 || index == 6) {
        std::string cleaned;
        ValidText(1, 80, text, valid, cleaned);
        box->setText(fromBytes(cleaned));
    }
    paintBox(index, valid);
    return valid;
}

int frmFlume::nextBox(int index) const {
    if (index == 0 || index == 1 || index == 6)
        return 3;
    if (index == 3)
        return 5;
    return index + 1;
}

int frmFlume::labelOfBox(int index) const {
    return index == 6 ? 5 : index;
}

} // namespace brooklet
