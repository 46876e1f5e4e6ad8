#pragma once
// Section 5, the input hydrographs: named lists of flows with their reach, storm, start time,
// time increment, drainage area and base flow.
//   line 1      cols 1-40 "INPUT HYDROGRAPH:"
//   identifier  cols 1-10 blank, 11-20 hydrograph, 21-30 reach, 31-40 storm, 41-50 start time
//               (hr), 51-60 time increment (hr), 61-70 drainage area, 71-80 base flow
//   value       the flows, five to a record; a last flow above 0 is followed by "0.", so a
//               written hydrograph always comes back down to zero
// One empty record ends the section.
#include "tables/value_records.h"

namespace brooklet {

// The fields of a hydrograph's identifier record.
constexpr int InputHydrographFields = 7;

std::vector<ValueTable> ReadInputHydrographSection(const std::vector<std::string>& lines);
std::vector<std::string> WriteInputHydrographSection(const std::vector<ValueTable>& tables);

} // namespace brooklet
