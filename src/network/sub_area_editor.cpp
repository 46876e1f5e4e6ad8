#include "network/sub_area_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"
#include "network/sub_area.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace brooklet {
namespace {

constexpr int LastListBox = 3;
constexpr int LastValueBox = 6;
constexpr int CodeGroups = 5;
constexpr int FirstCodeField = 7;
constexpr int IdentifierWidth = 10;

const char* const Labels[] = {
    "Sub-Area Identifier",         "Sub-Area Reach Identifier",       "Sub-Area Rain Gage Identifier",
    "Sub-Area Drainage Area",      "Sub-Area Weighted Curve Number",  "Sub-Area Time of Concentration",
    "Sub-Area Peak Output Code",   "Sub-Area Hydrograph Output Code", "Sub-Area Peak Summary Output Code",
    "Sub-Area Time Analysis Code", "Sub-Area Hydrograph File Code"};

} // namespace

frmSubArea::frmSubArea(AppContext& context, QWidget* parent)
    : NetworkWindow(context, {"frmSubArea", "Sub-Area", 8, "AR", SubAreaSection},
                    OpenedFrom::SectionOrAlternate, parent),
      tables(context.watershed) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmSubArea::buildControls() {
    addHeader("Sub-Area:");
    addAlternateLabels();
    for (int index = 1; index <= LastListBox; ++index)
        addRow(addLabel(index, Labels[index - 1]), {addList(index, Labels[index - 1])});
    for (int index = 4; index <= LastValueBox; ++index) {
        QLineEdit* box = addBox(index, Labels[index - 1]);
        box->setFixedWidth(110);
        addRow(addLabel(index, Labels[index - 1]), {box}, index == 5 ? nullptr : addUnitLabel(index));
    }
    lblInUnit(6)->setText("hr");
    const char* const calculators[] = {"Land Use Details", "Tc Details"};
    for (int index : {0, 1}) {
        auto* button = new QPushButton(calculators[index], this);
        nameControl(button, indexedName("cmdSub", index), calculators[index]);
        connect(button, &QPushButton::clicked, this, [this, index] { openCalculator(index); });
        cmdSub.add(index, button);
    }
    addRow(nullptr, {cmdSub(0), cmdSub(1)});
    for (int group = 1; group <= CodeGroups; ++group) {
        const int index = LastValueBox + group;
        addRow(addLabel(index, Labels[index - 1]), {addCodeGroup(group, Labels[index - 1])});
    }
    addCommandButtons("Delete Sub-Area", "  No Changes  (Close)", "Accept Changes  (Close)");
}

void frmSubArea::setDefaults() {
    lblInUnit(4)->setText(fromBytes(session.Units.AreaUnit));
    Previous = -999;
    Selected = 0;
    resetSubAreaTables(tables);
    if (!alternateMode())
        return;
    showAlternateName();
    loadSubAreasFromAlternate(tables, workingAlternate());
}

void frmSubArea::readSection(const std::vector<std::string>& lines) {
    if (!alternateMode())
        ReadSubAreaSection(lines, tables);
}

void frmSubArea::afterLoad() {
    txtHelp->hide();
    fillList({1}, [this](ListControl& list) { FillAreaReachList(session, list); });
    fillList({2}, [this](ListControl& list) { FillReachList(session, list, false); });
    fillList({3}, [this](ListControl& list) { FillStormRainList(session, tables.Rainfall, list); });
    const int picked = tables.AlternatePickedRow;
    if (alternateMode() && picked >= 1 && picked <= tables.SubAreaCount) {
        Selected = picked;
        setBoxText(1, tables.SubAreaTable(1, picked));
        showRow(picked);
    }
    refresh();
}

void frmSubArea::showRow(int row) {
    for (int index = 1; index <= LastValueBox; ++index) {
        setBoxText(index, tables.SubAreaTable(index, row));
        setBackground(txtInp(index), UntouchedColour);
    }
    for (int index = 1; index <= LastListBox; ++index)
        listFollowsBox(index);
    for (int group = 1; group <= CodeGroups; ++group)
        showCode(group, tables.SubAreaTable(FirstCodeField + group - 1, row));
    Previous = short(row);
    refresh();
}

void frmSubArea::storeBoxes() {
    if (Previous >= 1 && Previous <= tables.SubAreaTable.rows()) {
        // The identifier is the row's own: the list may already name the next row.
        for (int index = 2; index <= LastValueBox; ++index)
            tables.SubAreaTable(index, Previous) = boxText(index);
        for (int group = 1; group <= CodeGroups; ++group)
            storeCode(group, tables.SubAreaTable(FirstCodeField + group - 1, Previous));
    }
    Previous = short(Selected);
}

