#include "run/file_viewer.h"

#include "editing/app_context.h"
#include "run/viewer_text.h"
#include "session/text_file.h"
#include "session/view_menu.h"

#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QVBoxLayout>

namespace brooklet {
namespace {

const char* const DesignCaption = "File Display";
const char* const FileLabels[] = {"",
                                  "Brooklet Input File",
                                  "",
                                  "",
                                  "Brooklet Printed Page File",
                                  "Brooklet Error File",
                                  "Brooklet Debug File",
                                  "Brooklet Hydrograph File",
                                  "Brooklet Tally File"};

// The flags of a printer dialog that came back with "Selection" on top of the options asked for.
constexpr int SelectionChosen = PrintSelectionFlag | PrintNoPageNumbersFlag | PrintHideToFileFlag;
static_assert(SelectionChosen == 1048585);

} // namespace

void ShowFileViewer(AppContext& context) {
    const bool wasLoaded = context.windows.loaded("frmFileDisp") != nullptr;
    QWidget* window = context.windows.ShowWindowAtOrigin("frmFileDisp");
    if (auto* viewer = qobject_cast<frmFileDisp*>(window); viewer && wasLoaded)
        viewer->loadFile();
}

frmFileDisp::frmFileDisp(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {
    setObjectName("frmFileDisp");
    setWindowTitle(DesignCaption);
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    lblWindow = new QLabel(central);
    nameControl(lblWindow, "lblWindow");
    QFont labelFont = lblWindow->font();
    labelFont.setBold(true);
    lblWindow->setFont(labelFont);
    RichTextBox1 = new QPlainTextEdit(central);
    nameControl(RichTextBox1, "RichTextBox1", "File text");
    RichTextBox1->setReadOnly(true);
    RichTextBox1->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed("Courier New");
    fixed.setStyleHint(QFont::TypeWriter);
    RichTextBox1->setFont(fixed);
    cmdCancel = new QPushButton("Close", central);
    nameControl(cmdCancel, "cmdCancel", "Close");
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(lblWindow);
    layout->addWidget(RichTextBox1);
    layout->addWidget(cmdCancel, 0, Qt::AlignRight);
    setCentralWidget(central);

    QAction* mnuPrint = menuBar()->addAction("Print");
    mnuPrint->setObjectName("mnuPrint");
    connect(mnuPrint, &QAction::triggered, this, &frmFileDisp::printFile);
    mnuView = menuBar()->addMenu("View");
    mnuView->setObjectName("mnuView");
    const std::map<int, QString> captions = {
        {0, "Schematic"},  {1, "Input File"}, {4, "Printed Page File"}, {5, "Error File"},
        {6, "Debug File"}, {7, "Hydrograph"}, {8, "FloodEcon File"}};
    for (int index = 0; index <= 8; ++index) {
        auto caption = captions.find(index);
        QAction* action =
            caption == captions.end() ? mnuView->addSeparator() : mnuView->addAction(caption->second);
        action->setObjectName(indexedName("mnuViewItem", index));
        viewItems_.add(index, action);
    }
    // Item 0 does nothing in this window, even when it is enabled.
    for (int index : {1, 4, 5, 6, 7, 8})
        connect(viewItems_(index), &QAction::triggered, this, [this, index] {
            context_.session.ViewIndex = static_cast<short>(index);
            loadFile();
        });
    resize(760, 560);
    loadFile();
}

void frmFileDisp::loadFile() {
    Session& session = context_.session;
    RichTextBox1->clear();
    const int index = session.ViewIndex;
    const bool known = index >= 1 && index <= ResultExtensionCount;
    path_ = BaseName(session.CurrentFile) + (known ? session.ResultExtension[index] : std::string());
    RichTextBox1->setPlainText(fromBytes(ViewerText(readFileBytes(path_).value_or(std::string()))));
    UpdateViewMenu(context_.session, this);
    setWindowTitle(QString(DesignCaption).left(12) + pathToQt("   Current File - " + path_));
    lblWindow->setText(known ? FileLabels[index] : "");
    lblWindow->setAccessibleName(lblWindow->text());
}

void frmFileDisp::printFile() {
    PrinterDialogSettings dialog;
    dialog.Flags = PrintNoPageNumbersFlag | PrintHideToFileFlag;
    dialog.FileName = "*.inp";
    dialog.CancelError = true;
    dialog.DialogTitle = "Print" + path_;
    auto choice = context_.platform.showPrinterDialog(dialog);
    if (!choice || !choice->printer)
        return;
    PrintTarget& printer = *choice->printer;
    printer.setFont("Courier", 10);
    if (choice->Flags == SelectionChosen) {
        const QString selected = RichTextBox1->textCursor().selectedText();
        // A selection holds paragraph separators where the lines ended.
        for (const QString& line : selected.split(QChar::ParagraphSeparator))
            printer.printLine(toBytes(line));
    } else {
        for (const PrintStep& step : FilePrintSteps(readFileBytes(path_).value_or(std::string()))) {
            if (step.newPage)
                printer.newPage();
            else
                printer.printLine(step.line);
        }
    }
    printer.endDoc();
}

} // namespace brooklet
