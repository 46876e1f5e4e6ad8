#include "plots/output_reader.h"

#include <algorithm>
#include <cmath>

#include "editing/numbers.h"
#include "session/section_table.h"

namespace brooklet {
namespace {

// Columns first to last of a line, counted from 1; shorter, or empty, where the line ends.
inline std::string_view cols(std::string_view line, int first, int last) {
    if (first < 1 || size_t(first) > line.size() || last < first)
        return {};
    return line.substr(size_t(first - 1), size_t(last - first + 1));
}

inline std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

// Where the first byte that is not a blank stands; the text's size when there is none.
inline size_t firstNonBlankAt(std::string_view text) {
    size_t at = 0;
    while (at < text.size() && text[at] == ' ')
        ++at;
    return at;
}

inline bool isBlank(std::string_view text) {
    return firstNonBlankAt(text) == text.size();
}

// The first byte of a line's columns first to last that is not a blank; 0 when there is none.
inline char firstNonBlank(std::string_view line, int first, int last) {
    const std::string_view text = cols(line, first, last);
    const size_t at = firstNonBlankAt(text);
    return at == text.size() ? '\0' : text[at];
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c;
}

// Identifiers compare trimmed and upper-cased.
bool sameName(std::string_view a, std::string_view b) {
    a = trimmed(a);
    b = trimmed(b);
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (upper(a[i]) != upper(b[i]))
            return false;
    return true;
}

// The numeric value of a slice: its leading number, 0 when there is none.
double valueOf(std::string_view text) {
    return leadingNumber(std::string(text));
}

// Text standing at a column, counted from 1, of a line. Its first byte is tried first: nearly
// every line of a report is a line of numbers, and it is met on every line.
inline bool textAt(std::string_view line, size_t column, std::string_view text) {
    return line.size() >= column - 1 + text.size() && line[column - 1] == text[0] &&
           line.compare(column - 1, text.size(), text) == 0;
}

bool isPageHeader(std::string_view line) {
    return textAt(line, 1, "Brooklet") && textAt(line, 37, "Page");
}
bool isStormHeading(std::string_view line) {
    return firstNonBlank(line, 41, 49) == 'S' && trimmed(cols(line, 41, 49)) == "STORM";
}
bool isLocationStart(std::string_view line) {
    return textAt(line, 45, "------------ Peak Flow ------------");
}
bool isHydrographHeading(std::string_view line) {
    return firstNonBlank(line, 1, 80) == 'L' && trimmed(cols(line, 1, 80)) == "Line";
}
bool isOrdinateHeading(std::string_view line) {
    return textAt(line, 27, "Flow Values ");
}
bool isPeakTableHeading(std::string_view line) {
    return textAt(line, 35, "----------- Peak Flow by Storm -----------");
}
bool isStageDurationHeading(std::string_view line) {
    return textAt(line, 43, "Flow Duration @ stage above base elev.");
}
bool isDurationHeading(std::string_view line) {
    return textAt(line, 43, "Flow Duration @ selected Peak Flow %") || isStageDurationHeading(line);
}

// The walk over the report for one request.
class OutputParse {
public:
    OutputParse(OutputReport& report, PlotData& plot, bool& Found)
        : report_(report), plot_(plot), Found_(Found),
          rows_(std::max(0, std::min<int>(plot.SeriesCount, int(plot.PlotRequest.size()) - 1))) {}

    void run();

private:
    std::string_view line() const { return report_.OutputLine; }
    PlotRequestRow& request(int row) { return plot_.PlotRequest[size_t(row)]; }
    void growTo(int point) {
        if (point > plot_.PlotY.pointUpper()) {
            plot_.PlotX.growPoints(point);
            plot_.PlotY.growPoints(point);
        }
    }
    void readOrdinateLine(int Row, int& Points, float& LineWeight, float& LastTime);
    void peakTablePass();
    // The outlet row of the peak table; the pass ends behind it.
    void outletStep(int& Row, int K, int StormColumn);
    void divideByArea(int Row, int K);
    void durationPass();
    void storeDurations(int Start);
    void readDurationHeadings(int Start);

