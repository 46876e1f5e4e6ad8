#include "tables/unit_hydrograph.h"

#include "editing/numbers.h"
#include "tables/value_records.h"

namespace brooklet {

std::vector<std::string> ReadUnitHydrographSection(const std::vector<std::string>& lines) {
    std::vector<std::string> values;
    for (size_t i = 1; i < lines.size() && !trim(lines[i]).empty(); ++i)
        if (HasValueFields(lines[i]))
            ReadValueRecord(lines[i], values);
    return values;
}

std::vector<std::string> WriteUnitHydrographSection(const std::vector<std::string>& values) {
    if (values.empty())
        return {};
    std::vector<std::string> lines{HeaderLine("DIMENSIONLESS UNIT HYDROGRAPH:", 40)};
    AppendValueRecords(lines, values, true, " ");
    return lines;
}

} // namespace brooklet
