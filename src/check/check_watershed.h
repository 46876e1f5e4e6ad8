#pragma once
// Check Watershed: every rule over the whole input, read from the work files of the session or
// from an input file, and the findings as the command line prints them. The check reads only;
// it never changes a work file.
#include <string>

#include "check/check_input.h"
#include "check/findings.h"

namespace brooklet {

// Every finding of every rule, in the order of the lines they stand on (the reading's own
// findings first, findings of no line before those of a line).
Findings CheckWatershed(const CheckInput& input);

// "file:line: severity: message", the line of the record the finding is about.
std::string findingLine(const std::string& file, const Finding& finding);

// The command line's exit code: 0 with no findings, 1 with warnings only, 2 with errors.
int checkExitCode(const Findings& findings);

} // namespace brooklet
