#pragma once
// The time of concentration calculator's arithmetic: the travel times of the three segments of
// a sub-area's flow path (sheet flow, shallow concentrated flow, channel flow) and their sum,
// worked on the texts of the calculator's boxes, and its working copy of the segments.
//
// Box indexes: 0 the 2-year rainfall; 12 to 15 sheet length, slope, Manning n and surface;
// 16 to 18 shallow length, slope and surface; 19 to 24 channel length, slope, Manning n, end
// area, wetted perimeter and velocity; 25 the shallow velocity; 26 to 28 the travel times of
// the three segments; 29 their sum. Each travel time is rounded to three decimals, a half going
// to the even digit; the sum is not rounded, and shows as many digits as give it back. The
// coefficients are those of English units and stay the same in a metric run: nothing is
// converted.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "editing/text_table.h"

namespace brooklet {

struct WatershedTables;

// The fields of the working copy: field 1 the identifier, 12 to 24 as in the sub-area table.
constexpr int TcFields = 24;

constexpr int RainfallBox = 0;
constexpr int SheetSurfaceBox = 15;
constexpr int ShallowSurfaceBox = 18;
constexpr int ShallowVelocityBox = 25;
constexpr int SheetTimeBox = 26;
constexpr int ShallowTimeBox = 27;
constexpr int ChannelTimeBox = 28;
constexpr int TotalTimeBox = 29;
constexpr int TcBoxCount = 31;

// The surfaces of sheet flow by their letters A to J, as the surface list shows them, and their
// Manning n.
constexpr int SheetSurfaceCount = 10;
extern const char* const SheetSurfaces[SheetSurfaceCount];
extern const char* const ManningTable[SheetSurfaceCount];
inline const std::string SheetSurfaceLetters = "ABCDEFGHIJ";
// The surfaces of shallow flow, "P" and "U".
extern const char* const ShallowSurfaces[2];
inline const std::string ShallowSurfaceLetters = "PU";

// Sheet flow travel time in hours from Manning n, length, 2-year rainfall and slope:
// 0.007 (n L)^0.8 / (P^0.5 S^0.4), rounded. n is a single-precision value.
double SheetTravelTime(float n, double length, double rainfall, double slope);
// Shallow flow velocity from the slope: 16.1345 S^0.5 unpaved, 20.3282 S^0.5 paved, rounded.
double ShallowVelocity(bool paved, double slope);
// Travel time in hours over a length at a velocity: L / V / 3600, rounded.
double TravelTime(double length, double velocity);
// Channel velocity by Manning's formula: 1.49 (A / P)^(2/3) S^0.5 / n, rounded.
double ChannelVelocity(double endArea, double wettedPerimeter, double slope, double n);

// The texts of the calculator's boxes, by index.
using TcBoxes = std::array<std::string, TcBoxCount>;

// The computation after box Index (12 to 24) changed: the segment of that box gets its travel
// time, or loses it when it is not complete, and the sum follows. A result that is no number
// (a slope or velocity of 0 read from the work file) leaves its box empty.
void ComputeTcSegment(TcBoxes& boxes, int index);

// The largest sheet flow length: 100 ft, or 30.5 m in a metric run.
double SheetLengthLimit(bool EnglishUnits);
// The check of a value box (12, 13, 14, 16, 17, 19 to 24); a blank box is accepted.
bool TcValueAccepted(int index, const std::string& text, bool EnglishUnits);

// The surface list's text of a stored surface code: Letters has a blank in front of the codes,
// and the code's place in it gives the list item (item 0 a single blank, then Items). A code
// not found there stays as it is.
std::string SurfaceListText(const std::string& code, const std::string& letters, const char* const* items);

// The working copy of the sub-areas' segments, rows 1 to SubAreaCount, with the surfaces as
// the lists show them.
TextTable BuildTcTable(const WatershedTables& tables);
// The segments go back to the sub-area table, the surfaces by their first character. Each row
// of the working copy goes to the sub-area that had its identity (RowIds, index from 1) when the
// copy was built, wherever that sub-area stands now; a sub-area deleted since takes nothing.
void ReturnTcTable(const TextTable& TcTable, const std::vector<int>& RowIds, WatershedTables& tables);
// The 2-year rainfall of a rain gage as the calculator finds it: the first entry of the
// rainfall table whose name equals the gage, both trimmed and in upper case, as text; empty
// when none does; nothing when the table has no entry, and the box keeps its text.
std::optional<std::string> RainfallOfGage(const WatershedTables& tables, const std::string& gage);

} // namespace brooklet