void frmSubArea::refresh() {
    if (Selected <= 0)
        return;
    const size_t row = size_t(Selected);
    const bool landUse = row < tables.LandUseFirst.size() && tables.LandUseFirst[row] > 0;
    for (QWidget* typed :
         std::initializer_list<QWidget*>{txtInp(4), txtInp(5), lblInput(4), lblInput(5), lblInUnit(4)})
        typed->setHidden(landUse);
    cmdSub(0)->setHidden(!landUse && !(boxBlank(4) && boxBlank(5)));
    bool flowPath = false;
    for (int field : {SheetFirstField, ShallowFirstField, ChannelFirstField})
        flowPath = flowPath || !trim(tables.SubAreaTable(field, Selected)).empty();
    for (QWidget* typed : std::initializer_list<QWidget*>{txtInp(6), lblInput(6), lblInUnit(6)})
        typed->setHidden(flowPath);
    cmdSub(1)->setHidden(!flowPath && !boxBlank(6));
}

int frmSubArea::findRow(const std::string& name) const {
    const std::string wanted = trim(name);
    if (wanted.empty())
        return 0;
    for (int row = tables.SubAreaCount; row >= 1; --row)
        if (trim(tables.SubAreaTable(1, row)) == wanted)
            return row;
    return 0;
}

bool frmSubArea::leaveList(int index) {
    QComboBox* list = cmbInp(index);
    const std::string text = listText(index).substr(0, IdentifierWidth);
    if (!trim(text).empty()) {
        QtComboList items(list);
        AddUnique(items, text);
    }
    // Adding to the list leaves its text as typed, cut to the width of an identifier.
    list->setEditText(fromBytes(text));
    setBoxText(index, text);
    if (index == 1) {
        storeBoxes();
        Selected = findRow(text);
        if (Selected > 0) {
            showRow(Selected);
        } else if (!trim(text).empty()) {
            Selected = addSubAreaRow(tables);
            tables.SubAreaTable(1, Selected) = text;
            for (int box = 2; box <= LastValueBox; ++box)
                clearBox(box);
            for (int box = 2; box <= LastListBox; ++box)
                listFollowsBox(box);
            blankCodes();
            refresh();
        }
    }
    listTakesColour(index);
    Previous = short(Selected);
    return checkBox(index);
}

bool frmSubArea::checkBox(int index) {
    QLineEdit* box = txtInp(index);
    bool valid = true;
    std::string text = boxText(index);
    if (!trim(text).empty()) {
        if (index <= LastListBox && trim(text).size() > size_t(IdentifierWidth)) {
            text = text.substr(0, IdentifierWidth);
            setBoxText(index, text);
        }
        if (index == 4 || index == 6)
            ValidRealAbove(true, 0, text, valid);
        else if (index == 5)
            ValidRealRange(true, 30, 100, text, valid);
        if (Selected == 0 && index > 1)
            valid = false;
        if (!valid) {
            setBackground(box, RefusedColour);
            if (index <= LastListBox)
                listFollowsBox(index);
        } else if (Selected > 0) {
            tables.SubAreaTable(index, Selected) = text;
            setBackground(box, AcceptedColour);
            if (index <= LastListBox)
                listTakesColour(index);
        }
    }
    if (index > LastListBox)
        refresh();
    return valid;
}

int frmSubArea::nextBox(int index) const {
    int next = index + 1;
    while (next > LastListBox && next <= LastValueBox && txtInp(next)->isHidden())
        ++next;
    return next > LastValueBox ? 1 : next;
}

void frmSubArea::openCalculator(int index) {
    storeBoxes();
    tables.CalculatorSubArea = Selected;
    context.windows.ShowWindowAtOrigin(index == 0 ? "frmLandUse" : "frmTc");
}

void frmSubArea::deleteCurrent() {
    if (!trim(listText(1)).empty() &&
        context.platform.showBox({"Delete Current Sub-Area ?", "Sub-Area", BoxButtons::YesNo,
                                  BoxIcon::Question}) == BoxAnswer::Yes) {
        QtComboList list(cmbInp(1));
        RemoveCurrentFromList(list);
        deleteSubAreaRow(tables, Selected);
        Selected = 0;
        for (int index = 1; index <= LastValueBox; ++index)
            clearBox(index);
        for (int index = 1; index <= LastListBox; ++index)
            listFollowsBox(index);
        blankCodes();
    }
    cmbInp(1)->setCurrentIndex(-1);
    cmbInp(1)->setEditText(QString());
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
    Previous = -999;
}

void frmSubArea::addHeldData(std::string& data) const {
    appendTable(data, tables.SubAreaTable);
    appendTable(data, tables.LandUseStore);
}

QStringList frmSubArea::editState() const {
    QStringList state = NetworkWindow::editState();
    if (alternateMode())
        for (const std::string& line : SubAreaSectionRecords(tables))
            state << fromBytes(line);
    return state;
}

std::vector<std::string> frmSubArea::sectionRecords() {
    return SubAreaSectionRecords(tables);
}

void frmSubArea::acceptChanges() {
    if (alternateMode() && ownerClosed()) {
        closeForClosedOwner();
        return;
    }
    if (!boxesFitTheirFields())
        return;
    // The calculators give back what they hold before the rows are written.
    if (!closeChildren())
        return;
    storeBoxes();
    if (!alternateMode()) {
        EntryWindow::acceptChanges();
        return;
    }
    storeSubAreasInAlternate(tables, workingAlternate());
    close();
    FillAlternateChoices(context, 1);
}

} // namespace brooklet
