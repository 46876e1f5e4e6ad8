#include "plots/graphics_output_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "editing/app_context.h"
#include "editing/help_box.h"
#include "editing/help_view.h"
#include "editing/identifier_lists.h"
#include "editing/qt_lists.h"
#include "plots/output_reader.h"
#include "plots/plot_selection.h"

namespace brooklet {
namespace {

const char* const WindowName = "frmGraphicsOutput";
const char* const HelpCode = "GP";
const QString Caption = "Graphics Output";

// Clears every option of a group, which a click cannot do.
void clearOptions(const ControlArray<QRadioButton>& options) {
    for (const auto& [index, option] : options.all()) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

void setShown(std::initializer_list<QWidget*> controls, bool shown) {
    for (QWidget* control : controls)
        control->setVisible(shown);
}

bool isPickKey(const QKeyEvent* key) {
    return key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
}

} // namespace

frmGraphicsOutput::frmGraphicsOutput(AppContext& context, QWidget* parent)
    : QWidget(parent), context_(context) {
    setObjectName(WindowName);
    setAccessibleName(Caption);
    buildControls();
    Form_Load();
}

HelpLabel* frmGraphicsOutput::addHelpLabel(const QString& name, int index, const QString& caption) {
    auto* label = new HelpLabel(caption, this);
    nameControl(label, name, caption);
    label->setAsksForHelp(!HelpCodeFor(WindowName, index).empty());
    connect(label, &HelpLabel::clicked, this,
            [this, index] { ShowHelpItem(context_.session, index, txtHelp, HelpCode); });
    return label;
}

QWidget* frmGraphicsOutput::addFrame(int index, QLabel* label, const QString& groupName) {
    auto* frame = new QWidget(this);
    frame->setObjectName(indexedName("Frame1", index));
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    if (label) {
        label->setParent(frame);
        column->addWidget(label);
    }
    // The options stand in a group named by the frame's label, so a screen reader says it.
    auto* group = new OptionGroup(groupName, frame);
    group->setObjectName(indexedName("Group", index));
    column->addWidget(group);
    Frame1.add(index, frame);
    return group;
}

void frmGraphicsOutput::buildControls() {
    auto* outer = new QVBoxLayout(this);
    lblHeader = addHelpLabel("lblHeader", 0, "Graphics Output:");
    QFont font = lblHeader->font();
    font.setBold(true);
    font.setPointSize(font.pointSize() + 2);
    lblHeader->setFont(font);
    outer->addWidget(lblHeader);

    for (int i = 0; i <= 7; ++i) {
        static const char* const captions[] = {"Multiple Selected Items",
                                               "Graphic Type",
                                               "Multiple Hydrographs",
                                               "Storm",
                                               "Alternate",
                                               "Sub-Area",
                                               "Reach",
                                               "Outlet"};
        lblInput.add(i, addHelpLabel(indexedName("lblInput", i), i, captions[i]));
    }
    auto addOption = [this](ControlArray<QRadioButton>& array, const QString& arrayName, int index,
                            QWidget* group, const QString& caption, const QString& accessibleName) {
        auto* option = new QRadioButton(caption, group);
        nameControl(option, indexedName(arrayName, index), accessibleName);
        group->layout()->addWidget(option);
        array.add(index, option);
        return option;
    };

    QWidget* types = addFrame(1, lblInput(1), "Graphic Type");
    const QString typeCaptions[] = {"", "Hydrograph", "Peak Flow", "Time Analysis"};
    for (int i = 1; i <= 3; ++i)
        connect(addOption(opt1, "opt1", i, types, typeCaptions[i], typeCaptions[i]), &QRadioButton::clicked,
                this, [this, i] { opt1Click(i); });

    QWidget* varies = addFrame(2, lblInput(2), "Multiple Hydrographs");
    const QString variesCaptions[] = {"", "None", "Storm", "Alternate", "Location"};
    const QString variesNames[] = {"", "Single Hydrograph", "Multiple Storms", "Multiple Alternates",
                                   "Multiple Locations"};
    for (int i = 1; i <= 4; ++i)
        connect(addOption(Opt2, "Opt2", i, varies, variesCaptions[i], variesNames[i]), &QRadioButton::clicked,
                this, [this, i] { opt2Click(i); });

    for (int i : {3, 4}) {
        auto* label = new QLabel(i == 3 ? "Flow Units" : "Locations", this);
        nameControl(label, indexedName("FrameLabel", i), label->text());
        FrameLabel.add(i, label);
    }
    QWidget* units = addFrame(3, FrameLabel(3), "Flow Units");
    for (int i : {1, 2}) {
        const QString caption = i == 1 ? "cfs" : "csm";
        connect(addOption(Opt3, "Opt3", i, units, caption, caption), &QRadioButton::clicked, this,
                [this] { UpdateDisplayButton(); });
    }
    QWidget* locations = addFrame(4, FrameLabel(4), "Locations");
    const QString locationCaptions[] = {"", "Sub-Area", "Reach", "Outlet"};
    const QString locationNames[] = {"", "Sub-Area peak flows", "Reach peak flows", "Outlet peak flow"};
    for (int i = 1; i <= 3; ++i) {
        auto* check = new QCheckBox(locationCaptions[i], locations);
        nameControl(check, indexedName("Chk4", i), locationNames[i]);
        locations->layout()->addWidget(check);
        Chk4.add(i, check);
        connect(check, &QCheckBox::clicked, this, [this] { UpdateDisplayButton(); });
    }
    QWidget* ends = addFrame(6, nullptr, "Reach End");
    for (int i : {1, 2}) {
        const QString caption = i == 1 ? "Upstream" : "Downstream";
        connect(addOption(Opt6, "Opt6", i, ends, caption, caption), &QRadioButton::clicked, this,
                [this, i] { opt6Click(i); });
    }

    auto* frames = new QHBoxLayout;
    for (int i : {1, 2, 3, 4})
        frames->addWidget(Frame1(i), 0, Qt::AlignTop);
    frames->addStretch();
    outer->addLayout(frames);

    auto* form = new QGridLayout;
    for (int i = 3; i <= 6; ++i) {
        auto* list = new QComboBox(this);
        nameControl(list, indexedName("Cmbinp", i), lblInput(i)->text());
        list->setMinimumWidth(160);
        list->installEventFilter(this);
        Cmbinp.add(i, list);
        connect(list, &QComboBox::activated, this, [this, i] {
            // The arrow keys only move through the list; Tab or Enter picks.
            if (movingInList_)
                return;
            pickList(i);
            Cmbinp(i)->setFocus(Qt::MouseFocusReason);
        });
        form->addWidget(lblInput(i), i, 0);
        form->addWidget(list, i, 1);
    }
    form->addWidget(Frame1(6), 6, 2);
    Chk7 = new QCheckBox(this);
    nameControl(Chk7, "Chk7", "Outlet");
    connect(Chk7, &QCheckBox::clicked, this, &frmGraphicsOutput::chk7Click);
    form->addWidget(lblInput(7), 7, 0);
    form->addWidget(Chk7, 7, 1);
    form->setColumnStretch(3, 1);
    outer->addLayout(form);

    List1 = new QListWidget(this);
    nameControl(List1, "List1", "Multiple Selected Items");
    List1->installEventFilter(this);
    connect(List1, &QListWidget::itemClicked, this, &frmGraphicsOutput::list1Click);
    ListLabel = new QLabel("Click appropriate entry in Multiple list box to delete.", this);
    nameControl(ListLabel, "ListLabel", ListLabel->text());
    outer->addWidget(lblInput(0));
    outer->addWidget(List1);
    outer->addWidget(ListLabel);

    CmdPlot = new QPushButton("Display", this);
    nameControl(CmdPlot, "CmdPlot", "Display");
    connect(CmdPlot, &QPushButton::clicked, this, &frmGraphicsOutput::cmdPlotClick);
    cmdCancel = new QPushButton("Close", this);
    nameControl(cmdCancel, "cmdCancel", "Close");
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(CmdPlot);
    buttons->addWidget(cmdCancel);
    buttons->addStretch();
    outer->addLayout(buttons);
    txtHelp = makeHelpBox(this);
    outer->addWidget(txtHelp);

    // As designed: a hydrograph of one location, the Multiple list hidden.
    opt1(1)->setChecked(true);
    Opt2(1)->setChecked(true);
    setShown({lblInput(0), List1, ListLabel, Frame1(3), Frame1(4), Frame1(6)}, false);
}

void frmGraphicsOutput::Form_Load() {
    Session& session = context_.session;
    setWindowTitle(Caption.left(15) + "   Current File - " + pathToQt(session.CurrentFile));
    MultiCount = 0;
    session.HelpCode = HelpCode;
    session.HelpShown = NoHelpShown;
    QtComboList storms(Cmbinp(3)), alternates(Cmbinp(4)), subAreas(Cmbinp(5)), reaches(Cmbinp(6));
    FillHydrographNameList(session, storms);
    alternates.AddItem("");
    FillAlternateList(session, alternates, true);
    FillAreaReachList(session, subAreas);
    FillReachList(session, reaches, true);
    for (int i = 3; i <= 6; ++i)
        clearSelection(i);
    UpdateDisplayButton();
}

bool frmGraphicsOutput::chosen(const ControlArray<QRadioButton>& options, int index) const {
    return options(index) && options(index)->isChecked();
}

int frmGraphicsOutput::chosenIndex(const ControlArray<QRadioButton>& options) const {
    for (const auto& [index, option] : options.all())
        if (option->isChecked())
            return index;
    return 0;
}

bool frmGraphicsOutput::hasSelection(int index) const {
    return Cmbinp(index)->currentIndex() >= 0;
}

bool frmGraphicsOutput::hasText(int index) const {
    return !Cmbinp(index)->currentText().isEmpty();
}

std::string frmGraphicsOutput::listText(int index) const {
    return toBytes(Cmbinp(index)->currentText());
}

void frmGraphicsOutput::clearSelection(int index) {
    Cmbinp(index)->setCurrentIndex(-1);
}

void frmGraphicsOutput::setChk7(bool on) {
    Chk7->setChecked(on);
}

void frmGraphicsOutput::UpdateDisplayButton() {
    const bool noLocation = !hasSelection(5) && !hasSelection(6) && !Chk7->isChecked();
    const bool noReachEnd = hasSelection(6) && !chosen(Opt6, 1) && !chosen(Opt6, 2);
    const bool oneLocation = chosen(opt1, 1) || chosen(Opt2, 3);
    bool incomplete = !hasSelection(3);
    incomplete = incomplete || (oneLocation && (noLocation || noReachEnd));
    incomplete = incomplete || (chosen(opt1, 2) && chosenIndex(Opt3) == 0);
    incomplete = incomplete ||
                 (chosen(opt1, 2) && !Chk4(1)->isChecked() && !Chk4(2)->isChecked() && !Chk4(3)->isChecked());
    incomplete = incomplete || (chosen(opt1, 3) && (noLocation || noReachEnd));
    CmdPlot->setEnabled(!incomplete);
}

bool frmGraphicsOutput::ChangeMultiList(int Action, const std::string& Item) {
    QtListWidgetList list(List1);
    bool OK = true;
    if (const auto box = brooklet::ChangeMultiList(list, MultiCount, Action, Item, OK))
        context_.platform.showBox(*box);
    return OK;
}

void frmGraphicsOutput::opt1Click(int index) {
    setShown({lblInput(0), List1, ListLabel}, false);
    if (index == 1) {
        setShown({lblInput(2), lblInput(3), lblInput(4), lblInput(5), lblInput(6), Cmbinp(3), Cmbinp(4),
                  Cmbinp(5), Cmbinp(6), Frame1(2), lblInput(7), Chk7},
                 true);
        setShown({Frame1(3), Frame1(4), Frame1(6)}, false);
        // Choosing the varying item again shows and empties the Multiple list.
        if (const int varies = chosenIndex(Opt2); varies >= 2)
            opt2Click(varies);
    } else if (index == 2) {
        setShown({lblInput(3), lblInput(4), Cmbinp(3), Cmbinp(4), Frame1(3), Frame1(4)}, true);
        setShown({lblInput(2), lblInput(5), lblInput(6), Cmbinp(5), Cmbinp(6), Frame1(2), Frame1(6),
                  lblInput(7), Chk7},
                 false);
    } else if (index == 3) {
        setShown({lblInput(3), lblInput(4), lblInput(5), lblInput(6), Cmbinp(3), Cmbinp(4), Cmbinp(5),
                  Cmbinp(6), lblInput(7), Chk7},
                 true);
        setShown({lblInput(2), Frame1(2), Frame1(3), Frame1(4), Frame1(6)}, false);
        // The time analysis is of one location.
        if (int(hasText(5)) + int(hasText(6)) + int(Chk7->isChecked()) >= 2) {
            clearSelection(5);
            clearSelection(6);
            setChk7(false);
        }
    }
    UpdateDisplayButton();
}

void frmGraphicsOutput::opt2Click(int index) {
    List1->clear();
    MultiCount = 0;
    if (Chk7->isChecked() || (hasSelection(5) && hasSelection(6))) {
        clearSelection(5);
        clearSelection(6);
        Frame1(6)->hide();
    }
    if (index == 1) {
        setShown({lblInput(0), List1, ListLabel}, false);
    } else {
        setShown({lblInput(0), List1, ListLabel}, true);
        const char* const titles[] = {"", "", "Multiple Storms", "Multiple Alternates", "Multiple Locations"};
        lblInput(0)->setText(titles[index]);
        if (index == 4) {
            setChk7(false);
            clearSelection(5);
            clearSelection(6);
        }
    }
    UpdateDisplayButton();
}

void frmGraphicsOutput::pickList(int index) {
    // A list with nothing chosen adds nothing to the Multiple list.
    if (index < 6 && chosen(Opt2, index - 1) && hasSelection(index))
        ChangeMultiList(1, listText(index));
    if (index == 5) {
        setChk7(false);
        clearSelection(6);
        Frame1(6)->hide();
    } else if (index == 6) {
        setChk7(false);
        if (hasText(6))
            clearSelection(5);
        if (!chosen(opt1, 2)) {
            clearOptions(Opt6);
            Frame1(6)->setVisible(hasSelection(6));
        }
    }
    UpdateDisplayButton();
}

void frmGraphicsOutput::opt6Click(int index) {
    if (chosen(Opt2, 4))
        ChangeMultiList(1, listText(6) + (index == 1 ? " - Upstream" : " - Downstream"));
    UpdateDisplayButton();
}

void frmGraphicsOutput::chk7Click() {
    if (Chk7->isChecked()) {
        if (chosen(Opt2, 4) && !ChangeMultiList(1, "Outlet"))
            setChk7(false);
        clearSelection(5);
        clearSelection(6);
        Frame1(6)->hide();
    } else if (chosen(Opt2, 4)) {
        ChangeMultiList(-1, "Outlet");
    }
    UpdateDisplayButton();
}

void frmGraphicsOutput::list1Click(QListWidgetItem* item) {
    if (!item)
        return;
    if (context_.platform.showBox(DeleteSelectedItemBox()) != BoxAnswer::No) {
        // Taking an entry out leaves the counter of attempts as it is.
        if (item->text() == "Outlet")
            setChk7(false);
        delete List1->takeItem(List1->row(item));
    }
    UpdateDisplayButton();
}

void frmGraphicsOutput::cmdPlotClick() {
    PlotChoices choices;
    choices.GraphicType = chosenIndex(opt1);
    choices.Varies = chosenIndex(Opt2);
    choices.FlowUnits = chosenIndex(Opt3);
    for (int i = 1; i <= 3; ++i)
        choices.Locations[i] = Chk4(i)->isChecked();
    choices.ReachEnd = chosenIndex(Opt6);
    choices.Storm = listText(3);
    choices.Alternate = listText(4);
    choices.SubArea = listText(5);
    choices.Reach = listText(6);
    choices.Outlet = Chk7->isChecked();
    for (int i = 0; i < List1->count(); ++i)
        choices.Multiple.push_back(toBytes(List1->item(i)->text()));

    PlotData& plot = context_.plots;
    BuildPlotRequest(choices, context_.session, plot);
    bool Found = false;
    ReadOutputFile(context_.session.CurrentFile, plot, Found);
    // The duration curve starts from 0 whatever the hydrograph's start time.
    if (choices.GraphicType == 3 && plot.PlotRequest.size() > 1)
        plot.PlotRequest[1].T[5] = "0.0";
    if (!Found) {
        context_.platform.showBox(NoPlotDataBox());
        return;
    }
    context_.windows.ShowModal("frmIO_Plots");
}

bool frmGraphicsOutput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    for (const auto& [index, list] : Cmbinp.all()) {
        if (watched != list)
            continue;
        if (!isPickKey(key)) {
            if (movingInList_)
                return false;
            const QScopedValueRollback<bool> moving(movingInList_, true);
            QCoreApplication::sendEvent(list, event);
            return true;
        }
        pickList(index);
        // On to the next list, from the last back to the storm; the peak flow has two lists.
        const int last = chosen(opt1, 2) ? 4 : 6;
        Cmbinp(index >= last ? 3 : index + 1)->setFocus(Qt::TabFocusReason);
        return true;
    }
    // Without a mouse: Enter or Delete on an entry of the Multiple list asks to delete it.
    if (watched == List1 &&
        (key->key() == Qt::Key_Delete || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)) {
        list1Click(List1->currentItem());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace brooklet
