#pragma once
// Section 8, the stream reaches, in work file ~Reach.tmp:
//   header      "STREAM REACH:" blank-padded to 40 columns
//   reach       cols 11-20 identifier, 21-30 receiving reach, 31-40 cross section, 41-50
//               structure, 51-60 channel length, 61-70 valley length, 71-76 the six one-letter
//               output codes; cols 11-20 not blank is what marks it
//   continuation cols 1-20 blank, keyword in 21-30, behind its reach, each at most once:
//     BASE FLOW  31-40 constant base flow
//     SPLIT FLOW 31-40 split reach, 41-50 split cross section, 51-60 starting flow, 61-70
//                ending flow, 71-80 split drainage area fraction
//     REACH LOSS 31-40 hydraulic conductivity, 41-50 storage available in alluvium
//   an empty record ends the section; with no reach the work file is empty.
// A row of ReachTable holds 20 fields: 1 to 6 the reach record's fields, 7 the base flow, 8 to
// 13 the output codes, 14 to 18 the split flow, 19 and 20 the reach loss.
#include <string>
#include <vector>

#include "editing/text_table.h"

namespace brooklet {

constexpr int BaseFlowField = 7;
constexpr int FirstReachCodeField = 8;
constexpr int LastReachCodeField = 13;
constexpr int FirstSplitField = 14;
constexpr int LastSplitField = 18;
constexpr int FirstLossField = 19;
constexpr int LastLossField = 20;

// Reads the lines of work file 8, its header line first, into a table of one empty row and no
// reach. Reading stops at the first blank line; keywords are compared trimmed and in upper
// case, other keywords and continuation records before any reach are passed over. The reach
// loss fields are kept as they stand in the record, all others trimmed.
void ReadReachSection(const std::vector<std::string>& lines, TextTable& ReachTable, int& ReachCount);

// The lines of work file 8; none when no row names a reach. A continuation record is written
// when one of its fields is not blank.
std::vector<std::string> ReachSectionRecords(const TextTable& ReachTable, int ReachCount);

} // namespace brooklet
