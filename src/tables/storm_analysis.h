#pragma once
// Section 9, the storms: one record for each pair of a storm and a rain gage, naming its rain
// table, depth, start and antecedent runoff condition.
//   line 1      cols 1-40 "STORM ANALYSIS:"
//   storm       cols 1-10 blank, then seven fields of ten columns from col 11: storm, rain
//               gage, starting time (hr), rainfall, rain table, antecedent runoff condition,
//               2-year 24-hour rainfall; the times and rainfalls get their point
// Every line behind the header is a storm record, read without looking at its content, and
// its fields stay texts.
#include <array>
#include <string>
#include <vector>

namespace brooklet {

// A storm record's fields, in the order of the window's grid columns 0 to 6.
constexpr int StormFields = 7;
using StormRecord = std::array<std::string, StormFields>;

// The grid columns of the fields a window looks at by name.
constexpr int StormIdColumn = 0;
constexpr int RainGageColumn = 1;
constexpr int RainTableColumn = 4;
constexpr int RunoffConditionColumn = 5;

// Every line behind the first, each field the trim of its ten columns.
std::vector<StormRecord> ReadStormSection(const std::vector<std::string>& lines);

// The header and one record per row, in order; no line at all for no rows.
std::vector<std::string> WriteStormSection(const std::vector<StormRecord>& rows);

} // namespace brooklet
