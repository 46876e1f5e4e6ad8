#include "options/verification_editor.h"

#include "editing/app_context.h"
#include "options/verification.h"

#include <QCheckBox>
#include <QGridLayout>

#include <utility>

namespace brooklet {
namespace {

// The checks of each column, first and last index.
constexpr std::pair<int, int> Columns[] = {{1, 15}, {21, 29}, {31, 41}};

} // namespace

QString frmVerification::checkLabel(int index) {
    static const std::map<int, QString> labels = {
        {1, "Alternates Read"},
        {2, "Dimensionless Unit  Hydrograph Read"},
        {3, "Duration Increment Read"},
        {4, "Global Output Read"},
        {5, "Input Hydrographs Read"},
        {6, "Rainfall Distributions Read"},
        {7, "Runoff Curve Numbers Read"},
        {8, "Stream Cross Sections Read"},
        {9, "Stream Reaches Read"},
        {10, "Storm Analysis Read"},
        {11, "Structure Ratings Read"},
        {12, "Sub-Areas Read"},
        {13, "Time Analysis Read"},
        {14, "Brooklet Run Identifier Read"},
        {15, "Verification  Read"},
        {21, "Storms and Rain Gage Combinations"},
        {22, "Sub-Area Tc Computations"},
        {23, "Sub-Area CN Computations"},
        {24, "Unique Sub-Area List"},
        {25, "Unique Reach List"},
        {26, "Cross Section Rating Table"},
        {27, "Array Indexes / Reference Identifiers"},
        {28, "Rainfall Distributions Used"},
        {29, "Reservoir Emptying Time"},
        {31, "Upstream Reach Components"},
        {32, "Number of Hydrographs"},
        {33, "Watershed  Analysis Steps"},
        {34, "Non-circular Reach Flow Path"},
        {35, "Alternate Update"},
        {36, "Hydrograph Generation"},
        {37, "Hydrograph Channel Routing"},
        {38, "Hydrograph Structure Routing"},
        {39, "Hydrograph Addition"},
        {40, "Hydrograph Flow Splitting"},
        {41, "Flow Duration Computations"},
    };
    const auto found = labels.find(index);
    return found == labels.end() ? QString() : found->second;
}

frmVerification::frmVerification(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmVerification", "Verification", 12, "VE", VerificationSection}, parent) {
    buildControls();
    Form_Load();
    Check1(1)->setFocus(Qt::OtherFocusReason);
}

void frmVerification::buildControls() {
    addHeader("Verification:");
    auto* columns = new QWidget(this);
    auto* grid = new QGridLayout(columns);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    int column = 0;
    for (const auto& [first, last] : Columns) {
        const int head = column / 2 + 1;
        auto* yes = new QLabel("Yes", this);
        nameControl(yes, indexedName("lblStatic", head), "Yes");
        lblStatic.add(head, yes);
        grid->addWidget(yes, 0, column + 1, Qt::AlignCenter);
        int row = 1;
        for (int index = first; index <= last; ++index, ++row) {
            const QString caption = checkLabel(index);
            auto* check = new QCheckBox(this);
            nameControl(check, indexedName("Check1", index), caption.trimmed());
            Check1.add(index, check);
            grid->addWidget(addLabel(index, caption), row, column);
            grid->addWidget(check, row, column + 1, Qt::AlignCenter);
        }
        column += 2;
    }
    addRow(nullptr, {columns});
    addButtons("  No Changes  (Close)", "Accept Changes   (Close)");
}

void frmVerification::setDefaults() {
    for (const auto& [index, check] : Check1.all())
        check->setChecked(false);
}

void frmVerification::readSection(const std::vector<std::string>& lines) {
    const VerificationRecord record = ReadVerificationSection(lines);
    for (const auto& [index, check] : Check1.all())
        check->setChecked(record.Checks[static_cast<size_t>(index)]);
}

std::vector<std::string> frmVerification::sectionRecords() {
    VerificationRecord record;
    for (const auto& [index, check] : Check1.all())
        record.Checks[static_cast<size_t>(index)] = check->isChecked();
    return WriteVerificationSection(record);
}

} // namespace brooklet
