#include "check/check_watershed.h"

#include <algorithm>

#include "check/check_rules.h"

namespace brooklet {

Findings CheckWatershed(const CheckInput& input) {
    const RuleContext context(input);
    Findings ruled;
    for (const RuleEntry& rule : checkRules())
        rule.rule(context, ruled);
    // In the order of their lines; the findings themselves are moved once, their places sorted.
    std::vector<size_t> order(ruled.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(),
                     [&ruled](size_t a, size_t b) { return ruled[a].line < ruled[b].line; });
    Findings findings = input.readingFindings;
    findings.reserve(findings.size() + ruled.size());
    for (size_t i : order)
        findings.push_back(std::move(ruled[i]));
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
