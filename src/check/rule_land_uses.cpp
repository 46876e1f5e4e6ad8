// A sub-area's land use records name land uses that a table defines (the standard table, the
// local land use file, or the file's own "LOCAL LAND USE:" section), a hydrologic soil group A
// to D, and a group for which that land use has a curve number.
#include "check/check_rules.h"

namespace brooklet {

void CheckLandUses(const RuleContext& context, Findings& findings) {
    std::unordered_map<std::string, const KnownLandUse*> known;
    for (const auto& [key, landUse] : context.input.landUses)
        known.emplace(key, &landUse);
    for (const KnownLandUse& landUse : context.records.localLandUses)
        known.emplace(NameIndex::key(landUse.name), &landUse);

    eachSubArea(context.records, [&](const SubAreaEntry& entry, const std::string& alternate) {
        const std::string who = subAreaName(alternate, entry.id);
        for (const LandArea& land : entry.landAreas) {
            auto add = [&](const std::string& message) {
                addSubAreaFinding(findings, Severity::Error, alternate, entry, "Sub-Area Identifier", 1,
                                  land.line, who + message);
            };
            const auto found = known.find(NameIndex::key(land.name));
            if (found == known.end()) {
                add(" uses the land use \"" + land.name +
                    "\", which neither the standard table nor the local land use table defines. Choose a "
                    "defined "
                    "land use, or add it in Local Land Use.");
                continue;
            }
            const std::string group = land.soilGroup;
            if (group.size() != 1 || std::string("ABCDabcd").find(group[0]) == std::string::npos) {
                add(" gives land use " + land.name + " the soil group \"" + group +
                    "\", where only the hydrologic soil groups A, B, C and D count. Choose its group.");
                continue;
            }
            const size_t index = static_cast<size_t>((group[0] & ~0x20) - 'A');
            if (found->second->curveNumbers[index].empty())
                add(" gives land use " + land.name + " the soil group " + group +
                    ", for which that land use has no curve number. Choose another group, or give the land "
                    "use a "
                    "curve number for it in Local Land Use.");
        }
    });
}

} // namespace brooklet
