#pragma once
// Section 1, the alternates, in work file ~Alter.tmp:
//   header      "ALTERNATE ANALYSIS:", nothing behind it
//   alternate   cols 1-10 identifier, 11-80 description; the one record whose identifier
//               stands in column 1
//   list        "          REACHES" or "          AREAS": cols 11-20, trimmed and in upper
//               case, open the reach or the area list of the alternate and close the other; a
//               new alternate record closes both, and records outside a list are passed over
//   reach       cols 11-20 identifier, 21-30 receiving reach, 31-40 cross section, 41-50
//               structure, 51-60 channel length, 61-70 valley length, 71-76 six output codes
//     BASE FLOW  31-40; SPLIT FLOW 31-40 reach, 41-50 cross section, 51-60 start, 61-70 end,
//                71-80 drainage area; REACH LOSS 31-40 conductivity, 41-50 storage
//   sub-area    cols 11-20 identifier, 21-30 receiving reach, 31-40 rain gage, 41-50 area,
//               51-60 curve number, 61-70 time of concentration, 71-75 five output codes
//     SHEET      31-40 length, 41-50 slope, 51-60 Manning n, 61-70 surface code
//     SHALLOW    31-40 length, 41-50 slope; the surface code is read from 61-70 and written
//                into 51-60, so it is gone after the next load
//     CHANNEL    long (cols 51-80 not blank): 31-70 length, slope, Manning n, end area, wetted
//                perimeter; short: 31-40 length, 41-50 velocity
//     LAND AREA  31-65 land use name, 66-70 soil group, 71-80 area
//   an empty record ends the section.
// Continuation records stand behind their entry, cols 1-20 blank, keyword in 21-30. Fields of
// ten columns are kept as they stand, blanks included; the alternate's identifier and
// description, the one-column codes and the land use fields are trimmed. Reach loss values and
// land use areas are written without a point, and SPLIT FLOW, SHEET and SHALLOW only when their
// first field is given.
#include <string>
#include <vector>

#include "editing/watershed_tables.h"

namespace brooklet {

// Reads the lines of work file 1, its header line first, into the alternate store, which the
// caller has reset. Reading stops at the first line that is blank.
void ReadAlternateSection(const std::vector<std::string>& lines, WatershedTables& tables);

// The lines of work file 1: every alternate that has an entry, with its reach list, then its
// area list; none when no alternate has an entry.
std::vector<std::string> AlternateSectionRecords(const WatershedTables& tables);

} // namespace brooklet
