#include "network/tc_calculator.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "editing/watershed_tables.h"
#include "network/sub_area.h"
#include "network/time_of_concentration.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace brooklet {
namespace {

constexpr int IdentifierWidth = 10;
constexpr int FirstSegmentBox = 12;
constexpr int LastSegmentBox = 24;
constexpr int SpareBox = 30;

// The columns of the segment rows: length, slope, Manning n, surface, travel time.
constexpr int LengthColumn = 1;
constexpr int TimeColumn = 6;

} // namespace

frmTc::frmTc(AppContext& context, QWidget* parent)
    : NetworkWindow(context, {"frmTc", "Time of Concentration", 20, "AR", SubAreaSection},
                    OpenedFrom::SubAreaWindow, parent),
      tables(context.watershed) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmTc::buildControls() {
    addHeader("Time of Concentration:");
    addAlternateLabels();
    addRow(addLabel(1, "Sub-Area Identifier"), {addList(1, "Sub-Area Identifier")});
    QLineEdit* rainfall = addBox(RainfallBox, "2-Yr Rainfall", 0);
    QLineEdit* spare = addBox(SpareBox, "2-Yr Rainfall spare", 0);
    for (QLineEdit* display : {rainfall, spare}) {
        display->setReadOnly(true);
        display->setFocusPolicy(Qt::ClickFocus);
        display->setFixedWidth(80);
    }
    spare->setFixedWidth(20);
    addRow(addLabel(0, "2-Yr Rainfall"),
           {rainfall, spare, addLabel(2, "2-Yr Rainfall for Sheet Flow is entered w/ Storm Analysis data")});
    lblInput(2)->hide();

    auto* table = new QGridLayout;
    table->addWidget(addLabel(8, "Flow Type"), 0, 0);
    const char* const heads[] = {"Length", "Slope", "Manning n", "Flow Surface"};
    for (int k = 0; k < 4; ++k)
        table->addWidget(addLabel(12 + k, heads[k]), 0, LengthColumn + k);
    table->addWidget(addLabel(26, "Travel Time"), 0, TimeColumn);
    const char* const rows[] = {"Sheet", "Shallow Concentrated", "Channel"};
    for (int k = 0; k < 3; ++k)
        table->addWidget(addLabel(9 + k, rows[k]), 1 + k, 0);
    const auto valueBox = [this](int index, const QString& name) {
        QLineEdit* box = addBox(index, name);
        box->setFixedWidth(80);
        return box;
    };
    // Calculated displays fill no field; the channel velocity, calculated or typed, does.
    const auto displayBox = [this](int index, const QString& name) {
        QLineEdit* box = addBox(index, name, 0);
        box->setReadOnly(true);
        box->setFocusPolicy(Qt::ClickFocus);
        box->setFixedWidth(80);
        return box;
    };
    table->addWidget(valueBox(12, "Sheet Length"), 1, 1);
    table->addWidget(valueBox(13, "Sheet Slope"), 1, 2);
    table->addWidget(valueBox(14, "Sheet Manning n"), 1, 3);
    table->addWidget(addList(SheetSurfaceBox, "Sheet Flow Surface"), 1, 4);
    table->addWidget(displayBox(SheetTimeBox, "Sheet Travel Time"), 1, TimeColumn);
    table->addWidget(valueBox(16, "Shallow Concentrated Length"), 2, 1);
    table->addWidget(valueBox(17, "Shallow Concentrated Slope"), 2, 2);
    table->addWidget(displayBox(ShallowVelocityBox, "Shallow Concentrated Velocity"), 2, 3);
    table->addWidget(addList(ShallowSurfaceBox, "Shallow Concentrated Flow Surface"), 2, 4);
    table->addWidget(displayBox(ShallowTimeBox, "Shallow Concentrated Travel Time"), 2, TimeColumn);
    table->addWidget(valueBox(19, "Channel Length"), 3, 1);
    table->addWidget(valueBox(20, "Channel Slope"), 3, 2);
    table->addWidget(valueBox(21, "Channel Manning n"), 3, 3);
    table->addWidget(displayBox(ChannelTimeBox, "Channel Travel Time"), 3, TimeColumn);
    table->addWidget(addUnitLabel(12), 4, 1);
    table->addWidget(addUnitLabel(14), 4, 2);
    table->addWidget(addUnitLabel(26), 4, TimeColumn);
    const char* const channel[] = {"End Area", "Wetted Perimeter", "Velocity"};
    for (int k = 0; k < 3; ++k) {
        table->addWidget(addLabel(22 + k, channel[k]), 5 + k, 0);
        table->addWidget(valueBox(22 + k, QString("Channel ") + channel[k]), 5 + k, 1);
        table->addWidget(addUnitLabel(22 + k), 5 + k, 2);
    }
    table->addWidget(addLabel(TotalTimeBox, "Time of Concentration"), 8, 0);
    table->addWidget(displayBox(TotalTimeBox, "Time of Concentration"), 8, TimeColumn);
    for (int index : {SheetSurfaceBox, ShallowSurfaceBox}) {
        cmbInp(index)->setMinimumContentsLength(24);
        cmbInp(index)->setFocusPolicy(Qt::StrongFocus);
    }
    auto* outer = static_cast<QVBoxLayout*>(layout());
    outer->insertLayout(outer->indexOf(txtHelp), table);

    addReturnButtons("Delete Tc Details");
}

