#include "session/platform.h"

#include <algorithm>

namespace brooklet {

Platform::OpenDialog::OpenDialog(Platform& platform, std::function<void()> cancel)
    : platform_(platform), cancel_(std::move(cancel)) {
    platform_.openDialogs_.push_back(this);
}

Platform::OpenDialog::~OpenDialog() {
    auto& open = platform_.openDialogs_;
    open.erase(std::remove(open.begin(), open.end(), this), open.end());
    if (open.empty() && platform_.whenDialogsClosed_)
        platform_.whenDialogsClosed_();
}

void Platform::cancelOpenDialogs() {
    // A dialog closes only when control returns to it, so the list stays as it is meanwhile.
    const std::vector<OpenDialog*> open = openDialogs_;
    for (auto dialog = open.rbegin(); dialog != open.rend(); ++dialog) {
        if ((*dialog)->cancelled_)
            continue;
        (*dialog)->cancelled_ = true;
        if ((*dialog)->cancel_)
            (*dialog)->cancel_();
    }
}

} // namespace brooklet
