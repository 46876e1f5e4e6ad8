// The readers of the storm section and of the three sections of value tables (rainfall
// distributions, input hydrographs, the dimensionless unit hydrograph) on any bytes, and the
// splitting of pasted text. None may crash, hang or grow without bound, and what a written
// section reads back as must come back the same through the writer and reader. (The unit
// hydrograph's closing value is written in a record of its own with one blank more only while
// it closes the series; read back, it is a value like any other.)
#include <cstdint>
#include <string>
#include <vector>

#include "session/text_file.h"
#include "tables/input_hydrograph.h"
#include "tables/pasted_text.h"
#include "tables/rainfall_distribution.h"
#include "tables/storm_analysis.h"
#include "tables/unit_hydrograph.h"

namespace {

template <typename Read, typename Write>
void roundTrip(const std::vector<std::string>& lines, Read read, Write write) {
    const auto once = read(write(read(lines)));
    if (read(write(once)) != once)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace brooklet;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> lines = splitLines(bytes);

    roundTrip(lines, ReadStormSection, WriteStormSection);
    roundTrip(lines, ReadRainfallDistributionSection, WriteRainfallDistributionSection);
    roundTrip(lines, ReadInputHydrographSection, WriteInputHydrographSection);
    roundTrip(lines, ReadUnitHydrographSection, WriteUnitHydrographSection);

    // Pasted values and rows, copied out again, paste back the same.
    const std::vector<std::string> values = SplitPastedValues(bytes);
    if (SplitPastedValues(ValuesAsColumn(values)) != values)
        __builtin_trap();
    const auto rows = SplitPastedRows(bytes);
    if (SplitPastedRows(RowsAsText(rows)) != rows)
        __builtin_trap();
    return 0;
}
