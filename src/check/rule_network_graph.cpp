// The network as a graph of elements, each draining into one other: every element reaches the
// outlet, no reaches drain into each other in a circle, and something drains into the outlet.
// The walks are iterative and visit each element once, so a chain or circle of any length is
// walked in linear time on a small stack.
#include "check/check_rules.h"

namespace brooklet {
namespace {

constexpr int Outlet = RuleContext::Outlet;
constexpr int Nowhere = RuleContext::Nowhere;

struct Element {
    const std::string* name;
    const std::string* downstreamName;
    int line;
    bool isReach;
    const void* entry;
    int downstream = Nowhere;
};

std::string listOfNames(const std::vector<Element>& elements, const std::vector<int>& members) {
    constexpr size_t Shown = 8;
    std::string text;
    for (size_t i = 0; i < members.size() && i < Shown; ++i)
        text += (i == 0 ? "" : ", ") + *elements[static_cast<size_t>(members[i])].name;
    if (members.size() > Shown)
        text += " and " + std::to_string(members.size() - Shown) + " more";
    return text;
}

Finding& addElementFinding(Findings& findings, Severity severity, const Element& element,
                           const std::string& message) {
    if (element.isReach)
        return addReachFinding(findings, severity, "", *static_cast<const ReachEntry*>(element.entry),
                               "Stream Receiving      Reach Identifier", 2, element.line, message);
    return addSubAreaFinding(findings, severity, "", *static_cast<const SubAreaEntry*>(element.entry),
                             "Sub-Area Reach Identifier", 2, element.line, message);
}

} // namespace

void CheckNetworkGraph(const RuleContext& context, Findings& findings) {
    const WatershedRecords& records = context.records;
    std::vector<Element> elements;
    elements.reserve(records.reaches.size() + records.subAreas.size());
    for (const ReachEntry& entry : records.reaches)
        elements.push_back({&entry.id, &entry.receiving, entry.line, true, &entry});
    for (const SubAreaEntry& entry : records.subAreas)
        elements.push_back({&entry.id, &entry.reach, entry.line, false, &entry});
    if (elements.empty())
        return;

    const size_t reachCount = records.reaches.size();
    bool outletDrainedInto = false;
    for (size_t i = 0; i < elements.size(); ++i) {
        Element& element = elements[i];
        element.downstream =
            i < reachCount ? context.reachDownstream[i] : context.subAreaDownstream[i - reachCount];
        outletDrainedInto = outletDrainedInto || element.downstream == Outlet;
    }

    // State of each element: not walked yet, on the path being walked (its place on the path
    // kept), or done, with whether it reaches the outlet.
    enum class Walk : unsigned char { New, OnPath, Done };
    std::vector<Walk> walk(elements.size(), Walk::New);
    std::vector<int> placeOnPath(elements.size(), 0);
    std::vector<char> reachesOutlet(elements.size(), 0);
    std::vector<char> onCycle(elements.size(), 0);
    std::vector<int> path;
    for (size_t start = 0; start < elements.size(); ++start) {
        if (walk[start] != Walk::New)
            continue;
        path.clear();
        int at = static_cast<int>(start);
        bool reached = false;
        while (true) {
            walk[static_cast<size_t>(at)] = Walk::OnPath;
            placeOnPath[static_cast<size_t>(at)] = static_cast<int>(path.size());
            path.push_back(at);
            const int next = elements[static_cast<size_t>(at)].downstream;
            if (next == Outlet) {
                reached = true;
                break;
            }
            if (next == Nowhere)
                break;
            if (walk[static_cast<size_t>(next)] == Walk::Done) {
                reached = reachesOutlet[static_cast<size_t>(next)] != 0;
                break;
            }
            if (walk[static_cast<size_t>(next)] == Walk::OnPath) {
                const std::vector<int> cycle(path.begin() + placeOnPath[static_cast<size_t>(next)],
                                             path.end());
                for (int member : cycle)
                    onCycle[static_cast<size_t>(member)] = 1;
                addElementFinding(findings, Severity::Error, elements[static_cast<size_t>(next)],
                                  "The elements " + listOfNames(elements, cycle) +
                                      " drain into each other in a circle, so their water never reaches the "
                                      "outlet. Change where one of them drains.");
                break;
            }
            at = next;
        }
        for (int member : path) {
            walk[static_cast<size_t>(member)] = Walk::Done;
            reachesOutlet[static_cast<size_t>(member)] = reached ? 1 : 0;
        }
    }

    // An element on no circle that drains into an element where the way to the outlet breaks
    // (one on a circle, or one draining into no element) is cut off there too. The break itself
    // is a finding of its own; what drains further up is cut off with it and not told again.
    for (size_t i = 0; i < elements.size(); ++i) {
        const Element& element = elements[i];
        if (reachesOutlet[i] || onCycle[i] || element.downstream < 0)
            continue;
        const size_t down = static_cast<size_t>(element.downstream);
        if (!onCycle[down] && elements[down].downstream != Nowhere)
            continue;
        addElementFinding(findings, Severity::Warning, element,
                          (element.isReach ? "Stream reach " : "Sub-area ") + *element.name +
                              " drains into " + *element.downstreamName +
                              ", which does not reach the outlet, so its water leaves the watershed nowhere. "
                              "Mend the break further down.");
    }

    if (!outletDrainedInto) {
        const bool haveReaches = !records.reaches.empty();
        addFinding(
            findings, Severity::Error, haveReaches ? ReachSection : SubAreaSection, "",
            haveReaches ? "Stream Receiving      Reach Identifier" : "Sub-Area Reach Identifier",
            records.headerLine[haveReaches ? ReachSection : SubAreaSection],
            "No element drains into OUTLET, so the watershed has no outlet. Enter OUTLET as the receiving "
            "reach of the last reach.");
    }
}

} // namespace brooklet
