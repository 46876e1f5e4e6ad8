// The readers of the four run-wide option sections on any bytes: duration increment, global
// output, time analysis and verification. None may crash, hang or grow without bound, and a
// section once written must come back the same through its reader and writer.
#include <cstdint>
#include <string>
#include <vector>

#include "options/duration_increment.h"
#include "options/global_output.h"
#include "options/time_analysis.h"
#include "options/verification.h"
#include "session/text_file.h"

namespace {

template <typename Read, typename Write>
void roundTrip(const std::vector<std::string>& lines, Read read, Write write) {
    const std::vector<std::string> written = write(read(lines));
    if (write(read(written)) != written)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace brooklet;
    const std::vector<std::string> lines = splitLines(std::string(reinterpret_cast<const char*>(data), size));

    roundTrip(lines, ReadDurationIncrementSection, WriteDurationIncrementSection);
    roundTrip(lines, ReadGlobalOutputSection, WriteGlobalOutputSection);
    roundTrip(lines, ReadTimeAnalysisSection, WriteTimeAnalysisSection);
    roundTrip(lines, ReadVerificationSection, WriteVerificationSection);
    return 0;
}
