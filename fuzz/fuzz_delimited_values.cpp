// The comma-delimited reader of the local land use and soil files on any bytes, through every
// reader built on it: none may crash, hang or give more than the bytes hold.
#include <cstdint>
#include <string>

#include "network/delimited_values.h"
#include "network/local_land_use.h"
#include "network/local_soil.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);

    brooklet::DelimitedReader reader(bytes);
    size_t items = 0;
    size_t length = 0;
    while (!reader.atEnd()) {
        length += reader.readItem().size();
        if ((++items & 3) == 0)
            reader.skipLine();
        // Every value but an empty one behind a comma takes a byte of its own.
        if (items > size + 1 || length > size)
            __builtin_trap();
    }

    using brooklet::BlankName;
    for (BlankName rule :
         {BlankName::SkipLine, BlankName::SkipItem, BlankName::DropRecord, BlankName::EndReading}) {
        const auto rows = brooklet::ReadLandUseRecords(bytes, rule);
        if (rows.size() > size)
            __builtin_trap();
        for (const auto& row : rows)
            brooklet::LocalLandUseSectionRecord(row);
    }
    if (brooklet::ReadLocalSoilRecords(bytes).size() > size ||
        brooklet::ReadSoilDisplayRecords(bytes).size() > size)
        __builtin_trap();
    return 0;
}
