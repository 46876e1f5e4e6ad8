#pragma once
// frmGraphicsOutput: the choice of a plot of the last run's results. A hydrograph at one
// location, a family of up to ten hydrographs differing in storm, alternate or location, peak
// flows against drainage area, or the time analysis of one location. Display builds the plot
// request, has the printed page file read and opens the plot window over this one, which stays
// open so that plots can be made in turn.
#include <QWidget>

#include "editing/widgets.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace brooklet {

struct AppContext;
class HelpLabel;

class frmGraphicsOutput : public QWidget {
    Q_OBJECT
public:
    explicit frmGraphicsOutput(AppContext& context, QWidget* parent = nullptr);

    // The counter of attempts to add to the Multiple list.
    int multiCount() const { return MultiCount; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void Form_Load();
    HelpLabel* addHelpLabel(const QString& name, int index, const QString& caption);
    QWidget* addFrame(int index, QLabel* label, const QString& groupName);

    void UpdateDisplayButton();
    // Adds (1) or removes (-1) an item of the Multiple list; False when it was refused.
    bool ChangeMultiList(int Action, const std::string& Item);
    void opt1Click(int index);
    void opt2Click(int index);
    void opt6Click(int index);
    void chk7Click();
    void pickList(int index);
    void list1Click(QListWidgetItem* item);
    void cmdPlotClick();

    bool chosen(const ControlArray<QRadioButton>& options, int index) const;
    int chosenIndex(const ControlArray<QRadioButton>& options) const;
    bool hasSelection(int index) const;
    bool hasText(int index) const;
    std::string listText(int index) const;
    void clearSelection(int index);
    void setChk7(bool on);

    AppContext& context_;
    int MultiCount = 0;
    // A key other than Tab or Enter is moving through a list.
    bool movingInList_ = false;

    HelpLabel* lblHeader = nullptr;
    ControlArray<HelpLabel> lblInput;
    ControlArray<QLabel> FrameLabel;
    ControlArray<QWidget> Frame1;
    ControlArray<QRadioButton> opt1;
    ControlArray<QRadioButton> Opt2;
    ControlArray<QRadioButton> Opt3;
    ControlArray<QCheckBox> Chk4;
    ControlArray<QRadioButton> Opt6;
    ControlArray<QComboBox> Cmbinp;
    QCheckBox* Chk7 = nullptr;
    QListWidget* List1 = nullptr;
    QLabel* ListLabel = nullptr;
    QPushButton* CmdPlot = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPlainTextEdit* txtHelp = nullptr;
};

} // namespace brooklet
