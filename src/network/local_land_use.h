#pragma once
// The user's own land uses. They are kept in one file of the installation, the local land use
// file "Local_Land_Use_Data.txt" in the program folder, and not in an input file: one line per
// land use, five comma-delimited values (the name, at most 35 characters, then the curve
// numbers of the hydrologic soil groups A, B, C and D, kept as typed), and after the last one a
// line with an empty quoted value. An input file that uses them carries them along in its
// section "LOCAL LAND USE:", work file 15, which every save regenerates from the file; every
// load adds the names that section brings to the file.
#include <string>
#include <vector>

#include "network/local_table.h"
#include "session/text_file.h"

namespace brooklet {

// The columns of a curve number in the section "LOCAL LAND USE:".
constexpr int SectionValueWidth = 5;

struct Session;

// A land use of the local file: the name and four further texts, the curve numbers of the
// groups A, B, C and D.
using LandUseRow = FiveTexts;

// What a reader does with a record whose name is blank after trimming.
enum class BlankName {
    SkipLine,   // the rest of its line is passed over, reading goes on with the next line
    SkipItem,   // the blank value alone is passed over, the next value starts a record
    DropRecord, // the whole record of five is read and dropped
    EndReading, // reading ends there
};

// The records of a local land use file, five values a record read value by value. A record cut
// short by the end of the file keeps what it has, its missing values empty.
std::vector<LandUseRow> ReadLandUseRecords(const std::string& bytes, BlankName blankName);
// The same from the file at Path; an empty list when it cannot be read.
std::vector<LandUseRow> ReadLocalLandUseFile(const std::string& Path, BlankName blankName);

// What the local land use window writes on Accept: each row whose name isn't blank and that has
// at least one curve number of 30 or more, its five values quoted, then the closing line. Other
// rows, deleted ones among them, are dropped without a word.
std::vector<std::string> LocalLandUseFileLines(const LocalTable& table);

// The longest land use name: it must fit its field in a "LAND AREA" record.
constexpr size_t LandUseNameLength = 35;

// The check of curve number box Index (2 to 5) of the local land use window: a number from 30
// to 100 or blank; for boxes 3 to 5 also not below the value of the box before, a blank box
// counting as 0. So A <= B <= C <= D is demanded.
bool CurveNumberAccepted(int Index, const std::string& Text, const std::string& PreviousBoxText);

// A merged row as the merge writes it: the name in double quotes, a comma, then a comma and a
// text for each of the four further texts: "name",,a,b,c,d.
std::string MergedLandUseLine(const LandUseRow& row);

// Run after every successful load. Each value of work file 15 that is new (blank after
// trimming, a name of the local table or a name of the standard table, in upper case, is not)
// is added to the local land use file as a name with four empty values, and the file is then
// rewritten whole, row by row in the merged form. A section as the save writes it has no
// commas, so each of its lines, the header line first, comes as one value, and the whole line
// is the name that is kept. Work file 15 is not altered. Changed is set False on entry and True
// when the file was rewritten; a file that cannot be rewritten stays as it was, and the result
// says why.
WriteResult MergeLocalLandUse(const Session& session, bool& Changed);

// The first step of every save. Rows of the local land use file whose name a land use record
// of the alternates (first 8 characters "LAND USE") or of the sub-areas (columns 21-29 "LAND
// AREA") names in columns 31-65, case counting, are written to work file 15 under the line
// "LOCAL LAND USE:", in the file's order, closed by a blank line. When no row is named, work file
// 15 is left as it is, so a section that came with the input file stays untouched, and so it is
// when the work file cannot be written (the result says why).
WriteResult BuildLocalLandUseSection(const Session& session);

// A row of the section "LOCAL LAND USE:": the name in columns 1-50, then the four values in
// five columns each with their point added; a longer value pushes what follows to the right.
std::string LocalLandUseSectionRecord(const LandUseRow& row);

} // namespace brooklet
