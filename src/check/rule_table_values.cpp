// The values of storms and of the tables lie in the ranges their editors' field checks accept,
// and every table has values.
#include "check/check_rules.h"

namespace brooklet {
namespace {

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

// The value rows of a table that fail Passes, each told once.
template <typename Passes>
void checkRowValues(Findings& findings, int section, const TableEntry& table, const std::string& what,
                    size_t column, const std::string& field, int box, const std::string& wanted,
                    Passes passes) {
    for (size_t row = 0; row < table.rows.size(); ++row) {
        const std::string& value = table.rows[row].values[column];
        if (!passes(value, row))
            addFinding(findings, Severity::Error, section, table.id, field, table.rows[row].line,
                       what + " has the value " + quoted(value) + " as its " + field + " in point " +
                           std::to_string(row + 1) + ", which is not " + wanted + ". Correct the value.")
                .box = box;
    }
}

void checkStorms(const WatershedRecords& records, Findings& findings) {
    for (const StormEntry& storm : records.storms) {
        const std::string who = "Storm " + storm.id + " at gage " + storm.gage;
        auto add = [&](const std::string& field, int box, const std::string& message) {
            Finding& finding = addFinding(findings, Severity::Error, StormSection,
                                          storm.id + " " + storm.gage, field, storm.line, who + message);
            finding.entry = storm.id + "|" + storm.gage;
            finding.box = box;
        };
        if (!passesAtLeast(storm.start, 0))
            add("Gage Starting Time", 3,
                " starts at " + quoted(storm.start) + ", which is not a number of hours of 0 or more.");
        if (!passesAbove(storm.rainfall, 0, false))
            add("Gage Rainfall", 4,
                " has the rainfall " + quoted(storm.rainfall) +
                    ", which is not a depth above 0. Enter the rainfall.");
        if (!(storm.condition.empty() || storm.condition == "1" || storm.condition == "2" ||
              storm.condition == "3"))
            add("Gage Antecedent Runoff Condition", 6,
                " has the antecedent runoff condition " + quoted(storm.condition) +
                    ", where only 1, 2 or 3 count.");
        if (!passesAbove(storm.twoYear, 0))
            add("2-Yr 24-Hr Rainfall", 7,
                " has the 2-year 24-hour rainfall " + quoted(storm.twoYear) +
                    ", which is not a depth above 0.");
    }
}

} // namespace

void CheckTableValues(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    checkStorms(records, findings);
    auto noValues = [&](int section, const TableEntry& table, const std::string& what,
                        const std::string& field, const std::string& what2) {
        addFinding(findings, Severity::Error, section, table.id, field, table.line,
                   what + " has no " + what2 + ". Enter them, or delete it.")
            .box = 1;
    };
    const auto atLeastZero = [](const std::string& value, size_t) { return passesAtLeast(value, 0, false); };

    for (const TableEntry& table : records.rainTables) {
        const std::string who = "Rain table " + table.id;
        if (!passesAbove(table.fields[0], 0, false))
            addFinding(findings, Severity::Error, RainfallDistributionSection, table.id,
                       "Rain Table Time Increment", table.line,
                       who + " has the time increment " + quoted(table.fields[0]) +
                           ", which is not a number of hours above 0. Enter its time increment.")
                .box = 2;
        if (table.rows.empty())
            noValues(RainfallDistributionSection, table, who, "Rain Table Identifier",
                     "mass rainfall points");
        checkRowValues(findings, RainfallDistributionSection, table, who, 0, "Mass Rainfall Points", 1,
                       "a number of 0 or more", atLeastZero);
    }

    for (const TableEntry& table : records.inputHydrographs) {
        const std::string who = "Input hydrograph " + table.id;
        auto add = [&](const std::string& field, int box, const std::string& message) {
            addFinding(findings, Severity::Error, InputHydrographSection, table.id, field, table.line,
                       who + message)
                .box = box;
        };
        if (!passesAtLeast(table.fields[2], 0))
            add("Input Hydrograph Start Time", 4,
                " starts at " + quoted(table.fields[2]) + ", which is not a number of hours of 0 or more.");
        if (!passesAbove(table.fields[3], 0, false))
            add("Input Hydrograph Time Increment", 5,
                " has the time increment " + quoted(table.fields[3]) +
                    ", which is not a number of hours above 0. Enter its time increment.");
        if (!passesAtLeast(table.fields[4], 0))
            add("Input Hydrograph Drainage Area", 6,
                " has the drainage area " + quoted(table.fields[4]) +
                    ", which is not a number of 0 or more.");
        if (!passesAtLeast(table.fields[5], 0))
            add("Input Hydrograph Base Flow", 7,
                " has the base flow " + quoted(table.fields[5]) + ", which is not a number of 0 or more.");
        if (table.rows.empty())
            noValues(InputHydrographSection, table, who, "Input Hydrograph Identifier", "flows");
        checkRowValues(findings, InputHydrographSection, table, who, 0, "Input Hydrograph Flows", 1,
                       "a flow of 0 or more", atLeastZero);
    }

    const TableEntry& unit = records.unitHydrograph;
    if (records.headerLine[UnitHydrographSection] != 0) {
        const std::string who = "The dimensionless unit hydrograph";
        checkRowValues(findings, UnitHydrographSection, unit, who, 0, "Dimensionless Hydrograph Points", 1,
                       "a number from 0 to 1",
                       [](const std::string& value, size_t) { return passesRange(value, 0, 1, false); });
        bool reachesOne = false;
        for (const TableEntry::Row& row : unit.rows)
            reachesOne = reachesOne || (passesRange(row.values[0], 1, 1, false));
        if (!reachesOne)
            addFinding(findings, Severity::Warning, UnitHydrographSection, "",
                       "Dimensionless Hydrograph Points", unit.line,
                       who +
                           " never reaches 1, the peak that the model scales every sub-area's hydrograph to. "
                           "Enter its peak as 1.")
                .box = 1;
    }

    for (const TableEntry& table : records.structures) {
        const std::string who = "Structure " + table.id;
        if (!passesNumber(table.fields[0]))
            addFinding(findings, Severity::Error, StructureSection, table.id, "Structure Starting Elevation",
                       table.line,
                       who + " has the starting elevation " + quoted(table.fields[0]) +
                           ", which is no number.")
                .box = 2;
        if (table.rows.empty())
            noValues(StructureSection, table, who, "Structure Identifier", "rating table");
        checkRowValues(findings, StructureSection, table, who, 0, "Structure Elevation", 3, "a number",
                       [](const std::string& value, size_t) { return passesNumber(value, false); });
        checkRowValues(findings, StructureSection, table, who, 1, "Structure Discharge", 4,
                       "a number of 0 or more", atLeastZero);
        checkRowValues(findings, StructureSection, table, who, 2, "Structure Storage", 5,
                       "a number of 0 or more", atLeastZero);
    }

    for (const TableEntry& table : records.crossSections) {
        const std::string who = "Cross section " + table.id;
        if (!passesNumber(table.fields[0], false))
            addFinding(
                findings, Severity::Error, CrossSectionSection, table.id, "Bankfull Elevation", table.line,
                who + " has the bankfull elevation " + quoted(table.fields[0]) + ", which is no number.")
                .box = 2;
        if (!passesNumber(table.fields[1]))
            addFinding(
                findings, Severity::Error, CrossSectionSection, table.id, "Low Ground Elevation", table.line,
                who + " has the low ground elevation " + quoted(table.fields[1]) + ", which is no number.")
                .box = 3;
        if (!passesAtLeast(table.fields[3], 0))
            addFinding(findings, Severity::Error, CrossSectionSection, table.id, "Stream Station", table.line,
                       who + " has the stream station " + quoted(table.fields[3]) +
                           ", which is not a number of 0 or more.")
                .box = 5;
        if (table.rows.empty())
            noValues(CrossSectionSection, table, who, "Cross Section Identifier", "rating table");
        checkRowValues(findings, CrossSectionSection, table, who, 0, "Cross Section Elevation", 6, "a number",
                       [](const std::string& value, size_t) { return passesNumber(value, false); });
        // Blank is allowed in the first point only, as the editor allows it.
        const auto firstMayBeBlank = [](const std::string& value, size_t row) {
            return passesAtLeast(value, 0, row == 0);
        };
        checkRowValues(findings, CrossSectionSection, table, who, 1, "Cross Section Discharge", 7,
                       "a number of 0 or more", firstMayBeBlank);
        checkRowValues(findings, CrossSectionSection, table, who, 2, "Cross Section End Area", 8,
                       "a number of 0 or more", firstMayBeBlank);
        checkRowValues(findings, CrossSectionSection, table, who, 3, "Cross Section Top Width", 9,
                       "a number of 0 or more", firstMayBeBlank);
        checkRowValues(findings, CrossSectionSection, table, who, 4, "Cross Section Friction Slope", 10,
                       "a number above 0",
                       [](const std::string& value, size_t) { return passesAbove(value, 0); });
    }
}

} // namespace brooklet
