#include "session/input_file.h"

#include "base/text.h"

#include <cstdlib>
#include <vector>

namespace brooklet {

const int SaveOrder[SectionCount] = {
    IdentificationSection, SubAreaSection,
    ReachSection,          AlternateSection,
    StormSection,          CrossSectionSection,
    StructureSection,      InputHydrographSection,
    UnitHydrographSection, RainfallDistributionSection,
    LocalLandUseSection,   DurationIncrementSection,
    GlobalOutputSection,   TimeAnalysisSection,
    VerificationSection,
};

namespace {

bool isBlankLine(std::string_view line) {
    return line.find_first_not_of(' ') == std::string_view::npos;
}

// Only columns 1 to 40 name a section: the identification line carries run options from 41 on.
std::string headerOf(const std::string& line) {
    return toUpper(trim(line.substr(0, 40)));
}

const char* const OldIdentificationHeaders[] = {"FLUME: BETA TEST", "FLUME: VERSION 2001"};

// Replaces an old identification header by the current one, keeping columns 22 on in place.
bool renewOldHeader(std::string& header, std::string& line) {
    for (const char* old : OldIdentificationHeaders) {
        if (header != old)
            continue;
        const std::string& current = sectionHeader(IdentificationSection);
        header = current;
        if (line.size() > current.size())
            line.replace(0, current.size(), current);
        else
            line = current;
        return true;
    }
    return false;
}

std::string partlyReadNote(const Session& session) {
    return session.WorkFolder + "~PartlyRead.tmp";
}

int findSection(const Session& session, const std::string& header) {
    for (int i = 1; i <= SectionCount; ++i)
        if (toUpper(session.SectionTable[i]) == header)
            return i;
    return 0;
}

} // namespace

LoadResult LoadInputFile(Session& session) {
    LoadResult result;
    if (session.CurrentFile.empty())
        return result;
    ClearWorkFiles(session);

    auto bytes = readFileBytes(session.CurrentFile);
    if (!bytes) {
        result.box = BoxRequest{"Error --- File " + session.CurrentFile + " Not Found", DefaultBoxTitle,
                                BoxButtons::Ok, BoxIcon::Exclamation};
        session.CurrentFile = UntitledFile;
        return result;
    }

    LineReader input(std::move(*bytes));
    while (!input.atEnd()) {
        std::string line = input.readLine();
        if (isBlankLine(line))
            continue;
        std::string header = headerOf(line);
        renewOldHeader(header, line);
        const int section = findSection(session, toUpper(header));
        if (section == 0) {
            result.box = BoxRequest{"Section Header: " + header + " not found! ", DefaultBoxTitle,
                                    BoxButtons::Ok, BoxIcon::Exclamation};
            result.stoppedAtLine = input.lineNumber();
            break;
        }
        bool complete = false;
        CopySectionToWorkFile(input, line, session.WorkFilePath[section], complete);
        if (complete)
            break;
    }

    if (!session.isUntitled())
        WriteFileNameWorkFile(session);
    if (result.stoppedAtLine > 0)
        writeLines(partlyReadNote(session), {session.CurrentFile, std::to_string(result.stoppedAtLine)});
    return result;
}

std::optional<int> PartlyReadLine(const Session& session, const std::string& File) {
    const std::vector<std::string> note = readLines(partlyReadNote(session));
    if (note.size() < 2 || note[0] != File)
        return std::nullopt;
    const int line = std::atoi(note[1].c_str());
    return line > 0 ? std::optional<int>(line) : std::nullopt;
}

void ForgetPartlyRead(const Session& session) {
    deleteFile(partlyReadNote(session));
}

void CopySectionToWorkFile(LineReader& input, std::string Line, const std::string& Path, bool& Complete) {
    Complete = false;
    std::string section = std::move(Line);
    section += "\r\n";
    while (true) {
        if (input.atEnd()) {
            Complete = true;
            break;
        }
        const std::string_view line = input.nextLine();
        if (isBlankLine(line))
            break;
        section.append(line.data(), line.size());
        section += "\r\n";
    }
    // A second section with the same header replaces the first.
    writeFileAtomically(Path, section);
}

void AppendReformattedSections(const Session& session) {
    auto bytes = readFileBytes(session.CurrentFile);
    if (!bytes || bytes->empty())
        return;
    LineReader input(std::move(*bytes));
    // The reformatter's first four lines are its own; the fifth is the section header line.
    std::string header;
    for (int i = 0; i < 5 && !input.atEnd(); ++i)
        header = input.readLine();

    const std::string& workFile = session.WorkFilePath[CrossSectionSection];
    const bool hasRecords = hasLineAfterFirst(workFile);
    std::vector<std::string> added;
    if (!hasRecords)
        added.push_back(header);
    while (!input.atEnd())
        added.push_back(input.readLine());
    const std::string before = readFileBytes(workFile).value_or(std::string());
    writeFileAtomically(workFile, before + joinLines(added));
}

SaveResult SaveInputFile(Session& session) {
    std::string joined;
    for (int section : SaveOrder) {
        auto bytes = readFileBytes(session.WorkFilePath[section]);
        if (!bytes)
            continue; // a missing work file leaves the section out, blank line and all
        LineReader reader(std::move(*bytes));
        while (!reader.atEnd()) {
            const std::string_view line = reader.nextLine();
            if (isBlankLine(line))
                continue;
            joined.append(line.data(), line.size());
            joined += "\r\n";
        }
        joined += "\r\n";
    }

    const WriteResult written = writeFileAtomically(session.CurrentFile, joined);
    if (!written.ok) {
        return {false,
                BoxRequest{"The file " + session.CurrentFile + " could not be saved (" + written.error +
                               "). The file and the data of this session are as they were.",
                           SystemBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation}};
    }

    WriteFileNameWorkFile(session);
    session.DataChanged = false;
    // The file now holds the whole session: it is no longer partly read.
    if (PartlyReadLine(session, session.CurrentFile))
        ForgetPartlyRead(session);
    DeleteResultFiles(session.CurrentFile);
    return {true, BoxRequest{"Data Saved in file: " + session.CurrentFile, SystemBoxTitle, BoxButtons::Ok,
                             BoxIcon::None}};
}

} // namespace brooklet
