// The values of sub-areas and reaches lie in the ranges their editors' field checks accept, and a
// sub-area has what the model needs to make its runoff: an area, a curve number and a time of
// concentration, typed or worked out from its detail records.
#include "check/check_rules.h"

namespace brooklet {
namespace {

bool isOutputCode(const std::string& code) {
    return code.empty() || code == "Y" || code == "N" || code == "y" || code == "n";
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

} // namespace

void CheckNetworkValues(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    eachSubArea(records, [&](const SubAreaEntry& entry, const std::string& alternate) {
        const std::string who = subAreaName(alternate, entry.id);
        auto add = [&](Severity severity, const std::string& field, int box, int line,
                       const std::string& message) {
            addSubAreaFinding(findings, severity, alternate, entry, field, box, line, who + message);
        };
        const bool hasLandUse = !entry.landAreas.empty();
        if (!passesAbove(entry.area, 0))
            add(Severity::Error, "Sub-Area Drainage Area", 4, entry.line,
                " has the drainage area " + quoted(entry.area) +
                    ", which is not a number above 0. Enter its area.");
        else if (entry.area.empty() && !hasLandUse)
            add(Severity::Error, "Sub-Area Drainage Area", 4, entry.line,
                " has no drainage area and no land use details to sum it from. Enter its area, or its land "
                "uses.");
        if (!passesRange(entry.curveNumber, 30, 100))
            add(Severity::Error, "Sub-Area Weighted Curve Number", 5, entry.line,
                " has the curve number " + quoted(entry.curveNumber) +
                    ", which is not a number from 30 to 100. Enter its weighted curve number.");
        else if (entry.curveNumber.empty() && !hasLandUse)
            add(Severity::Error, "Sub-Area Weighted Curve Number", 5, entry.line,
                " has no curve number and no land use details to weigh it from. Enter its curve number, or "
                "its "
                "land uses.");
        if (!passesAbove(entry.tc, 0))
            add(Severity::Error, "Sub-Area Time of Concentration", 6, entry.line,
                " has the time of concentration " + quoted(entry.tc) +
                    ", which is not a number above 0. Enter its time in hours.");
        else if (entry.tc.empty() && entry.details.empty())
            add(Severity::Error, "Sub-Area Time of Concentration", 6, entry.line,
                " has no time of concentration and no flow path details to work it out. Enter its time, or "
                "its "
                "Tc details.");
        for (const LandArea& land : entry.landAreas)
            if (!passesAbove(land.area, 0, false))
                add(Severity::Warning, "Sub-Area Identifier", 1, land.line,
                    " has land use " + land.name + " with the area " + quoted(land.area) +
                        ", which is not above 0, so the next Accept of the sub-area drops it. Enter its "
                        "area.");
        for (size_t code = 0; code < entry.codes.size(); ++code)
            if (!isOutputCode(entry.codes[code]))
                add(Severity::Warning, "Sub-Area Identifier", 1, entry.line,
                    " has the output code " + quoted(entry.codes[code]) + " in column " +
                        std::to_string(71 + code) +
                        ", where only Y, N or a blank count. Choose Yes, No or Blank.");
    });

    eachReach(records, [&](const ReachEntry& entry, const std::string& alternate) {
        const std::string who = reachName(alternate, entry.id);
        auto add = [&](Severity severity, const std::string& field, int box, int line,
                       const std::string& message) {
            addReachFinding(findings, severity, alternate, entry, field, box, line, who + message);
        };
        if (!passesAbove(entry.channelLength, 0))
            add(Severity::Error, "Reach Channel Length", 5, entry.line,
                " has the channel length " + quoted(entry.channelLength) +
                    ", which is not a number above 0. Enter its length.");
        if (!passesAtLeast(entry.valleyLength, 0))
            add(Severity::Error, "Reach Valley Length", 6, entry.line,
                " has the valley length " + quoted(entry.valleyLength) +
                    ", which is not a number of 0 or more. Enter its length.");
        if (entry.baseFlow.line != 0 && !passesAbove(entry.baseFlow.text, 0))
            add(Severity::Error, "Constant Base Flow", 7, entry.baseFlow.line,
                " has the base flow " + quoted(entry.baseFlow.text) +
                    ", which is not a number above 0. Enter the base flow.");
        for (size_t code = 0; code < entry.codes.size(); ++code)
            if (!isOutputCode(entry.codes[code]))
                add(Severity::Warning, "Stream Reach Identifier", 1, entry.line,
                    " has the output code " + quoted(entry.codes[code]) + " in column " +
                        std::to_string(71 + code) +
                        ", where only Y, N or a blank count. Choose Yes, No or Blank.");
        if (entry.splitLine == 0)
            return;
        const auto& split = entry.split;
        const int line = entry.splitLine;
        if (!passesAtLeast(split[2], 0))
            add(Severity::Error, "Starting Split Flow", 16, line,
                " has the starting split flow " + quoted(split[2]) + ", which is not a number of 0 or more.");
        if (!passesAtLeast(split[3], 0))
            add(Severity::Error, "Ending Split Flow", 17, line,
                " has the ending split flow " + quoted(split[3]) + ", which is not a number of 0 or more.");
        if (!split[1].empty() && (!split[2].empty() || !split[3].empty()))
            add(Severity::Error, "Split Flow Cross Section Identifier", 15, line,
                " gives its split flow both by a cross section and by starting and ending flows. Keep one of "
                "the "
                "two.");
        if (!passesRange(split[4], 0.001, 1, split[0].empty()))
            add(Severity::Error, "Split Flow Drainage Area", 18, line,
                " has the split flow drainage area " + quoted(split[4]) +
                    ", which is not a fraction from 0.001 to 1. Enter the part of the area that is split "
                    "off.");
    });
}

} // namespace brooklet
