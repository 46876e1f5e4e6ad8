// Filling the identifier lists from the work files of large watersheds, and for contrast the
// plain walk of AddUnique that the fills avoid.
#include <benchmark/benchmark.h>


#include "editing/identifier_lists.h"
#include "generated_watershed.h"
#include "session/input_file.h"

namespace brooklet::bench {
namespace {

template <typename Fill> void measureFill(benchmark::State& state, Fill fill) {
    const Session& session = loadedWatershed("lists", static_cast<int>(state.range(0)));
    int items = 0;
    for (auto _ : state) {
        StringList list;
        fill(session, list);
        items = list.ListCount();
        benchmark::DoNotOptimize(list.items.data());
    }
    state.counters["items"] = items;
}

void FillReachListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillReachList(s, l, true); });
}
void FillAreaReachListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillAreaReachList(s, l); });
}
void FillStructureListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillStructureList(s, l); });
}
void FillCrossSectionListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillCrossSectionList(s, l); });
}
void FillStormRainListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) {
        RainfallTable rainfall;
        FillStormRainList(s, rainfall, l);
    });
}
void FillRainTableListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillRainTableList(s, true, l); });
}
void FillHydrographNameListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillHydrographNameList(s, l); });
}
void FillInputHydrographListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillInputHydrographList(s, l); });
}
void FillAlternateListBench(benchmark::State& state) {
    measureFill(state, [](const Session& s, StringList& l) { FillAlternateList(s, l, true); });
}
void FindSubAreaFieldBench(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const Session& session = loadedWatershed("lists", n);
    const std::string last = "A" + std::to_string(n);
    for (auto _ : state) {
        std::string result;
        FindSubAreaField(session, last, result);
        benchmark::DoNotOptimize(result);
    }
}

#define LIST_FILL(name) BENCHMARK(name)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond)
LIST_FILL(FillReachListBench);
LIST_FILL(FillAreaReachListBench);
LIST_FILL(FillStructureListBench);
LIST_FILL(FillCrossSectionListBench);
LIST_FILL(FillStormRainListBench);
LIST_FILL(FillRainTableListBench);
LIST_FILL(FillHydrographNameListBench);
LIST_FILL(FillInputHydrographListBench);
LIST_FILL(FillAlternateListBench);
LIST_FILL(FindSubAreaFieldBench);

// n distinct names added one by one through the walk of AddUnique: what a fill would cost
// without its index.
void AddUniqueWalkBench(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    for (auto _ : state) {
        StringList list;
        for (int i = 1; i <= n; ++i)
            AddUnique(list, "R" + std::to_string(i));
        benchmark::DoNotOptimize(list.items.data());
    }
}
BENCHMARK(AddUniqueWalkBench)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brooklet::bench
