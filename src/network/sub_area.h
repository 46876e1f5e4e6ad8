#pragma once
// Section 11, the sub-areas, in work file ~SubArea.tmp:
//   header      "SUB-AREA:" blank-padded to 40 columns
//   sub-area    cols 11-20 identifier, 21-30 receiving reach, 31-40 rain gage, 41-50 drainage
//               area, 51-60 weighted curve number, 61-70 time of concentration, 71-75 the five
//               one-letter output codes; cols 11-20 not blank is what marks it
//   detail      cols 1-20 blank, keyword in 21-30, behind its sub-area:
//     SHEET     31-40 length, 41-50 slope, 51-60 Manning n, 61-70 surface code A to J
//     SHALLOW   31-40 length, 41-50 slope, 61-70 surface code P or U
//     CHANNEL   long: 31-40 length, 41-50 slope, 51-60 Manning n, 61-70 end area, 71-80 wetted
//               perimeter; short: 31-40 length, 41-50 velocity
//     LAND AREA 31-65 land use name, 66-70 soil group, 71-80 area (also read as "WEIGHT CN")
//   an empty record ends the section; with no sub-area the work file is empty.
// The rows go to SubAreaTable by the field numbers of the window (1 to 11 for the sub-area
// record, 12 to 15 sheet, 16 to 18 shallow, 19 to 24 channel), the land use records to
// LandUseStore.
#include <string>
#include <vector>

#include "editing/watershed_tables.h"
#include "session/section_table.h"
#include "session/text_file.h"

namespace brooklet {

// Table fields of the detail records.
constexpr int SheetFirstField = 12;
constexpr int SheetLastField = 15;
constexpr int ShallowFirstField = 16;
constexpr int ShallowLastField = 18;
constexpr int ChannelFirstField = 19;
constexpr int ChannelLastField = 24;
constexpr int ChannelVelocityField = 24;

// Reads the lines of work file 11, its header line first, into the sub-area tables, which the
// caller has reset. Reading stops at the first line that is blank; keywords are compared trimmed
// and in upper case, and a record of another keyword, or a detail record before any sub-area,
// is passed over.
void ReadSubAreaSection(const std::vector<std::string>& lines, WatershedTables& tables);

// The lines of work file 11 from the sub-area tables; none when there is no sub-area. A detail
// record is written when one of its fields is not blank, a land use record only when its area
// is above 0; CHANNEL takes its long form when slope, Manning n, end area and wetted perimeter
// are all given, its short form otherwise.
std::vector<std::string> SubAreaSectionRecords(const WatershedTables& tables);

// The end step of the sub-area window and its calculators: rewrites work file 11 from the
// tables and sets DataChanged, also when the file could not be written.
WriteResult WriteSubAreaSection(Session& session, const WatershedTables& tables);

} // namespace brooklet