void frmTc::setDefaults() {
    const UnitWords& units = session.Units;
    lblInUnit(12)->setText(fromBytes(units.LengthUnit));
    lblInUnit(23)->setText(fromBytes(units.LengthUnit));
    lblInUnit(14)->setText("len/len");
    lblInUnit(22)->setText(fromBytes(units.SmallAreaUnit));
    lblInUnit(24)->setText(fromBytes(units.VelocityUnit));
    lblInUnit(26)->setText("hr");
    showAlternateName();
    QStringList sheet{" "}, shallow{" "};
    for (const char* surface : SheetSurfaces)
        sheet << surface;
    for (const char* surface : ShallowSurfaces)
        shallow << surface;
    cmbInp(SheetSurfaceBox)->addItems(sheet);
    cmbInp(ShallowSurfaceBox)->addItems(shallow);
}

void frmTc::afterLoad() {
    QStringList names{QString()};
    rowIds_.assign(size_t(std::max(tables.SubAreaCount, 0)) + 1, 0);
    for (int row = 1; row <= tables.SubAreaCount && size_t(row) < tables.SubAreaRowIds.size(); ++row)
        rowIds_[size_t(row)] = tables.SubAreaRowIds[size_t(row)];
    if (tables.SubAreaCount > 0) {
        TcTable = BuildTcTable(tables);
        for (int row = 1; row <= tables.SubAreaCount; ++row)
            if (trim(tables.SubAreaTable(6, row)).empty())
                names << fromBytes(tables.SubAreaTable(1, row));
    }
    cmbInp(1)->addItems(names);
    cmbInp(1)->setCurrentIndex(0);
    txtHelp->hide();
    const int row = tables.CalculatorSubArea;
    if (row > 0 && row <= tables.SubAreaCount) {
        Selected = row;
        showRow(row);
        setBoxText(1, tables.SubAreaTable(1, row));
        const int item = cmbInp(1)->findText(txtInp(1)->text(), Qt::MatchExactly | Qt::MatchCaseSensitive);
        cmbInp(1)->setCurrentIndex(item);
        cmbInp(1)->setEditText(txtInp(1)->text());
    }
    cmdDelCur->setVisible(!boxBlank(1));
}

void frmTc::showRow(int row) {
    if (row <= 0)
        return;
    for (int index = FirstSegmentBox; index <= LastSegmentBox; ++index) {
        setBoxText(index, TcTable(index, row));
        setBackground(txtInp(index), UntouchedColour);
    }
    if (const auto rainfall = RainfallOfGage(tables, tables.SubAreaTable(3, subAreaRow(row))))
        setBoxText(RainfallBox, *rainfall);
    showRainfall();
    pointSurfaceList(SheetSurfaceBox, SheetSurfaceLetters);
    pointSurfaceList(ShallowSurfaceBox, ShallowSurfaceLetters);
    for (int index : {12, 16, 19})
        compute(index);
}

void frmTc::showRainfall() {
    const bool none = leadingNumber(boxText(RainfallBox)) <= 0;
    lblInput(0)->setHidden(none);
    txtInp(RainfallBox)->setHidden(none);
    txtInp(SpareBox)->setHidden(none);
    lblInput(2)->setVisible(none);
}

void frmTc::pointSurfaceList(int index, const std::string& letters) {
    const std::string text = trim(boxText(index));
    const size_t place = text.empty() ? std::string::npos : letters.find(toUpper(text.substr(0, 1)));
    cmbInp(index)->setCurrentIndex(place == std::string::npos ? 0 : int(place) + 1);
    listTakesColour(index);
}

void frmTc::storeBoxes() {
    if (Selected <= 0 || Selected > TcTable.rows())
        return;
    for (int index = FirstSegmentBox; index <= LastSegmentBox; ++index)
        TcTable(index, Selected) = boxText(index);
}

