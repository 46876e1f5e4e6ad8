#include "options/global_output_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/global_output.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace brooklet {
namespace {

const char* const BoxLabels[] = {
    "Hydrograph Print Precision:", "Minimum Hydrograph Display Flow:", "Print Time Increment:"};

// The labels of the code rows, 4 to 9; the last row has a reach code only.
const char* const CodeLabels[] = {"Default Peak Output Code:",         "Default Hydrograph Output Code:",
                                  "Default Peak Summary Output Code:", "Default Time Analysis Output Code:",
                                  "Default Hydrograph File Code:",     "Default Flood Economics File Code:"};
constexpr int FirstCodeLabel = 4;

} // namespace

frmGlobal::frmGlobal(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmGlobal", "Global Output", 13, "GO", GlobalOutputSection}, parent) {
    buildControls();
    Form_Load();
    txtInp(1)->setFocus(Qt::OtherFocusReason);
}

QWidget* frmGlobal::addPair(ControlArray<QRadioButton>& array, const QString& arrayName, int code,
                            const QString& description) {
    auto* pair = new OptionGroup(description, this);
    auto* group = new QButtonGroup(this);
    for (int index : {2 * code, 2 * code + 1}) {
        QRadioButton* option = addOption(array, arrayName, index, index % 2 == 0 ? "Yes" : "No", group);
        option->setAccessibleDescription(description);
        pair->layout()->addWidget(option);
    }
    return pair;
}

void frmGlobal::buildControls() {
    addHeader("Global Output:");
    for (int index = 1; index <= 3; ++index) {
        const QString caption = BoxLabels[index - 1];
        addRow(addLabel(index, caption), {addBox(index, caption)},
               index == 1 ? nullptr : addUnitLabel(index));
    }
    lblInUnit(3)->setText("hr");

    for (int index : {1, 2}) {
        auto* head = new QLabel(index == 1 ? "Sub-Area" : "Reach", this);
        nameControl(head, indexedName("lblStatic", index), head->text());
        lblStatic.add(index, head);
    }
    std::vector<QWidget*> columns{lblStatic(1), lblStatic(2)};
    addRow(nullptr, {lblStatic(1), lblStatic(2)});
    for (int code = 0; code < ReachCodeCount; ++code) {
        const QString caption = CodeLabels[code];
        const QString described = caption.trimmed().chopped(1);
        QWidget* subArea = code < SubAreaCodeCount ? addPair(Opt1, "Opt1", code, "Sub-Area " + described)
                                                   : new QWidget(this);
        QWidget* reach = addPair(Opt2, "Opt2", code, "Reach " + described);
        columns.push_back(subArea);
        columns.push_back(reach);
        addRow(addLabel(FirstCodeLabel + code, caption), {subArea, reach});
    }
    // The pairs and their heads stand in two columns of one width.
    int width = 0;
    for (QWidget* column : columns)
        width = std::max(width, column->sizeHint().width());
    for (QWidget* column : columns)
        column->setFixedWidth(width);
    addButtons("  No Changes  (Close)", "Accept Changes   (Close)");

    // The sub-area options are chosen with the mouse; reached by the keyboard they hand the
    // focus on to the first box.
    for (const auto& [index, option] : Opt1.all())
        passFocusOn(option, 1);
}

void frmGlobal::setDefaults() {
    for (ControlArray<QRadioButton>* array : {&Opt1, &Opt2})
        for (const auto& [index, option] : array->all())
            if (index % 2 == 1)
                option->setChecked(true);
    lblInUnit(2)->setText(fromBytes(session.Units.FlowUnit));
}

void frmGlobal::readSection(const std::vector<std::string>& lines) {
    const GlobalOutputRecord record = ReadGlobalOutputSection(lines);
    for (int index = 1; index <= 3; ++index)
        txtInp(index)->setText(fromBytes(record.box(index)));
    for (int k = 0; k < SubAreaCodeCount; ++k)
        if (record.SubAreaCodes[static_cast<size_t>(k)])
            Opt1(2 * k)->setChecked(true);
    for (int k = 0; k < ReachCodeCount; ++k)
        if (record.ReachCodes[static_cast<size_t>(k)])
            Opt2(2 * k)->setChecked(true);
}

std::vector<std::string> frmGlobal::sectionRecords() {
    GlobalOutputRecord record;
    for (int index = 1; index <= 3; ++index)
        record.box(index) = toBytes(txtInp(index)->text());
    // A code is "N" when its No is set, else "Y".
    for (int k = 0; k < SubAreaCodeCount; ++k)
        record.SubAreaCodes[static_cast<size_t>(k)] = !Opt1(2 * k + 1)->isChecked();
    for (int k = 0; k < ReachCodeCount; ++k)
        record.ReachCodes[static_cast<size_t>(k)] = !Opt2(2 * k + 1)->isChecked();
    return WriteGlobalOutputSection(record);
}

bool frmGlobal::checkBox(int index) {
    bool valid = true;
    const std::string text = toBytes(txtInp(index)->text());
    if (index == 1) {
        int16_t value = 0;
        ValidInteger(true, 0, 3, text, valid, value);
    } else if (index == 2) {
        ValidRealAtLeast(true, 0, text, valid);
    } else if (index == 3) {
        ValidRealAtLeast(true, 0.01, text, valid);
    }
    paintBox(index, valid);
    return valid;
}

int frmGlobal::nextBox(int index) const {
    return index >= 3 ? 1 : index + 1;
}

} // namespace brooklet
