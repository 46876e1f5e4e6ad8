#pragma once
// frmCheck, "Check Watershed": every finding of the last check in one list, a row each with its
// severity, section, entry, field and what to do. Double-clicking a row, or Enter on it, opens
// the editor of its section at that entry with the field's box focused, through the window host
// as the main list opens editors. "Check Again" runs the check anew on the work files.
#include <QWidget>

#include <functional>

#include "check/findings.h"

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace brooklet {

struct AppContext;

class frmCheck : public QWidget {
    Q_OBJECT
public:
    // Check runs the check on the session's work files and gives its findings.
    frmCheck(AppContext& context, std::function<Findings()> check, QWidget* parent = nullptr);

    // Shows these findings (those of a check that has just run).
    void showFindings(const Findings& findings);
    // Runs the check and shows what it found.
    void checkAgain();
    // Opens the editor of the finding in row Row at its entry and field.
    void openFinding(int row);
    const Findings& findings() const { return findings_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AppContext& context_;
    std::function<Findings()> check_;
    Findings findings_;
    QLabel* lblSummary = nullptr;
    QTreeWidget* lstFindings = nullptr;
    QPushButton* cmdCheckAgain = nullptr;
    QPushButton* cmdClose = nullptr;
};

// "2 errors and 1 warning", "No findings: the input is ready to run."
std::string findingsSummary(const Findings& findings);

} // namespace brooklet
