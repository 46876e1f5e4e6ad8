#include "run/external_programs.h"

#include "editing/numbers.h"
#include "session/text_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace brooklet {

const ExternalProgram ModelProgram = {"Brooklet program file (Flume.exe)", "flume.exe", "flume.fil"};
const ExternalProgram ConverterProgram = {"Flume Input Converter (Flume_Converter.exe)",
                                          "Flume_Converter.exe", "flumeConv.fil"};
const ExternalProgram ReformatterProgram = {"HEC-RAS Reformatter (Flume_HECRAS_Rating.exe)",
                                            "Flume_HECRAS_Rating.exe", "flume_HECRAS.fil"};

WriteResult WriteControlFile(const Session& session, const std::string& ControlFile) {
    return writeLines(session.ProgramFolder + ControlFile, {session.CurrentFile, ""});
}

std::optional<BoxRequest> PrepareProgramStart(const Session& session, const std::string& ControlFile) {
    const std::string notStarted = " " + session.ToolName + " was not started.";
    const WriteResult written = WriteControlFile(session, ControlFile);
    if (!written.ok)
        return BoxRequest{"The control file " + session.ProgramFolder + ControlFile +
                              " could not be written (" + written.error + ")." + notStarted,
                          DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    if (const auto left = DeleteResultFiles(session.CurrentFile))
        return BoxRequest{"The file " + *left + " of an earlier run could not be deleted." + notStarted,
                          DefaultBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation};
    return std::nullopt;
}

std::string ProgramFileName(const Session& session, const std::string& Program) {
    const std::string suffix = ".exe";
    if (fileExists(session.ProgramFolder + Program) || Program.size() <= suffix.size() ||
        toUpper(Program.substr(Program.size() - suffix.size())) != ".EXE")
        return Program;
    const std::string bare = Program.substr(0, Program.size() - suffix.size());
    return fileExists(session.ProgramFolder + bare) ? bare : Program;
}

bool NeedsWine(const std::string& path) {
#ifdef _WIN32
    (void)path;
    return false;
#else
    std::ifstream in(path, std::ios::binary);
    char magic[2] = {};
    return in.read(magic, 2) && magic[0] == 'M' && magic[1] == 'Z';
#endif
}

std::string FindOnPath(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::string folders = path ? path : "";
    size_t start = 0;
    while (start <= folders.size()) {
        size_t end = folders.find(':', start);
        if (end == std::string::npos)
            end = folders.size();
        const std::string folder = folders.substr(start, end - start);
        const std::string candidate = (folder.empty() ? std::string(".") : folder) + "/" + name;
        using std::filesystem::perms;
        std::error_code ec;
        const perms mode = std::filesystem::status(candidate, ec).permissions();
        const perms executable = perms::owner_exec | perms::group_exec | perms::others_exec;
        if (fileExists(candidate) && (mode & executable) != perms::none)
            return candidate;
        start = end + 1;
    }
    return std::string();
}

ProgramStart PlanProgramStart(const Session& session, const std::string& Program) {
    ProgramStart start;
    start.folder = session.ProgramFolder;
    // Named relative to the folder it runs in, the program's path never needs the folder's name.
    const std::string relative = "." + folderSeparator() + ProgramFileName(session, Program);
    start.program = relative;
    if (NeedsWine(session.ProgramFolder + ProgramFileName(session, Program))) {
        start.program = FindOnPath("wine");
        start.arguments = {relative};
        start.wineMissing = start.program.empty();
    }
    return start;
}

bool JudgeRunResult(Session& session) {
    const std::string errorFile = BaseName(session.CurrentFile) + "err";
    const bool resultLabelSet = !trim(session.RunResultLabel).empty();
    if (hasLineAfterFirst(errorFile))
        session.ViewIndex = 5;
    else if (resultLabelSet)
        session.ViewIndex = 4;
    return resultLabelSet;
}

} // namespace brooklet
