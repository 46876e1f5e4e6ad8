#pragma once
// Section 12, the flow and elevation levels of the time analysis.
//   line 1      cols 1-40 "TIME ANALYSIS:"
//   FLOW        cols 1-10 blank, 11-20 "FLOW", then up to four flow percentages of 10 columns
//               each from col 21
//   ELEVATION   cols 1-10 blank, 11-20 "ELEVATION", then up to four elevation increments
// Either line may be missing; on reading a line goes by its cols 11-20.
#include <array>
#include <string>
#include <vector>

namespace brooklet {

// The levels are held by the index of their box in the window: flows in boxes 1 to 4,
// elevations in boxes 5 to 8.
constexpr int FirstFlowBox = 1;
constexpr int LastFlowBox = 4;
constexpr int FirstElevationBox = 5;
constexpr int LastElevationBox = 8;

struct TimeAnalysisRecord {
    // Boxes[0] is box 1, as typed.
    std::array<std::string, 8> Boxes;

    std::string& box(int index) { return Boxes.at(static_cast<size_t>(index - 1)); }
    const std::string& box(int index) const { return Boxes.at(static_cast<size_t>(index - 1)); }
};

// Reads the lines of work file 12: the header line, then each line by its cols 11-20, "FLOW"
// or "ELEVATION" exactly as written; other lines are passed over.
TimeAnalysisRecord ReadTimeAnalysisSection(const std::vector<std::string>& lines);

// The lines of work file 12. A row's line is written when its first box is not empty, the
// whole section only when one of the two lines is; each level trimmed and given its point.
std::vector<std::string> WriteTimeAnalysisSection(const TimeAnalysisRecord& record);

} // namespace brooklet
