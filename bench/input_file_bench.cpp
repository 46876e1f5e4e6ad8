// Loading and saving a large input file as the File commands do, each beside the time the
// file system takes to copy the same file: the counters "per_copy" and "per_replacing_copy" are
// the ratios of the two.
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

// Seconds that std::filesystem::copy_file takes to copy the file: the average and the best of
// several copies into a new file, and the average of several copies each replacing the copy
// before, as a save replaces its file (the file system then drops the old file's pages and
// allocates the new file's blocks at once).
struct CopyTimes {
    double fresh = 0;
    double freshBest = 1e9;
    double replacing = 0;
};
CopyTimes copySeconds(const std::string& file) {
    const std::string copy = file + ".copy";
    constexpr int copies = 20;
    CopyTimes times;
    for (int i = 0; i < copies; ++i) {
        std::filesystem::remove(copy);
        const auto start = Clock::now();
        std::filesystem::copy_file(file, copy);
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        times.fresh += seconds / copies;
        times.freshBest = std::min(times.freshBest, seconds);
    }
    const auto start = Clock::now();
    for (int i = 0; i < copies; ++i)
        std::filesystem::copy_file(file, copy, std::filesystem::copy_options::overwrite_existing);
    times.replacing = std::chrono::duration<double>(Clock::now() - start).count() / copies;
    std::filesystem::remove(copy);
    return times;
}

// Runs the step in the benchmark's loop, each time after an untimed preparation, and reports
// its average time per copy of the file: "per_copy" against the average copy into a new file,
// "per_best_copy" against the best of them, "per_replacing_copy" against the average copy that
// replaces a file.
template <typename Step, typename Preparation>
void measureAgainstCopy(benchmark::State& state, const std::string& file, Step step, Preparation prepare) {
    const CopyTimes copy = copySeconds(file);
    double total = 0;
    for (auto _ : state) {
        prepare();
        const auto start = Clock::now();
        step();
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        state.SetIterationTime(seconds);
        total += seconds;
    }
    const double each = total / static_cast<double>(state.iterations());
    state.counters["per_copy"] = each / copy.fresh;
    state.counters["per_best_copy"] = each / copy.freshBest;
    state.counters["per_replacing_copy"] = each / copy.replacing;
    state.counters["copy_ms"] = copy.fresh * 1000.0;
    state.counters["replacing_copy_ms"] = copy.replacing * 1000.0;
    state.SetLabel(std::to_string(state.range(0)) + " sub-areas and reaches");
}
template <typename Step>
void measureAgainstCopy(benchmark::State& state, const std::string& file, Step step) {
    measureAgainstCopy(state, file, step, [] {});
}

void LoadLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("load", static_cast<int>(state.range(0)));
    measureAgainstCopy(state, session.CurrentFile, [&] {
        benchmark::DoNotOptimize(LoadInputFile(session));
        bool changed = false;
        MergeLocalLandUse(session, changed);
    });
}
BENCHMARK(LoadLargeInputFile)
    ->Arg(1000)
    ->Arg(5000)
    ->Arg(20000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The second argument 1: with a local land use table that the sub-areas' records name, so the
// save rebuilds "LOCAL LAND USE:" from every land area record.
void SaveLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("save", static_cast<int>(state.range(0)));
    if (state.range(1) == 1)
        writeLines(session.LocalLandUseFile, {MergedLandUseLine({"Meadow", "30", "58", "71", "78"}),
                                              MergedLandUseLine({"Orchard", "43", "65", "76", "82"})});
    LoadInputFile(session);
    measureAgainstCopy(state, session.CurrentFile, [&] {
        BuildLocalLandUseSection(session);
        benchmark::DoNotOptimize(SaveInputFile(session));
    });
}
BENCHMARK(SaveLargeInputFile)
    ->Args({1000, 0})
    ->Args({5000, 0})
    ->Args({20000, 0})
    ->Args({20000, 1})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Save As into a file that does not exist yet: the file of the save before is deleted outside the
// timing, so the file system drops no old file while the save is timed.
void SaveLargeInputFileAsNewFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("save-new", static_cast<int>(state.range(0)));
    const std::string original = session.CurrentFile;
    LoadInputFile(session);
    session.CurrentFile = session.ProgramFolder + "saved.inp";
    measureAgainstCopy(
        state, original,
        [&] {
            BuildLocalLandUseSection(session);
            benchmark::DoNotOptimize(SaveInputFile(session));
        },
        [&] { deleteFile(session.CurrentFile); });
}
BENCHMARK(SaveLargeInputFileAsNewFile)->Arg(20000)->UseManualTime()->Unit(benchmark::kMillisecond);

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
