#pragma once
// Section 4, the defaults of what the model prints and files for all sub-areas and reaches.
//   line 1  cols  1-40  "GLOBAL OUTPUT:"
//   line 2  cols  1-10  blank
//           cols 11-20  hydrograph print precision, integer
//           cols 21-30  minimum hydrograph display flow, real, in the flow unit
//           cols 31-40  print time increment, real, in hours
//           cols 41-45  sub-area default codes, "Y" or "N": peak, hydrograph, peak summary,
//                       time analysis, hydrograph file
//           cols 46-50  blank
//           cols 51-56  reach default codes, the same five and the flood economics file
#include <array>
#include <string>
#include <vector>

namespace brooklet {

constexpr int SubAreaCodeCount = 5;
constexpr int ReachCodeCount = 6;

struct GlobalOutputRecord {
    // The boxes of the window, 1 to 3: hydrograph print precision, minimum hydrograph display
    // flow, print time increment; Boxes[0] is box 1, as typed.
    std::array<std::string, 3> Boxes;
    // True for "Y", in the order of the columns.
    std::array<bool, SubAreaCodeCount> SubAreaCodes{};
    std::array<bool, ReachCodeCount> ReachCodes{};

    std::string& box(int index) { return Boxes.at(static_cast<size_t>(index - 1)); }
    const std::string& box(int index) const { return Boxes.at(static_cast<size_t>(index - 1)); }
};

// Reads the lines of work file 4: the header, then the second line. A code counts as "Y" in
// either case; anything else is "N". The boxes are the trims of their columns.
GlobalOutputRecord ReadGlobalOutputSection(const std::vector<std::string>& lines);

// The lines of work file 4: none when every box is blank and every code is "N"; else the header
// and the second line, the precision with no point, the two reals with their points.
std::vector<std::string> WriteGlobalOutputSection(const GlobalOutputRecord& record);

} // namespace brooklet
