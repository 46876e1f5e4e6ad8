// Rain reaches every sub-area: its rain gage has storm records, each storm covers every gage in
// use, a storm's rain table exists, and an input hydrograph belongs to a storm that exists.
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

    // The gages the sub-areas use, in the order first used, each with its first user.
    std::vector<std::pair<std::string, std::string>> usedGages; // gage, who uses it
    std::unordered_set<std::string> usedKeys;
    eachSubArea(records, [&](const SubAreaEntry& entry, const std::string& alternate) {
        const std::string who = subAreaName(alternate, entry.id);
        if (!context.gages.has(entry.gage)) {
            addSubAreaFinding(
                findings, Severity::Error, alternate, entry, GageField, 3, entry.line,
                entry.gage.empty()
                    ? who + " names no rain gage, and no storm gives rain without a gage. Choose the "
                            "gage whose rain falls on it."
                    : who + " takes its rain from gage " + entry.gage +
                          ", which no storm of Storm Analysis names. Choose an existing gage, or "
                          "enter the storms at that gage.");
        } else if (usedKeys.insert(NameIndex::key(entry.gage)).second) {
            usedGages.emplace_back(entry.gage, who);
        }
    });

    // Each storm gives rain at every gage in use. A storm's gages are counted against those in
    // use; only a storm that misses some walks the gages in use, and stops at the fourth it
    // misses, so the work stays within the storm's own records.
    constexpr size_t Named = 3;
    for (const StormEntry* storm : storms) {
        const auto& gages = stormGages[NameIndex::key(storm->id)];
        size_t covered = 0;
        for (const std::string& gage : gages)
            covered += usedKeys.count(gage);
        if (covered == usedGages.size())
            continue;
        std::vector<const std::pair<std::string, std::string>*> missing;
        for (const auto& used : usedGages) {
            if (gages.count(NameIndex::key(used.first)) != 0)
                continue;
            missing.push_back(&used);
            if (missing.size() > Named)
                break;
        }
        const size_t missingCount = usedGages.size() - covered;
        std::string message = "Storm " + storm->id + " gives no rain at gage " + missing[0]->first +
                              ", which " + missing[0]->second + " uses";
        if (missingCount > 1) {
            message = "Storm " + storm->id + " gives no rain at " + std::to_string(missingCount) +
                      " gages that sub-areas use: ";
            for (size_t i = 0; i < missing.size() && i < Named; ++i)
                message += (i == 0 ? "" : ", ") + missing[i]->first;
            if (missingCount > Named)
                message += " and " + std::to_string(missingCount - Named) + " more";
        }
        message += missingCount > 1 ? ". Add records of the storm at those gages."
                                    : ". Add a record of the storm at that gage.";
        Finding& finding = addFinding(findings, Severity::Warning, StormSection, storm->id,
                                      "Rain Gage Identifier", storm->line, message);
        finding.entry = storm->id + "|" + storm->gage;
        finding.box = 2;
    }

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
