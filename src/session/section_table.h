#pragma once
// The numbered sections of the input file, the work files that hold them while a file is
// edited, the result-file extensions, and the session variables all windows share.
#include <array>
#include <optional>
#include <string>

#include "session/messages.h"
#include "session/text_file.h"

namespace brooklet {

constexpr int SectionCount = 15;
constexpr int WorkFileCount = 16;
constexpr int ResultExtensionCount = 8;

// Section numbers, the program's own vocabulary for the sections.
enum SectionNumber {
    AlternateSection = 1,
    UnitHydrographSection = 2,
    DurationIncrementSection = 3,
    GlobalOutputSection = 4,
    InputHydrographSection = 5,
    RainfallDistributionSection = 6,
    CrossSectionSection = 7,
    ReachSection = 8,
    StormSection = 9,
    StructureSection = 10,
    SubAreaSection = 11,
    TimeAnalysisSection = 12,
    IdentificationSection = 13,
    VerificationSection = 14,
    LocalLandUseSection = 15,
    FileNameWorkFile = 16,
};

// Text of a file with no name.
inline const std::string UntitledFile = "> Untitled <";
// Title of a box that has none of its own.
inline const std::string DefaultBoxTitle = "BrookletSystem";
// Title the file commands give their boxes.
inline const std::string SystemBoxTitle = "Brooklet System";

// The section headers, index 1 to 15, as written in an input file.
const std::string& sectionHeader(int section);
// The work file names, index 1 to 16, without folder.
const std::string& workFileName(int number);
// The editor window of each listed section, by section number 1 to 14; empty for others.
const std::string& sectionEditor(int section);

// The unit words, set by the identifier editor from its input and output unit choices and read
// by every window and plot. English and metric differ in words only: what the user typed is
// stored as typed and never converted.
struct UnitWords {
    // Chosen by the input units.
    std::string AreaUnit;
    std::string UnitFlowUnit;
    std::string SmallAreaUnit;
    std::string FlowUnit;
    std::string LengthUnit;
    std::string DepthUnit;
    std::string DepthRateUnit;
    std::string VolumeUnit;
    std::string VelocityUnit;
    std::string SectionAreaUnit;
    // Chosen by the output units.
    std::string OutputFlowUnit;
    std::string OutputUnitFlowUnit;
    std::string OutputAreaUnit;
};

// The session variables and the tables filled once at start-up.
struct Session {
    std::string CurrentFile = UntitledFile;
    bool DataChanged = false;
    std::string WorkFolder;
    std::string ProgramFolder;
    std::string LastFolder;
    std::string OutputPath;
    std::string ToolName;
    std::string RunResultLabel;
    short ViewIndex = 0;
    std::string HelpCode;
    bool EnglishUnits = true;
    std::string EditorTitle = "Brooklet Editor 2001";
    // Empty until the identifier editor first loads.
    UnitWords Units;
    // Index of the item now in a help box, -999 when none; 0 is a window's own entry.
    short HelpShown = -999;

    std::array<std::string, SectionCount + 1> SectionTable;            // 1..15
    std::array<std::string, WorkFileCount + 1> WorkFilePath;           // 1..16
    std::array<std::string, ResultExtensionCount + 1> ResultExtension; // 1..8

    // True once Check Watershed has run in this session; a new session (New, Open, ReOpen,
    // Convert, Import) begins unchecked.
    bool WatershedChecked = false;
    std::string LocalLandUseFile;
    std::string LocalSoilFile;
    std::string HelpListFile;

    bool isUntitled() const { return CurrentFile == UntitledFile; }
};

// Sets the tables and paths from the start folder (the current folder when the main window
// loads) and creates the work folder if it is missing, silently. A work folder that cannot be
// made or written gives the box that says so.
std::optional<BoxRequest> StartSession(Session& session, const std::string& startFolder);

// Deletes every work file, "~filename.tmp" included, silently.
void ClearWorkFiles(const Session& session);

// The path cut behind the last point of its file name, the point kept; a file name with no
// point gets one. Points in folder names do not count.
std::string BaseName(const std::string& Path);
// The path with "." and the extension added when its file name has no extension, as a file
// dialog does when the user types a bare name.
std::string WithDefaultExtension(const std::string& Path, const std::string& extension);
// The extension that filter number Index (from 1) of a dialog's filter names: "bmp" for
// "Bitmap Files (*.bmp)|*.bmp"; empty for "*.*", a pattern of several or no such filter.
std::string FilterPatternExtension(const std::string& Filter, int Index);
// Deletes what a run of the model on File left beside it: the printed page, hydrograph, Tally,
// error and debug files. The first of them that is still there afterwards, if any.
std::optional<std::string> DeleteResultFiles(const std::string& File);
// The trimmed path up to and including its last folder separator; unchanged when it has none.
std::string DirectoryPart(const std::string& Path);

// Writes the input file's path as the only line of work file 16.
WriteResult WriteFileNameWorkFile(const Session& session);

} // namespace brooklet
