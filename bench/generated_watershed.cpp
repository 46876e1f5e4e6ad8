#include "generated_watershed.h"

#include <cstdio>
#include <filesystem>

namespace brooklet::bench {
namespace {

std::string field(const std::string& text, size_t width) {
    std::string padded = text;
    if (padded.size() < width) padded.append(width - padded.size(), ' ');
    return padded;
}

std::string id(const char* prefix, int number) {
    return prefix + std::to_string(number);
}

} // namespace

std::string generatedInputFile(const WatershedSize& size) {
    std::string file;
    auto line = [&file](const std::string& text) { file += text + "\r\n"; };
    line("Brooklet: Version 1.0                   ENGLISH");
    line("GENERATED WATERSHED");
    line("");
    line("Sub-Area:");
    for (int i = 1; i <= size.subAreas; ++i)
        line("  " + field(id("A", i), 10) + field(id("R", (i - 1) % size.reaches + 1), 10) +
             field(std::to_string(0.1 + (i % 37) * 0.01).substr(0, 5), 10) + field("75.", 10) + "0.5");
    line("");
    line("Stream Reach:");
    for (int i = 1; i <= size.reaches; ++i)
        line("  " + field(id("R", i), 10) + field(i == size.reaches ? "OUTLET" : id("R", i + 1), 10) +
             field(i % 10 == 0 ? id("S", i / 10 % size.structures + 1) : id("X", i % size.crossSections + 1),
                   10) +
             "1200.");
    line("");
    line("Alternate Analysis:");
    for (int i = 1; i <= size.alternates; ++i)
        line("  " + field(id("ALT", i), 10) + field(id("A", i), 10) + "0.30");
    line("");
    line("Storm Analysis:");
    for (int i = 1; i <= size.storms; ++i)
        line("  " + field(id("STORM", i), 10) + field("TYPE2", 10) + field("5.2", 10) + "24.");
    line("");
    line("Stream Cross Section:");
    for (int i = 1; i <= size.crossSections; ++i)
        for (int row = 0; row < 8; ++row)
            line("  " + field(id("X", i), 10) + field(std::to_string(row * 10) + ".", 10) +
                 std::to_string(row * row) + ".");
    line("");
    line("Structure Rating:");
    for (int i = 1; i <= size.structures; ++i)
        for (int row = 0; row < 8; ++row)
            line("  " + field(id("S", i), 10) + field(std::to_string(100 + row) + ".", 10) +
                 std::to_string(row * 25) + ".");
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

} // namespace brooklet::bench
