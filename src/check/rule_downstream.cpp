// Every element drains somewhere that exists: a sub-area's and a reach's receiving element, a
// split flow's target reach and the reach an input hydrograph enters.
#include <unordered_set>

#include "check/check_rules.h"

namespace brooklet {
namespace {

const char* const SubAreaReachField = "Sub-Area Reach Identifier";
const char* const ReceivingField = "Stream Receiving      Reach Identifier";
const char* const SplitReachField = "Split Flow Reach Identifier";

// The identifiers an alternate gives its own entries: they join the network of that alternate.
std::unordered_set<std::string> alternateNames(const AlternateEntry& alternate) {
    std::unordered_set<std::string> names;
    for (const SubAreaEntry& entry : alternate.subAreas)
        names.insert(NameIndex::key(entry.id));
    for (const ReachEntry& entry : alternate.reaches)
        names.insert(NameIndex::key(entry.id));
    return names;
}

} // namespace

void CheckDownstreamElements(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    std::vector<std::unordered_set<std::string>> ownNames;
    for (const AlternateEntry& alternate : records.alternates)
        ownNames.push_back(alternateNames(alternate));
    std::unordered_map<std::string, size_t> alternateIndex;
    for (size_t i = 0; i < records.alternates.size(); ++i)
        alternateIndex.emplace(records.alternates[i].id, i);
    // The base data's entries were looked up once, in the rule context.
    auto baseDrainsSomewhere = [](const auto& entry, const auto& entries,
                                  const std::vector<int>& downstream) {
        return downstream[static_cast<size_t>(&entry - entries.data())] != RuleContext::Nowhere;
    };
    auto exists = [&](const std::string& name, const std::string& alternate) {
        if (context.isElement(name))
            return true;
        return !alternate.empty() && ownNames[alternateIndex.at(alternate)].count(NameIndex::key(name)) != 0;
    };

    eachSubArea(records, [&](const SubAreaEntry& entry, const std::string& alternate) {
        const std::string who = subAreaName(alternate, entry.id);
        if (entry.reach.empty())
            addSubAreaFinding(
                findings, Severity::Error, alternate, entry, SubAreaReachField, 2, entry.line,
                who + " drains into no element. Enter the reach it drains into, or OUTLET, as its " +
                    SubAreaReachField + ".");
        else if (alternate.empty() ? !baseDrainsSomewhere(entry, records.subAreas, context.subAreaDownstream)
                                   : !exists(entry.reach, alternate))
            addSubAreaFinding(
                findings, Severity::Error, alternate, entry, SubAreaReachField, 2, entry.line,
                who + " drains into " + entry.reach +
                    ", which is no stream reach, sub-area or OUTLET. Choose an existing reach, or "
                    "add reach " +
                    entry.reach + " in Stream Reach.");
    });

    eachReach(records, [&](const ReachEntry& entry, const std::string& alternate) {
        const std::string who = reachName(alternate, entry.id);
        if (entry.receiving.empty())
            addReachFinding(findings, Severity::Error, alternate, entry, ReceivingField, 2, entry.line,
                            who +
                                " drains into no element. Enter the reach it drains into, or OUTLET, as its "
                                "receiving reach.");
        else if (alternate.empty() ? !baseDrainsSomewhere(entry, records.reaches, context.reachDownstream)
                                   : !exists(entry.receiving, alternate))
            addReachFinding(
                findings, Severity::Error, alternate, entry, ReceivingField, 2, entry.line,
                who + " drains into " + entry.receiving +
                    ", which is no stream reach, sub-area or OUTLET. Choose an existing reach, or add "
                    "reach " +
                    entry.receiving + ".");
        if (entry.splitLine == 0)
            return;
        const std::string& target = entry.split[0];
        if (target.empty())
            addReachFinding(findings, Severity::Error, alternate, entry, SplitReachField, 14, entry.splitLine,
                            who + " splits its flow to no reach. Enter the reach that takes the split flow.");
        else if (!exists(target, alternate))
            addReachFinding(findings, Severity::Error, alternate, entry, SplitReachField, 14, entry.splitLine,
                            who + " splits its flow to " + target +
                                ", which is no stream reach. Choose an existing reach, or add reach " +
                                target + ".");
    });

    for (const TableEntry& hydrograph : records.inputHydrographs) {
        const std::string& reach = hydrograph.fields[0];
        if (!reach.empty() && context.isElement(reach))
            continue;
        const std::string problem = reach.empty()
                                        ? " enters no reach. Enter the reach it flows into."
                                        : " enters " + reach +
                                              ", which is no stream reach. Choose an existing reach, or "
                                              "add reach " +
                                              reach + ".";
        addFinding(findings, Severity::Error, InputHydrographSection, hydrograph.id,
                   "Input Hydrograph Reach Identifier", hydrograph.line,
                   "Input hydrograph " + hydrograph.id + problem)
            .box = 2;
    }
}

} // namespace brooklet
