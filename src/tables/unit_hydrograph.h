#pragma once
// Section 2, the dimensionless unit hydrograph: one table of values from 0 to 1.
//   line 1      cols 1-40 "DIMENSIONLESS UNIT HYDROGRAPH:"
//   value       the values, five to a record; a last value above 0 is followed by "0.", and
//               when that value needs a record of its own, the record starts with one blank
//               more, so the value stands in col 22
// No identifier record, and no empty record behind the last value record.
#include <string>
#include <vector>

namespace brooklet {

// The values: reading stops at the end or at the first blank line; a record with nothing in
// cols 21-70 is passed over.
std::vector<std::string> ReadUnitHydrographSection(const std::vector<std::string>& lines);
// The header and the values with their closing value; no line at all for no values.
std::vector<std::string> WriteUnitHydrographSection(const std::vector<std::string>& values);

} // namespace brooklet
