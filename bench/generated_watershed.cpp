#include "generated_watershed.h"

#include "session/input_file.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace brooklet::bench {
namespace {

std::string field(const std::string& text, size_t width) {
    std::string padded = text;
    if (padded.size() < width)
        padded.append(width - padded.size(), ' ');
    return padded;
}

} // namespace

std::string tens(std::initializer_list<std::string> fields) {
    std::string record;
    for (const auto& text : fields)
        record += field(text, 10);
    return record;
}

namespace {

std::string id(const char* prefix, int number) {
    return prefix + std::to_string(number);
}

std::string number(int value) {
    return std::to_string(value) + ".";
}

} // namespace

WatershedSize scaledWatershed(int n) {
    WatershedSize size;
    size.subAreas = size.reaches = n;
    size.structures = size.crossSections = std::max(n / 10, 1);
    size.storms = std::max(n / 20, 1);
    size.rainGages = std::max(n / 100, 1);
    size.rainTables = size.inputHydrographs = std::max(n / 50, 1);
    size.alternates = std::max(n / 50, 1);
    return size;
}

std::string generatedInputFile(const WatershedSize& size) {
    std::string file;
    auto line = [&file](const std::string& text) { file += text + "\r\n"; };
    auto reach = [&size](int i) { return id("R", (i - 1) % size.reaches + 1); };
    auto gage = [&size](int i) { return id("G", (i - 1) % size.rainGages + 1); };
    line("Brooklet: Version 1.0                   ENGLISH");
    line("GENERATED WATERSHED");
    line("");

    line("Sub-Area:");
    for (int i = 1; i <= size.subAreas; ++i) {
        const bool detailed = i % 3 == 0;
        line(tens({"", id("A", i), reach(i), gage(i), detailed ? "" : number(1 + i % 37),
                   detailed ? "" : number(60 + i % 30), "0.5"}) +
             "YNY  ");
        if (!detailed)
            continue;
        line(tens({"", "", "SHEET", "100.", "0.02", "0.24", "F"}));
        line(tens({"", "", "CHANNEL", "1200.", "3."}));
        line(tens({"", "", "LAND AREA"}) + field("Meadow", 35) + field("B", 5) + number(2 + i % 5));
        line(tens({"", "", "LAND AREA"}) + field("Woods (Good)", 35) + field("C", 5) + number(1 + i % 3));
    }
    line("");

    line("Stream Reach:");
    for (int i = 1; i <= size.reaches; ++i) {
        const bool structure = i % 10 == 0;
        line(tens({"", id("R", i), i == size.reaches ? "OUTLET" : id("R", i + 1),
                   structure ? "" : id("X", i % size.crossSections + 1),
                   structure ? id("S", i / 10 % size.structures + 1) : "", "1200.", "1100."}) +
             "NNNNNN");
        if (i % 50 == 0)
            line(tens({"", "", "BASE FLOW", "2.5"}));
        if (i % 70 == 0)
            line(tens({"", "", "SPLIT FLOW", reach(i + 7), "", "10.", "50.", "0.2"}));
    }
    line("");

    line("Alternate Analysis:");
    for (int a = 1; a <= size.alternates; ++a) {
        line(field(id("ALT", a), 10) + "Alternate number " + std::to_string(a));
        line("          REACHES");
        for (int e = 0; e < size.alternateEntries; ++e) {
            const int r = (a * 7 + e) % size.reaches + 1;
            line(tens(
                {"", id("R", r), reach(r + 1), id("X", r % size.crossSections + 1), "", "900.", "800."}));
        }
        line("          AREAS");
        for (int e = 0; e < size.alternateEntries; ++e) {
            const int s = (a * 11 + e) % size.subAreas + 1;
            line(tens({"", id("A", s), reach(s), gage(s), "", "", "0.8"}));
            line(tens({"", "", "LAND AREA"}) + field("Pasture (Fair)", 35) + field("B", 5) + "3");
        }
    }
    line("");

    line("Storm Analysis:");
    for (int i = 1; i <= size.storms; ++i)
        line(
            tens({"", id("STORM", (i - 1) / size.rainGages + 1), gage(i), "0.", "5.2",
                  i % 3 == 0 ? "Type II" : id("RT", i % size.rainTables + 1), "2", i % 4 == 0 ? "" : "3.1"}));
    line("");

    line("Rainfall Distribution:");
    for (int t = 1; t <= size.rainTables; ++t) {
        line(tens({"", id("RT", t), "", "0.1"}));
        line(tens({"", "", "0.", "0.1", "0.3", "0.6", "0.8"}));
        line(tens({"", "", "0.9", "1."}));
    }
    line("");

    line("Input Hydrograph:");
    for (int h = 1; h <= size.inputHydrographs; ++h) {
        line(tens({"", id("HYD", h), reach(h * 13), id("STORM", h % 3 + 1), "0.", "0.5", "2.", "0."}));
        line(tens({"", "", "0.", "10.", "40.", "25.", "8."}));
    }
    line("");

    line("Stream Cross Section:");
    for (int i = 1; i <= size.crossSections; ++i) {
        line(tens({"", id("X", i), "100.", "90."}));
        for (int row = 0; row < 8; ++row)
            line(tens(
                {"", "", number(90 + row), number(row * row * 10), number(row * 5), number(20 + row * 4)}));
    }
    line("");

    line("Structure Rating:");
    for (int i = 1; i <= size.structures; ++i) {
        line(tens({"", id("S", i), "100."}));
        for (int row = 0; row < 8; ++row)
            line(tens({"", "", number(100 + row), number(row * 25), number(row * 3)}));
    }
    line("");
    return file;
}

std::string makeProgramFolder(const std::string& name) {
    const auto root = std::filesystem::temp_directory_path() / ("brooklet-bench-" + name);
    std::filesystem::remove_all(root);
    std::filesystem::create_directories(root);
    std::filesystem::current_path(root);
    return root.string();
}

const Session& loadedWatershed(const std::string& Purpose, int n) {
    static std::map<std::string, Session> sessions;
    const std::string name = Purpose + "-" + std::to_string(n);
    auto found = sessions.find(name);
    if (found != sessions.end())
        return found->second;
    Session& session = sessions[name];
    StartSession(session, makeProgramFolder(name));
    session.CurrentFile = session.ProgramFolder + "large.inp";
    writeFileAtomically(session.CurrentFile, generatedInputFile(scaledWatershed(n)));
    LoadInputFile(session);
    return session;
}

} // namespace brooklet::bench
