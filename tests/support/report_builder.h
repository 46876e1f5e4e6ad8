#pragma once
// Builds printed reports of the model in the layout the output reader expects, for the reader's
// tests, its benchmark and its fuzz seeds. Fields stand at their columns, counted from 1.
#include <cstdio>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace brooklet::test {

class ReportBuilder {
public:
    using Fields = std::initializer_list<std::pair<int, std::string>>;

    // A line holding each text at its column.
    static std::string at(Fields fields) {
        std::string line;
        for (const auto& [column, text] : fields) {
            const size_t start = size_t(column - 1);
            if (line.size() < start + text.size())
                line.resize(start + text.size(), ' ');
            line.replace(start, text.size(), text);
        }
        return line;
    }
    ReportBuilder& line(const std::string& text) {
        lines.push_back(text);
        return *this;
    }
    ReportBuilder& line(Fields fields) { return line(at(fields)); }
    ReportBuilder& blank() { return line(std::string()); }

    // The three lines the reader passes over at the start.
    ReportBuilder& banner() { return line("Brooklet report").line("  Willow Brook").blank(); }
    // A page header and its three lines; the third is blank unless told otherwise.
    ReportBuilder& pageHeader(int page, const std::string& third = std::string()) {
        line({{1, "Brooklet"}, {20, "Report"}, {37, "Page"}, {42, std::to_string(page)}});
        return line("  Willow Brook").line("  Run of the day").line(third);
    }
    ReportBuilder& storm(const std::string& alternate, const std::string& storm) {
        return blank().line({{31, alternate}, {41, "STORM"}, {50, storm}}).blank();
    }
    // A location block with its hydrograph: the start time, the printed increment and the
    // ordinates, seven to a line, each line's time advancing by lineSpan.
    ReportBuilder& hydrograph(const std::string& location, const std::string& second, double start,
                              const std::string& increment, const std::vector<std::string>& flows,
                              double lineSpan) {
        line({{45, "------------ Peak Flow ------------"}});
        line({{1, "Location"}, {21, "Field"}, {45, "Time"}, {60, "Flow"}});
        line({{1, "--------"}, {21, "-----"}});
        blank().blank();
        line({{1, location}, {21, second}, {45, "12.50"}, {60, "123."}});
        blank().line("Line");
        line({{1, "Hydrograph"}, {27, "Flow Values "}, {45, "Increment"}, {59, increment}});
        line({{1, "     Time"}, {11, "  Flows"}}).line({{1, "---------"}}).blank();
        for (size_t first = 0; first < flows.size(); first += 7) {
            std::string text = number(start + lineSpan * double(first / 7));
            for (size_t k = first; k < flows.size() && k < first + 7; ++k)
                text += field(flows[k]);
            line(text);
        }
        return blank();
    }
    // The peak table heading for up to five storms; then rows through peakRow.
    ReportBuilder& peakTable(const std::vector<std::string>& storms) {
        blank().line({{35, "----------- Peak Flow by Storm -----------"}});
        std::string names(31, ' ');
        for (const std::string& storm : storms)
            names += field(storm);
        line(names);
        line({{1, "Location"}, {11, "Area"}, {21, "Alternate"}}).line({{1, "--------"}}).blank();
        return *this;
    }
    ReportBuilder& peakRow(const std::string& location, const std::string& area, const std::string& alternate,
                           const std::vector<std::string>& flows) {
        std::string text = field(location) + field(area) + field(alternate);
        for (const std::string& flow : flows)
            text += field(flow);
        return line(text);
    }
    // A duration table of either kind: percent-of-peak ("Base" marks it as a stage table in
    // the first kind's heading) or stage above base elevation.
    ReportBuilder& durationTable(bool stageHeading, bool base, const std::vector<std::string>& headings) {
        blank();
        if (stageHeading)
            line({{1, "Elevation"}, {43, "Flow Duration @ stage above base elev."}});
        else
            line(
                {{1, "Percent"}, {33, base ? "Base" : "Peak"}, {43, "Flow Duration @ selected Peak Flow %"}});
        std::string heads(40, ' ');
        for (const std::string& heading : headings)
            heads += field(heading);
        line(heads);
        return line({{1, "Location"}, {11, "Alternate"}, {21, "Storm"}}).line({{1, "--------"}}).blank();
    }
    ReportBuilder& durationRow(const std::string& location, const std::string& alternate,
                               const std::string& storm, const std::vector<std::string>& durations) {
        std::string text = field(location) + field(alternate) + field(storm) + field("");
        for (const std::string& duration : durations)
            text += field(duration);
        return line(text);
    }

    std::string text() const {
        std::string bytes;
        for (const std::string& l : lines)
            bytes += l + "\r\n";
        return bytes;
    }

    // A text in a field of ten columns.
    static std::string field(const std::string& text) {
        return text.size() >= 10 ? text : text + std::string(10 - text.size(), ' ');
    }
    static std::string number(double value) {
        char text[32];
        std::snprintf(text, sizeof text, "%9.2f ", value);
        return field(text);
    }

    std::vector<std::string> lines;
};

} // namespace brooklet::test