    OutputReport& report_;
    PlotData& plot_;
    bool& Found_;
    const int rows_;
};

void OutputParse::run() {
    report_.SkipOutputLines(3);
    std::vector<char> Active(size_t(rows_) + 1, 0);
    int Row = 0;
    bool FlowSeen = false;
    bool StormMatched = false;
    int Points = 0;
    float LineWeight = 0.0f;
    float LastTime = 0.0f;
    for (;;) {
        report_.NextOutputLine();
        // The line on which the file ends is never examined.
        if (report_.atEnd())
            return;
        if (plot_.PlotKind != PeakFlowPlot && isStormHeading(line())) {
            StormMatched = false;
            FlowSeen = false;
            for (int r = 1; r <= rows_; ++r) {
                Active[size_t(r)] = sameName(request(r).T[1], cols(line(), 31, 40)) &&
                                    sameName(request(r).T[2], cols(line(), 50, 59));
                StormMatched = StormMatched || Active[size_t(r)];
            }
        }
        if (isDurationHeading(line()) || isPeakTableHeading(line()))
            break;
        if (isLocationStart(line())) {
            report_.SkipOutputLines(4);
            Row = 0;
            Points = 0;
            LineWeight = 1.0f;
        }
        if (isHydrographHeading(line())) {
            report_.NextOutputLine();
            if (Row >= 1) {
                if (isOrdinateHeading(line())) {
                    FlowSeen = true;
                    const std::string_view unit = cols(line(), 59, 68);
                    const size_t h = unit.rfind('h');
                    const int p = h == std::string_view::npos ? 10 : int(h) + 1;
                    request(Row).T6 = valueOf(cols(line(), 59, 58 + p));
                }
                report_.SkipOutputLines(3);
            }
        }
        // Once the flows of a location are seen, every non-blank line is an ordinate line until
        // the next location block or storm heading.
        if (Row > 0 && FlowSeen && request(Row).T6 > 0 && !isBlank(line())) {
            readOrdinateLine(Row, Points, LineWeight, LastTime);
        } else if (StormMatched && !isBlank(line())) {
            FlowSeen = false;
            Row = 0;
            Points = 0;
            for (int r = 1; r <= rows_; ++r)
                if (Active[size_t(r)] && sameName(request(r).T[3], cols(line(), 1, 10)) &&
                    sameName(request(r).T[4], cols(line(), 21, 30))) {
                    Row = r;
                    break;
                }
        }
    }
    if (plot_.PlotKind == PeakFlowPlot)
        peakTablePass();
    if (plot_.PlotKind == TimeAnalysisPlot)
        durationPass();
}

void OutputParse::readOrdinateLine(int Row, int& Points, float& LineWeight, float& LastTime) {
    PlotRequestRow& row = request(Row);
    if (!isBlank(row.T[5])) {
        LastTime = float(valueOf(cols(line(), 1, 10)));
        LineWeight += 7.0f;
    } else {
        row.T[5] = std::string(cols(line(), 1, 10));
    }
    for (int k = 1; k <= 7; ++k) {
        const std::string_view field = trimmed(cols(line(), 10 * k + 1, 10 * k + 10));
        if (field.empty())
            break;
        ++Points;
        growTo(Points);
        // A field that is not a number leaves its cell as it was.
        if (const auto value = toSingle(std::string(field)))
            plot_.PlotY.set(Row, Points, *value);
        row.T7 = Points;
    }
    if (Points > 0)
        Found_ = true;
    // From the second ordinate line on, the increment is the time span of the lines read.
    if (LineWeight > 7.0f)
        row.T6 = (double(LastTime) - valueOf(row.T[5])) / (std::floor(LineWeight / 7.0f) * 7.0);
}

void OutputParse::peakTablePass() {
    if (rows_ < 1)
        return;
    int Row = 1;
    int K = 0;
    int StormColumn = 0;
    bool DownSeen = false;
    auto kindOf = [this](int row, const char* kind) { return sameName(request(row).T[3], kind); };
    for (;;) {
        if (!isBlank(line())) {
            if (isDurationHeading(line()))
                return;
            if (isPeakTableHeading(line())) {
                StormColumn = 0;
                report_.NextOutputLine();
                for (int i = 1; i <= 5; ++i)
                    if (sameName(request(Row).T[2], cols(line(), 10 * i + 22, 10 * i + 31)))
                        StormColumn = i;
                report_.SkipOutputLines(3);
            }
            const std::string_view name = trimmed(cols(line(), 1, 10));
            if (StormColumn > 0 && !name.empty()) {
                if (sameName(name, "OUTLET")) {
                    outletStep(Row, K, StormColumn);
                    return;
                }
                if (sameName(name, "DOWNSTREAM")) {
                    // The row before was the upstream end of the first reach, stored under the
                    // sub-areas unless a DOWNSTREAM row came already.
                    if (kindOf(Row, "SUBAREA") && !DownSeen) {
                        request(Row).T7 = K - 1;
                        if (Row < rows_) {
                            ++Row;
                            if (kindOf(Row, "REACH")) {
                                plot_.PlotX.set(Row, 1, plot_.PlotX.get(Row - 1, K));
                                plot_.PlotY.set(Row, 1, plot_.PlotY.get(Row - 1, K));
                                K = 1;
                            }
                        }
                    }
                    DownSeen = true;
                }
                if ((kindOf(Row, "SUBAREA") && !DownSeen) || (kindOf(Row, "REACH") && DownSeen) || K == 0) {
                    ++K;
                    request(Row).T7 = K;
                    growTo(K);
                    // The downstream end takes the drainage area of the upstream end.
                    if (kindOf(Row, "REACH") && sameName(name, "DOWNSTREAM"))
                        plot_.PlotX.set(Row, K, plot_.PlotX.get(Row, K - 1));
                }
            }
            bool flowStored = false;
            if (StormColumn >= 1) {
                if (!isBlank(cols(line(), 11, 20)))
                    plot_.PlotX.set(Row, K, float(valueOf(cols(line(), 11, 20))));
                if (sameName(cols(line(), 21, 30), request(Row).T[1])) {
                    plot_.PlotY.set(
                        Row, K, float(valueOf(cols(line(), 10 * StormColumn + 21, 10 * StormColumn + 30))));
                    flowStored = true;
                }
            }
            if (flowStored)
                divideByArea(Row, K);
            if (request(Row).T7 > 0)
                Found_ = true;
        }
        report_.NextOutputLine();
        if (report_.atEnd())
            return;
    }
}

void OutputParse::outletStep(int& Row, int K, int StormColumn) {
    if (sameName(request(Row).T[3], "REACH"))
        request(Row).T7 = K;
    if (Row < rows_)
        ++Row;
    if (!sameName(request(Row).T[3], "OUTLET"))
        return;
    request(Row).T7 = 1;
    plot_.PlotX.set(Row, 1, float(valueOf(cols(line(), 11, 20))));
    plot_.PlotY.set(Row, 1, float(valueOf(cols(line(), 10 * StormColumn + 21, 10 * StormColumn + 30))));
    divideByArea(Row, 1);
    Found_ = true;
}

// Flows per unit of area, when the plot asks for them.
void OutputParse::divideByArea(int Row, int K) {
    const std::string unit = trim(plot_.FlowUnitLabel);
    if (unit != "csm" && unit != "m^3/sec/sq km")
        return;
    const float area = plot_.PlotX.get(Row, K);
    plot_.PlotY.set(Row, K, area <= 0.0f ? 0.0f : plot_.PlotY.get(Row, K) / area);
}

void OutputParse::readDurationHeadings(int Start) {
    for (int k = Start; k <= Start + 3; ++k)
        request(1).T[size_t(k - 8)] =
            std::string(trimmed(cols(line(), 10 * (k - Start) + 41, 10 * (k - Start) + 50))) +
            (Start == 16 ? "% of Peak" : " Stage");
    report_.SkipOutputLines(3);
}

void OutputParse::storeDurations(int Start) {
    for (int i = 1; i <= 5; ++i)
        if (Start + i - 1 <= 23)
            request(1).T[size_t(Start + i - 1)] =
                std::string(trimmed(cols(line(), 10 * i + 31, 10 * i + 40)));
}

void OutputParse::durationPass() {
    if (rows_ < 1)
        return;
    while (!isDurationHeading(line())) {
        report_.NextOutputLine();
        if (isPageHeader(line()))
            report_.SkipOutputLines(4);
        if (report_.atEnd())
            return;
    }
    int Start = cols(line(), 33, 36) == "Base" ? 20 : 16;
    report_.NextOutputLine();
    readDurationHeadings(Start);
    PlotRequestRow& row = request(1);
    auto next = [this] {
        report_.NextOutputLine();
        return !report_.atEnd();
    };
    for (;;) {
        if (isStageDurationHeading(line())) {
            Start = 20;
            report_.NextOutputLine();
            readDurationHeadings(Start);
        }
        if (!(sameName(row.T[1], cols(line(), 11, 20)) && sameName(row.T[2], cols(line(), 21, 30)) &&
              sameName(row.T[3], cols(line(), 1, 10)))) {
            if (!next())
                return;
            continue;
        }
        if (isBlank(row.T[4]) || sameName(row.T[4], "UPSTREAM"))
            storeDurations(Start);
        // The durations of the DOWNSTREAM row that follows overwrite those of the location's row.
        do {
            if (!next())
                return;
        } while (!sameName(cols(line(), 1, 10), "DOWNSTREAM"));
        while (!(sameName(row.T[1], cols(line(), 11, 20)) && sameName(row.T[2], cols(line(), 21, 30))))
            if (!next())
                return;
        storeDurations(Start);
    }
}

} // namespace

std::string OutputFilePath(const std::string& CurrentFile) {
    return BaseName(CurrentFile) + "out";
}

void OutputReport::readLine() {
    if (!reader_.atEnd())
        OutputLine = reader_.nextLine();
}

void OutputReport::NextOutputLine() {
    for (;;) {
        readLine();
        if (isPageHeader(OutputLine)) {
            SkipOutputLines(3);
            if (!isBlank(OutputLine))
                readLine();
        }
        if (atEnd() || !isBlank(OutputLine))
            return;
    }
}

void OutputReport::SkipOutputLines(int Count) {
    for (int i = 0; i < Count; ++i)
        readLine();
}

namespace {

void readReport(LineReader reader, PlotData& plot, bool& Found) {
    if (reader.atEnd())
        return;
    OutputReport report(std::move(reader));
    OutputParse(report, plot, Found).run();
}

} // namespace

void ReadOutputText(std::string bytes, PlotData& plot, bool& Found) {
    readReport(LineReader(std::move(bytes)), plot, Found);
}

void ReadOutputFile(const std::string& CurrentFile, PlotData& plot, bool& Found) {
    // The report is read a block at a time: it runs to hundreds of megabytes.
    if (auto reader = LineReader::fromFile(OutputFilePath(CurrentFile)))
        readReport(std::move(*reader), plot, Found);
}

} // namespace brooklet
