#pragma once
// The local soil file "Local_Soil_HSG.txt" in the program folder: one line per soil, two quoted
// values separated by a comma, the soil identifier (at most 25 characters) and its hydrologic
// soil groups, the letters that apply joined with "/" in the order A, B, C, D, as "A/D". After
// the last soil stands a line with an empty quoted value. A soil with no group is not written.
// The local soil window edits the file; the soil display shows it sorted, as a look-up aid of
// the land use calculator. Nothing ties a soil to a land use.
#include <string>
#include <utility>
#include <vector>

#include "network/local_table.h"

namespace brooklet {

class GridControl;

// A soil of the local soil window: the identifier, then "A" or empty, "B" or empty, "C" or
// empty, "D" or empty.
using SoilRow = FiveTexts;

// The soils of the file as the local soil window reads them: each value that isn't blank is an
// identifier, kept trimmed, and the value behind it names the groups by the letters it holds,
// in either case and any order. An empty list when the file cannot be read.
std::vector<SoilRow> ReadLocalSoilFile(const std::string& Path);
std::vector<SoilRow> ReadLocalSoilRecords(const std::string& bytes);

// The groups of a soil joined with "/" in the order A, B, C, D: the trimmed, non-empty fields
// 2 to 5.
std::string SoilGroups(const SoilRow& soil);

// What the local soil window writes on Accept: the identifier and the groups of each soil that
// has a group, quoted, then the closing line. A deleted soil, having no identifier, is dropped.
std::vector<std::string> LocalSoilFileLines(const LocalTable& table);

// The longest soil identifier.
constexpr size_t SoilIdentifierLength = 25;

// The soils as the soil display lists them: pairs of identifier and groups as the file holds
// them, a blank value passed over, in ascending order of the identifier, case not counting.
// An empty list when the file cannot be read.
std::vector<std::pair<std::string, std::string>> ReadSoilDisplay(const std::string& Path);
std::vector<std::pair<std::string, std::string>> ReadSoilDisplayRecords(const std::string& bytes);

// The first grid row from FirstRow to LastRow whose first column, cut to the length of Text,
// equals Text, case not counting; 0 when none.
int FindSoilRow(const GridControl& Grid, int FirstRow, int LastRow, const std::string& Text);

// True when the local soil file can be opened: the land use calculator offers the soil display
// only then.
bool LocalSoilFileOpens(const std::string& Path);

} // namespace brooklet
