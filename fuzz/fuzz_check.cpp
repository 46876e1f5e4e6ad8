// Check Watershed on any bytes: as an input file cut at its headers, and as the records of every
// section at once, as work files may hold them. Nothing may crash, hang or find more than a few
// things per line.
#include <cstdint>
#include <string>

#include "check/check_watershed.h"
#include "session/text_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const brooklet::Findings cut = brooklet::CheckWatershed(brooklet::CutInputFileForCheck(bytes));

    brooklet::CheckInput everywhere;
    const std::vector<std::string> lines = brooklet::splitLines(bytes);
    for (int section = 1; section <= brooklet::SectionCount; ++section) {
        brooklet::SectionText& text = everywhere.sections[static_cast<size_t>(section)];
        text.lines.push_back("HEADER");
        text.lineNumbers.push_back(0);
        for (size_t i = 0; i < lines.size(); ++i) {
            text.lines.push_back(lines[i]);
            text.lineNumbers.push_back(static_cast<int>(i) + 1);
        }
    }
    const brooklet::Findings all = brooklet::CheckWatershed(everywhere);

    // A record is told about a bounded number of times, by each section that reads it.
    const size_t bound = 40 * (lines.size() + 1) * brooklet::SectionCount;
    if (cut.size() > bound || all.size() > bound)
        __builtin_trap();
    return 0;
}
