// Loading and saving a large input file.
#include <benchmark/benchmark.h>

#include "generated_watershed.h"
#include "session/input_file.h"

namespace brooklet::bench {
namespace {

void LoadLargeInputFile(benchmark::State& state) {
    Session session;
    StartSession(session, makeProgramFolder("load"));
    WatershedSize size;
    size.subAreas = size.reaches = static_cast<int>(state.range(0));
    session.CurrentFile = session.ProgramFolder + "large.inp";
    writeFileAtomically(session.CurrentFile, generatedInputFile(size));
    for (auto _ : state)
        benchmark::DoNotOptimize(LoadInputFile(session));
    state.SetLabel(std::to_string(size.subAreas) + " sub-areas and reaches");
}
BENCHMARK(LoadLargeInputFile)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

void SaveLargeInputFile(benchmark::State& state) {
    Session session;
    StartSession(session, makeProgramFolder("save"));
    WatershedSize size;
    size.subAreas = size.reaches = static_cast<int>(state.range(0));
    session.CurrentFile = session.ProgramFolder + "large.inp";
    writeFileAtomically(session.CurrentFile, generatedInputFile(size));
    LoadInputFile(session);
    for (auto _ : state)
        benchmark::DoNotOptimize(SaveInputFile(session));
}
BENCHMARK(SaveLargeInputFile)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brooklet::bench
