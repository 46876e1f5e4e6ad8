// Loading and saving a large input file as the File commands do, each beside the time the
// file system takes to copy the same file: the counter "per_copy" is the ratio of the two.
#include <benchmark/benchmark.h>

#include "generated_watershed.h"
#include "network/local_land_use.h"
#include "session/input_file.h"

#include <chrono>
#include <filesystem>

namespace brooklet::bench {
namespace {

using Clock = std::chrono::steady_clock;

// A session in its own program folder whose current file is a generated watershed of the given
// number of sub-areas and reaches.
Session sessionOnLargeFile(const std::string& folder, int subAreasAndReaches) {
    Session session;
    StartSession(session, makeProgramFolder(folder));
    WatershedSize size;
    size.subAreas = size.reaches = subAreasAndReaches;
    session.CurrentFile = session.ProgramFolder + "large.inp";
    writeFileAtomically(session.CurrentFile, generatedInputFile(size));
    return session;
}

// Seconds that std::filesystem::copy_file takes to copy the file, the best of several copies.
double copySeconds(const std::string& file) {
    const std::string copy = file + ".copy";
    double best = 1e9;
    for (int i = 0; i < 20; ++i) {
        const auto start = Clock::now();
        std::filesystem::copy_file(file, copy, std::filesystem::copy_options::overwrite_existing);
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
    }
    std::filesystem::remove(copy);
    return best;
}

// Runs the step in the benchmark's loop and reports its time per copy of the file.
template <typename Step>
void measureAgainstCopy(benchmark::State& state, const std::string& file, Step step) {
    const double copy = copySeconds(file);
    const auto start = Clock::now();
    for (auto _ : state)
        step();
    const double each =
        std::chrono::duration<double>(Clock::now() - start).count() / static_cast<double>(state.iterations());
    state.counters["per_copy"] = each / copy;
    state.counters["copy_ms"] = copy * 1000.0;
    state.SetLabel(std::to_string(state.range(0)) + " sub-areas and reaches");
}

void LoadLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("load", static_cast<int>(state.range(0)));
    measureAgainstCopy(state, session.CurrentFile, [&] {
        benchmark::DoNotOptimize(LoadInputFile(session));
        bool changed = false;
        MergeLocalLandUse(session, changed);
    });
}
BENCHMARK(LoadLargeInputFile)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

void SaveLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("save", static_cast<int>(state.range(0)));
    LoadInputFile(session);
    measureAgainstCopy(state, session.CurrentFile, [&] {
        BuildLocalLandUseSection(session);
        benchmark::DoNotOptimize(SaveInputFile(session));
    });
}
BENCHMARK(SaveLargeInputFile)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

void CopyLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("copy", static_cast<int>(state.range(0)));
    const std::string copy = session.CurrentFile + ".copy";
    for (auto _ : state)
        std::filesystem::copy_file(session.CurrentFile, copy,
                                   std::filesystem::copy_options::overwrite_existing);
    state.SetLabel(std::to_string(state.range(0)) + " sub-areas and reaches");
}
BENCHMARK(CopyLargeInputFile)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brooklet::bench
