#include "session/input_file.h"

#include "base/text.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
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
    // Most records end in a character that is not a blank, which settles it at once.
    if (!line.empty() && line.back() != ' ')
        return false;
    return std::all_of(line.begin(), line.end(), [](char c) { return c == ' '; });
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
        if (line.size() <= current.size()) {
            line = current;
            return true;
        }
        // An old header set in by blanks would leave its last characters behind the new one, and
        // the line saved would no longer read as a header: what is left of it is blanked.
        const size_t oldEnd = line.find_first_not_of(' ') + std::strlen(old);
        line.replace(0, current.size(), current);
        if (oldEnd > current.size())
            line.replace(current.size(), oldEnd - current.size(), oldEnd - current.size(), ' ');
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

    auto bytes = readFileBytes(session.CurrentFile);
    if (!bytes) {
        ClearWorkFiles(session);
        result.box = BoxRequest{"Error --- File " + session.CurrentFile + " Not Found", DefaultBoxTitle,
                                BoxButtons::Ok, BoxIcon::Exclamation};
        session.CurrentFile = UntitledFile;
        return result;
    }

    // The sections are written beside the work files first and take their places only when every
    // one of them was written: a work folder that takes none or only some of them (no folder, no
    // permission, a full disk) fails the load, and the work files stay as they were.
    FileSet workFiles;
    WriteResult written;
    LineReader input(std::move(*bytes));
    while (written.ok && !input.atEnd()) {
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
        written = CopySectionToWorkFile(input, line, session.WorkFilePath[section], complete, workFiles);
        if (complete)
            break;
    }
    const std::string fileName = session.CurrentFile + "\r\n";
    if (written.ok && !session.isUntitled())
        written = workFiles.add(session.WorkFilePath[FileNameWorkFile], {fileName});
    // Without the note a later save would overwrite the rest of the file without a question.
    const std::string note = fileName + std::to_string(result.stoppedAtLine) + "\r\n";
    if (written.ok && result.stoppedAtLine > 0)
        written = workFiles.add(partlyReadNote(session), {note});
    if (written.ok) {
        ClearWorkFiles(session);
        written = workFiles.place();
    }
    if (!written.ok) {
        result.failed = true;
        result.stoppedAtLine = 0;
        result.box =
            BoxRequest{"The file " + session.CurrentFile +
                           " was not opened: its sections could not be written to the work folder " +
                           session.WorkFolder + " (" + written.error + "). The session is as it was.",
                       DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    }
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

WriteResult CopySectionToWorkFile(LineReader& input, std::string Line, const std::string& Path,
                                  bool& Complete, FileSet& WorkFiles) {
    Complete = false;
    const std::string header = std::move(Line) + "\r\n";
    // Records that end with CR LF, as a saved file's do, are copied as they stand in the input;
    // from the first that does not on, each is taken and ended with CR LF.
    const size_t first = input.offset();
    size_t last = first;
    bool asTheyStand = input.holdsAllBytes();
    std::string records;
    while (true) {
        if (input.atEnd()) {
            Complete = true;
            break;
        }
        const std::string_view line = input.nextLine();
        if (isBlankLine(line))
            break;
        if (asTheyStand && input.lastEndedWithCrLf()) {
            last = input.offset();
            continue;
        }
        if (asTheyStand)
            records = input.heldBytes(first, last);
        asTheyStand = false;
        records.append(line.data(), line.size());
        records += "\r\n";
    }
    // A second section with the same header replaces the first.
    return WorkFiles.add(Path,
                         {header, asTheyStand ? input.heldBytes(first, last) : std::string_view(records)});
}

WriteResult AppendReformattedSections(const Session& session) {
    auto bytes = readFileBytes(session.CurrentFile);
    if (!bytes || bytes->empty())
        return {};
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
    return writeFileAtomically(workFile, before + joinLines(added));
}

SaveResult SaveInputFile(Session& session) {
    // The file as pieces of the work files: runs of lines that end with CR LF as they stand, a
    // line that does not taken on its own and ended with CR LF, and blank lines left out; a blank
    // line after each section.
    static constexpr std::string_view CrLf = "\r\n";
    std::vector<LineReader> workFiles;
    workFiles.reserve(SectionCount); // the pieces point into the readers, which stay in place
    std::vector<std::string_view> pieces;
    for (int section : SaveOrder) {
        auto bytes = readFileBytes(session.WorkFilePath[section]);
        if (!bytes)
            continue; // a missing work file leaves the section out, blank line and all
        LineReader& reader = workFiles.emplace_back(std::move(*bytes));
        size_t runStart = reader.offset();
        while (!reader.atEnd()) {
            const size_t lineStart = reader.offset();
            const std::string_view line = reader.nextLine();
            const bool blank = isBlankLine(line);
            if (!blank && reader.lastEndedWithCrLf())
                continue;
            pieces.push_back(reader.heldBytes(runStart, lineStart));
            if (!blank) {
                pieces.push_back(line);
                pieces.push_back(CrLf);
            }
            runStart = reader.offset();
        }
        pieces.push_back(reader.heldBytes(runStart, reader.offset()));
        pieces.push_back(CrLf);
    }

    // The engineer's file reaches the disk before the save says so; a file of several names is
    // written in place, so every name sees the new data, after a copy of it is kept.
    const WriteResult written =
        writeFileAtomically(session.CurrentFile, pieces, WriteOptions{true, session.WorkFolder});
    if (!written.ok) {
        return {false,
                BoxRequest{"The file " + session.CurrentFile + " could not be saved (" + written.error +
                               "). The file and the data of this session are as they were.",
                           SystemBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation}};
    }

    std::string saved = "Data Saved in file: " + session.CurrentFile;
    const WriteResult named = WriteFileNameWorkFile(session);
    if (!named.ok)
        saved += "\r\rThe work file " + session.WorkFilePath[FileNameWorkFile] + " could not be written (" +
                 named.error + "): ReOpen Last Session will not find this file.";
    session.DataChanged = false;
    // The file now holds the whole session: it is no longer partly read.
    if (PartlyReadLine(session, session.CurrentFile))
        ForgetPartlyRead(session);
    DeleteResultFiles(session.CurrentFile);
    return {true, BoxRequest{saved, SystemBoxTitle, BoxButtons::Ok, BoxIcon::None}};
}

} // namespace brooklet
