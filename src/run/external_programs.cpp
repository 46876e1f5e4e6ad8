#include "run/external_programs.h"

#include "editing/numbers.h"
#include "session/text_file.h"

namespace brooklet {

const ExternalProgram ModelProgram = {"Brooklet program file (Flume.exe)", "flume.exe", "flume.fil"};
const ExternalProgram ConverterProgram = {"Flume Input Converter (Flume_Converter.exe)",
                                          "Flume_Converter.exe", "flumeConv.fil"};
const ExternalProgram ReformatterProgram = {"HEC-RAS Reformatter (Flume_HECRAS_Rating.exe)",
                                            "Flume_HECRAS_Rating.exe", "flume_HECRAS.fil"};

bool WriteControlFile(const Session& session, const std::string& ControlFile) {
    return writeLines(session.ProgramFolder + ControlFile, {session.CurrentFile, ""}).ok;
}

std::string ProgramPath(const Session& session, const std::string& Program) {
    const std::string path = session.ProgramFolder + Program;
    const std::string suffix = ".exe";
    if (fileExists(path) || Program.size() <= suffix.size() ||
        toUpper(Program.substr(Program.size() - suffix.size())) != ".EXE")
        return path;
    const std::string bare = path.substr(0, path.size() - suffix.size());
    return fileExists(bare) ? bare : path;
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
