#pragma once
// What Check Watershed finds: one finding per thing wrong in the input, with where it stands
// (section, entry, field, the line of its record) and a sentence that says what is wrong and
// what to do about it.
#include <string>
#include <vector>

namespace brooklet {

enum class Severity {
    Warning, // legal, but most likely not what the engineer meant
    Error,   // the model cannot run correctly on it
};

struct Finding {
    Severity severity = Severity::Error;
    int section = 0;        // the section number whose editor shows it
    std::string identifier; // the entry as the user knows it ("UPPER-1"), empty for a whole section
    std::string field;      // the caption of the field in its editor
    std::string message;    // what is wrong and what to do
    int line = 0;           // the line of the record, in the input file or the work file read
    // Where the section's editor shows it: the entry it is asked for (for a storm "storm|gage",
    // for an alternate's entry the alternate's identifier) and the box that takes the focus.
    std::string entry;
    int box = 0;
};

using Findings = std::vector<Finding>;

// "error" or "warning", as the command line prints it.
const char* severityWord(Severity severity);

// How many findings are errors.
int errorCount(const Findings& findings);

} // namespace brooklet
