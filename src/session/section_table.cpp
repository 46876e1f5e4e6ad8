#include "session/section_table.h"

#include "base/text.h"
#include "session/text_file.h"

#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace brooklet {
namespace {

const std::array<std::string, SectionCount + 1> Headers = {
    "",
    "Alternate Analysis:",
    "Dimensionless Unit Hydrograph:",
    "Duration Increment:",
    "Global Output:",
    "Input Hydrograph:",
    "Rainfall Distribution:",
    "Stream Cross Section:",
    "Stream Reach:",
    "Storm Analysis:",
    "Structure Rating:",
    "Sub-Area:",
    "Time Analysis:",
    "Brooklet: Version 1.0",
    "Verification:",
    "Local Land Use:",
};

const std::array<std::string, WorkFileCount + 1> WorkFileNames = {
    "",
    "~Alter.tmp",
    "~Unit_Hyd.tmp",
    "~DurInc.tmp",
    "~Global.tmp",
    "~InpHyd.tmp",
    "~RainDist.tmp",
    "~Xsect.tmp",
    "~Reach.tmp",
    "~Storm.tmp",
    "~Struct.tmp",
    "~SubArea.tmp",
    "~TimeA.tmp",
    "~Flumeid.tmp",
    "~Verif.tmp",
    "~CurveNum.tmp",
    "~filename.tmp",
};

const std::array<std::string, ResultExtensionCount + 1> Extensions = {"",    "inp", "",    "",   "out",
                                                                      "err", "dbg", "hyd", "ecn"};

// Makes a folder that is missing; why it could not be made, if so.
std::optional<std::string> makeFolder(const std::string& path) {
    if (folderExists(path))
        return std::nullopt;
    const fs::path folder = fs::path(path).parent_path(); // the path ends in a separator
    std::error_code ec;
    if (fs::exists(folder, ec))
        return std::string("a file of that name stands in its place");
    fs::create_directories(folder, ec);
    if (ec)
        return ec.message();
    return std::nullopt;
}

} // namespace

const std::string& sectionHeader(int section) {
    return Headers.at(static_cast<size_t>(section));
}
const std::string& workFileName(int number) {
    return WorkFileNames.at(static_cast<size_t>(number));
}

const std::string& sectionEditor(int section) {
    static const std::array<std::string, 16> editors = {
        "",           "frmAlternate", "frmDimHyd",       "frmDurInc",
        "frmGlobal",  "frmInpHyd",    "frmRainDist",     "frmXsect",
        "frmReaches", "frmStorm",     "frmStruct",       "frmSubArea",
        "frmTimeA",   "frmFlume",     "frmVerification", ""};
    return editors.at(section >= 0 && section <= 15 ? static_cast<size_t>(section) : 15);
}

std::optional<BoxRequest> StartSession(Session& session, const std::string& startFolder) {
    session.EditorTitle = "Brooklet Editor 2001";
    session.ToolName.clear();
    session.CurrentFile = UntitledFile;
    session.DataChanged = false;

    const std::string& sep = folderSeparator();
    session.WorkFolder = startFolder + sep + "temp" + sep;
    session.ProgramFolder = startFolder + sep;
    session.LastFolder = session.ProgramFolder;

    session.LocalLandUseFile = session.ProgramFolder + "Local_Land_Use_Data.txt";
    session.LocalSoilFile = session.ProgramFolder + "Local_Soil_HSG.txt";
    session.HelpListFile = session.ProgramFolder + "BrookletHelp.lst";

    // A work folder that cannot be made or written is told at once: no file could be opened.
    std::optional<BoxRequest> box;
    if (const auto problem = makeFolder(session.WorkFolder)) {
        box = BoxRequest{"The work folder " + session.WorkFolder + " could not be made (" + *problem +
                             "). No input file can be opened until it can be.",
                         DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    } else if (const WriteResult writable = checkFolderWritable(session.WorkFolder); !writable.ok) {
        box = BoxRequest{"The work folder " + session.WorkFolder + " cannot be written (" + writable.error +
                             "). No input file can be opened until it can be.",
                         DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    }

    for (int i = 1; i <= WorkFileCount; ++i)
        session.WorkFilePath[i] = session.WorkFolder + WorkFileNames[i];
    for (int i = 1; i <= SectionCount; ++i)
        session.SectionTable[i] = Headers[i];
    for (int i = 1; i <= ResultExtensionCount; ++i)
        session.ResultExtension[i] = Extensions[i];
    return box;
}

void ClearWorkFiles(const Session& session) {
    deleteFilesWithExtension(session.WorkFolder, ".tmp");
}

std::string BaseName(const std::string& Path) {
    // Only the file's own name counts: a point in a folder name is no extension.
    const auto point = Path.rfind('.');
    const auto separator = Path.find_last_of("/" + folderSeparator());
    if (point == std::string::npos || (separator != std::string::npos && point < separator))
        return Path + ".";
    return Path.substr(0, point + 1);
}

std::string WithDefaultExtension(const std::string& Path, const std::string& extension) {
    if (extension.empty() || BaseName(Path) != Path + ".")
        return Path;
    return Path + "." + extension;
}

std::string FilterPatternExtension(const std::string& Filter, int Index) {
    std::vector<std::string> parts;
    size_t from = 0;
    for (size_t bar = Filter.find('|'); bar != std::string::npos; bar = Filter.find('|', from)) {
        parts.push_back(Filter.substr(from, bar - from));
        from = bar + 1;
    }
    parts.push_back(Filter.substr(from));
    const size_t pattern = size_t(Index) * 2 - 1;
    if (Index < 1 || pattern >= parts.size())
        return {};
    const std::string& text = parts[pattern];
    if (text.rfind("*.", 0) != 0 || text.find_first_of("*?;", 2) != std::string::npos)
        return {};
    return text.substr(2);
}

std::optional<std::string> DeleteResultFiles(const std::string& File) {
    const std::string base = BaseName(File);
    std::optional<std::string> left;
    for (const char* extension : {"out", "hyd", "ecn", "err", "dbg"}) {
        const std::string path = base + extension;
        deleteFile(path);
        if (!left && (fileExists(path) || folderExists(path)))
            left = path;
    }
    return left;
}

std::string DirectoryPart(const std::string& Path) {
    const std::string trimmed = trim(Path);
    const auto separator = trimmed.rfind(folderSeparator());
    if (separator == std::string::npos)
        return Path;
    return trimmed.substr(0, separator + 1);
}

WriteResult WriteFileNameWorkFile(const Session& session) {
    return writeLines(session.WorkFilePath[FileNameWorkFile], {session.CurrentFile});
}

} // namespace brooklet