void frmTc::compute(int index) {
    TcBoxes boxes;
    for (const auto& [box, control] : txtInp.all())
        if (box < TcBoxCount)
            boxes[size_t(box)] = toBytes(control->text());
    ComputeTcSegment(boxes, index);
    for (int box = LastSegmentBox; box <= TotalTimeBox; ++box) {
        if (boxText(box) == boxes[size_t(box)])
            continue;
        // A calculated velocity wider than its field is shown whole, red, with the reason.
        if (!setTextUncut(txtInp(box), fromBytes(boxes[size_t(box)]))) {
            paintBox(box, false);
            showNote(FieldTooLongNote(trim(boxes[size_t(box)]), fieldWidthOf(txtInp(box))));
        }
    }
}

int frmTc::subAreaRow(int row) const {
    return row >= 1 && size_t(row) < rowIds_.size() ? subAreaRowOf(tables, rowIds_[size_t(row)]) : 0;
}

int frmTc::findRow(const std::string& name) const {
    const std::string wanted = trim(name);
    for (int row = int(rowIds_.size()) - 1; row >= 1; --row)
        if (trim(TcTable(1, row)) == wanted)
            return row;
    return 0;
}

bool frmTc::leaveList(int index) {
    setBoxText(index, listText(index));
    const bool valid = checkBox(index);
    if (index == 1) {
        const int row = findRow(boxText(1));
        // Only a change of row shows the row anew; what was typed for the row left is lost.
        if (row != Selected) {
            Selected = row;
            if (row > 0) {
                showRow(row);
                listTakesColour(1);
            }
        }
    }
    cmdDelCur->setVisible(!boxBlank(1));
    return valid;
}

bool frmTc::checkBox(int index) {
    std::string text = boxText(index);
    if (trim(text).empty())
        return true;
    bool valid = true;
    if (index == 1) {
        text = listText(1).substr(0, IdentifierWidth);
        setBoxText(1, text);
        valid = findRow(text) > 0;
    } else if (index == SheetSurfaceBox || index == ShallowSurfaceBox) {
        const std::string letter = toUpper(trim(listText(index)).substr(0, 1));
        setBoxText(index, letter);
        cmbInp(index)->setEditText(fromBytes(letter));
        if (index == SheetSurfaceBox && !letter.empty() &&
            SheetSurfaceLetters.find(letter) != std::string::npos)
            txtInp(14)->clear();
        if (index == ShallowSurfaceBox && ShallowSurfaceLetters.find(letter) == std::string::npos)
            valid = false;
    } else if ((index >= FirstSegmentBox && index <= LastSegmentBox)) {
        valid = TcValueAccepted(index, text, session.EnglishUnits);
        // A typed Manning n and a sheet flow surface exclude each other.
        if (index == 14 && valid) {
            txtInp(SheetSurfaceBox)->clear();
            cmbInp(SheetSurfaceBox)->setCurrentIndex(0);
        }
    } else {
        return true;
    }
    if (Selected == 0 && index > 1)
        valid = false;
    paintBox(index, valid);
    if (index == 1 || index == SheetSurfaceBox || index == ShallowSurfaceBox)
        listTakesColour(index);
    if (valid && index >= FirstSegmentBox)
        compute(index);
    return valid;
}

int frmTc::nextBox(int index) const {
    int next = index + 1;
    if (next > LastSegmentBox || next == 2)
        next = FirstSegmentBox;
    if (next == 14 && !boxBlank(SheetSurfaceBox))
        next = SheetSurfaceBox;
    if (next == SheetSurfaceBox && !boxBlank(14))
        next = 16;
    return next;
}

void frmTc::deleteCurrent() {
    if (context.platform.showBox({"Delete Current Sub-Area Tc Data ?", "Time of Concentration",
                                  BoxButtons::YesNo, BoxIcon::Question}) != BoxAnswer::Yes)
        return;
    if (Selected > 0 && Selected <= TcTable.rows())
        for (int field = FirstSegmentBox; field <= LastSegmentBox; ++field)
            TcTable(field, Selected).clear();
    for (int index = FirstSegmentBox; index <= TotalTimeBox; ++index)
        txtInp(index)->clear();
    for (int index : {1, SheetSurfaceBox, ShallowSurfaceBox})
        cmbInp(index)->setCurrentIndex(0);
}

void frmTc::addHeldData(std::string& data) const {
    appendTable(data, TcTable);
}

std::vector<std::string> frmTc::sectionRecords() {
    return SubAreaSectionRecords(tables);
}

void frmTc::acceptChanges() {
    if (ownerClosed()) {
        closeForClosedOwner();
        return;
    }
    if (!boxesFitTheirFields())
        return;
    storeBoxes();
    if (Selected > 0 && subAreaRow(Selected) == 0)
        tellSubAreaDeleted(TcTable(1, Selected));
    ReturnTcTable(TcTable, rowIds_, tables);
    if (alternateMode())
        close();
    else
        EntryWindow::acceptChanges();
}

} // namespace brooklet
