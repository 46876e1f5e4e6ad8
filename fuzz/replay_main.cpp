// Runs a fuzz target without libFuzzer: over every file of the folders given, then over inputs
// made by a fixed generator, so the same run is repeated exactly in every build.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void run(const std::string& bytes) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

std::string generated(std::mt19937& random, int round) {
    const char* pieces[] = {"\r\n",
                            "\n",
                            "\r",
                            " ",
                            "Sub-Area:",
                            "STREAM REACH:",
                            "FLUME: BETA TEST",
                            "Brooklet: Version 1.0",
                            ",",
                            "\"",
                            "0.5",
                            "-1e3",
                            "\t",
                            "LOCAL LAND USE:"};
    std::string bytes;
    switch (round % 4) {
    case 0: // binary noise
        for (int i = random() % 4096; i > 0; --i)
            bytes += static_cast<char>(random() & 0xff);
        break;
    case 1: // pieces of the format in any order
        for (int i = random() % 200; i > 0; --i)
            bytes += pieces[random() % std::size(pieces)];
        break;
    case 2: // one long line without an end
        bytes.assign(200000 + random() % 100000, static_cast<char>('A' + random() % 26));
        break;
    default: // CR alone as line ends
        for (int i = random() % 300; i > 0; --i)
            bytes += std::string(pieces[random() % 8]) + "\r";
        break;
    }
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        std::error_code ec;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i], ec)) {
            if (!entry.is_regular_file())
                continue;
            std::ifstream in(entry.path(), std::ios::binary);
            run(std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>()));
            ++inputs;
        }
    }
    std::mt19937 random(20261121);
    for (int round = 0; round < 400; ++round, ++inputs)
        run(generated(random, round));
    std::printf("%d passed, 0 failed\n", inputs);
    return 0;
}
