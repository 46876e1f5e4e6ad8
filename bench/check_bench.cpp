// Check Watershed on generated watersheds of 2,000, 20,000 and 200,000 sub-areas and reaches:
// the whole check as the Tools menu runs it (the work files read, every rule run), and the rules
// alone on sections already read.
#include <benchmark/benchmark.h>

#include <map>

#include "check/check_watershed.h"
#include "generated_watershed.h"
#include "network/standard_land_use.h"
#include "session/input_file.h"

namespace brooklet::bench {
namespace {

// A session whose work files hold a generated watershed of n sub-areas and n reaches.
const Session& loadedWatershed(int n) {
    static std::map<int, Session> sessions;
    auto found = sessions.find(n);
    if (found != sessions.end())
        return found->second;
    Session& session = sessions[n];
    StartSession(session, makeProgramFolder("check-" + std::to_string(n)));
    session.CurrentFile = session.ProgramFolder + "large.inp";
    writeFileAtomically(session.CurrentFile, generatedInputFile(scaledWatershed(n)));
    LoadInputFile(session);
    return session;
}

// The work files read for a check, with the standard land uses known, as the Tools menu reads them.
CheckInput checkInput(const Session& session) {
    CheckInput input = ReadWorkFilesForCheck(session);
    const StandardLandUseTable& table = StandardLandUse();
    for (int row = 1; row <= StandardLandUseRows; ++row)
        addKnownLandUse(input, {table(row, 0), {table(row, 1), table(row, 2), table(row, 3), table(row, 4)}});
    return input;
}

void CheckWorkFiles(benchmark::State& state) {
    const Session& session = loadedWatershed(static_cast<int>(state.range(0)));
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
    const CheckInput input = checkInput(loadedWatershed(static_cast<int>(state.range(0))));
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
