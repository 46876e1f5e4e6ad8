#pragma once
// Section 3, the durations for which the model reports flow statistics. One line only, which is
// also the section's header line:
//   cols  1-40  "DURATION INCREMENT:"
//   cols 41-50  "Hours" or "Days"
//   cols 51-60  1st duration, real
//   cols 61-70  2nd duration, real
//   cols 71-80  3rd duration, real
#include <array>
#include <string>
#include <vector>

namespace brooklet {

// The durations are held by the index of their box in the window, 2 to 4.
constexpr int FirstDurationBox = 2;
constexpr int LastDurationBox = 4;

struct DurationIncrementRecord {
    bool Days = false;
    // Durations[0] is the 1st duration (box 2), as typed.
    std::array<std::string, 3> Durations;

    std::string& duration(int box) { return Durations.at(static_cast<size_t>(box - FirstDurationBox)); }
    const std::string& duration(int box) const {
        return Durations.at(static_cast<size_t>(box - FirstDurationBox));
    }
};

// Reads the lines of work file 3. Only "DAYS", in any case, in cols 41-50 gives days; anything
// else is hours. Each duration is the trim of its columns. No lines give hours and no durations.
DurationIncrementRecord ReadDurationIncrementSection(const std::vector<std::string>& lines);

// The lines of work file 3: none when all three durations are blank, else the one line with
// each duration trimmed and given its point.
std::vector<std::string> WriteDurationIncrementSection(const DurationIncrementRecord& record);

// The word beside the durations: "hr" for hours, "days" for days.
std::string DurationUnitWord(bool days);

} // namespace brooklet
