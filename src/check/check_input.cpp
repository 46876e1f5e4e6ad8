#include "check/check_input.h"

#include "base/text.h"
#include "session/input_file.h"
#include "session/text_file.h"

namespace brooklet {
namespace {

bool isBlank(std::string_view line) {
    return line.find_first_not_of(' ') == std::string_view::npos;
}

// The section a header line opens, as a load recognises it: columns 1 to 40, trimmed, in upper
// case, the old spellings of the identification header included; 0 for none.
int sectionOfHeader(const std::string& line) {
    const std::string header =
        toUpper(trim(std::string_view(line).substr(0, std::min<size_t>(line.size(), 40))));
    if (header == "FLUME: BETA TEST" || header == "FLUME: VERSION 2001")
        return IdentificationSection;
    for (int section = 1; section <= SectionCount; ++section)
        if (toUpper(sectionHeader(section)) == header)
            return section;
    return 0;
}

} // namespace

const char* severityWord(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

int errorCount(const Findings& findings) {
    int count = 0;
    for (const Finding& finding : findings)
        count += finding.severity == Severity::Error ? 1 : 0;
    return count;
}

CheckInput ReadWorkFilesForCheck(const Session& session) {
    // Each record is numbered by the line it takes in the file a save writes now: the sections
    // in the order of the input file, blank lines left out, one blank line behind each section.
    CheckInput input;
    int lineNumber = 0;
    for (int section : SaveOrder) {
        auto bytes = readFileBytes(session.WorkFilePath[section]);
        if (!bytes)
            continue;
        SectionText& text = input.sections[section];
        text.lines = splitLines(std::move(*bytes));
        text.lineNumbers.resize(text.lines.size());
        for (size_t i = 0; i < text.lines.size(); ++i) {
            if (!isBlank(text.lines[i]))
                ++lineNumber;
            text.lineNumbers[i] = lineNumber;
        }
        ++lineNumber;
    }
    return input;
}

CheckInput CutInputFileForCheck(const std::string& bytes) {
    CheckInput input;
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        std::string line(reader.nextLine());
        if (isBlank(line))
            continue;
        const int section = sectionOfHeader(line);
        if (section == 0) {
            Finding finding;
            finding.message = "The line \"" + trim(line.substr(0, std::min<size_t>(line.size(), 40))) +
                              "\" is no section header, so nothing from here on is read. Make it a "
                              "section header, or end the section above it without a blank line.";
            finding.line = reader.lineNumber();
            finding.field = "Section Header";
            input.readingFindings.push_back(std::move(finding));
            break;
        }
        // A second section with one header replaces the first, as on a load.
        SectionText& text = input.sections[section];
        text.lines.clear();
        text.lineNumbers.clear();
        text.lines.push_back(std::move(line));
        text.lineNumbers.push_back(reader.lineNumber());
        while (!reader.atEnd()) {
            std::string_view record = reader.nextLine();
            if (isBlank(record))
                break;
            text.lines.emplace_back(record);
            text.lineNumbers.push_back(reader.lineNumber());
        }
    }
    return input;
}

void addKnownLandUse(CheckInput& input, const KnownLandUse& landUse) {
    const std::string key = toUpper(trim(landUse.name));
    if (!key.empty())
        input.landUses.emplace(key, landUse);
}

} // namespace brooklet
