#include "editing/identifier_lists.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "session/text_file.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace brooklet {

const std::array<std::string, 10> StandardRainTables = {"Type I",     "Type IA",    "Type II",   "Type III",
                                                        "Type I(48)", "TypeII(48)", "Type NM60", "Type NM65",
                                                        "Type NM70",  "Type NM75"};

namespace {

// The trim of columns first..last of a line, counted from 1.
std::string cols(const std::string& line, int first, int last) {
    return FieldAt(line, first, last - first + 1);
}

std::string listKey(const std::string& text) {
    return toUpper(trim(text));
}

// True when the item, trimmed and in upper case, is the key; the item is not copied.
bool sameKey(const std::string& item, const std::string& key) {
    size_t first = 0;
    size_t last = item.size();
    while (first < last && item[first] == ' ')
        ++first;
    while (last > first && item[last - 1] == ' ')
        --last;
    if (last - first != key.size())
        return false;
    for (size_t i = 0; i < key.size(); ++i) {
        char c = item[first + i];
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
        if (c != key[i])
            return false;
    }
    return true;
}

// The lines of a work file behind its header line; none when the file is missing.
std::vector<std::string> sectionLines(const Session& session, int workFile) {
    std::vector<std::string> lines = readLines(session.WorkFilePath[size_t(workFile)]);
    if (!lines.empty())
        lines.erase(lines.begin());
    return lines;
}

// AddUnique for the many additions of one fill: the keys of the list's items are gathered once,
// so that each addition looks its text up instead of walking the list. The list gets exactly
// what a walk would give it, in the same order.
class UniqueAdder {
public:
    explicit UniqueAdder(ListControl& list) : list_(list) {
        const int count = list.ListCount();
        keys_.reserve(size_t(count) * 2 + 64);
        for (int i = 0; i < count; ++i)
            keys_.insert(listKey(list.List(i)));
    }

    // A field of a scanned line: an empty field names nothing and adds nothing.
    void addField(const std::string& text) {
        if (!text.empty())
            addUnique(text);
    }

    void addUnique(const std::string& text) {
        if (keys_.insert(listKey(text)).second)
            list_.AddItem(trim(text));
    }

    // An item added straight to the list, not through AddUnique; later additions see it.
    void addStraight(const std::string& text) {
        list_.AddItem(text);
        keys_.insert(listKey(text));
    }

private:
    ListControl& list_;
    std::unordered_set<std::string> keys_;
};

// The walk through the lists of names of the alternate section. A line with a name in columns
// 1-10 opens a new alternate and puts the mode off. A list opening line sets the mode and is
// replaced by the line behind it: first "AREAS" is looked for, then "REACHES". While the mode is
// on, every name in columns 11-20 is added. The walk ends at the first blank line, or at the end
// of the file. The reach lists want the names under "REACHES", the area lists those under
// "AREAS".
enum class AlternateList { Reaches, Areas };

void walkAlternateLists(const std::vector<std::string>& lines, AlternateList wanted, UniqueAdder& adder) {
    bool on = false;
    size_t next = 0;
    while (next < lines.size()) {
        const std::string* line = &lines[next++];
        if (trim(*line).empty())
            return;
        if (!cols(*line, 1, 10).empty()) {
            on = false;
            continue;
        }
        if (toUpper(cols(*line, 11, 20)) == "AREAS") {
            on = wanted == AlternateList::Areas;
            if (next >= lines.size())
                return;
            line = &lines[next++];
        }
        if (toUpper(cols(*line, 11, 20)) == "REACHES") {
            on = wanted == AlternateList::Reaches;
            if (next >= lines.size())
                return;
            line = &lines[next++];
        }
        if (on)
            adder.addField(cols(*line, 11, 20));
    }
}

// Every name in columns 11-20 of a section, in file order.
void addNamesOf(const Session& session, int section, UniqueAdder& adder) {
    for (const auto& line : sectionLines(session, section))
        adder.addField(cols(line, 11, 20));
}

bool isReachOperation(const std::string& upperWord) {
    return upperWord == "SPLIT FLOW" || upperWord == "BASE FLOW" || upperWord == "REACH LOSS";
}

bool isSubAreaDetail(const std::string& word) {
    return word == "LAND AREA" || word == "SHEET" || word == "SHALLOW" || word == "CHANNEL";
}

} // namespace

void AddUnique(ListControl& List, const std::string& Text) {
    const std::string key = listKey(Text);
    const int count = List.ListCount();
    for (int i = 0; i < count; ++i)
        if (sameKey(List.List(i), key))
            return;
    List.AddItem(trim(Text));
}

void RemoveCurrentFromList(ListControl& Combo) {
    const std::string text = Combo.Text();
    const int count = Combo.ListCount();
    for (int i = 0; i < count; ++i) {
        if (Combo.List(i) == text) {
            Combo.RemoveItem(i);
            return;
        }
    }
}

void FindSubAreaField(const Session& session, const std::string& Name, std::string& Result) {
    for (const auto& line : sectionLines(session, SubAreaSection)) {
        if (cols(line, 11, 20) == Name) {
            Result = cols(line, 31, 40);
            return;
        }
    }
}

void FillAlternateList(const Session& session, ListControl& List, bool AddBlank) {
    UniqueAdder adder(List);
    for (const auto& line : sectionLines(session, AlternateSection))
        adder.addField(cols(line, 1, 10));
    if (AddBlank)
        adder.addStraight(std::string(10, ' '));
}

