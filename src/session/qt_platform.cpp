#include "session/qt_platform.h"

#include "session/qt_text.h"
#include "session/section_table.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontMetrics>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <signal.h>
#include <unistd.h>
#endif

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
    const std::optional<int> result = runDialog(message);
    if (!result)
        return BoxAnswer::Cancel;
    switch (*result) {
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

std::optional<int> QtPlatform::runDialog(QDialog& dialog) {
    OpenDialog open(*this, [&dialog] { dialog.reject(); });
    const int result = dialog.exec();
    if (open.cancelled())
        return std::nullopt;
    return result;
}

std::optional<std::string> QtPlatform::showFileDialog(const FileDialogSettings& settings, bool save) {
    const QFileDialog::AcceptMode mode = save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen;
    QFileDialog dialog(QApplication::activeWindow(), pathToQt(settings.DialogTitle),
                       pathToQt(settings.InitDir));
    dialog.setAcceptMode(mode);
    // Without ConfirmOverwrite the program asks its own question.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !settings.ConfirmOverwrite);
    dialog.setDefaultSuffix(pathToQt(settings.DefaultExtension));
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
    if (runDialog(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    std::string path = pathFromQt(dialog.selectedFiles().first());
    if (settings.FilterExtension)
        path = WithDefaultExtension(
            path,
            FilterPatternExtension(settings.Filter, int(filters.indexOf(dialog.selectedNameFilter())) + 1));
    return WithDefaultExtension(path, settings.DefaultExtension);
}

std::optional<std::string> QtPlatform::showOpenDialog(const FileDialogSettings& dialog) {
    return showFileDialog(dialog, false);
}

std::optional<std::string> QtPlatform::showSaveDialog(const FileDialogSettings& dialog) {
    return showFileDialog(dialog, true);
}

ProgramExit ProgramRunner::runHiddenAndWait(const std::string& program,
                                            const std::vector<std::string>& arguments,
                                            const std::string& folder,
                                            const std::vector<std::string>& environment,
                                            const std::string& ErrorFile) {
    QProcess process;
    process.setProgram(pathToQt(program));
    QStringList qtArguments;
    for (const std::string& argument : arguments)
        qtArguments << pathToQt(argument);
    process.setArguments(qtArguments);
    if (!environment.empty()) {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const std::string& entry : environment) {
            const size_t equals = entry.find('=');
            variables.insert(
                QString::fromStdString(entry.substr(0, equals)),
                QString::fromStdString(equals == std::string::npos ? "" : entry.substr(equals + 1)));
        }
        process.setProcessEnvironment(variables);
    }
#ifdef Q_OS_UNIX
    // The program leads a process group of its own, which the programs it starts join, so that
    // a stop ends them all. A folder name need not be valid in any encoding, and a Qt string
    // cannot carry every byte: the child changes into the folder by its bytes, and the program
    // is named relative to it.
    process.setChildProcessModifier([folder] {
        ::setsid();
        if (!folder.empty() && ::chdir(folder.c_str()) != 0)
            ::_exit(127);
    });
#else
    process.setWorkingDirectory(pathToQt(folder));
#endif
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(ErrorFile.empty() ? QProcess::nullDevice() : pathToQt(ErrorFile));
    QEventLoop wait;
    bool started = true;
    QObject::connect(&process, &QProcess::finished, &wait, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &wait, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            started = false;
            wait.quit();
        }
    });
    process_ = &process;
    stopped_ = false;
    process.start();
    // A failed start may be told at once or through the event loop; both end the wait.
    if (started)
        wait.exec();
    process_ = nullptr;
    if (!started)
        return {ProgramEnd::NotStarted, 0};
    if (stopped_)
        return {ProgramEnd::Stopped, 0};
    // For a program that crashed, the exit code holds the number of the signal that ended it.
    return {process.exitStatus() == QProcess::CrashExit ? ProgramEnd::Crashed : ProgramEnd::Finished,
            process.exitCode()};
}

