// The scans that gather the identifier lists from the work files, on any bytes: first with the
// same bytes in every work file they scan, then with the bytes loaded as an input file and cut
// into its sections. No scan may crash or hang; a list never holds two items that are equal
// trimmed and in upper case, nor more items than the scanned lines can name; the rain gage table
// has at most a row for each storm line.
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

#include "base/text.h"
#include "editing/identifier_lists.h"
#include "fuzz_session.h"
#include "session/input_file.h"
#include "session/text_file.h"

namespace {

using namespace brooklet;

constexpr int ScannedWorkFiles[] = {AlternateSection,    InputHydrographSection, RainfallDistributionSection,
                                    CrossSectionSection, ReachSection,           StormSection,
                                    StructureSection,    SubAreaSection};

void checkList(const StringList& list, size_t scannedLines) {
    // Two names a line at most, and the ten standard rain tables or the blank alternate.
    if (list.items.size() > 2 * scannedLines + StandardRainTables.size())
        __builtin_trap();
    std::unordered_set<std::string> keys;
    for (const std::string& item : list.items)
        if (!keys.insert(toUpper(trim(item))).second)
            __builtin_trap();
}

void scanAll(const Session& session) {
    size_t scannedLines = 0;
    for (int workFile : ScannedWorkFiles)
        scannedLines += readLines(session.WorkFilePath[size_t(workFile)]).size();

    StringList alternates, hydrographs, reaches, outletless, names, gages, rainTables, allRainTables,
        structures, areas, crossSections;
    FillAlternateList(session, alternates, true);
    FillInputHydrographList(session, hydrographs);
    FillReachList(session, reaches, false);
    FillReachList(session, outletless, true);
    FillHydrographNameList(session, names);
    RainfallTable rainfall;
    FillStormRainList(session, rainfall, gages);
    FillRainTableList(session, false, rainTables);
    FillRainTableList(session, true, allRainTables);
    FillStructureList(session, structures);
    FillAreaReachList(session, areas);
    FillCrossSectionList(session, crossSections);

    for (const StringList* list : {&alternates, &hydrographs, &reaches, &outletless, &names, &gages,
                                   &rainTables, &allRainTables, &structures, &areas, &crossSections})
        checkList(*list, scannedLines);
    for (const std::string& item : outletless.items)
        if (toUpper(item) == "OUTLET")
            __builtin_trap();
    const size_t stormLines = readLines(session.WorkFilePath[StormSection]).size();
    if (rainfall.RainfallCount < 0 || size_t(rainfall.RainfallCount) > stormLines ||
        rainfall.RainfallIds.size() != rainfall.Rainfall2Yr.size() ||
        rainfall.RainfallIds.size() < size_t(rainfall.RainfallCount) + 1)
        __builtin_trap();

    // The sub-area field of every area named, and the removal of a combo's current item.
    for (const std::string& name : areas.items) {
        std::string Result;
        FindSubAreaField(session, name, Result);
    }
    if (!reaches.items.empty()) {
        reaches.text = reaches.items.back();
        const size_t before = reaches.items.size();
        RemoveCurrentFromList(reaches);
        if (reaches.items.size() + 1 != before)
            __builtin_trap();
    }
    // A list filled a second time gains nothing.
    const size_t before = structures.items.size();
    FillStructureList(session, structures);
    if (structures.items.size() != before)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Session session = brooklet::fuzz::fuzzSession();
    const std::string bytes(reinterpret_cast<const char*>(data), size);

    ClearWorkFiles(session);
    for (int workFile : ScannedWorkFiles)
        writeFileAtomically(session.WorkFilePath[size_t(workFile)], bytes);
    scanAll(session);

    session.CurrentFile = session.ProgramFolder + "lists.inp";
    writeFileAtomically(session.CurrentFile, bytes);
    LoadInputFile(session);
    scanAll(session);
    return 0;
}
