#pragma once
// The input file as a container of sections: loading cuts it into work files at its section
// headers, saving joins the work files in the input file's own order.
#include <optional>
#include <string>

#include "session/messages.h"
#include "session/section_table.h"
#include "session/text_file.h"

namespace brooklet {

// The order of the sections in a saved input file, as section numbers.
extern const int SaveOrder[SectionCount];

struct LoadResult {
    // The box to show: a missing file or an unknown section header.
    std::optional<BoxRequest> box;
    // The line at which reading stopped before the end of the file; 0 when it was read whole.
    int stoppedAtLine = 0;
    // The work folder did not take the file's sections: nothing of it was loaded, the work files
    // are as they were, and the box says why.
    bool failed = false;
};

// Cuts the file named by CurrentFile into the work files. A missing file makes the session
// untitled; an unknown header stops the load and keeps what was read before it. For a named
// file, work file 16 then holds its path. A load whose work files cannot all be written fails
// whole and changes nothing.
LoadResult LoadInputFile(Session& session);

// The line at which the load of File stopped, when the work files hold only the part of it
// before that line; nothing when they hold all of it. The note lives in the work folder
// beside the work files, so "ReOpen Last Session" finds it too, and every load clears it.
std::optional<int> PartlyReadLine(const Session& session, const std::string& File);
// Forgets the note, once the work files have been written over that file whole.
void ForgetPartlyRead(const Session& session);

// Copies the section whose header line is Line, and the records behind it up to a blank line
// or the end of the input, to the work file at Path among the load's WorkFiles, replacing what
// an earlier section of that header gave it.
WriteResult CopySectionToWorkFile(LineReader& input, std::string Line, const std::string& Path,
                                  bool& Complete, FileSet& WorkFiles);

// Adds the cross sections that the reformatter wrote at CurrentFile to work file 7. When the work
// file cannot be written it is left as it was.
WriteResult AppendReformattedSections(const Session& session);

struct SaveResult {
    bool ok = true;
    // The box to show: saved, or why nothing was saved.
    BoxRequest box;
};

// Joins the work files into CurrentFile, writes work file 16, clears DataChanged and deletes
// the result files of that name. When the file cannot be written, nothing else changes. It
// asks nothing: the question before overwriting a partly read file is the caller's.
SaveResult SaveInputFile(Session& session);

} // namespace brooklet
