// Rain reaches every sub-area: its rain gage has storm records, each storm covers every gage in
// use, a storm's rain table exists, and an input hydrograph belongs to a storm that exists.
#include <set>
#include <unordered_set>

#include "check/check_rules.h"

namespace brooklet {

void CheckRainfallReferences(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    const char* const GageField = "Sub-Area Rain Gage Identifier";
    // The gages each storm gives rain at.
    std::unordered_map<std::string, std::unordered_set<std::string>> stormGages;
    std::vector<const StormEntry*> storms; // the first record of each storm, in file order
    std::unordered_set<std::string> usedRainTables;
    for (const StormEntry& storm : records.storms) {
        auto [gages, isNew] = stormGages.try_emplace(NameIndex::key(storm.id));
        if (isNew)
            storms.push_back(&storm);
        gages->second.insert(NameIndex::key(storm.gage));
        usedRainTables.insert(NameIndex::key(storm.rainTable));
        const std::string who = "Storm " + storm.id + " at gage " + storm.gage;
        Finding* finding = nullptr;
        if (storm.rainTable.empty())
            finding = &addFinding(findings, Severity::Error, StormSection, storm.id + " " + storm.gage,
                                  "Gage Rain Table Identifier", storm.line,
                                  who + " names no rain table. Choose a standard table or one of Rainfall "
                                        "Distribution.");
        else if (!context.isRainTable(storm.rainTable))
            finding = &addFinding(findings, Severity::Error, StormSection, storm.id + " " + storm.gage,
                                  "Gage Rain Table Identifier", storm.line,
                                  who + " uses rain table " + storm.rainTable +
                                      ", which is neither a standard table nor one of Rainfall Distribution. "
                                      "Choose an existing table, or enter it in Rainfall Distribution.");
        if (finding) {
            finding->entry = storm.id + "|" + storm.gage;
            finding->box = 5;
        }
    }

    // Each gage a sub-area uses, with the first sub-area that uses it.
    std::set<std::string> gagesReported;
    eachSubArea(records, [&](const SubAreaEntry& entry, const std::string& alternate) {
        const std::string key = NameIndex::key(entry.gage);
        if (!context.gages.has(entry.gage)) {
            const std::string who = subAreaName(alternate, entry.id);
            addSubAreaFinding(
                findings, Severity::Error, alternate, entry, GageField, 3, entry.line,
                entry.gage.empty()
                    ? who + " names no rain gage, and no storm gives rain without a gage. Choose the "
                            "gage whose rain falls on it."
                    : who + " takes its rain from gage " + entry.gage +
                          ", which no storm of Storm Analysis names. Choose an existing gage, or "
                          "enter the storms at that gage.");
            return;
        }
        if (!gagesReported.insert(key).second)
            return;
        for (const StormEntry* storm : storms)
            if (stormGages[NameIndex::key(storm->id)].count(key) == 0) {
                Finding& finding = addFinding(
                    findings, Severity::Warning, StormSection, storm->id, "Rain Gage Identifier", storm->line,
                    "Storm " + storm->id + " gives no rain at gage " + entry.gage + ", which " +
                        subAreaName(alternate, entry.id) + " uses. Add a record of the storm at that gage.");
                finding.entry = storm->id + "|" + storm->gage;
                finding.box = 2;
            }
    });

    for (const TableEntry& hydrograph : records.inputHydrographs) {
        const std::string& storm = hydrograph.fields[1];
        if (!storm.empty() && !context.stormIds.has(storm))
            addFinding(findings, Severity::Error, InputHydrographSection, hydrograph.id,
                       "Input Hydrograph Storm Identifier", hydrograph.line,
                       "Input hydrograph " + hydrograph.id + " belongs to storm " + storm +
                           ", which Storm Analysis does not define. Choose an existing storm.")
                .box = 3;
    }

    for (const TableEntry& table : records.rainTables)
        if (usedRainTables.count(NameIndex::key(table.id)) == 0)
            addFinding(findings, Severity::Warning, RainfallDistributionSection, table.id,
                       "Rain Table Identifier", table.line,
                       "Rain table " + table.id + " is used by no storm. Name it in a storm, or delete it.")
                .box = 1;
}

} // namespace brooklet
