// Growing, shrinking and storing tables in the shared stores: the value store of the grid
// windows and the sub-area, land use and alternate tables of the watershed windows.
#include <benchmark/benchmark.h>

#include "editing/grid_editor.h"
#include "editing/watershed_tables.h"

namespace brooklet::bench {
namespace {

constexpr int ValuesPerTable = 20;

// Runs the step on a fresh copy of the loaded tables each time; the copy is made, and the last
// one dropped, while the clock stands.
template <typename Tables, typename Step>
void onEachCopy(benchmark::State& state, const Tables& loaded, Step step) {
    Tables tables;
    for (auto _ : state) {
        state.PauseTiming();
        tables = loaded;
        state.ResumeTiming();
        step(tables);
    }
}

// A value store of `tables` tables of `rows` positions of `fields` fields, as a grid window
// loads it.
GridContext loadedStore(int tables, int rows, int fields) {
    GridContext context;
    resetTabularTables(context, 2, fields, fields > 1 ? " " : "");
    for (int t = 1; t <= tables; ++t) {
        addTable(context);
        context.TableFirst[size_t(t)] = context.ValueCount + 1;
        for (int r = 0; r < rows; ++r) {
            context.ValueStore.ensureRows(++context.ValueCount);
            for (int f = 1; f <= fields; ++f)
                context.ValueStore(f, context.ValueCount) = std::to_string(100 + r) + ".";
        }
        context.TableLast[size_t(t)] = context.ValueCount;
    }
    return context;
}

MemoryGrid flowGrid(int values) {
    MemoryGrid grid(values / FlowGridColumns + 2, FlowGridColumns);
    for (int v = 0; v < values; ++v)
        grid.setCellText(v / FlowGridColumns, v % FlowGridColumns, std::to_string(v) + ".");
    return grid;
}

// Stores `values` values into table `table` of a fresh copy of the store, each time.
void storeFlow(benchmark::State& state, int table, int values, bool newTable) {
    const int tables = static_cast<int>(state.range(0));
    const GridContext loaded = loadedStore(tables, ValuesPerTable, 1);
    MemoryGrid grid = flowGrid(values);
    onEachCopy(state, loaded, [&](GridContext& context) {
        context.TableCurrent = newTable ? addTable(context) : (table == 0 ? tables / 2 : table);
        StoreFlowGrid(context, grid, values);
        benchmark::DoNotOptimize(context.ValueCount);
    });
    state.counters["positions"] = tables * ValuesPerTable;
}

// The first table grows by five values: every later table moves.
void StoreFlowGridGrowFirst(benchmark::State& state) {
    storeFlow(state, 1, ValuesPerTable + 5, false);
}
// A table in the middle keeps its size: the values are written in place.
void StoreFlowGridSameSize(benchmark::State& state) {
    storeFlow(state, 0, ValuesPerTable, false);
}
// A table in the middle shrinks: it keeps its place.
void StoreFlowGridShrink(benchmark::State& state) {
    storeFlow(state, 0, ValuesPerTable / 2, false);
}
// A new table goes behind all others.
void StoreFlowGridNewTable(benchmark::State& state) {
    storeFlow(state, 0, ValuesPerTable, true);
}

#define STORE_SIZES(name) BENCHMARK(name)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond)
STORE_SIZES(StoreFlowGridGrowFirst);
STORE_SIZES(StoreFlowGridSameSize);
STORE_SIZES(StoreFlowGridShrink);
STORE_SIZES(StoreFlowGridNewTable);

// A rating store of `tables` tables of 8 rows of 3 fields; the first grows to 12 rows.
void StoreRowGridGrowFirst(benchmark::State& state) {
    const int tables = static_cast<int>(state.range(0));
    GridContext loaded = loadedStore(tables, 8, 3);
    MemoryGrid grid(14, 3);
    for (int r = 1; r <= 12; ++r)
        for (int c = 0; c < 3; ++c)
            grid.setCellText(r, c, std::to_string(100 + r) + ".");
    loaded.GridFirstRow = 1;
    loaded.GridRowsUsed = 12;
    loaded.TableCurrent = 1;
    onEachCopy(state, loaded, [&grid](GridContext& context) {
        StoreRowGrid(context, grid);
        benchmark::DoNotOptimize(context.ValueCount);
    });
    state.counters["rows"] = tables * 8;
}
STORE_SIZES(StoreRowGridGrowFirst);

// The sub-area window's load: n rows, every third with two land use records.
WatershedTables subAreaTables(int n) {
    WatershedTables tables;
    resetSubAreaTables(tables);
    for (int i = 1; i <= n; ++i) {
        const int row = addSubAreaRow(tables);
        tables.SubAreaTable(1, row) = "A" + std::to_string(i);
        tables.SubAreaTable(2, row) = "R" + std::to_string(i);
        if (i % 3 != 0)
            continue;
        addLandUseRow(tables, row, "Meadow", "B", "2.");
        addLandUseRow(tables, row, "Woods - good", "C", "1.");
    }
    return tables;
}

void BuildSubAreaTable(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    for (auto _ : state) {
        WatershedTables tables = subAreaTables(n);
        benchmark::DoNotOptimize(tables.SubAreaCount);
    }
}

// Deleting the first sub-area moves every later row down.
void DeleteFirstSubArea(benchmark::State& state) {
    onEachCopy(state, subAreaTables(static_cast<int>(state.range(0))), [](WatershedTables& tables) {
        deleteSubAreaRow(tables, 1);
        benchmark::DoNotOptimize(tables.SubAreaCount);
    });
}

// The alternate window's load: n sub-area and n reach entries spread over n / 50 alternates,
// each sub-area entry with one land use record.
WatershedTables alternateStore(int n) {
    WatershedTables tables;
    resetAlternateStore(tables);
    const int alternates = std::max(n / 50, 1);
    for (int a = 1; a <= alternates; ++a)
        addAlternate(tables, "ALT" + std::to_string(a), "Alternate");
    for (int e = 0; e < n; ++e) {
        const int a = e % alternates + 1;
        const int row = addAlternateSubArea(tables, a);
        tables.AlternateSubAreas.set(1, a, row, "A" + std::to_string(e));
        addAlternateLandUse(tables, a, row, "Pasture", "B", "3.");
        const int reach = addAlternateReach(tables, a);
        tables.AlternateReaches.set(1, a, reach, "R" + std::to_string(e));
    }
    return tables;
}

void BuildAlternateStore(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    for (auto _ : state) {
        WatershedTables tables = alternateStore(n);
        benchmark::DoNotOptimize(tables.AlternateCount);
    }
}

// Deleting the first alternate moves every later one down.
void DeleteFirstAlternate(benchmark::State& state) {
    onEachCopy(state, alternateStore(static_cast<int>(state.range(0))), [](WatershedTables& tables) {
        deleteAlternate(tables, 1);
        benchmark::DoNotOptimize(tables.AlternateCount);
    });
}

// The sub-area window in alternate mode: the n sub-areas of one alternate are taken out of
// the store and put back, the store growing to hold them.
void SubAreasThroughAlternate(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    WatershedTables tables = subAreaTables(n);
    const WatershedTables plain = tables;
    resetAlternateStore(tables);
    tables.LandUseStoreCount = plain.LandUseStoreCount;
    addAlternate(tables, "ALT1", "");
    addAlternate(tables, "ALT2", "");
    for (auto _ : state) {
        tables.SubAreaTable = plain.SubAreaTable;
        tables.SubAreaCount = plain.SubAreaCount;
        tables.LandUseFirst = plain.LandUseFirst;
        tables.LandUseLast = plain.LandUseLast;
        tables.LandUseStore = plain.LandUseStore;
        storeSubAreasInAlternate(tables, 2);
        loadSubAreasFromAlternate(tables, 2);
        benchmark::DoNotOptimize(tables.SubAreaCount);
    }
}

#define TABLE_SIZES(name) BENCHMARK(name)->Arg(1000)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond)
TABLE_SIZES(BuildSubAreaTable);
TABLE_SIZES(DeleteFirstSubArea);
TABLE_SIZES(BuildAlternateStore);
TABLE_SIZES(DeleteFirstAlternate);
TABLE_SIZES(SubAreasThroughAlternate);

} // namespace
} // namespace brooklet::bench
