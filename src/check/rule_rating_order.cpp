// Rating tables rise with elevation: in a structure rating and a cross section the elevations,
// and with them discharge, storage, end area and top width, rise strictly from point to point;
// a rain table's mass rainfall never falls. The model interpolates in these tables and cannot
// where they turn back.
#include <optional>

#include "check/check_rules.h"
#include "editing/numbers.h"

namespace brooklet {
namespace {

struct Column {
    size_t index;
    const char* field;
    int box;
};

// Tells the first point of each column where the value does not rise (or, with Strict false,
// falls) against the point before; points whose value is blank or no number are passed over,
// the value rules tell those.
void checkRising(Findings& findings, int section, const TableEntry& table, const std::string& what,
                 std::initializer_list<Column> columns, bool strict) {
    for (const Column& column : columns) {
        std::optional<double> previous;
        for (size_t row = 0; row < table.rows.size(); ++row) {
            const std::optional<double> value = numericValue(table.rows[row].values[column.index]);
            if (!value)
                continue;
            if (previous && (strict ? *value <= *previous : *value < *previous)) {
                addFinding(
                    findings, Severity::Error, section, table.id, column.field, table.rows[row].line,
                    what + " " + (strict ? "does not rise" : "falls") + " in its " + column.field +
                        " at point " + std::to_string(row + 1) + " (" + table.rows[row].values[column.index] +
                        " after " + NumberText(*previous) + "). The model needs the values " +
                        (strict ? "to rise from point to point" : "never to fall") + "; correct the table.")
                    .box = column.box;
                break;
            }
            previous = value;
        }
    }
}

} // namespace

void CheckRatingOrder(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    for (const TableEntry& table : records.structures)
        checkRising(
            findings, StructureSection, table, "Structure " + table.id,
            {{0, "Structure Elevation", 3}, {1, "Structure Discharge", 4}, {2, "Structure Storage", 5}},
            true);
    for (const TableEntry& table : records.crossSections)
        checkRising(findings, CrossSectionSection, table, "Cross section " + table.id,
                    {{0, "Cross Section Elevation", 6},
                     {1, "Cross Section Discharge", 7},
                     {2, "Cross Section End Area", 8},
                     {3, "Cross Section Top Width", 9}},
                    true);
    for (const TableEntry& table : records.rainTables)
        checkRising(findings, RainfallDistributionSection, table, "Rain table " + table.id,
                    {{0, "Mass Rainfall Points", 1}}, false);
}

} // namespace brooklet
