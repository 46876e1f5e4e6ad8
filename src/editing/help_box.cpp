#include "editing/help_box.h"

#include "session/section_table.h"
#include "session/text_file.h"

#include <algorithm>

namespace brooklet {
namespace {

const std::string LineEnd = "\r\n";
const std::string TitleIndent(10, ' ');
const std::string RangeLead = "          Range - ";

std::vector<int> indexRange(int first, int last) {
    std::vector<int> indexes;
    for (int i = first; i <= last; ++i)
        indexes.push_back(i);
    return indexes;
}

std::vector<int> verificationIndexes() {
    // The header (0) shows the window's entry, as in every entry window.
    std::vector<int> indexes{0};
    for (const auto& [first, last] : {std::pair{1, 15}, std::pair{21, 29}, std::pair{31, 41}})
        for (int i = first; i <= last; ++i)
            indexes.push_back(i);
    return indexes;
}

// Lines of the file read one after the other, as the entry being read needs more of them.
class LineSource {
public:
    explicit LineSource(const std::vector<std::string>& lines) : lines_(lines) {}
    bool next(std::string& line) {
        if (next_ >= lines_.size())
            return false;
        line = lines_[next_++];
        return true;
    }

private:
    const std::vector<std::string>& lines_;
    size_t next_ = 0;
};

// Appends one entry whose key line is L, its key ending at the "|" at Bar. Reads further lines
// from the source while the description or the ranges go on; false when the file ended first.
bool appendEntry(std::string& text, std::string L, size_t Bar, LineSource& source, bool EnglishUnits) {
    // The title runs up to the first " - " and keeps that blank; the description starts behind it.
    size_t start = Bar + 1;
    const size_t dash = L.find(" - ", Bar + 1);
    if (dash == std::string::npos) {
        // A key with no title is a fault of the file: the line's rest is read as description.
        text += TitleIndent + LineEnd;
    } else {
        text += TitleIndent + L.substr(Bar + 1, dash - Bar) + LineEnd;
        start = dash + 3;
    }

    // The description, over as many lines as have no "|"; they join with no separator.
    for (;;) {
        const size_t bar = L.find('|', start);
        if (bar != std::string::npos) {
            text += L.substr(start, bar - start);
            start = bar + 1;
            break;
        }
        if (start < L.size())
            text += L.substr(start);
        start = 0;
        if (!source.next(L))
            return false;
    }

    // The English range, from there to the next "|", perhaps behind lines with no "|"; the
    // metric range behind it when the unit system is metric and that field is not empty.
    for (;;) {
        size_t bar = L.find('|', start);
        if (bar == std::string::npos) {
            start = 0;
            if (!source.next(L))
                return false;
            continue;
        }
        if (!EnglishUnits) {
            const size_t metricEnd = L.find('|', bar + 1);
            if (metricEnd != std::string::npos && metricEnd > bar + 1) {
                start = bar + 1;
                bar = metricEnd;
            }
        }
        if (bar > start)
            text += LineEnd + RangeLead + L.substr(start, bar - start);
        break;
    }
    text += LineEnd + LineEnd;
    return true;
}

} // namespace

std::string HelpKey(const std::string& Code, int Index) {
    return Index > 0 ? Code + std::to_string(Index) : Code;
}

std::string HelpEntries(const std::vector<std::string>& lines, const std::string& Key, bool EnglishUnits) {
    std::string text;
    LineSource source(lines);
    std::string L;
    while (source.next(L)) {
        const size_t bar = L.find('|');
        // No "|", or one in column 1: a remark. The key is all that stands before the "|".
        if (bar == std::string::npos || bar == 0)
            continue;
        if (L.compare(0, bar, Key) != 0)
            continue;
        if (!appendEntry(text, L, bar, source, EnglishUnits))
            break;
    }
    return text;
}

std::string LoadHelpText(short& Shown, int Index, const std::string& Code, const Session& session) {
    Shown = static_cast<short>(Index);
    return HelpEntries(readLines(session.HelpListFile), HelpKey(Code, Index), session.EnglishUnits);
}

const std::vector<HelpRequests>& HelpCodeTable() {
    static const std::vector<HelpRequests> table = {
        {"FL", "frmFlume", {0, 1, 2, 3, 5}},
        {"DH", "frmDimHyd", {0, 1}},
        {"DI", "frmDurInc", indexRange(0, 4)},
        {"GO", "frmGlobal", indexRange(0, 9)},
        {"TA", "frmTimeA", {0, 1, 4, 5}},
        {"SA", "frmStorm", indexRange(0, 7)},
        {"SR", "frmStruct", indexRange(0, 5)},
        {"RD", "frmRainDist", indexRange(0, 3)},
        {"LL", "frmLocalLanduse", indexRange(0, 5)},
        {"IH", "frmInpHyd", indexRange(0, 8)},
        {"XS", "frmXsect", indexRange(0, 10)},
        {"RC", "frmReaches", indexRange(0, 18)},
        {"AR", "frmSubArea", indexRange(0, 11)},
        {"AR", "frmTc", {1, 12, 13, 14, 15, 22, 23, 24}},
        {"ART", "frmTc", {0}},
        {"AR", "frmLandUse", {1, 26, 27, 28}},
        {"ARL", "frmLandUse", {0}},
        {"AA", "frmAlternate", indexRange(0, 2)},
        {"VE", "frmVerification", verificationIndexes()},
        {"GP", "frmGraphicsOutput", indexRange(0, 7)},
    };
    return table;
}

std::vector<std::string> AllHelpKeys() {
    std::vector<std::string> keys;
    auto add = [&keys](std::string key) {
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.push_back(std::move(key));
    };
    for (const HelpRequests& window : HelpCodeTable()) {
        // Every code has its window entry, also where no header asks for it.
        add(window.Code);
        for (int index : window.Indexes)
            add(HelpKey(window.Code, index));
    }
    return keys;
}

std::string HelpCodeFor(const std::string& Window, int Index) {
    for (const HelpRequests& window : HelpCodeTable())
        if (window.Window == Window &&
            std::find(window.Indexes.begin(), window.Indexes.end(), Index) != window.Indexes.end())
            return window.Code;
    return {};
}

} // namespace brooklet
