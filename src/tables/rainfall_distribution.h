#pragma once
// Section 6, the rainfall distributions: named tables of mass rainfall points at a fixed time
// increment.
//   line 1      cols 1-50 "RAINFALL DISTRIBUTION:" (50 columns, unlike other sections)
//   identifier  cols 1-10 blank, 11-20 rain table, 21-30 blank, 31-40 time increment (hr)
//   value       the mass rainfall points, five to a record
// One empty record ends the section.
#include "tables/value_records.h"

namespace brooklet {

// The fields of a distribution's identifier record.
constexpr int RainTableFields = 2;

std::vector<ValueTable> ReadRainfallDistributionSection(const std::vector<std::string>& lines);
std::vector<std::string> WriteRainfallDistributionSection(const std::vector<ValueTable>& tables);

} // namespace brooklet
