#include "session/qt_platform.h"

#include "editing/widgets.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontMetrics>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>

#include <algorithm>

namespace brooklet {

QStringList qtFileFilters(const std::string& filter) {
    const QStringList parts = fromBytes(filter).split('|');
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i];
        const QString pattern = parts[i + 1];
        // Qt reads the patterns from the parentheses of the description; give it the pattern
        // when the description names none.
        filters << (description.contains('(') ? description : description + " (" + pattern + ")");
    }
    return filters;
}

BoxAnswer QtPlatform::showBox(const BoxRequest& box) {
    QMessageBox message(QApplication::activeWindow());
    message.setWindowTitle(pathToQt(box.title));
    message.setText(pathToQt(box.text));
    switch (box.icon) {
    case BoxIcon::None:
        message.setIcon(QMessageBox::NoIcon);
        break;
    case BoxIcon::Information:
        message.setIcon(QMessageBox::Information);
        break;
    case BoxIcon::Exclamation:
        message.setIcon(QMessageBox::Warning);
        break;
    case BoxIcon::Question:
        message.setIcon(QMessageBox::Question);
        break;
    case BoxIcon::Critical:
        message.setIcon(QMessageBox::Critical);
        break;
    }
    switch (box.buttons) {
    case BoxButtons::Ok:
        message.setStandardButtons(QMessageBox::Ok);
        break;
    case BoxButtons::OkCancel:
        message.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        break;
    case BoxButtons::YesNo:
        message.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case BoxButtons::YesNoCancel:
        message.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    switch (message.exec()) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Cancel:
        return BoxAnswer::Cancel;
    case QMessageBox::Ok:
        return BoxAnswer::Ok;
    default:
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
    }
}

namespace {

std::optional<std::string> showFileDialog(const FileDialogSettings& settings, QFileDialog::AcceptMode mode) {
    QFileDialog dialog(QApplication::activeWindow(), pathToQt(settings.DialogTitle),
                       pathToQt(settings.InitDir));
    dialog.setAcceptMode(mode);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the program asks its own question
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    const QStringList filters = qtFileFilters(settings.Filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        const int index = std::clamp(settings.FilterIndex, 1, static_cast<int>(filters.size()));
        dialog.selectNameFilter(filters[index - 1]);
    }
    const QString name = pathToQt(settings.FileName);
    if (!name.isEmpty() && !name.contains('*'))
        dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return pathFromQt(dialog.selectedFiles().first());
}

} // namespace

std::optional<std::string> QtPlatform::showOpenDialog(const FileDialogSettings& dialog) {
    return showFileDialog(dialog, QFileDialog::AcceptOpen);
}

std::optional<std::string> QtPlatform::showSaveDialog(const FileDialogSettings& dialog) {
    return showFileDialog(dialog, QFileDialog::AcceptSave);
}

bool runHiddenAndWait(const std::string& program, const std::string& folder) {
    QProcess process;
    process.setProgram(pathToQt(program));
    process.setWorkingDirectory(pathToQt(folder));
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QEventLoop wait;
    bool started = true;
    QObject::connect(&process, &QProcess::finished, &wait, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &wait, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            started = false;
            wait.quit();
        }
    });
    process.start();
    // A failed start may be told at once or through the event loop; both end the wait.
    if (started)
        wait.exec();
    return started;
}

namespace {

// Prints on a Qt printer, line under line, a new page when one is full.
class QtPrintTarget : public PrintTarget {
public:
    explicit QtPrintTarget(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}
    void setFont(const std::string& family, int points) override {
        QFont font(fromBytes(family), points);
        font.setStyleHint(QFont::TypeWriter);
        font.setFixedPitch(true);
        painter().setFont(font);
    }
    void printLine(const std::string& line) override {
        QPainter& p = painter();
        const QFontMetrics metrics(p.font(), printer_.get());
        if (y_ + metrics.height() > printer_->pageLayout().paintRectPixels(printer_->resolution()).height()) {
            newPage();
        }
        QString text = fromBytes(line);
        text.remove(QChar('\f'));
        p.drawText(0, y_ + metrics.ascent(), text);
        y_ += metrics.height();
    }
    void newPage() override {
        printer_->newPage();
        y_ = 0;
    }
    void endDoc() override {
        if (painter_)
            painter_->end();
    }

private:
    QPainter& painter() {
        if (!painter_)
            painter_ = std::make_unique<QPainter>(printer_.get());
        return *painter_;
    }
    std::unique_ptr<QPrinter> printer_;
    std::unique_ptr<QPainter> painter_;
    int y_ = 0;
};

} // namespace

std::optional<PrinterChoice> QtPlatform::showPrinterDialog(const PrinterDialogSettings& settings) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    dialog.setWindowTitle(pathToQt(settings.DialogTitle));
    dialog.setOption(QAbstractPrintDialog::PrintSelection, true);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, !(settings.Flags & PrintNoPageNumbersFlag));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    PrinterChoice choice;
    choice.Flags = settings.Flags & ~PrintSelectionFlag;
    if (dialog.printRange() == QAbstractPrintDialog::Selection)
        choice.Flags |= PrintSelectionFlag;
    choice.printer = std::make_unique<QtPrintTarget>(std::move(printer));
    return choice;
}

bool QtPlatform::runProgramAndWait(const std::string& program, const std::string& folder) {
    return runHiddenAndWait(program, folder);
}

void QtPlatform::endProgram() {
    QApplication::closeAllWindows();
    QCoreApplication::exit(0);
}

void QtPlatform::setClipboardText(const std::string& text) {
    QApplication::clipboard()->setText(fromBytes(text));
}

} // namespace brooklet
