#pragma once
// The three external programs: the model, the converter of old input files and the HEC-RAS
// reformatter. Each is told its data file through a two-line control file in the program
// folder and judged afterwards by the files it leaves beside that data file.
#include <string>

#include "session/section_table.h"

namespace brooklet {

struct ExternalProgram {
    const char* ToolName;
    const char* Program;     // in the program folder
    const char* ControlFile; // in the program folder
};

extern const ExternalProgram ModelProgram;
extern const ExternalProgram ConverterProgram;
extern const ExternalProgram ReformatterProgram;

// Writes the control file: CurrentFile, then an empty line. False when it cannot be written.
bool WriteControlFile(const Session& session, const std::string& ControlFile);

// The program's path in the program folder. Where programs carry no ".exe", the same name
// without it is taken when only that one is there.
std::string ProgramPath(const Session& session, const std::string& Program);

// After a program has ended: chooses the file the viewer shows by the error file's length (one
// line or none counts as no errors) and tells whether the viewer is to open.
bool JudgeRunResult(Session& session);

} // namespace brooklet
