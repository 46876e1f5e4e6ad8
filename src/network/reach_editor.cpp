#include "network/reach_editor.h"

#include "editing/app_context.h"
#include "editing/field_checks.h"
#include "editing/identifier_lists.h"
#include "editing/numbers.h"
#include "editing/qt_lists.h"
#include "editing/watershed_tables.h"
#include "network/reach.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>

namespace brooklet {
namespace {

constexpr int CodeGroups = 6;
constexpr int IdentifierWidth = 10;
constexpr int LastKeyedBox = 18;

const char* const Labels[] = {"Stream Reach Identifier",
                              "Stream Receiving      Reach Identifier",
                              "Reach Cross Section      Identifier",
                              "Reach Structure Identifier",
                              "Reach Channel Length",
                              "Reach Valley Length",
                              "Constant Base Flow",
                              "Reach Peak Output Code",
                              "Reach Hydrograph Output Code",
                              "Reach Peak Summary Output Code",
                              "Reach Time Analysis Code",
                              "Reach Hydrograph File Code",
                              "Reach Flood Economics File Code",
                              "Split Flow Reach Identifier",
                              "Split Flow Cross Section Identifier",
                              "Starting Split Flow",
                              "Ending Split Flow",
                              "Split Flow Drainage Area",
                              "Reach Hydraulic Conductivity",
                              "Storage Available in Alluvium"};

bool isList(int index) {
    return index <= 4 || index == 14 || index == 15;
}

// The boxes that show a table field of their own: all but the code boxes 8 to 13.
bool showsField(int index) {
    return index < FirstReachCodeField || index > LastReachCodeField;
}

} // namespace

frmReaches::frmReaches(AppContext& context, QWidget* parent)
    : NetworkWindow(context, {"frmReaches", "Stream Reach", 12, "RC", ReachSection},
                    OpenedFrom::SectionOrAlternate, parent) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmReaches::buildControls() {
    addHeader("Stream Reach:");
    addAlternateLabels();
    for (int index = 1; index <= ReachFields; ++index) {
        const QString caption = Labels[index - 1];
        HelpLabel* label = addLabel(index, caption);
        if (index >= FirstReachCodeField && index <= LastReachCodeField) {
            addRow(label, {addCodeGroup(index - BaseFlowField, caption)});
            continue;
        }
        if (isList(index)) {
            addRow(label, {addList(index, caption)});
            continue;
        }
        QLineEdit* box = addBox(index, caption.simplified());
        box->setFixedWidth(110);
        const bool unit = index != 18;
        addRow(label, {box}, unit ? addUnitLabel(index) : nullptr);
    }
    // The reach loss fields are shown but closed to the user.
    for (int index : {FirstLossField, LastLossField})
        txtInp(index)->setFocusPolicy(Qt::NoFocus);
    addCommandButtons("    Delete             Reach", "     No Changes   (Close)",
                      "Accept Changes   (Close)");
}

void frmReaches::setDefaults() {
    const UnitWords& units = session.Units;
    for (int index : {5, 6})
        lblInUnit(index)->setText(fromBytes(units.LengthUnit));
    lblInUnit(7)->setText(fromBytes(units.UnitFlowUnit));
    for (int index : {16, 17})
        lblInUnit(index)->setText(fromBytes(units.FlowUnit));
    lblInUnit(19)->setText(session.EnglishUnits ? "in/sec" : "mm/sec");
    lblInUnit(20)->setText(session.EnglishUnits ? "cu ft/ft len" : "cu m/m len");
    ReachTable.redim(ReachFields, 1);
    ReachCount = 0;
    Selected = 0;
    Previous = -999;
    if (!alternateMode())
        return;
    const WatershedTables& tables = context.watershed;
    lblStatic(2)->setText(
        fromBytes(tables.AlternateNames(1, std::min(workingAlternate(), tables.AlternateNames.rows()))));
    lblStatic(1)->show();
    lblStatic(2)->show();
    loadReachesFromAlternate(tables, workingAlternate(), ReachTable, ReachCount);
}

void frmReaches::readSection(const std::vector<std::string>& lines) {
    if (!alternateMode())
        ReadReachSection(lines, ReachTable, ReachCount);
}

void frmReaches::afterLoad() {
    txtHelp->hide();
    fillList({1, 2, 14}, [this](ListControl& list) { FillReachList(session, list, false); });
    fillList({3, 15}, [this](ListControl& list) { FillCrossSectionList(session, list); });
    fillList({4}, [this](ListControl& list) { FillStructureList(session, list); });
    const int picked = context.watershed.AlternatePickedRow;
    if (alternateMode() && picked >= 1 && picked <= ReachCount) {
        Selected = picked;
        setBoxText(1, ReachTable(1, picked));
        showRow(picked);
    }
}

void frmReaches::showRow(int row) {
    for (int index = 1; index <= ReachFields; ++index) {
        if (!showsField(index))
            continue;
        setBoxText(index, ReachTable(index, row));
        if (index <= LastKeyedBox)
            setBackground(txtInp(index), UntouchedColour);
        if (isList(index))
            listFollowsBox(index);
    }
    for (int group = 1; group <= CodeGroups; ++group)
        showCode(group, ReachTable(BaseFlowField + group, row));
    Previous = short(row);
}

void frmReaches::storeBoxes() {
    if (Previous >= 1 && Previous <= ReachTable.rows()) {
        // The identifier is the row's own: the list may already name the next row.
        for (int index = 2; index <= ReachFields; ++index)
            if (showsField(index))
                ReachTable(index, Previous) = boxText(index);
        for (int group = 1; group <= CodeGroups; ++group)
            storeCode(group, ReachTable(BaseFlowField + group, Previous));
    }
    Previous = short(Selected);
}

void frmReaches::clearBoxes() {
    for (int index = 2; index <= ReachFields; ++index) {
        if (!showsField(index))
            continue;
        clearBox(index);
        if (isList(index))
            listFollowsBox(index);
    }
    blankCodes();
}

int frmReaches::findRow(const std::string& name) const {
    const std::string wanted = toUpper(trim(name));
    for (int row = ReachCount; row >= 1; --row)
        if (toUpper(trim(ReachTable(1, row))) == wanted)
            return row;
    return 0;
}

bool frmReaches::leaveList(int index) {
    QComboBox* list = cmbInp(index);
    const std::string text = listText(index).substr(0, IdentifierWidth);
    list->setEditText(fromBytes(text));
    setBoxText(index, text);
    if (!trim(text).empty()) {
        // A new name joins every list that offers names of its kind.
        std::vector<int> kin;
        if (index == 2 || index == 14)
            kin = {2, 14};
        else if (index == 3 || index == 15)
            kin = {3, 15};
        else if (index == 4)
            kin = {4};
        for (int other : kin) {
            QtComboList items(cmbInp(other));
            const QString shown = cmbInp(other)->currentText();
            AddUnique(items, text);
            cmbInp(other)->setEditText(shown);
        }
    }
    if (index == 1) {
        storeBoxes();
        Selected = trim(text).empty() ? 0 : findRow(text);
        if (Selected > 0) {
            showRow(Selected);
        } else if (!trim(text).empty() && toUpper(trim(text)) != "OUTLET") {
            QtComboList items(list);
            AddUnique(items, text);
            list->setEditText(fromBytes(text));
            Selected = ++ReachCount;
            ReachTable.ensureRows(Selected);
            ReachTable(1, Selected) = text;
            clearBoxes();
        }
        // OUTLET can't be a reach of this section.
        if (Selected == 0)
            list->setEditText(QString());
        txtInp(1)->setText(list->currentText());
        listTakesColour(1);
        Previous = short(Selected);
    }
    return checkBox(index);
}

bool frmReaches::checkBox(int index) {
    const std::string text = boxText(index);
    const bool blank = trim(text).empty();
    bool valid = true;
    switch (index) {
    case 5:
    case 7:
        ValidRealAbove(true, 0, text, valid);
        break;
    case 6:
    case 16:
    case 17:
        ValidRealAtLeast(true, 0, text, valid);
        if ((index == 16 || index == 17) && !trim(listText(15)).empty() && !blank)
            valid = false;
        break;
    case 15:
        if (!trim(listText(15)).empty() && !(boxBlank(16) && boxBlank(17)))
            valid = false;
        break;
    case 18:
        ValidRealRange(alternateMode() || boxBlank(14), 0.001, 1, text, valid);
        break;
    case 19:
    case 20:
        ValidRealAbove(alternateMode(), 0, text, valid);
        break;
    default:
        break;
    }
    if (Selected == 0 && index > 1 && !blank)
        valid = false;
    setBackground(txtInp(index), valid ? UntouchedColour : RefusedColour);
    if (isList(index))
        listTakesColour(index);
    return valid;
}

int frmReaches::nextBox(int index) const {
    if (index >= FirstLossField)
        return index;
    int next = index + 1;
    if (next > LastKeyedBox)
        next = 1;
    if (next == FirstReachCodeField)
        next = FirstSplitField;
    return next;
}

bool frmReaches::eventFilter(QObject* watched, QEvent* event) {
    // The reach loss fields: a press sends the focus to the split flow drainage area.
    if ((watched == txtInp(FirstLossField) || watched == txtInp(LastLossField)) &&
        event->type() == QEvent::MouseButtonPress) {
        focusBox(LastKeyedBox);
        return true;
    }
    return NetworkWindow::eventFilter(watched, event);
}

void frmReaches::deleteCurrent() {
    if (!trim(listText(1)).empty() &&
        context.platform.showBox({"Delete Current Reach ?", "Stream Reach", BoxButtons::YesNo,
                                  BoxIcon::Question}) == BoxAnswer::Yes) {
        QtComboList list(cmbInp(1));
        RemoveCurrentFromList(list);
        if (Selected >= 1 && Selected <= ReachCount) {
            for (int row = Selected; row < ReachCount; ++row)
                ReachTable.copyRow(row + 1, row);
            --ReachCount;
            if (ReachCount > 0)
                ReachTable.resizeRows(ReachCount);
        }
        Selected = 0;
        Previous = -999;
        txtInp(1)->clear();
        setBackground(txtInp(1), UntouchedColour);
        listFollowsBox(1);
        clearBoxes();
    }
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmReaches::addHeldData(std::string& data) const {
    appendTable(data, ReachTable);
}

std::vector<std::string> frmReaches::sectionRecords() {
    return ReachSectionRecords(ReachTable, ReachCount);
}

void frmReaches::acceptChanges() {
    if (alternateMode() && ownerClosed()) {
        closeForClosedOwner();
        return;
    }
    if (!boxesFitTheirFields())
        return;
    storeBoxes();
    if (!alternateMode()) {
        EntryWindow::acceptChanges();
        return;
    }
    storeReachesInAlternate(context.watershed, workingAlternate(), ReachTable, ReachCount);
    session.DataChanged = true;
    close();
    FillAlternateChoices(context, 2);
}

} // namespace brooklet
