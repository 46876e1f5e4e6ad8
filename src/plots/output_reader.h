#pragma once
// The reader of the model's printed report (the output file, extension "out"). The report is
// made for people: every output plot is lifted from it by column position, in one pass, line by
// line, into the plot arrays as the rows of the plot request ask. The layout, as far as it is
// read (columns count from 1):
//   page header       cols 1-8 "Brooklet" and cols 37-40 "Page", then three lines of header
//   storm heading     cols 41-49 trimmed "STORM"; cols 31-40 alternate, cols 50-59 storm
//   location block    cols 45-79 "------------ Peak Flow ------------", four lines follow; the
//                     next non-blank line names the location in cols 1-10 and its second
//                     field (UPSTREAM, DOWNSTREAM, blank or the sub-area's field) in cols 21-30
//   hydrograph        a line "Line" (trimmed), then the ordinate heading: cols 27-38
//                     "Flow Values ", the time increment with its unit in cols 59-68; three
//                     lines follow, then ordinate lines: time in cols 1-10 and up to seven
//                     ordinates in cols 11-20, ..., 71-80
//   peak table        cols 35-76 "----------- Peak Flow by Storm -----------"; the next line
//                     names up to five storms in cols 32-41, ..., 72-81; three lines follow;
//                     rows: location or DOWNSTREAM, drainage area, alternate, five peak flows
//   duration tables   cols 43-78 "Flow Duration @ selected Peak Flow %" (a stage table when
//                     cols 33-36 are "Base") or cols 43-80 "Flow Duration @ stage above base
//                     elev."; the next line holds four headings in cols 41-80, three lines
//                     follow; rows: location or DOWNSTREAM, alternate, storm, five durations
//                     in cols 41-90
#include <string>
#include <string_view>

#include "editing/plot_data.h"
#include "session/text_file.h"

namespace brooklet {

// The report beside the input file: the name up to its last point, then "out".
std::string OutputFilePath(const std::string& CurrentFile);

// The report as the reader walks it.
class OutputReport {
public:
    explicit OutputReport(LineReader reader) : reader_(std::move(reader)) {}

    // Brings the next meaningful line into OutputLine: page headers and blank lines are passed
    // over. At the end of the file it returns with whatever line it read last.
    void NextOutputLine();
    // Reads Count lines into OutputLine; below 1 reads none.
    void SkipOutputLines(int Count);
    // True once the last line has been read.
    bool atEnd() const { return reader_.atEnd(); }

    // The last line read; valid until the next is read.
    std::string_view OutputLine;

private:
    void readLine();
    LineReader reader_;
};

// Fills the plot arrays from the report of CurrentFile as the request asks (kinds 6, 7 and 8).
// Found, False on entry, turns True once a point has been stored. A missing or empty report
// leaves it False.
void ReadOutputFile(const std::string& CurrentFile, PlotData& plot, bool& Found);
// The same on the report's bytes.
void ReadOutputText(std::string bytes, PlotData& plot, bool& Found);

} // namespace brooklet
