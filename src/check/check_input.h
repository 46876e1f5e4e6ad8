#pragma once
// What Check Watershed reads: the lines of each section, each with the line it stands on, taken
// either from the work files of the session or straight from an input file's bytes, and the land
// uses known beside the input (the standard table and the local land use file).
#include <array>
#include <map>
#include <string>
#include <vector>

#include "check/findings.h"
#include "session/section_table.h"

namespace brooklet {

// A section as read: its header line first, then its records, each with its line number.
struct SectionText {
    std::vector<std::string> lines;
    std::vector<int> lineNumbers;
};

// A land use name and its curve numbers for the soil groups A, B, C and D (empty where the
// land use has none for a group).
struct KnownLandUse {
    std::string name;
    std::array<std::string, 4> curveNumbers;
};

struct CheckInput {
    std::array<SectionText, SectionCount + 1> sections; // 1..15
    // The land uses the input may name besides those of its own "LOCAL LAND USE:" section,
    // keyed by the upper case of the trimmed name.
    std::map<std::string, KnownLandUse> landUses;
    // What the reading itself found wrong (a header no section has stops the reading).
    Findings readingFindings;
};

// The work files 1 to 15 of the session, as they stand; a missing one is an empty section.
CheckInput ReadWorkFilesForCheck(const Session& session);

// The sections of an input file's bytes, cut at their headers as a load cuts them, with the
// line numbers of the file. An unknown header stops the cut there, as it stops a load, and is a
// finding.
CheckInput CutInputFileForCheck(const std::string& bytes);

// Adds a land use to those the input may name; the first of a name stays.
void addKnownLandUse(CheckInput& input, const KnownLandUse& landUse);

} // namespace brooklet
