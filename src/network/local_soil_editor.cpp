#include "network/local_soil_editor.h"

#include "editing/app_context.h"
#include "editing/numbers.h"
#include "editing/qt_grid.h"
#include "network/local_soil.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace brooklet {
namespace {

constexpr int IdentifierBox = 1;
constexpr int FirstGroup = 2;
constexpr int LastGroup = 5;

const QString GroupsLabel = "Hydrologic Soil Groups (HSG)";

} // namespace

// ---- frmLocalSoil ----------------------------------------------------------------------------------

frmLocalSoil::frmLocalSoil(AppContext& context, QWidget* parent)
    : LocalTableWindow(context, {"frmLocalSoil", "Local Soil / HSG", 16, "", 0}, -999, parent) {
    setWindowTitle(design().Caption);
    buildControls();
    Form_Load();
}

void frmLocalSoil::buildControls() {
    const QString identifier = "Local Soil Identifier";
    addRow(addLabel(IdentifierBox, identifier), {addList(identifier)});

    auto* groups = new QGridLayout;
    for (int group = FirstGroup; group <= LastGroup; ++group) {
        const QString letter(QChar('A' + group - FirstGroup));
        auto* label = new QLabel(letter, this);
        nameControl(label, indexedName("lblStatic", group), letter);
        lblStatic.add(group, label);
        auto* check = new QCheckBox(this);
        nameControl(check, indexedName("Check1", group), letter);
        check->setAccessibleDescription(GroupsLabel);
        label->setBuddy(check);
        Check1.add(group, check);
        groups->addWidget(label, 0, group - FirstGroup, Qt::AlignHCenter);
        groups->addWidget(check, 1, group - FirstGroup, Qt::AlignHCenter);
    }
    auto* groupBox = new OptionGroup(GroupsLabel, this);
    static_cast<QHBoxLayout*>(groupBox->layout())->addLayout(groups);
    addRow(addLabel(7, GroupsLabel), {groupBox});

    auto* comment = new QLabel("Check all HSGs that apply to the Local Soil Identifier", this);
    nameControl(comment, indexedName("lblComment", 1), comment->text());
    addRow(nullptr, {comment});
    addCommandButtons("Delete Soil", "    No Changes   (Close)", "Accept Changes (Close)");
}

