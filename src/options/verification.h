#pragma once
// Section 14, the switches of the model's tracing of its own steps.
//   line 1       cols 1-40 "VERIFICATION:"
//   DATA PREP    cols 1-10 blank, 11-20 "DATA PREP", then a field of 2 columns for each of the
//                checks 1 to 30 from col 21: "Y" or blank
//   PROCESSING   cols 1-10 blank, 11-20 "PROCESSING", then the checks 31 to 41 in the same way
//   an empty line
// A group's line is left out when none of its checks is set. The places 16 to 20 and 30 carry
// no check; their fields stay blank and keep the columns of the others.
#include <array>
#include <string>
#include <vector>

namespace brooklet {

constexpr int LastVerificationCheck = 41;

// True for the indexes that carry a check: 1 to 15, 21 to 29 and 31 to 41.
bool IsVerificationCheck(int index);

struct VerificationRecord {
    // Checks[i] is check i, 1 to 41; Checks[0] and the reserved places stay false.
    std::array<bool, LastVerificationCheck + 1> Checks{};
};

// Reads the lines of work file 14: the header, then each line by its cols 11-20 in any case,
// "DATA PREP" or "PROCESSING", whose fields set the checks that have a "Y" in either case.
VerificationRecord ReadVerificationSection(const std::vector<std::string>& lines);

// The lines of work file 14: none when no check is set; else the header, the lines of the
// groups that have a check set, and the empty line.
std::vector<std::string> WriteVerificationSection(const VerificationRecord& record);

} // namespace brooklet
