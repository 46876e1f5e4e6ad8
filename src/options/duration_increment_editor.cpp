#include "options/duration_increment_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/duration_increment.h"

#include <QButtonGroup>
#include <QLineEdit>
#include <QRadioButton>

namespace brooklet {
namespace {

const char* const DurationLabels[] = {"1st Duration:", "2nd Duration:", "3rd Duration:"};

} // namespace

frmDurInc::frmDurInc(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmDurInc", "Duration Increment", 18, "DI", DurationIncrementSection}, parent) {
    buildControls();
    Form_Load();
    txtInp(FirstDurationBox)->setFocus(Qt::OtherFocusReason);
}

void frmDurInc::buildControls() {
    addHeader("Duration Increment:");
    auto* units = new QButtonGroup(this);
    QRadioButton* hours = addOption(opt1, "opt1", 0, "Hours", units);
    QRadioButton* days = addOption(opt1, "opt1", 1, "Days", units);
    addRow(addLabel(1, "Duration Units:"), {hours, days});
    for (int index = FirstDurationBox; index <= LastDurationBox; ++index) {
        const QString caption = DurationLabels[index - FirstDurationBox];
        auto* unit = new QLabel(this);
        nameControl(unit, indexedName("lblUnits", index));
        lblUnits.add(index, unit);
        addRow(addLabel(index, caption), {addBox(index, caption)}, unit);
    }
    addButtons("   No Changes  (Close)", "Accept Changes (Close)");

    // The word follows a click only; a record read in days still shows "hr" until then.
    connect(units, &QButtonGroup::buttonClicked, this, [this] { showUnitWord(!opt1(0)->isChecked()); });
    for (int index : {0, 1})
        passFocusOn(opt1(index), FirstDurationBox);
}

void frmDurInc::showUnitWord(bool days) {
    for (const auto& [index, label] : lblUnits.all())
        label->setText(fromBytes(DurationUnitWord(days)));
}

void frmDurInc::setDefaults() {
    opt1(0)->setChecked(true);
    showUnitWord(false);
}

void frmDurInc::readSection(const std::vector<std::string>& lines) {
    const DurationIncrementRecord record = ReadDurationIncrementSection(lines);
    opt1(record.Days ? 1 : 0)->setChecked(true);
    for (int index = FirstDurationBox; index <= LastDurationBox; ++index)
        txtInp(index)->setText(fromBytes(record.duration(index)));
}

std::vector<std::string> frmDurInc::sectionRecords() {
    DurationIncrementRecord record;
    record.Days = opt1(1)->isChecked();
    for (int index = FirstDurationBox; index <= LastDurationBox; ++index)
        record.duration(index) = toBytes(txtInp(index)->text());
    return WriteDurationIncrementSection(record);
}

bool frmDurInc::checkBox(int index) {
    bool valid = true;
    const std::string text = toBytes(txtInp(index)->text());
    if (!trim(text).empty())
        ValidRealAtLeast(true, 0, text, valid);
    paintBox(index, valid);
    return valid;
}

int frmDurInc::nextBox(int index) const {
    // From 0, and past the last duration, back to the first.
    if (index == 0 || index + 1 > LastDurationBox)
        return FirstDurationBox;
    return index + 1;
}

} // namespace brooklet
