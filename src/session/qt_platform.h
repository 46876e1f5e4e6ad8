#pragma once
#include "session/platform.h"

#include <QImage>
#include <QStringList>

#include <memory>

class QDialog;
class QPrinter;
class QProcess;

namespace brooklet {

// Starts a program hidden and waits for its end in a local event loop, so windows repaint and
// menus stay live; the processor is not kept busy. On Unix the program leads a session and
// process group of its own, so that a stop reaches the programs it starts too.
class ProgramRunner {
public:
    ProgramExit runHiddenAndWait(const std::string& program, const std::vector<std::string>& arguments,
                                 const std::string& folder, const std::vector<std::string>& environment,
                                 const std::string& ErrorFile);
    // Kills the program that runs now, if any, and its process group.
    void stop();

private:
    QProcess* process_ = nullptr;
    bool stopped_ = false;
};

// Splits a filter of description and pattern pairs into the filters of a Qt file dialog.
QStringList qtFileFilters(const std::string& filter);

// A picture between the core's pixels and Qt's image.
QImage toQImage(const Bitmap& picture);
Bitmap fromQImage(const QImage& image);

class QtPlatform : public Platform {
public:
    QtPlatform();
    ~QtPlatform() override;
    BoxAnswer showBox(const BoxRequest& box) override;
    std::optional<std::string> showOpenDialog(const FileDialogSettings& dialog) override;
    std::optional<std::string> showSaveDialog(const FileDialogSettings& dialog) override;
    void endProgram() override;
    ProgramExit runProgramAndWait(const std::string& program, const std::vector<std::string>& arguments,
                                  const std::string& folder, const std::vector<std::string>& environment,
                                  const std::string& ErrorFile) override;
    void stopProgram() override { runner_.stop(); }
    std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings& dialog) override;
    bool showPrintRangeDialog(PrintRangeRecord& record) override;
    PresentPrinter presentPrinter() override;
    std::vector<std::string> printerNames() override;
    void makePrinterPresent(const std::string& name) override;
    bool setPrinterCopies(int copies) override;
    bool setPrinterOrientation(int orientation) override;
    bool setPrinterDuplex(int duplex) override;
    std::unique_ptr<PrintTarget> openPresentPrinter() override;
    void clearClipboard() override;
    void setClipboardBitmap(const Bitmap& picture) override;
    std::optional<Bitmap> clipboardBitmap() override;
    std::string clipboardText() const override;
    void setClipboardText(const std::string& text) override;

private:
    QPrinter& present();
    // Runs the dialog until it closes: its result, or nothing when it was closed as Cancel by
    // the end of its session.
    std::optional<int> runDialog(QDialog& dialog);
    std::optional<std::string> showFileDialog(const FileDialogSettings& settings, bool save);
    std::unique_ptr<QPrinter> present_;
    ProgramRunner runner_;
};

} // namespace brooklet