void frmLocalSoil::Form_Load() {
    resetTable();
    for (const SoilRow& soil : ReadLocalSoilFile(session.LocalSoilFile))
        addLoadedRow(soil, true);
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmLocalSoil::showRow(int row) {
    txtInp(IdentifierBox)->setText(fromBytes(Table.Rows(1, row)));
    setBackground(txtInp(IdentifierBox), UntouchedColour);
    listCopiesShadow();
    for (int group = FirstGroup; group <= LastGroup; ++group)
        Check1(group)->setChecked(!Table.Rows(group, row).empty());
}

void frmLocalSoil::clearBoxes() {
    for (int group = FirstGroup; group <= LastGroup; ++group)
        Check1(group)->setChecked(false);
}

void frmLocalSoil::storeBoxes() {
    if (Table.Previous <= 0 || trim(toBytes(txtInp(IdentifierBox)->text())).empty())
        return;
    for (int group = FirstGroup; group <= LastGroup; ++group)
        Table.Rows(group, Table.Previous) =
            Check1(group)->isChecked() ? toBytes(lblStatic(group)->text()) : "";
}

BoxRequest frmLocalSoil::deleteQuestion() const {
    return {"Delete Current Local Soil Data ?", DefaultBoxTitle, BoxButtons::YesNo, BoxIcon::Question};
}

void frmLocalSoil::forgetDeletedRow() {
    Table.Selected = 0;
}

std::vector<std::string> frmLocalSoil::fileLines() {
    if (Table.Selected > 0)
        storeBoxes();
    return LocalSoilFileLines(Table);
}

const std::string& frmLocalSoil::filePath() const {
    return session.LocalSoilFile;
}

bool frmLocalSoil::checkBox(int) {
    cutShadowBox(SoilIdentifierLength);
    return true;
}

// ---- frmDisplaySoil --------------------------------------------------------------------------------

frmDisplaySoil::frmDisplaySoil(AppContext& context, QWidget* parent) : QWidget(parent), context_(context) {
    setObjectName("frmDisplaySoil");
    setWindowTitle("Display Local Soil/HSG");
    buildControls();
    Form_Load();
}

frmDisplaySoil::~frmDisplaySoil() = default;

void frmDisplaySoil::buildControls() {
    auto* layout = new QVBoxLayout(this);

    MSFlexGrid1 = new QTableWidget(1, 2, this);
    nameControl(MSFlexGrid1, "MSFlexGrid1", "Local soils and their hydrologic soil groups");
    MSFlexGrid1->horizontalHeader()->hide();
    MSFlexGrid1->verticalHeader()->hide();
    MSFlexGrid1->setSelectionMode(QAbstractItemView::NoSelection);
    MSFlexGrid1->setColumnWidth(0, twips(2000));
    MSFlexGrid1->setColumnWidth(1, twips(900));
    MSFlexGrid1->setMinimumWidth(twips(2000) + twips(900) + 2 * MSFlexGrid1->frameWidth() + 20);
    grid = std::make_unique<QtGrid>(MSFlexGrid1);
    // The heads stand in the fixed row above the soils.
    grid->setCellText(0, 0, "Local Soil Identifier");
    grid->setCellText(0, 1, "HSG");
    for (int col = 0; col < 2; ++col) {
        QTableWidgetItem* head = MSFlexGrid1->item(0, col);
        head->setFlags(Qt::ItemIsEnabled);
        QFont bold = head->font();
        bold.setBold(true);
        head->setFont(bold);
    }
    layout->addWidget(MSFlexGrid1);

    auto* find = new QHBoxLayout;
    auto* label = new QLabel("Find in Soil List", this);
    nameControl(label, indexedName("lblInput", 1), label->text());
    auto* box = new QLineEdit(this);
    nameControl(box, indexedName("txtInp", 1), label->text());
    label->setBuddy(box);
    txtInp.add(1, box);
    find->addWidget(label);
    find->addWidget(box);
    layout->addLayout(find);
    connect(box, &QLineEdit::textChanged, this, &frmDisplaySoil::findSoil);

    // The row marking loads a marked row into these when asked to; here it never is.
    for (int index = 1; index <= 2; ++index) {
        auto* dummy = new QLineEdit(this);
        nameControl(dummy, indexedName("txtDum", index));
        dummy->hide();
        txtDum.add(index, dummy);
    }

    cmdCancel = new QPushButton("  Close   ", this);
    nameControl(cmdCancel, "cmdCancel", cmdCancel->text());
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    layout->addLayout(buttons);
}

void frmDisplaySoil::Form_Load() {
    grid_.MarkedRow = NoMarkedRow;
    grid_.GridBusy = false;
    grid_.GridFirstRow = 1;
    grid_.GridFirstCol = 0;
    grid_.GridBoxBase = 1;
    grid_.GridRowsUsed = 0;
    for (const auto& [identifier, groups] : ReadSoilDisplay(context_.session.LocalSoilFile)) {
        grid->AddItem(identifier + "\t" + groups, grid->Rows());
        ++grid_.GridRowsUsed;
    }
    txtInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmDisplaySoil::findSoil() {
    if (finding_)
        return;
    QLineEdit* box = txtInp(1);
    const std::string text = trim(toBytes(box->text()));
    if (fromBytes(text) != box->text()) {
        finding_ = true;
        box->setText(fromBytes(text));
        finding_ = false;
    }
    if (text.empty())
        return;
    const int hit = FindSoilRow(*grid, grid_.GridFirstRow, grid_.GridRowsUsed, text);
    if (hit == 0)
        return;
    grid->setTopRow(hit);
    grid_.GridRow = hit;
    QtBoxes boxes(txtDum);
    SelectGridRow(grid_, *grid, boxes, false);
}

} // namespace brooklet
