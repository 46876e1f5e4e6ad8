// The readers of the sub-area and stream reach sections on any bytes. None may crash, hang or
// grow without bound, and what the writer makes of a section must come back the same through the
// reader and writer. A CHANNEL record read in its long form with a blank among its four middle
// values is written in the short form, which can leave it no value at all; read back, such a
// record is no segment. So the writer comes to rest on its second pass, not on its first.
#include <cstdint>
#include <string>
#include <vector>

#include "network/reach.h"
#include "network/sub_area.h"
#include "session/text_file.h"

namespace {

std::vector<std::string> subAreaRoundTrip(const std::vector<std::string>& lines) {
    brooklet::WatershedTables tables;
    brooklet::ReadSubAreaSection(lines, tables);
    return brooklet::SubAreaSectionRecords(tables);
}

std::vector<std::string> reachRoundTrip(const std::vector<std::string>& lines) {
    brooklet::TextTable table;
    int count = 0;
    brooklet::ReadReachSection(lines, table, count);
    return brooklet::ReachSectionRecords(table, count);
}

template <typename RoundTrip>
void writtenComesBack(const std::vector<std::string>& lines, RoundTrip roundTrip) {
    const std::vector<std::string> written = roundTrip(roundTrip(lines));
    if (roundTrip(written) != written)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<std::string> lines =
        brooklet::splitLines(std::string(reinterpret_cast<const char*>(data), size));
    writtenComesBack(lines, subAreaRoundTrip);
    writtenComesBack(lines, reachRoundTrip);
    return 0;
}