void ProgramRunner::stop() {
    if (!process_)
        return;
    stopped_ = true;
#ifdef Q_OS_UNIX
    // The program leads its process group: the group's number is its own.
    const qint64 group = process_->processId();
    if (group > 0)
        ::kill(-static_cast<pid_t>(group), SIGKILL);
#endif
    process_->kill();
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
    // A pixel of the picture is a pixel of the screen, so it keeps its size on paper.
    void drawBitmap(const Bitmap& picture, int x, int y) override {
        const double perPixel = printer_->resolution() / 96.0;
        painter().drawImage(
            QRectF(x * perPixel, y * perPixel, picture.width * perPixel, picture.height * perPixel),
            toQImage(picture));
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
    if (runDialog(dialog) != QDialog::Accepted)
        return std::nullopt;
    PrinterChoice choice;
    choice.Flags = settings.Flags & ~PrintSelectionFlag;
    if (dialog.printRange() == QAbstractPrintDialog::Selection)
        choice.Flags |= PrintSelectionFlag;
    choice.printer = std::make_unique<QtPrintTarget>(std::move(printer));
    return choice;
}

QImage toQImage(const Bitmap& picture) {
    QImage image(std::max(0, picture.width), std::max(0, picture.height), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        std::copy_n(picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * picture.width, picture.width,
                    reinterpret_cast<QRgb*>(image.scanLine(y)));
    return image;
}

Bitmap fromQImage(const QImage& image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    Bitmap picture;
    picture.width = argb.width();
    picture.height = argb.height();
    picture.pixels.reserve(static_cast<size_t>(picture.width) * picture.height);
    for (int y = 0; y < argb.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        picture.pixels.insert(picture.pixels.end(), row, row + argb.width());
    }
    return picture;
}

namespace {

int orientationOf(const QPrinter& printer) {
    return printer.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
}
int duplexOf(const QPrinter& printer) {
    switch (printer.duplex()) {
    case QPrinter::DuplexLongSide:
        return 2;
    case QPrinter::DuplexShortSide:
        return 3;
    default:
        return 1;
    }
}
QPrinter::DuplexMode duplexMode(int duplex) {
    return duplex == 2   ? QPrinter::DuplexLongSide
           : duplex == 3 ? QPrinter::DuplexShortSide
                         : QPrinter::DuplexNone;
}
QPageLayout::Orientation orientationMode(int orientation) {
    return orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait;
}
void takeSettings(QPrinter& printer, const PresentPrinter& settings) {
    printer.setPrinterName(fromBytes(settings.DeviceName));
    printer.setCopyCount(std::max(1, settings.Copies));
    printer.setPageOrientation(orientationMode(settings.Orientation));
    printer.setDuplex(duplexMode(settings.Duplex));
}
PresentPrinter settingsOf(const QPrinter& printer) {
    return {toBytes(printer.printerName()), printer.copyCount(), orientationOf(printer), duplexOf(printer)};
}

} // namespace

QtPlatform::QtPlatform() = default;
QtPlatform::~QtPlatform() = default;

QPrinter& QtPlatform::present() {
    if (!present_)
        present_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *present_;
}

bool QtPlatform::showPrintRangeDialog(PrintRangeRecord& record) {
    QPrinter printer(QPrinter::HighResolution);
    takeSettings(printer, record.printer);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setOption(QAbstractPrintDialog::PrintSelection, !(record.Flags & PrintNoSelectionFlag));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, !(record.Flags & PrintNoPageNumbersFlag));
    dialog.setOption(QAbstractPrintDialog::PrintToFile, !(record.Flags & PrintHideToFileFlag));
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, true);
    dialog.setMinMax(record.MinPage, record.MaxPage);
    printer.setFromTo(record.FromPage, record.ToPage);
    if (record.Flags & PrintSelectionFlag)
        dialog.setPrintRange(QAbstractPrintDialog::Selection);
    else if (record.Flags & PrintPageNumbersFlag)
        dialog.setPrintRange(QAbstractPrintDialog::PageRange);
    printer.setCollateCopies(record.Flags & PrintCollateFlag);
    if (runDialog(dialog) != QDialog::Accepted)
        return false;
    record.Flags &= ~(PrintSelectionFlag | PrintPageNumbersFlag | PrintCollateFlag);
    if (dialog.printRange() == QAbstractPrintDialog::Selection)
        record.Flags |= PrintSelectionFlag;
    else if (dialog.printRange() == QAbstractPrintDialog::PageRange)
        record.Flags |= PrintPageNumbersFlag;
    if (printer.collateCopies())
        record.Flags |= PrintCollateFlag;
    record.FromPage = printer.fromPage();
    record.ToPage = printer.toPage();
    record.printer = settingsOf(printer);
    return true;
}

PresentPrinter QtPlatform::presentPrinter() {
    return settingsOf(present());
}

std::vector<std::string> QtPlatform::printerNames() {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.push_back(toBytes(name));
    return names;
}

void QtPlatform::makePrinterPresent(const std::string& name) {
    present().setPrinterName(fromBytes(name));
}

bool QtPlatform::setPrinterCopies(int copies) {
    present().setCopyCount(copies);
    return present().copyCount() == copies;
}

bool QtPlatform::setPrinterOrientation(int orientation) {
    return present().setPageOrientation(orientationMode(orientation));
}

bool QtPlatform::setPrinterDuplex(int duplex) {
    present().setDuplex(duplexMode(duplex));
    return duplexOf(present()) == duplex;
}

std::unique_ptr<PrintTarget> QtPlatform::openPresentPrinter() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    takeSettings(*printer, settingsOf(present()));
    return std::make_unique<QtPrintTarget>(std::move(printer));
}

void QtPlatform::clearClipboard() {
    QApplication::clipboard()->clear();
}

void QtPlatform::setClipboardBitmap(const Bitmap& picture) {
    QApplication::clipboard()->setImage(toQImage(picture));
}

std::optional<Bitmap> QtPlatform::clipboardBitmap() {
    const QImage image = QApplication::clipboard()->image();
    if (image.isNull())
        return std::nullopt;
    return fromQImage(image);
}

ProgramExit QtPlatform::runProgramAndWait(const std::string& program,
                                          const std::vector<std::string>& arguments,
                                          const std::string& folder,
                                          const std::vector<std::string>& environment,
                                          const std::string& ErrorFile) {
    return runner_.runHiddenAndWait(program, arguments, folder, environment, ErrorFile);
}

void QtPlatform::endProgram() {
    QApplication::closeAllWindows();
    QCoreApplication::exit(0);
}

std::string QtPlatform::clipboardText() const {
    return toBytes(QApplication::clipboard()->text());
}

void QtPlatform::setClipboardText(const std::string& text) {
    QApplication::clipboard()->setText(fromBytes(text));
}

} // namespace brooklet
