#pragma once
// Large watersheds made up for measuring: thousands of sub-areas and reaches with structures,
// cross sections, storms, rain tables, input hydrographs and alternates, as an input file in
// the program's own record layout, so that every reader and list finds what it looks for.
#include <initializer_list>
#include <string>

#include "session/section_table.h"

namespace brooklet::bench {

struct WatershedSize {
    int subAreas = 5000;
    int reaches = 5000;
    int structures = 500;
    int crossSections = 500;
    int storms = 50;
    int rainGages = 20;
    int rainTables = 50;
    int inputHydrographs = 50;
    int alternates = 100;
    // Sub-area and reach entries of each alternate.
    int alternateEntries = 5;
};

// A record of ten-column fields from column 1.
std::string tens(std::initializer_list<std::string> fields);

// A watershed of n sub-areas and n reaches, the other parts in proportion.
WatershedSize scaledWatershed(int n);

// The input file's bytes, with CR LF line ends.
std::string generatedInputFile(const WatershedSize& size = WatershedSize());

// A fresh program folder under the system's temporary folder; made the current folder.
std::string makeProgramFolder(const std::string& name);

// A session whose work files hold a generated watershed of n sub-areas and n reaches, loaded once
// a size into a program folder of its own named after Purpose.
const Session& loadedWatershed(const std::string& Purpose, int n);

} // namespace brooklet::bench