void FillInputHydrographList(const Session& session, ListControl& List) {
    UniqueAdder adder(List);
    addNamesOf(session, InputHydrographSection, adder);
}

void FillReachList(const Session& session, ListControl& List, bool NoOutlet) {
    UniqueAdder adder(List);
    for (const auto& line : sectionLines(session, InputHydrographSection))
        if (!cols(line, 11, 20).empty())
            adder.addField(cols(line, 21, 30));
    for (const auto& line : sectionLines(session, ReachSection)) {
        const std::string name = cols(line, 11, 20);
        if (name.empty()) {
            if (toUpper(cols(line, 21, 30)) == "SPLIT FLOW")
                adder.addField(cols(line, 31, 40));
        } else {
            adder.addField(name);
            adder.addField(cols(line, 21, 30));
        }
    }
    for (const auto& line : sectionLines(session, SubAreaSection))
        if (!cols(line, 11, 20).empty())
            adder.addField(cols(line, 21, 30));
    walkAlternateLists(sectionLines(session, AlternateSection), AlternateList::Reaches, adder);
    if (!NoOutlet)
        return;
    // By position, to one past the last item: the item behind a removed one is passed over.
    const int end = List.ListCount();
    for (int i = 0; i <= end; ++i)
        if (i < List.ListCount() && toUpper(List.List(i)) == "OUTLET")
            List.RemoveItem(i);
}

void FillHydrographNameList(const Session& session, ListControl& List) {
    UniqueAdder adder(List);
    for (const auto& line : sectionLines(session, InputHydrographSection))
        if (!cols(line, 11, 20).empty())
            adder.addField(cols(line, 31, 40));
    addNamesOf(session, StormSection, adder);
}

void FillStormRainList(const Session& session, RainfallTable& Rainfall, ListControl& List) {
    UniqueAdder adder(List);
    Rainfall.RainfallIds.assign(2, std::string());
    Rainfall.Rainfall2Yr.assign(2, 0.0f);
    Rainfall.RainfallCount = 0;
    // The first row of each rain gage name in the table, by its exact name. A storm line with
    // a blank gage takes part too: its row, named blank, gives the rainfall to sub-areas that
    // name no gage.
    std::unordered_map<std::string, int> firstRowOf;
    for (const auto& line : sectionLines(session, StormSection)) {
        const std::string gage = cols(line, 21, 30);
        if (!gage.empty())
            adder.addField(gage);
        const std::string rain = cols(line, 71, 80);
        const auto value = [&rain] {
            const auto single = toSingle(rain);
            return single ? *single : static_cast<float>(leadingNumber(rain));
        };
        // A later line of a gage with a rainfall gives it to the gage's first row. A later
        // line with a blank rainfall finds no row and adds one of its own, at 0.
        const auto found = firstRowOf.find(gage);
        if (found != firstRowOf.end() && !rain.empty()) {
            Rainfall.Rainfall2Yr[size_t(found->second)] = value();
            continue;
        }
        const int row = ++Rainfall.RainfallCount;
        Rainfall.RainfallIds.resize(size_t(row) + 1);
        Rainfall.Rainfall2Yr.resize(size_t(row) + 1, 0.0f);
        Rainfall.RainfallIds[size_t(row)] = gage;
        Rainfall.Rainfall2Yr[size_t(row)] = rain.empty() ? 0.0f : value();
        firstRowOf.emplace(gage, row);
    }
    for (const auto& line : sectionLines(session, SubAreaSection)) {
        const std::string name = cols(line, 11, 20);
        if (!name.empty() && !isSubAreaDetail(name))
            adder.addField(cols(line, 31, 40));
    }
}

void FillRainTableList(const Session& session, bool AddStandard, ListControl& List) {
    UniqueAdder adder(List);
    if (AddStandard)
        for (const auto& name : StandardRainTables)
            adder.addStraight(name);
    addNamesOf(session, RainfallDistributionSection, adder);
    std::unordered_set<std::string> standard;
    for (const auto& name : StandardRainTables)
        standard.insert(toUpper(name));
    for (const auto& line : sectionLines(session, StormSection)) {
        const std::string table = cols(line, 51, 60);
        if (!table.empty() && !standard.count(toUpper(table)))
            adder.addField(table);
    }
}

void FillStructureList(const Session& session, ListControl& List) {
    UniqueAdder adder(List);
    addNamesOf(session, StructureSection, adder);
    for (const auto& line : sectionLines(session, ReachSection)) {
        const std::string name = cols(line, 11, 20);
        const std::string structure = cols(line, 41, 50);
        if (!name.empty() && !structure.empty() && !isReachOperation(toUpper(name)))
            adder.addField(structure);
    }
}

void FillAreaReachList(const Session& session, ListControl& List) {
    UniqueAdder adder(List);
    addNamesOf(session, SubAreaSection, adder);
    walkAlternateLists(sectionLines(session, AlternateSection), AlternateList::Areas, adder);
}

void FillCrossSectionList(const Session& session, ListControl& List) {
    UniqueAdder adder(List);
    addNamesOf(session, CrossSectionSection, adder);
    for (const auto& line : sectionLines(session, ReachSection)) {
        const std::string name = cols(line, 11, 20);
        if (!name.empty()) {
            if (toUpper(name) == "SPLIT FLOW")
                adder.addField(cols(line, 41, 50));
        } else {
            adder.addField(cols(line, 31, 40));
        }
    }
}

} // namespace brooklet
