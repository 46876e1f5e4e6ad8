// An identifier names one entry of its section, and one element of the network: the model and
// the schematic cannot tell two entries of one name apart.
#include "check/check_rules.h"

namespace brooklet {
namespace {

// Reports each entry whose name an earlier entry of the same entries already has, as the index of
// the entries kept them.
template <typename Entries, typename Report>
void eachRepeated(const Entries& entries, const NameIndex& index, Report report) {
    for (const auto& [later, first] : index.repeats())
        report(entries[static_cast<size_t>(later)], entries[static_cast<size_t>(first)]);
}

std::string definedTwice(const std::string& what, const std::string& id, int firstLine) {
    return what + " " + id + " is defined twice (first on line " + std::to_string(firstLine) +
           "), and the model takes only one of them. Rename or delete one.";
}

} // namespace

void CheckDuplicateIdentifiers(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    auto byId = [](const auto& entry) { return entry.id; };

    eachRepeated(records.subAreas, context.subAreas,
                 [&](const SubAreaEntry& entry, const SubAreaEntry& first) {
                     addFinding(findings, Severity::Error, SubAreaSection, entry.id, "Sub-Area Identifier",
                                entry.line, definedTwice("Sub-area", entry.id, first.line))
                         .box = 1;
                 });
    eachRepeated(records.reaches, context.reaches, [&](const ReachEntry& entry, const ReachEntry& first) {
        addFinding(findings, Severity::Error, ReachSection, entry.id, "Stream Reach Identifier", entry.line,
                   definedTwice("Stream reach", entry.id, first.line))
            .box = 1;
    });
    // A reach and a sub-area of one name, or an element named OUTLET, make two elements of a name.
    for (const SubAreaEntry& entry : records.subAreas)
        if (context.reaches.has(entry.id) || NameIndex::key(entry.id) == "OUTLET")
            addFinding(findings, Severity::Error, SubAreaSection, entry.id, "Sub-Area Identifier", entry.line,
                       "Sub-area " + entry.id + " has the name of " +
                           (context.reaches.has(entry.id) ? std::string("a stream reach") : "the outlet") +
                           ", so what drains into that name is ambiguous. Rename the sub-area.")
                .box = 1;
    for (const ReachEntry& entry : records.reaches)
        if (NameIndex::key(entry.id) == "OUTLET")
            addFinding(findings, Severity::Error, ReachSection, entry.id, "Stream Reach Identifier",
                       entry.line,
                       "A stream reach is named OUTLET, the name of the watershed's outlet. Rename it.")
                .box = 1;

    auto tables = [&](const std::vector<TableEntry>& entries, const NameIndex& index, int section,
                      const std::string& what, const std::string& field) {
        eachRepeated(entries, index, [&](const TableEntry& entry, const TableEntry& first) {
            addFinding(findings, Severity::Error, section, entry.id, field, entry.line,
                       definedTwice(what, entry.id, first.line))
                .box = 1;
        });
    };
    tables(records.structures, context.structures, StructureSection, "Structure", "Structure Identifier");
    tables(records.crossSections, context.crossSections, CrossSectionSection, "Cross section",
           "Cross Section Identifier");
    tables(records.rainTables, context.rainTables, RainfallDistributionSection, "Rain table",
           "Rain Table Identifier");
    tables(records.inputHydrographs, NameIndex(records.inputHydrographs, byId), InputHydrographSection,
           "Input hydrograph", "Input Hydrograph Identifier");
    eachRepeated(records.alternates, context.alternates,
                 [&](const AlternateEntry& entry, const AlternateEntry& first) {
                     addFinding(findings, Severity::Error, AlternateSection, entry.id, "Alternate Identifier",
                                entry.line, definedTwice("Alternate", entry.id, first.line))
                         .box = 1;
                 });
    const auto stormAndGage = [](const StormEntry& storm) { return storm.id + "|" + storm.gage; };
    eachRepeated(records.storms, NameIndex(records.storms, stormAndGage),
                 [&](const StormEntry& storm, const StormEntry& first) {
                     Finding& finding =
                         addFinding(findings, Severity::Error, StormSection, storm.id + " " + storm.gage,
                                    "Rain Gage Identifier", storm.line,
                                    "Storm " + storm.id + " has two records for gage " + storm.gage +
                                        " (first on line " + std::to_string(first.line) +
                                        "), and the model takes only one of them. Delete one.");
                     finding.entry = storm.id + "|" + storm.gage;
                     finding.box = 2;
                 });
}

} // namespace brooklet
