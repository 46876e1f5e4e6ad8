#include "run/external_programs.h"

#include "editing/numbers.h"
#include "session/text_file.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace brooklet {
namespace {

// The exceptions that end a Windows program when nothing handles them, by their status codes.
struct WindowsException {
    std::uint32_t code;
    const char* name;
};
constexpr WindowsException FatalWindowsExceptions[] = {
    {0xC0000005, "access violation"},
    {0xC0000006, "in-page error"},
    {0xC000001D, "illegal instruction"},
    {0xC0000025, "noncontinuable exception"},
    {0xC000008C, "array bounds exceeded"},
    {0xC000008D, "floating-point denormal operand"},
    {0xC000008E, "floating-point division by zero"},
    {0xC000008F, "floating-point inexact result"},
    {0xC0000090, "floating-point invalid operation"},
    {0xC0000091, "floating-point overflow"},
    {0xC0000092, "floating-point stack check"},
    {0xC0000093, "floating-point underflow"},
    {0xC0000094, "integer division by zero"},
    {0xC0000095, "integer overflow"},
    {0xC0000096, "privileged instruction"},
    {0xC00000FD, "stack overflow"},
    {0xC0000374, "heap corruption"},
    {0xC0000409, "stack buffer overrun"},
};

const WindowsException* exceptionOfCode(std::uint32_t code) {
    for (const WindowsException& exception : FatalWindowsExceptions)
        if (exception.code == code)
            return &exception;
    return nullptr;
}

// The exception whose code ends in the byte that Wine leaves of it as a Unix exit status.
const WindowsException* exceptionOfLowByte(int status) {
    for (const WindowsException& exception : FatalWindowsExceptions)
        if (static_cast<int>(exception.code & 0xFF) == status)
            return &exception;
    return nullptr;
}

std::string hexCode(std::uint32_t code) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(code));
    return text;
}

} // namespace

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
        start.throughWine = true;
        start.wineMissing = start.program.empty();
    }
    return start;
}

JudgedEnd JudgeProgramEnd(const ProgramExit& exit, bool throughWine) {
    const auto code = static_cast<std::uint32_t>(exit.code);
    switch (exit.end) {
    case ProgramEnd::NotStarted:
    case ProgramEnd::Stopped:
        return {exit.end, std::string()};
    case ProgramEnd::Crashed:
        if (const WindowsException* exception = exceptionOfCode(code))
            return {ProgramEnd::Crashed, "exit code " + hexCode(code) + ", " + exception->name};
        return {ProgramEnd::Crashed, "signal " + std::to_string(exit.code)};
    case ProgramEnd::Finished:
        break;
    }
    if (const WindowsException* exception = exceptionOfCode(code))
        return {ProgramEnd::Crashed, "exit code " + hexCode(code) + ", " + exception->name};
    if (throughWine)
        if (const WindowsException* exception = exceptionOfLowByte(exit.code))
            return {ProgramEnd::Crashed, "exit code " + std::to_string(exit.code) +
                                             " from Wine: Windows exception " + hexCode(exception->code) +
                                             ", " + exception->name};
    return {ProgramEnd::Finished, std::string()};
}

std::optional<BoxRequest> ReplaceResultFileQuestion(const std::string& ToolName,
                                                    const std::string& ResultFile) {
    if (!fileExists(ResultFile))
        return std::nullopt;
    return BoxRequest{
        "The file " + ResultFile + " already exists. " + ToolName +
            " writes its result into that file, and what the file holds now is lost.\r\rReplace it?",
        DefaultBoxTitle, BoxButtons::YesNo, BoxIcon::Exclamation};
}

BoxRequest ResultFileNotFoundBox(const std::string& ResultFile) {
    return {"Error --- File " + ResultFile + " Not Found", DefaultBoxTitle, BoxButtons::Ok,
            BoxIcon::Exclamation};
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
