// The readers of the structure rating and cross section sections on any bytes. None may crash,
// hang or grow without bound, and a section once written must come back the same through its
// reader and writer.
#include <cstdint>
#include <string>
#include <vector>

#include "editing/spreadsheet_text.h"
#include "session/text_file.h"
#include "tables/cross_section.h"
#include "tables/structure_rating.h"

namespace {

void roundTrip(const brooklet::RatingLayout& layout, const std::vector<std::string>& lines) {
    brooklet::GridContext tables;
    brooklet::ReadRatingSection(layout, lines, tables);
    const std::vector<std::string> written = brooklet::WriteRatingSection(layout, tables);
    brooklet::GridContext again;
    brooklet::ReadRatingSection(layout, written, again);
    if (brooklet::WriteRatingSection(layout, again) != written)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace brooklet;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> lines = splitLines(bytes);
    roundTrip(StructureRatingLayout, lines);
    roundTrip(CrossSectionLayout, lines);
    // Clipboard text is outside bytes too.
    SplitSpreadsheetText(bytes);
    return 0;
}
