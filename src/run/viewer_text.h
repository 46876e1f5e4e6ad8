#pragma once
// The bytes of a file as the file viewer shows and prints them. The viewer's box and the printer
// see the same lines: a line ends at CR LF, LF or a CR alone, as every reader of the program
// takes them, and a UTF-8 byte-order mark at the start is not text. Any other byte is a
// character of its line, shown as it stands.
#include <string>
#include <vector>

namespace brooklet {

// The text of the viewer's box: each line ended by a line feed, but for a last line that the
// file leaves without an end.
std::string ViewerText(const std::string& bytes);

// What printing the whole file sends to the printer, in order: each line behind a margin of five
// blanks, and a new page behind a line that holds a form feed. A line whose first character is a
// form feed starts a new page and is not printed: the model's page breaks decide the pages.
struct PrintStep {
    bool newPage = false;
    std::string line; // the text to print when not a new page
    bool operator==(const PrintStep& other) const { return newPage == other.newPage && line == other.line; }
};
std::vector<PrintStep> FilePrintSteps(const std::string& bytes);

} // namespace brooklet
