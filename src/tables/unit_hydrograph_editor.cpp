#include "tables/unit_hydrograph_editor.h"

#include "editing/app_context.h"
#include "tables/unit_hydrograph.h"
#include "tables/value_grid_window.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace brooklet {
namespace {

// The one table of the section, in the window's tables.
constexpr int TheTable = 1;

} // namespace

frmDimHyd::frmDimHyd(AppContext& context, QWidget* parent)
    : EntryWindow(context, {"frmDimHyd", "Unit Hydrograph", 29, "DH", UnitHydrographSection}, parent) {
    // The plot window takes the table named here.
    setProperty("Tag", QString::number(TheTable));
    buildControls();
    Form_Load();
}

QTableWidget* frmDimHyd::grid() const {
    return panel_->MSFlexGrid1;
}

void frmDimHyd::buildControls() {
    addHeader("Dimensionless Unit Hydrograph:");
    QLineEdit* shadow = addBox(1, "Dimensionless Hydrograph Points:", 0);
    shadow->setEnabled(false);
    shadow->hide();
    addRow(addLabel(1, "Dimensionless Hydrograph Points:"), {});
    addRow(
        captionLabel(this, "lblDispBox(0)", "Entered Data:"),
        {captionLabel(
            this, "Label4(0)",
            "Click grid cell to edit previously entered data. RIGHT click to insert or delete  a value.")});
    panel_ = new ValueGridPanel(this, context, tabular, {10, false, 1}, "Dimensionless Hydrograph Points",
                                {[this] { updatePlotButton(); },
                                 [this] {
                                     if (panel_->values().Index > 2) {
                                         CmdPlot->setEnabled(true);
                                         cmdDelAll->setEnabled(true);
                                     }
                                 },
                                 [] {}, [this](const std::string& note) { showNote(note); }});
    addRow(nullptr, {panel_->MSFlexGrid1});
    addButtons("    No Changes      (Close)", "Accept Changes  (Close)");
    CmdPlot = new QPushButton("Display Data", this);
    nameControl(CmdPlot, "CmdPlot", "Display Data");
    cmdDelAll = new QPushButton("      Delete         DimHyd", this);
    nameControl(cmdDelAll, "cmdDelAll", "Delete DimHyd");
    connect(CmdPlot, &QPushButton::clicked, this, &frmDimHyd::displayData);
    connect(cmdDelAll, &QPushButton::clicked, this, &frmDimHyd::deleteAll);
    // The two go before the buttons that close the window.
    auto* outer = static_cast<QVBoxLayout*>(layout());
    auto* buttons = static_cast<QHBoxLayout*>(outer->itemAt(outer->indexOf(txtHelp) - 1)->layout());
    buttons->insertWidget(0, CmdPlot);
    buttons->insertWidget(1, cmdDelAll);
}

void frmDimHyd::setDefaults() {
    resetTabularTables(tabular, 1, 1);
    addTable(tabular);
}

void frmDimHyd::readSection(const std::vector<std::string>& lines) {
    LoadValueTables(tabular, {{{}, ReadUnitHydrographSection(lines)}}, 1);
}

void frmDimHyd::afterLoad() {
    tabular.TableCurrent = TheTable;
    tabular.TableNext = TheTable;
    if (tabular.TableFirst[TheTable] == 0) {
        resetTable();
    } else {
        panel_->values().showTable(TheTable);
        updatePlotButton();
        cmdDelAll->setEnabled(true);
    }
    panel_->enter();
}

void frmDimHyd::changeEvent(QEvent* event) {
    EntryWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !grid()->hasFocus())
        grid()->setFocus(Qt::ActiveWindowFocusReason);
}

void frmDimHyd::resetTable() {
    panel_->values().startTable("0", 1);
    tabular.TableFirst[TheTable] = 0;
    tabular.TableLast[TheTable] = 0;
    CmdPlot->setEnabled(false);
    cmdDelAll->setEnabled(false);
}

void frmDimHyd::updatePlotButton() {
    CmdPlot->setEnabled(panel_->values().Index > 2);
    // Values typed into a fresh table can be deleted as soon as they are there, not only after a
    // click in the grid.
    if (panel_->values().Index > 2)
        cmdDelAll->setEnabled(true);
}

void frmDimHyd::displayData() {
    ValueGrid& values = panel_->values();
    if (values.Index <= 1) {
        context.platform.showBox({" No Data Entered", DefaultBoxTitle, BoxButtons::Ok, BoxIcon::None});
        return;
    }
    values.store();
    context.plots.PlotKind = 1;
    context.windows.ShowModal("frmIO_Plots");
}

void frmDimHyd::deleteAll() {
    panel_->values().store();
    if (context.platform.showBox({"Delete dimensionless unit hydrograph data ?",
                                  "Dimensionless Unit Hydrograph", BoxButtons::YesNo, BoxIcon::Question}) !=
        BoxAnswer::No)
        resetTable();
    grid()->setFocus(Qt::OtherFocusReason);
}

std::vector<std::string> frmDimHyd::sectionRecords() {
    panel_->finishTyping();
    ValueGrid& values = panel_->values();
    // With one or two values the section is left empty.
    if (values.Index <= 2)
        return {};
    values.store();
    return WriteUnitHydrographSection(StoredValueTables(tabular)[0].Values);
}

} // namespace brooklet
