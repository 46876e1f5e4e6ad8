// A reach is routed through a cross section or a structure that has its table, and a split flow
// through a cross section that exists; a table no reach uses is most likely a slip.
#include <unordered_set>

#include "check/check_rules.h"

namespace brooklet {

void CheckRoutingTables(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    std::unordered_set<std::string> usedStructures, usedCrossSections;
    eachReach(records, [&](const ReachEntry& entry, const std::string& alternate) {
        const std::string who = reachName(alternate, entry.id);
        usedStructures.insert(NameIndex::key(entry.structure));
        usedCrossSections.insert(NameIndex::key(entry.crossSection));
        if (!entry.structure.empty() && !context.structures.has(entry.structure))
            addReachFinding(
                findings, Severity::Error, alternate, entry, "Reach Structure Identifier", 4, entry.line,
                who + " is routed through structure " + entry.structure +
                    ", which has no rating table. Enter its rating in Structure Rating, or choose an "
                    "existing structure.");
        if (!entry.crossSection.empty() && !context.crossSections.has(entry.crossSection))
            addReachFinding(findings, Severity::Error, alternate, entry,
                            "Reach Cross Section      Identifier", 3, entry.line,
                            who + " is routed through cross section " + entry.crossSection +
                                ", which Stream Cross Section does not define. Enter it there, or choose an "
                                "existing cross section.");
        if (entry.structure.empty() && entry.crossSection.empty())
            addReachFinding(
                findings, Severity::Warning, alternate, entry, "Reach Cross Section      Identifier", 3,
                entry.line,
                who + " names neither a cross section nor a structure, so the model has no table to "
                      "route it with. Choose one of them.");
        if (entry.splitLine == 0)
            return;
        const std::string& splitSection = entry.split[1];
        usedCrossSections.insert(NameIndex::key(splitSection));
        if (!splitSection.empty() && !context.crossSections.has(splitSection))
            addReachFinding(findings, Severity::Error, alternate, entry,
                            "Split Flow Cross Section Identifier", 15, entry.splitLine,
                            who + " splits its flow by cross section " + splitSection +
                                ", which Stream Cross Section does not define. Enter it there, or choose an "
                                "existing cross section.");
    });

    for (const TableEntry& structure : records.structures)
        if (usedStructures.count(NameIndex::key(structure.id)) == 0)
            addFinding(findings, Severity::Warning, StructureSection, structure.id, "Structure Identifier",
                       structure.line,
                       "Structure " + structure.id +
                           " is used by no stream reach. Name it as a reach's structure, or delete it.")
                .box = 1;
    for (const TableEntry& section : records.crossSections)
        if (usedCrossSections.count(NameIndex::key(section.id)) == 0)
            addFinding(findings, Severity::Warning, CrossSectionSection, section.id,
                       "Cross Section Identifier", section.line,
                       "Cross section " + section.id +
                           " is used by no stream reach. Name it as a reach's cross section, or delete it.")
                .box = 1;
}

} // namespace brooklet
