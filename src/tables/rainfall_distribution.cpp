#include "tables/rainfall_distribution.h"

namespace brooklet {
namespace {

const NamedTableLayout Layout{"RAINFALL DISTRIBUTION:", 50, {{11, false}, {31, true}}, false};

} // namespace

std::vector<ValueTable> ReadRainfallDistributionSection(const std::vector<std::string>& lines) {
    return ReadNamedValueTables(lines, Layout);
}

std::vector<std::string> WriteRainfallDistributionSection(const std::vector<ValueTable>& tables) {
    return WriteNamedValueTables(tables, Layout);
}

} // namespace brooklet
