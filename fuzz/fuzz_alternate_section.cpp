// The reader of the alternate section on any bytes. It may not crash, hang or grow without
// bound, and the section settles after two rounds through reader and writer: the first round
// moves the shallow surface code to the columns it is not read from, the second drops it.
#include <cstdint>
#include <string>
#include <vector>

#include "session/text_file.h"
#include "tables/alternate_analysis.h"

namespace {

std::vector<std::string> roundTrip(const std::vector<std::string>& lines) {
    brooklet::WatershedTables tables;
    brooklet::resetAlternateStore(tables);
    brooklet::ReadAlternateSection(lines, tables);
    return brooklet::AlternateSectionRecords(tables);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<std::string> lines =
        brooklet::splitLines(std::string(reinterpret_cast<const char*>(data), size));
    const std::vector<std::string> settled = roundTrip(roundTrip(lines));
    if (roundTrip(settled) != settled)
        __builtin_trap();
    return 0;
}
