// An alternate changes sub-areas and reaches of the watershed: it lists something, each entry
// once, and each entry is one the base data has (otherwise the alternate adds it, which is
// seldom meant).
#include <unordered_set>

#include "check/check_rules.h"

namespace brooklet {

void CheckAlternateEntries(const RuleContext& context, Findings& findings) {
    for (const AlternateEntry& alternate : context.records.alternates) {
        auto addAlternateFinding = [&](Severity severity, const std::string& entryId, int line,
                                       const std::string& message) {
            Finding& finding = addFinding(findings, severity, AlternateSection,
                                          entryId.empty() ? alternate.id : alternate.id + ": " + entryId,
                                          "Alternate Identifier", line, message);
            finding.entry = alternate.id;
            finding.box = 1;
        };
        if (alternate.subAreas.empty() && alternate.reaches.empty())
            addAlternateFinding(Severity::Warning, "", alternate.line,
                                "Alternate " + alternate.id +
                                    " changes nothing: it lists no sub-area and no stream reach. Add the "
                                    "entries it changes, or delete it.");
        auto checkEntries = [&](const auto& entries, const NameIndex& base, const std::string& kind,
                                const std::string& section) {
            std::unordered_set<std::string> seen;
            for (const auto& entry : entries) {
                if (!seen.insert(NameIndex::key(entry.id)).second)
                    addAlternateFinding(Severity::Error, entry.id, entry.line,
                                        "Alternate " + alternate.id + " lists " + kind + " " + entry.id +
                                            " twice, and only one of them can count. Delete one.");
                else if (!base.has(entry.id))
                    addAlternateFinding(Severity::Warning, entry.id, entry.line,
                                        "Alternate " + alternate.id + " changes " + kind + " " + entry.id +
                                            ", which " + section +
                                            " does not have, so the alternate adds it. Check its name.");
            }
        };
        checkEntries(alternate.subAreas, context.subAreas, "sub-area", "Sub-Area");
        checkEntries(alternate.reaches, context.reaches, "stream reach", "Stream Reach");
    }
}

} // namespace brooklet
