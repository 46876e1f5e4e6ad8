// The file viewer's loading and printing on any bytes: the text shown and the print steps never
// hold more than the file's bytes, the margins and the page breaks, and the box shows exactly the
// lines that print, one line feed for each line end.
#include <cstdint>
#include <string>

#include "run/viewer_text.h"
#include "session/text_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = brooklet::ViewerText(bytes);
    if (text.size() > size)
        __builtin_trap();

    const std::vector<std::string> lines = brooklet::splitLines(bytes);
    size_t lineFeeds = 0;
    for (char c : text)
        lineFeeds += c == '\n';
    // A line feed ends every line but an open last one; no other line feed is shown.
    if (lineFeeds != lines.size() && lineFeeds + 1 != lines.size())
        __builtin_trap();

    size_t printed = 0;
    size_t pages = 0;
    for (const brooklet::PrintStep& step : brooklet::FilePrintSteps(bytes)) {
        if (step.newPage)
            ++pages;
        else
            ++printed;
        if (!step.newPage && step.line.compare(0, 5, "     ") != 0)
            __builtin_trap();
    }
    // Each line prints once behind its margin, or is a page break of its own.
    if (printed > lines.size() || pages > lines.size() || printed + pages < lines.size())
        __builtin_trap();
    return 0;
}
