#pragma once
// Section 13, the identification of the input file: unit systems, smallest hydrograph value of
// interest, screen output switch and two lines of watershed description. Also the table of the
// unit words that the identifier editor sets for all other windows.
#include <string>
#include <vector>

namespace brooklet {

struct Session;
struct UnitWords;

// Line 1, which is also the section's header line:
//   cols  1-40  "Brooklet: Version 1.0"
//   cols 41-50  input units code, "0" English, "1" metric
//   cols 51-60  output units code, "0" English, "1" metric
//   cols 61-70  minimum hydrograph value, in the flow unit, may be blank
//   cols 71-80  screen output code, "0" screen output, "1" no screen output
// Lines 2 and 3: the watershed description, up to 80 characters each, either may be missing.
struct IdentifierRecord {
    bool MetricInput = false;
    bool MetricOutput = false;
    std::string MinimumHydrograph;
    bool NoScreenOutput = false;
    std::string Description1;
    std::string Description2;
};

// Reads the lines of work file 13. No lines, or a first line too short to hold a code, give the
// defaults: English in and out, screen output, no minimum value. Descriptions are trimmed.
IdentifierRecord ReadIdentifierSection(const std::vector<std::string>& lines);

// The lines of work file 13. Line 1 is always written, in the current header form; a blank
// description writes no line, another is written as it stands.
std::vector<std::string> WriteIdentifierSection(const IdentifierRecord& record);

// The flow word of the input units: "cfs" or "cu m/sec".
std::string InputFlowUnit(bool english);
// The words chosen by the input units, with EnglishUnits itself.
void SetInputUnitWords(Session& session, bool english);
// The words chosen by the output units.
void SetOutputUnitWords(UnitWords& units, bool english);

} // namespace brooklet
