#include "tables/input_hydrograph.h"

namespace brooklet {
namespace {

const NamedTableLayout Layout{
    "INPUT HYDROGRAPH:",
    40,
    {{11, false}, {21, false}, {31, false}, {41, true}, {51, true}, {61, true}, {71, true}},
    true};

} // namespace

std::vector<ValueTable> ReadInputHydrographSection(const std::vector<std::string>& lines) {
    return ReadNamedValueTables(lines, Layout);
}

std::vector<std::string> WriteInputHydrographSection(const std::vector<ValueTable>& tables) {
    return WriteNamedValueTables(tables, Layout);
}

} // namespace brooklet
