#pragma once
// The rules of Check Watershed. Each rule is one function in a file of its own, reading the
// records of every section through a RuleContext and adding what it finds; checkRules() lists
// them, so adding a rule is adding its file and its line there.
#include <string>
#include <unordered_map>
#include <vector>

#include "check/findings.h"
#include "check/watershed_records.h"

namespace brooklet {

// The identifiers of a section, compared trimmed and in upper case, as the identifier lists
// compare them: the position of the first entry of each name.
class NameIndex {
public:
    NameIndex() = default;
    template <typename Entries, typename Name> NameIndex(const Entries& entries, Name name) {
        positions_.reserve(entries.size());
        for (size_t i = 0; i < entries.size(); ++i)
            add(name(entries[i]), static_cast<int>(i));
    }
    // Adds the name at Position unless an earlier entry has it; then the pair of positions is
    // kept among the repeats.
    void add(const std::string& name, int position);
    // Each later entry of a name the index had already, with the position of the first.
    const std::vector<std::pair<int, int>>& repeats() const { return repeats_; }
    bool has(const std::string& name) const { return hasKey(key(name)); }
    // The same for a name already made a key.
    bool hasKey(const std::string& key) const { return positions_.count(key) != 0; }
    // The position of the first entry of the name; -1 for none.
    int find(const std::string& name) const;
    static std::string key(const std::string& name);

private:
    std::unordered_map<std::string, int> positions_;
    std::vector<std::pair<int, int>> repeats_;
};

// What every rule reads: the records, and the identifiers of each section, indexed once.
struct RuleContext {
    explicit RuleContext(const CheckInput& input);
    const CheckInput& input;
    WatershedRecords records;
    NameIndex subAreas, reaches, structures, crossSections, rainTables, stormIds, gages, alternates;
    // Where each sub-area and reach of the base data drains, looked up once: the position of a
    // reach, reach count + the position of a sub-area, Outlet, or Nowhere (blank or no element).
    static constexpr int Outlet = -2;
    static constexpr int Nowhere = -1;
    std::vector<int> reachDownstream, subAreaDownstream;
    int downstreamOf(const std::string& name) const;
    // True for the name of a reach, a sub-area or the outlet: an element something can drain into.
    bool isElement(const std::string& name) const;
    // True for one of the ten rain tables the model has built in, or a table of the rainfall
    // distribution section.
    bool isRainTable(const std::string& name) const;
};

// Adds a finding and gives it back for further details.
Finding& addFinding(Findings& findings, Severity severity, int section, const std::string& identifier,
                    const std::string& field, int line, const std::string& message);

// "Sub-area UPPER-1" or "Alternate BUILDOUT, sub-area LOWER-1": how a message names a network
// entry of the base data (Alternate empty) or of an alternate.
std::string subAreaName(const std::string& alternate, const std::string& id);
std::string reachName(const std::string& alternate, const std::string& id);

// The network entries of the base data and of each alternate, with the alternate's identifier
// (empty for the base data): rules that check a sub-area's or reach's own fields check the
// alternates' copies the same way.
template <typename Visit> void eachSubArea(const WatershedRecords& records, Visit visit) {
    for (const SubAreaEntry& entry : records.subAreas)
        visit(entry, std::string());
    for (const AlternateEntry& alternate : records.alternates)
        for (const SubAreaEntry& entry : alternate.subAreas)
            visit(entry, alternate.id);
}
template <typename Visit> void eachReach(const WatershedRecords& records, Visit visit) {
    for (const ReachEntry& entry : records.reaches)
        visit(entry, std::string());
    for (const AlternateEntry& alternate : records.alternates)
        for (const ReachEntry& entry : alternate.reaches)
            visit(entry, alternate.id);
}

// A finding about a sub-area or reach of the base data opens its editor at the entry and box;
// one about an alternate's copy opens the alternate window at the alternate.
Finding& addSubAreaFinding(Findings& findings, Severity severity, const std::string& alternate,
                           const SubAreaEntry& entry, const std::string& field, int box, int line,
                           const std::string& message);
Finding& addReachFinding(Findings& findings, Severity severity, const std::string& alternate,
                         const ReachEntry& entry, const std::string& field, int box, int line,
                         const std::string& message);

using CheckRule = void (*)(const RuleContext& context, Findings& findings);

struct RuleEntry {
    const char* name;
    CheckRule rule;
};

// Every rule, in the order their findings are listed for one line.
const std::vector<RuleEntry>& checkRules();

// The rules, each in its own file.
void CheckDownstreamElements(const RuleContext& context, Findings& findings);
void CheckRoutingTables(const RuleContext& context, Findings& findings);
void CheckRainfallReferences(const RuleContext& context, Findings& findings);
void CheckAlternateEntries(const RuleContext& context, Findings& findings);
void CheckDuplicateIdentifiers(const RuleContext& context, Findings& findings);
void CheckNetworkGraph(const RuleContext& context, Findings& findings);
void CheckRatingOrder(const RuleContext& context, Findings& findings);
void CheckNetworkValues(const RuleContext& context, Findings& findings);
void CheckTableValues(const RuleContext& context, Findings& findings);
void CheckRunOptions(const RuleContext& context, Findings& findings);
void CheckLandUses(const RuleContext& context, Findings& findings);

} // namespace brooklet

namespace brooklet {

// The field checks of the editors, as a rule asks them: true when Text passes.
bool passesAbove(const std::string& text, double min, bool allowBlank = true);
bool passesAtLeast(const std::string& text, double min, bool allowBlank = true);
bool passesRange(const std::string& text, double min, double max, bool allowBlank = true);
bool passesNumber(const std::string& text, bool allowBlank = true);

} // namespace brooklet
