// Loading and saving a large input file.
#include <benchmark/benchmark.h>

#include "generated_watershed.h"
#include "session/input_file.h"

namespace brooklet::bench {
namespace {

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

void LoadLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("load", static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(LoadInputFile(session));
    state.SetLabel(std::to_string(state.range(0)) + " sub-areas and reaches");
}
BENCHMARK(LoadLargeInputFile)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

void SaveLargeInputFile(benchmark::State& state) {
    Session session = sessionOnLargeFile("save", static_cast<int>(state.range(0)));
    LoadInputFile(session);
    for (auto _ : state)
        benchmark::DoNotOptimize(SaveInputFile(session));
}
BENCHMARK(SaveLargeInputFile)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brooklet::bench
