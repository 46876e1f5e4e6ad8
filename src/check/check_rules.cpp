#include "check/check_rules.h"

#include "base/text.h"
#include "editing/field_checks.h"

namespace brooklet {
namespace {

// The rain tables the model has built in, as the storm window offers them.
const char* const StandardRainTables[] = {"Type I",     "Type IA",   "Type II",   "Type III",  "Type I(48)",
                                          "TypeII(48)", "Type NM60", "Type NM65", "Type NM70", "Type NM75"};

} // namespace

std::string NameIndex::key(const std::string& name) {
    // Fields are read trimmed: most names need no trimming, and no copy for it.
    if (name.empty() || (name.front() != ' ' && name.back() != ' '))
        return toUpper(name);
    return toUpper(trim(name));
}

void NameIndex::add(const std::string& name, int position) {
    const auto [place, added] = positions_.emplace(key(name), position);
    if (!added)
        repeats_.emplace_back(position, place->second);
}

int NameIndex::find(const std::string& name) const {
    const auto found = positions_.find(key(name));
    return found == positions_.end() ? -1 : found->second;
}

RuleContext::RuleContext(const CheckInput& checkInput)
    : input(checkInput), records(ReadWatershedRecords(checkInput)),
      subAreas(records.subAreas, [](const SubAreaEntry& entry) { return entry.id; }),
      reaches(records.reaches, [](const ReachEntry& entry) { return entry.id; }),
      structures(records.structures, [](const TableEntry& entry) { return entry.id; }),
      crossSections(records.crossSections, [](const TableEntry& entry) { return entry.id; }),
      rainTables(records.rainTables, [](const TableEntry& entry) { return entry.id; }),
      stormIds(records.storms, [](const StormEntry& entry) { return entry.id; }),
      gages(records.storms, [](const StormEntry& entry) { return entry.gage; }),
      alternates(records.alternates, [](const AlternateEntry& entry) { return entry.id; }) {
    reachDownstream.reserve(records.reaches.size());
    for (const ReachEntry& entry : records.reaches)
        reachDownstream.push_back(downstreamOf(entry.receiving));
    subAreaDownstream.reserve(records.subAreas.size());
    for (const SubAreaEntry& entry : records.subAreas)
        subAreaDownstream.push_back(downstreamOf(entry.reach));
}

int RuleContext::downstreamOf(const std::string& name) const {
    const std::string key = NameIndex::key(name);
    if (key == "OUTLET")
        return Outlet;
    if (const int reach = reaches.find(key); reach >= 0)
        return reach;
    if (const int subArea = subAreas.find(key); subArea >= 0)
        return static_cast<int>(records.reaches.size()) + subArea;
    return Nowhere;
}

bool RuleContext::isElement(const std::string& name) const {
    const std::string key = NameIndex::key(name);
    return key == "OUTLET" || reaches.hasKey(key) || subAreas.hasKey(key);
}

bool RuleContext::isRainTable(const std::string& name) const {
    const std::string key = NameIndex::key(name);
    for (const char* standard : StandardRainTables)
        if (key == toUpper(standard))
            return true;
    return rainTables.has(name);
}

Finding& addFinding(Findings& findings, Severity severity, int section, const std::string& identifier,
                    const std::string& field, int line, const std::string& message) {
    Finding finding;
    finding.severity = severity;
    finding.section = section;
    finding.identifier = identifier;
    finding.field = field;
    finding.line = line;
    finding.message = message;
    finding.entry = identifier;
    findings.push_back(std::move(finding));
    return findings.back();
}

std::string subAreaName(const std::string& alternate, const std::string& id) {
    return alternate.empty() ? "Sub-area " + id : "Alternate " + alternate + ", sub-area " + id;
}

std::string reachName(const std::string& alternate, const std::string& id) {
    return alternate.empty() ? "Stream reach " + id : "Alternate " + alternate + ", stream reach " + id;
}

namespace {

// A finding of a network entry: of its own section for the base data, of the alternate section,
// at the alternate, for an alternate's copy.
Finding& addNetworkFinding(Findings& findings, Severity severity, int section, const std::string& alternate,
                           const std::string& id, const std::string& field, int box, int line,
                           const std::string& message) {
    if (alternate.empty()) {
        Finding& finding = addFinding(findings, severity, section, id, field, line, message);
        finding.box = box;
        return finding;
    }
    Finding& finding =
        addFinding(findings, severity, AlternateSection, alternate + ": " + id, field, line, message);
    finding.entry = alternate;
    finding.box = 1;
    return finding;
}

} // namespace

Finding& addSubAreaFinding(Findings& findings, Severity severity, const std::string& alternate,
                           const SubAreaEntry& entry, const std::string& field, int box, int line,
                           const std::string& message) {
    return addNetworkFinding(findings, severity, SubAreaSection, alternate, entry.id, field, box, line,
                             message);
}

Finding& addReachFinding(Findings& findings, Severity severity, const std::string& alternate,
                         const ReachEntry& entry, const std::string& field, int box, int line,
                         const std::string& message) {
    return addNetworkFinding(findings, severity, ReachSection, alternate, entry.id, field, box, line,
                             message);
}

bool passesAbove(const std::string& text, double min, bool allowBlank) {
    bool valid = false;
    ValidRealAbove(allowBlank, min, text, valid);
    return valid;
}

bool passesAtLeast(const std::string& text, double min, bool allowBlank) {
    bool valid = false;
    ValidRealAtLeast(allowBlank, min, text, valid);
    return valid;
}

bool passesRange(const std::string& text, double min, double max, bool allowBlank) {
    bool valid = false;
    ValidRealRange(allowBlank, min, max, text, valid);
    return valid;
}

bool passesNumber(const std::string& text, bool allowBlank) {
    bool valid = false;
    ValidNumber(allowBlank, text, valid);
    return valid;
}

const std::vector<RuleEntry>& checkRules() {
    static const std::vector<RuleEntry> rules = {
        {"downstream elements", CheckDownstreamElements},
        {"routing tables", CheckRoutingTables},
        {"rainfall references", CheckRainfallReferences},
        {"alternate entries", CheckAlternateEntries},
        {"duplicate identifiers", CheckDuplicateIdentifiers},
        {"network graph", CheckNetworkGraph},
        {"rating order", CheckRatingOrder},
        {"network values", CheckNetworkValues},
        {"table values", CheckTableValues},
        {"run options", CheckRunOptions},
        {"land uses", CheckLandUses},
    };
    return rules;
}

} // namespace brooklet
