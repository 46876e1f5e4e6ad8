#pragma once
// clsPrintDialog: the platform's print dialog with page bounds in, the result and the page range
// out, and the printer chosen there, with its copies, duplex and orientation, made the present
// printer the program prints on.
#include <cstdint>

#include "session/platform.h"

namespace brooklet {

class clsPrintDialog {
public:
    explicit clsPrintDialog(Platform& platform) : platform_(platform) {}

    // The options of the dialog, and the user's choices after it.
    std::int32_t Flags = 0;
    // When set, a cancelled dialog gives False; when not, True.
    bool CancelError = false;

    // The page bounds and the range. A setter takes a value below 1 as 0 and keeps
    // Min <= FromPage <= ToPage <= max by dragging the others along.
    std::int16_t Min() const { return min_; }
    std::int16_t max() const { return max_; }
    std::int16_t FromPage() const { return fromPage_; }
    std::int16_t ToPage() const { return toPage_; }
    void setMin(int value);
    void setMax(int value);
    void setFromPage(int value);
    void setToPage(int value);

    // Shows the dialog on the present printer. True when the user printed, or cancelled without
    // CancelError.
    bool ShowPrinter();

private:
    Platform& platform_;
    std::int16_t min_ = 0;
    std::int16_t max_ = 0;
    std::int16_t fromPage_ = 0;
    std::int16_t toPage_ = 0;
};

} // namespace brooklet
