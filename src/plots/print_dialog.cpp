#include "plots/print_dialog.h"

#include "editing/numbers.h"

#include <algorithm>

namespace brooklet {
namespace {

std::int16_t pageNumber(int value) {
    return static_cast<std::int16_t>(value < 1 ? 0 : std::min(value, 32767));
}

} // namespace

void clsPrintDialog::setMin(int value) {
    const std::int16_t v = min_ = pageNumber(value);
    if (v > fromPage_)
        fromPage_ = v;
    if (v > toPage_)
        toPage_ = v;
    if (v > max_)
        max_ = v;
}

void clsPrintDialog::setFromPage(int value) {
    const std::int16_t v = fromPage_ = pageNumber(value);
    if (v > toPage_)
        toPage_ = v;
    if (v > max_)
        max_ = v;
    if (v < min_)
        min_ = v;
}

void clsPrintDialog::setToPage(int value) {
    const std::int16_t v = toPage_ = pageNumber(value);
    if (v > max_)
        max_ = v;
    if (v < fromPage_)
        fromPage_ = v;
    if (v < min_)
        min_ = v;
}

void clsPrintDialog::setMax(int value) {
    const std::int16_t v = max_ = pageNumber(value);
    if (v < toPage_)
        toPage_ = v;
    if (v < fromPage_)
        fromPage_ = v;
    if (v < min_)
        min_ = v;
}

bool clsPrintDialog::ShowPrinter() {
    const PresentPrinter present = platform_.presentPrinter();
    PrintRangeRecord record;
    record.Flags = Flags;
    record.FromPage = fromPage_;
    record.ToPage = toPage_;
    record.MinPage = min_;
    record.MaxPage = max_;
    record.printer = present;
    if (!platform_.showPrintRangeDialog(record))
        return !CancelError;

    Flags = record.Flags;
    fromPage_ = pageNumber(record.FromPage);
    toPage_ = pageNumber(record.ToPage);
    // The chosen name in upper case against the present printer's name as it stands: a name
    // that differs only in case is looked up among the printers too.
    const std::string chosen = toUpper(record.printer.DeviceName);
    if (chosen != present.DeviceName)
        for (const std::string& name : platform_.printerNames())
            if (toUpper(name) == chosen)
                platform_.makePrinterPresent(name);
    // A printer that refuses a setting keeps its own.
    platform_.setPrinterCopies(record.printer.Copies);
    platform_.setPrinterDuplex(record.printer.Duplex);
    platform_.setPrinterOrientation(record.printer.Orientation);
    return true;
}

} // namespace brooklet
