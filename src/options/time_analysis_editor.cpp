#include "options/time_analysis_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "options/time_analysis.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace brooklet {
namespace {

bool isFlowBox(int index) {
    return index <= LastFlowBox;
}

int lastOfRow(int index) {
    return isFlowBox(index) ? LastFlowBox : LastElevationBox;
}

} // namespace

frmTimeA::frmTimeA(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmTimeA", "Time Analysis", 13, "TA", TimeAnalysisSection}, parent) {
    buildControls();
    Form_Load();
    txtInp(FirstFlowBox)->setFocus(Qt::OtherFocusReason);
}

void frmTimeA::buildControls() {
    for (int index = FirstFlowBox; index <= LastElevationBox; ++index) {
        const QString row = isFlowBox(index) ? "Maximum Flow %: %1" : "Elevation Increment: %1";
        addBox(index, row.arg((index - 1) % 4 + 1))->setFixedWidth(90);
    }
    // The unit words beside the elevations; the flows have an empty place of the same width
    // there, so the boxes of the two rows stand one above the other.
    const int unitWidth = fontMetrics().horizontalAdvance("  ft  ");
    std::vector<QWidget*> gaps;
    for (int index = FirstElevationBox; index <= LastElevationBox; ++index) {
        addUnitLabel(index)->setFixedWidth(unitWidth);
        gaps.push_back(new QWidget(this));
        gaps.back()->setFixedWidth(unitWidth);
    }
    addRow(addLabel(0, "Flow"), {});
    addRow(addLabel(1, "Maximum Flow %:"),
           {txtInp(1), gaps[0], txtInp(2), gaps[1], txtInp(3), gaps[2], txtInp(4), gaps[3]});
    addRow(addLabel(4, "Elevation"), {});
    addRow(addLabel(5, "Elevation Increment:"), {txtInp(5), lblInUnit(5), txtInp(6), lblInUnit(6), txtInp(7),
                                                 lblInUnit(7), txtInp(8), lblInUnit(8)});
    addButtons("  No Changes   (Close)", "Accept Changes   (Close)");
}

void frmTimeA::setDefaults() {
    for (int index = FirstElevationBox; index <= LastElevationBox; ++index)
        lblInUnit(index)->setText(fromBytes(session.Units.LengthUnit));
}

void frmTimeA::readSection(const std::vector<std::string>& lines) {
    const TimeAnalysisRecord record = ReadTimeAnalysisSection(lines);
    for (int index = FirstFlowBox; index <= LastElevationBox; ++index)
        txtInp(index)->setText(fromBytes(record.box(index)));
}

std::vector<std::string> frmTimeA::sectionRecords() {
    TimeAnalysisRecord record;
    for (int index = FirstFlowBox; index <= LastElevationBox; ++index)
        record.box(index) = toBytes(txtInp(index)->text());
    return WriteTimeAnalysisSection(record);
}

void frmTimeA::closeUpRow(int index) {
    const int last = lastOfRow(index);
    for (int k = index + 1; k <= last; ++k) {
        setBackground(txtInp(k - 1), background(txtInp(k)));
        txtInp(k - 1)->setText(txtInp(k)->text());
    }
    txtInp(last)->clear();
    setBackground(txtInp(last), UntouchedColour);
}

bool frmTimeA::checkBox(int index) {
    bool valid = true;
    const std::string text = toBytes(txtInp(index)->text());
    if (!trim(text).empty()) {
        if (isFlowBox(index))
            ValidRealRange(true, 0.001, 100, text, valid);
        else
            ValidRealAbove(true, 0, text, valid);
    } else {
        closeUpRow(index);
    }
    paintBox(index, valid);
    return valid;
}

int frmTimeA::nextBox(int index) const {
    return index >= LastElevationBox ? FirstFlowBox : index + 1;
}

int frmTimeA::labelOfBox(int index) const {
    return isFlowBox(index) ? 1 : 5;
}

int frmTimeA::focusTarget(int index) const {
    const bool inside = (index > FirstFlowBox && index <= LastFlowBox) ||
                        (index > FirstElevationBox && index <= LastElevationBox);
    if (!inside || !trim(toBytes(txtInp(index - 1)->text())).empty())
        return index;
    // Behind a blank box: on to the start of the other row.
    return isFlowBox(index) ? FirstElevationBox : FirstFlowBox;
}

bool frmTimeA::eventFilter(QObject* watched, QEvent* event) {
    // Coming back to the window leaves the focus where it was.
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason) {
        for (const auto& [index, box] : txtInp.all()) {
            if (box != watched)
                continue;
            const int target = focusTarget(index);
            if (target != index) {
                focusBox(target);
                return true;
            }
        }
    }
    return EntryWindow::eventFilter(watched, event);
}

} // namespace brooklet
