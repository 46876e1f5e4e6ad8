#include "network/land_use_window.h"

#include "base/text.h"
#include "editing/app_context.h"
#include "editing/qt_grid.h"
#include "editing/watershed_tables.h"
#include "network/local_soil.h"
#include "network/sub_area.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace brooklet {
namespace {

// The focus index of the grid in the window's order of fields.
constexpr int GridField = 2;
constexpr int AreaBox = 26;
constexpr int AccumulatedBox = 27;
constexpr int WeightedBox = 28;

} // namespace

frmLandUse::frmLandUse(AppContext& context, QWidget* parent)
    : NetworkWindow(context, {"frmLandUse", "Sub-Area Land Use", 17, "AR", SubAreaSection},
                    OpenedFrom::SubAreaWindow, parent),
      tables(context.watershed) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

frmLandUse::~frmLandUse() = default;

void frmLandUse::buildControls() {
    addHeader("Land Use Areas:");
    addAlternateLabels();
    addRow(addLabel(1, "Sub-Area Identifier"), {addList(1, "Sub-Area Identifier")});
    QLineEdit* area = addBox(AreaBox, "Land Use Area Drainage Area", 0);
    area->setReadOnly(true);
    area->setFocusPolicy(Qt::ClickFocus);
    addRow(addLabel(AreaBox, "Land Use Area Drainage Area"), {area}, addUnitLabel(AreaBox));
    const char* const sums[] = {"Accumulated Drainage Area", "Sub-Area Weighted CN"};
    for (int index : {AccumulatedBox, WeightedBox}) {
        auto* display = new QLineEdit(this);
        nameControl(display, indexedName("txtlbl", index), sums[index - AccumulatedBox]);
        display->setReadOnly(true);
        display->setFocusPolicy(Qt::ClickFocus);
        display->setFixedWidth(110);
        txtlbl.add(index, display);
        addRow(addLabel(index, sums[index - AccumulatedBox]), {display},
               index == AccumulatedBox ? addUnitLabel(index) : nullptr);
    }
    const char* const comments[] = {"Summary of grid information.",
                                    "Right click on entered land use area box to delete value.",
                                    "Local Curve Number Identifiers and curve numbers can be added to grid "
                                    "using Local Land Use entry on main "
                                    "window File pull down."};
    auto* outer = static_cast<QVBoxLayout*>(layout());
    for (int index = 0; index < 3; ++index) {
        auto* comment = new QLabel(comments[index], this);
        nameControl(comment, indexedName("lblComment", index), comments[index]);
        comment->setWordWrap(true);
        lblComment.add(index, comment);
        outer->insertWidget(outer->indexOf(txtHelp), comment);
    }

    MSFlexGrid1 = new QTableWidget(1, LandUseGridCols, this);
    nameControl(MSFlexGrid1, "MSFlexGrid1", "Land use areas by hydrologic soil group");
    MSFlexGrid1->horizontalHeader()->hide();
    MSFlexGrid1->verticalHeader()->hide();
    MSFlexGrid1->setSelectionMode(QAbstractItemView::NoSelection);
    MSFlexGrid1->setTabKeyNavigation(false);
    MSFlexGrid1->setWordWrap(true);
    MSFlexGrid1->setColumnWidth(0, twips(3000));
    int width = twips(3000);
    for (int col = 1; col < LandUseGridCols; ++col) {
        MSFlexGrid1->setColumnWidth(col, twips(col % 2 ? 850 : 300));
        width += twips(col % 2 ? 850 : 300);
    }
    MSFlexGrid1->setMinimumWidth(width + 2 * MSFlexGrid1->frameWidth() + 20);
    MSFlexGrid1->setMinimumHeight(240);
    grid = std::make_unique<QtGrid>(MSFlexGrid1);
    MSFlexGrid1->viewport()->installEventFilter(this);
    connect(MSFlexGrid1, &QTableWidget::currentCellChanged, this, [this](int row, int col) {
        if (work.Repainting)
            return;
        CursorMoved(work, *grid, row, col);
        showSums();
    });
    new GridKeyFeeder(MSFlexGrid1, [this](int& key) {
        LandUseKey(work, *grid, key);
        showSums();
    });
    outer->insertWidget(outer->indexOf(txtHelp), MSFlexGrid1, 1);

    mnupopup = new QMenu(this);
    mnupopup->setObjectName("mnupopup");
    QAction* deleteItem = mnupopup->addAction("Delete Value");
    deleteItem->setObjectName(indexedName("mnuDelInsItem", 2));
    connect(deleteItem, &QAction::triggered, this, &frmLandUse::deleteValue);

    CmdPopup = new QPushButton("    Display          Local Soils", this);
    nameControl(CmdPopup, "CmdPopup", "Display Local Soils");
    connect(CmdPopup, &QPushButton::clicked, this,
            [this] { this->context.windows.ShowWindowAtOrigin("frmDisplaySoil"); });
    addReturnButtons("Delete Land Use Details", {CmdPopup});
}

void frmLandUse::setDefaults() {
    lblInUnit(AreaBox)->setText(fromBytes(session.Units.AreaUnit));
    lblInUnit(AccumulatedBox)->setText(fromBytes(session.Units.AreaUnit));
    showAlternateName();
}

