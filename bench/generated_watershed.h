#pragma once
// Large watersheds made up for measuring: thousands of sub-areas and reaches with structures,
// cross sections, storms and alternates, as an input file in the program's own layout.
#include <string>

namespace brooklet::bench {

struct WatershedSize {
    int subAreas = 5000;
    int reaches = 5000;
    int structures = 500;
    int crossSections = 500;
    int storms = 50;
    int alternates = 100;
};

// The input file's bytes, with CR LF line ends.
std::string generatedInputFile(const WatershedSize& size = WatershedSize());

// A fresh program folder under the system's temporary folder; made the current folder.
std::string makeProgramFolder(const std::string& name);

} // namespace brooklet::bench
