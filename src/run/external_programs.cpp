#include "run/external_programs.h"

#include "editing/numbers.h"
#include "session/text_file.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

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

std::optional<std::string> WindowsCodePageName(const std::string& name) {
    // The letters of code page 1252 between 0x80 and 0x9F; 0 where the code page has none. From
    // 0xA0 on, the code page holds the same letters as the first 256 of Unicode.
    static const char32_t High[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    std::string text;
    for (size_t i = 0; i < name.size();) {
        const auto lead = static_cast<unsigned char>(name[i]);
        const int length = lead < 0x80           ? 1
                           : (lead >> 5) == 0x6  ? 2
                           : (lead >> 4) == 0xE  ? 3
                           : (lead >> 3) == 0x1E ? 4
                                                 : 0;
        if (length == 0 || i + length > name.size())
            return std::nullopt;
        char32_t letter = length == 1 ? lead : lead & (0x7F >> length);
        for (int k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(name[i + k]);
            if ((next & 0xC0) != 0x80)
                return std::nullopt;
            letter = (letter << 6) | (next & 0x3F);
        }
        i += size_t(length);
        if (letter < 0x80 || (letter >= 0xA0 && letter <= 0xFF)) {
            text += static_cast<char>(letter);
            continue;
        }
        const char32_t* found = std::find(std::begin(High), std::end(High), letter);
        if (letter == 0 || found == std::end(High))
            return std::nullopt;
        text += static_cast<char>(0x80 + (found - std::begin(High)));
    }
    return text;
}

WriteResult WriteControlFile(const Session& session, const std::string& ControlFile, bool forWindowsProgram) {
    std::string file = session.CurrentFile;
    if (forWindowsProgram) {
        const auto converted = WindowsCodePageName(file);
        if (!converted)
            return {false, "the name " + file +
                               " holds letters that a Windows program started through Wine "
                               "cannot be given; save the file under a name of Western European letters"};
        file = *converted;
    }
    return writeLines(session.ProgramFolder + ControlFile, {file, ""});
}

std::optional<BoxRequest> PrepareProgramStart(const Session& session, const std::string& ControlFile,
                                              bool forWindowsProgram) {
    const std::string notStarted = " " + session.ToolName + " was not started.";
    const WriteResult written = WriteControlFile(session, ControlFile, forWindowsProgram);
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
        // Wine reads names in the Windows code page of its locale: under the neutral locale that
        // is the Western European one, in which the control file names the data file.
        start.environment = {"LC_ALL=C.UTF-8"};
        // Wine tells an unhandled exception on its error output, kept for the judgement.
        start.errorFile = session.WorkFolder + "~WineMessages.tmp";
        start.throughWine = true;
        start.wineMissing = start.program.empty();
    }
    return start;
}

namespace {

// The exception of Wine's report of an unhandled one: "wine: Unhandled page fault on ...",
// "wine: Unhandled stack overflow ...", "wine: Unhandled exception 0xc0000094 in thread ...".
std::optional<std::uint32_t> unhandledExceptionOf(const std::string& messages) {
    const std::string report = "wine: Unhandled ";
    const size_t at = messages.find(report);
    if (at == std::string::npos)
        return std::nullopt;
    const std::string what = messages.substr(at + report.size(), 40);
    const std::pair<const char*, std::uint32_t> kinds[] = {{"page fault", 0xC0000005},
                                                           {"stack overflow", 0xC00000FD},
                                                           {"illegal instruction", 0xC000001D},
                                                           {"privileged instruction", 0xC0000096},
                                                           {"division by zero", 0xC0000094}};
    for (const auto& [words, code] : kinds)
        if (what.rfind(words, 0) == 0)
            return code;
    if (what.rfind("exception 0x", 0) == 0)
        return static_cast<std::uint32_t>(std::strtoul(what.c_str() + 10, nullptr, 16));
    return 0;
}

} // namespace

JudgedEnd JudgeProgramEnd(const ProgramExit& exit, bool throughWine, const std::string& WineMessages) {
    if (throughWine && exit.end == ProgramEnd::Finished)
        if (const auto code = unhandledExceptionOf(WineMessages)) {
            const WindowsException* exception = exceptionOfCode(*code);
            return {ProgramEnd::Crashed,
                    "Windows exception " + hexCode(*code) +
                        (exception ? std::string(", ") + exception->name : std::string()) + ", told by Wine"};
        }
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