void frmLandUse::afterLoad() {
    CmdPopup->setVisible(LocalSoilFileOpens(session.LocalSoilFile));
    work.Repainting = true;
    FillLandUseGrid(*grid, ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::EndReading));
    work.Repainting = false;
    MSFlexGrid1->setRowHeight(0, twips(440));
    for (int col = 0; col < LandUseGridCols; ++col)
        if (QTableWidgetItem* head = MSFlexGrid1->item(0, col)) {
            QFont bold = head->font();
            bold.setBold(true);
            head->setFont(bold);
        }
    QStringList names;
    for (const std::string& name : LoadLandUseWork(work, tables))
        names << fromBytes(name);
    cmbInp(1)->addItems(names);
    cmbInp(1)->setCurrentIndex(-1);
    txtHelp->hide();
    work.SumAreaTimesCn = 0;
    const int row = tables.CalculatorSubArea;
    if (row > 0 && row <= tables.SubAreaCount) {
        work.WorkRow = short(row);
        Selected = row;
        shownRow_ = row;
        setBoxText(1, tables.SubAreaTable(1, row));
        cmbInp(1)->setEditText(txtInp(1)->text());
        ShowSubAreaCells(work, *grid, row);
    }
    cmdDelCur->setVisible(!trim(listText(1)).empty());
    cursorHome();
}

void frmLandUse::cursorHome() {
    MoveCursorQuietly(work, *grid, 1, 1);
    CursorMoved(work, *grid, 1, 1);
    MSFlexGrid1->scrollToTop();
    showSums();
}

void frmLandUse::showSums() {
    txtlbl(AccumulatedBox)->setText(fromBytes(work.Accumulated));
    txtlbl(WeightedBox)->setText(fromBytes(work.WeightedCn));
}

void frmLandUse::clearGrid() {
    ClearLandUseGrid(work, *grid);
    txtInp(AreaBox)->clear();
    showSums();
}

void frmLandUse::storeGrid() {
    if (work.WorkRow > 0)
        StoreLandUseGrid(work, *grid, tables, workingAlternate());
}

bool frmLandUse::leaveList(int index) {
    setBoxText(index, listText(index));
    const int row = FindLandUseSubArea(work, boxText(1));
    Selected = row;
    if (work.WorkRow > 0 && row != work.WorkRow) {
        storeGrid();
        work.WorkRow = short(row);
    }
    // The grid shows the cells of one sub-area only: those of the sub-area left go before the
    // next one's come.
    if (row != shownRow_) {
        clearGrid();
        if (row > 0)
            ShowSubAreaCells(work, *grid, row);
        shownRow_ = row;
        if (row > 0)
            cursorHome();
    }
    if (row > 0) {
        setBackground(txtInp(1), AcceptedColour);
        listTakesColour(1);
    } else {
        setBackground(txtInp(1), RefusedColour);
        listTakesColour(1);
    }
    cmdDelCur->setVisible(!trim(listText(1)).empty());
    return row > 0 || trim(listText(1)).empty();
}

void frmLandUse::focusBox(int index) {
    if (index == GridField)
        MSFlexGrid1->setFocus(Qt::TabFocusReason);
    else
        NetworkWindow::focusBox(index);
}

bool frmLandUse::eventFilter(QObject* watched, QEvent* event) {
    if (MSFlexGrid1 && watched == MSFlexGrid1->viewport() && event->type() == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint at = mouse->position().toPoint();
        const int row = MSFlexGrid1->rowAt(at.y());
        const int col = MSFlexGrid1->columnAt(at.x());
        if (row >= 1 && col >= 0) {
            MSFlexGrid1->setFocus(Qt::MouseFocusReason);
            MoveCursorQuietly(work, *grid, row, col);
            CursorMoved(work, *grid, row, col);
            showSums();
            if (mouse->button() == Qt::RightButton)
                mnupopup->popup(mouse->globalPosition().toPoint());
        }
        return true;
    }
    if (cmbInp(1) && watched == cmbInp(1) && event->type() == QEvent::FocusIn &&
        leavesTheField(static_cast<QFocusEvent*>(event)) && cmdDelCur->isVisible())
        storeGrid();
    return NetworkWindow::eventFilter(watched, event);
}

void frmLandUse::deleteValue() {
    DeleteCellValue(work, *grid);
    showSums();
    mnupopup->close();
}

void frmLandUse::deleteCurrent() {
    if (context.platform.showBox({"Delete Current Sub-Area Land Use Data ?", "Sub-area Land Use",
                                  BoxButtons::YesNo, BoxIcon::Question}) != BoxAnswer::Yes)
        return;
    DeleteSubAreaLandUse(work, *grid, Selected);
    clearGrid();
}

void frmLandUse::addHeldData(std::string& data) const {
    appendTable(data, work.WorkStore);
    for (const std::string& id : work.LandUseIds)
        data += id + '\x1f';
}

std::vector<std::string> frmLandUse::sectionRecords() {
    return SubAreaSectionRecords(tables);
}

void frmLandUse::acceptChanges() {
    if (ownerClosed()) {
        closeForClosedOwner();
        return;
    }
    if (!boxesFitTheirFields())
        return;
    work.WorkRow = short(Selected);
    storeGrid();
    if (Selected > 0 && size_t(Selected) < work.RowIds.size() &&
        subAreaRowOf(tables, work.RowIds[size_t(Selected)]) == 0)
        tellSubAreaDeleted(work.LandUseIds[size_t(Selected)]);
    if (ReturnLandUseWork(work, tables) && !alternateMode())
        EntryWindow::acceptChanges();
    else
        close();
}

} // namespace brooklet
