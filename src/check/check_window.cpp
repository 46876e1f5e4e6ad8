#include "check/check_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "editing/app_context.h"
#include "editing/widgets.h"
#include "options/entry_window.h"

namespace brooklet {
namespace {

std::string counted(int count, const std::string& word) {
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

// The caption of a section as the main list shows it, without its colon.
std::string sectionCaption(int section) {
    if (section < 1 || section > SectionCount)
        return "Input File";
    std::string caption = sectionHeader(section);
    if (!caption.empty() && caption.back() == ':')
        caption.pop_back();
    return caption;
}

} // namespace

std::string findingsSummary(const Findings& findings) {
    if (findings.empty())
        return "No findings: the input is ready to run.";
    const int errors = errorCount(findings);
    const int warnings = static_cast<int>(findings.size()) - errors;
    if (errors == 0)
        return counted(warnings, "warning");
    if (warnings == 0)
        return counted(errors, "error");
    return counted(errors, "error") + " and " + counted(warnings, "warning");
}

frmCheck::frmCheck(AppContext& context, std::function<Findings()> check, QWidget* parent)
    : QWidget(parent), context_(context), check_(std::move(check)) {
    setObjectName("frmCheck");
    setWindowTitle("Check Watershed");
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);

    lblSummary = new QLabel(this);
    nameControl(lblSummary, "lblSummary", "Summary");
    layout->addWidget(lblSummary);

    lstFindings = new QTreeWidget(this);
    nameControl(lstFindings, "lstFindings", "Findings");
    lstFindings->setRootIsDecorated(false);
    lstFindings->setUniformRowHeights(true);
    lstFindings->setAllColumnsShowFocus(true);
    lstFindings->setHeaderLabels({"Severity", "Section", "Identifier", "Field", "Finding"});
    lstFindings->header()->setStretchLastSection(true);
    lstFindings->setWordWrap(false);
    lstFindings->installEventFilter(this);
    connect(lstFindings, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* item) { openFinding(lstFindings->indexOfTopLevelItem(item)); });
    layout->addWidget(lstFindings, 1);

    auto* buttons = new QHBoxLayout();
    cmdCheckAgain = new QPushButton("Check Again", this);
    nameControl(cmdCheckAgain, "cmdCheckAgain", cmdCheckAgain->text());
    cmdClose = new QPushButton("Close", this);
    nameControl(cmdClose, "cmdClose", cmdClose->text());
    buttons->addWidget(cmdCheckAgain);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);
    layout->addLayout(buttons);
    connect(cmdCheckAgain, &QPushButton::clicked, this, &frmCheck::checkAgain);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    resize(900, 420);
}

void frmCheck::showFindings(const Findings& findings) {
    findings_ = findings;
    lstFindings->clear();
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<int>(findings.size()));
    for (const Finding& finding : findings) {
        const QStringList columns = {
            severityWord(finding.severity), fromBytes(sectionCaption(finding.section)),
            fromBytes(finding.identifier), fromBytes(finding.field), fromBytes(finding.message)};
        auto* item = new QTreeWidgetItem(columns);
        // A screen reader speaks the whole finding on the row.
        const QString spoken = columns[0] + ": " + columns[1] +
                               (finding.identifier.empty() ? "" : ", " + columns[2]) + ", " + columns[3] +
                               ". " + columns[4];
        for (int column = 0; column < columns.size(); ++column)
            item->setData(column, Qt::AccessibleTextRole, spoken);
        item->setToolTip(4, columns[4]);
        if (finding.severity == Severity::Error)
            item->setForeground(0, toQColor(RefusedColour));
        items.append(item);
    }
    lstFindings->addTopLevelItems(items);
    for (int column = 0; column < 4; ++column)
        lstFindings->resizeColumnToContents(column);
    if (!items.isEmpty())
        lstFindings->setCurrentItem(items.first());
    lblSummary->setText(fromBytes(findingsSummary(findings)));
}

void frmCheck::checkAgain() {
    showFindings(check_());
}

void frmCheck::openFinding(int row) {
    if (row < 0 || static_cast<size_t>(row) >= findings_.size())
        return;
    const Finding& finding = findings_[static_cast<size_t>(row)];
    if (finding.section < 1 || finding.section > 14)
        return;
    // As the main list opens a section: the base data, not an alternate's.
    context_.CurrentAlternate = 0;
    QWidget* window = context_.windows.ShowWindowAtOrigin(fromBytes(sectionEditor(finding.section)));
    if (auto* editor = qobject_cast<EntryWindow*>(window))
        editor->showEntry(finding.entry, finding.box);
}

bool frmCheck::eventFilter(QObject* watched, QEvent* event) {
    // Enter opens the finding, as a double click does (the list's own activation key differs
    // between platforms).
    if (watched == lstFindings && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && lstFindings->currentItem()) {
            openFinding(lstFindings->indexOfTopLevelItem(lstFindings->currentItem()));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace brooklet
