#include "network/local_land_use_editor.h"

#include "editing/app_context.h"
#include "editing/help_box.h"
#include "editing/numbers.h"
#include "network/local_land_use.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace brooklet {
namespace {

constexpr int NameBox = 1;
constexpr int LastCurveNumberBox = 5;

} // namespace

frmLocalLanduse::frmLocalLanduse(AppContext& context, QWidget* parent)
    : LocalTableWindow(context, {"frmLocalLanduse", "Local Land Use", 14, "LL", 0}, 0, parent) {
    buildControls();
    Form_Load();
    cmbInp(1)->setFocus(Qt::OtherFocusReason);
}

void frmLocalLanduse::buildControls() {
    addHeader("Local Land Use Definitions:");
    const QString name = "Curve Number Identifier";
    addRow(addLabel(NameBox, name), {addList(name)});
    for (int index = 2; index <= LastCurveNumberBox; ++index) {
        const QString caption = QString("Curve Number \"%1\"").arg(QChar('A' + index - 2));
        QLineEdit* box = addBox(index, caption, SectionValueWidth);
        box->setMaximumWidth(90);
        addRow(addLabel(index, caption), {box});
    }
    addCommandButtons("Delete Curve Number Identifier", "      No Changes   (Close)",
                      "Accept Changes  (Close)");
}

void frmLocalLanduse::Form_Load() {
    resetTable();
    session.HelpCode = design().HelpCode;
    session.HelpShown = NoHelpShown;
    for (const LandUseRow& row : ReadLocalLandUseFile(session.LocalLandUseFile, BlankName::SkipLine))
        addLoadedRow(row, false);
    setWindowTitle("Local Land Use   Current File - " + pathToQt(session.LocalLandUseFile));
    txtHelp->hide();
}

void frmLocalLanduse::showRow(int row) {
    for (int index = NameBox; index <= LastCurveNumberBox; ++index) {
        // A value of the file wider than its box is shown whole, never cut on the way.
        setTextUncut(txtInp(index), fromBytes(Table.Rows(index, row)));
        setBackground(txtInp(index), UntouchedColour);
    }
    listCopiesShadow();
}

void frmLocalLanduse::clearBoxes() {
    for (int index = 2; index <= LastCurveNumberBox; ++index) {
        txtInp(index)->clear();
        setBackground(txtInp(index), UntouchedColour);
    }
}

void frmLocalLanduse::storeBoxes() {
    if (Table.Previous < 1 || trim(toBytes(txtInp(NameBox)->text())).empty())
        return;
    for (int index = NameBox; index <= LastCurveNumberBox; ++index)
        Table.Rows(index, Table.Previous) = toBytes(txtInp(index)->text());
}

BoxRequest frmLocalLanduse::deleteQuestion() const {
    return {"Delete Current Local Land Use Data ?", "Local Land Use", BoxButtons::YesNo, BoxIcon::Question};
}

void frmLocalLanduse::forgetDeletedRow() {
    Table.Previous = 0;
}

std::vector<std::string> frmLocalLanduse::fileLines() {
    Table.Previous = Table.Selected;
    if (Table.Previous > 0)
        storeBoxes();
    return LocalLandUseFileLines(Table);
}

const std::string& frmLocalLanduse::filePath() const {
    return session.LocalLandUseFile;
}

bool frmLocalLanduse::checkBox(int index) {
    QLineEdit* box = txtInp(index);
    bool valid = true;
    if (index == NameBox) {
        cutShadowBox(LandUseNameLength);
    } else {
        const std::string before = index > 2 ? toBytes(txtInp(index - 1)->text()) : std::string();
        valid = CurveNumberAccepted(index, toBytes(box->text()), before);
    }
    // A curve number, or a name, belongs to a row: with none selected the field is refused.
    if (Table.Selected == 0)
        valid = false;
    setBackground(box, valid ? UntouchedColour : RefusedColour);
    return valid;
}

int frmLocalLanduse::nextBox(int index) const {
    return index >= LastCurveNumberBox ? NameBox : index + 1;
}

bool frmLocalLanduse::eventFilter(QObject* watched, QEvent* event) {
    // Here a curve number box is checked whenever it loses the focus, not only on Tab or Enter.
    if (event->type() == QEvent::FocusOut && !Accepting &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason) {
        for (int index = 2; index <= LastCurveNumberBox; ++index)
            if (watched == txtInp(index))
                checkBox(index);
    }
    return LocalTableWindow::eventFilter(watched, event);
}

} // namespace brooklet
