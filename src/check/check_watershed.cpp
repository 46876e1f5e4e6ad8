#include "check/check_watershed.h"

#include <algorithm>

#include "check/check_rules.h"

namespace brooklet {

Findings CheckWatershed(const CheckInput& input) {
    Findings findings = input.readingFindings;
    const RuleContext context(input);
    Findings ruled;
    for (const RuleEntry& rule : checkRules())
        rule.rule(context, ruled);
    std::stable_sort(ruled.begin(), ruled.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    findings.insert(findings.end(), ruled.begin(), ruled.end());
    return findings;
}

std::string findingLine(const std::string& file, const Finding& finding) {
    return file + ":" + std::to_string(finding.line) + ": " + severityWord(finding.severity) + ": " +
           finding.message;
}

int checkExitCode(const Findings& findings) {
    if (findings.empty())
        return 0;
    return errorCount(findings) > 0 ? 2 : 1;
}

} // namespace brooklet
