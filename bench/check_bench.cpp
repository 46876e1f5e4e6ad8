// Check Watershed on generated watersheds of 2,000, 20,000 and 200,000 sub-areas and reaches:
// the whole check as the Tools menu runs it (the work files read, every rule run), and the rules
// alone on sections already read.
#include <benchmark/benchmark.h>


#include "check/check_watershed.h"
#include "generated_watershed.h"
#include "network/standard_land_use.h"
#include "session/input_file.h"

namespace brooklet::bench {
namespace {

// The work files read for a check, with the standard land uses known, as the Tools menu reads them.
CheckInput checkInput(const Session& session) {
    CheckInput input = ReadWorkFilesForCheck(session);
    const StandardLandUseTable& table = StandardLandUse();
    for (int row = 1; row <= StandardLandUseRows; ++row)
        addKnownLandUse(input, {table(row, 0), {table(row, 1), table(row, 2), table(row, 3), table(row, 4)}});
    return input;
}

void CheckWorkFiles(benchmark::State& state) {
    const Session& session = loadedWatershed("check", static_cast<int>(state.range(0)));
    size_t findings = 0;
    for (auto _ : state) {
        const Findings found = CheckWatershed(checkInput(session));
        findings = found.size();
        benchmark::DoNotOptimize(found.data());
    }
    state.counters["findings"] = static_cast<double>(findings);
    state.SetComplexityN(state.range(0));
}

void CheckRulesOnly(benchmark::State& state) {
    const CheckInput input = checkInput(loadedWatershed("check", static_cast<int>(state.range(0))));
    for (auto _ : state) {
        const Findings found = CheckWatershed(input);
        benchmark::DoNotOptimize(found.data());
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK(CheckWorkFiles)->Arg(2000)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(CheckRulesOnly)->Arg(2000)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond)->Complexity();

} // namespace
} // namespace brooklet::bench
