// The watershed schematic on networks of 10,000 elements: reading the saved file, laying the
// tree out, and drawing it into an image as the window does (framed) and whole (every picture
// and label on the surface).
#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "generated_watershed.h"
#include "plots/schematic.h"
#include "plots/schematic_drawing.h"

namespace brooklet::bench {
namespace {

// A branching network: reach i drains into reach i / 2, the first into the outlet, and each
// sub-area into a reach; every fiftieth reach splits flow to another.
std::string branchingNetwork(int reaches, int subAreas) {
    std::string file = "STREAM REACH:\r\n";
    for (int i = 1; i <= reaches; ++i) {
        const std::string down = i == 1 ? "OUTLET" : "R" + std::to_string(i / 2);
        file += tens({"", "R" + std::to_string(i), down, "X1", i % 7 == 0 ? "STR1" : "", "100.", "100."}) +
                "\r\n";
        if (i % 50 == 0)
            file +=
                tens({"", "", "SPLIT FLOW", "R" + std::to_string(i / 3), "X2", "1.", "2.", "0.5"}) + "\r\n";
    }
    file += "\r\nSUB-AREA:\r\n";
    for (int j = 1; j <= subAreas; ++j)
        file += tens({"", "A" + std::to_string(j), "R" + std::to_string((j * 7) % reaches + 1), "G1", "1.",
                      "75.", "0.5"}) +
                "\r\n";
    return file + "\r\n";
}

// Network 0 is the generated watershed (a chain of 5,000 reaches, each with a sub-area);
// network 1 the branching one of 5,000 reaches and 5,000 sub-areas.
const std::string& networkFile(int which) {
    static const std::string chain = generatedInputFile(scaledWatershed(5000));
    static const std::string branching = branchingNetwork(5000, 5000);
    return which == 0 ? chain : branching;
}

void ReadNetworkOf10000(benchmark::State& state) {
    const std::string& file = networkFile(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadNetwork(file));
    state.counters["elements"] = ReadNetwork(file).network.count();
}
BENCHMARK(ReadNetworkOf10000)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void LayOutNetworkOf10000(benchmark::State& state) {
    const Network network = ReadNetwork(networkFile(static_cast<int>(state.range(0)))).network;
    Schematic schematic(network);
    schematic.setSurfaceSize(1200, 800);
    for (auto _ : state) {
        schematic.layOut();
        schematic.FitView();
        benchmark::DoNotOptimize(schematic.DrawLinks());
        benchmark::DoNotOptimize(schematic.DrawDiversions());
    }
    state.counters["elements"] = schematic.ElementCount();
}
BENCHMARK(LayOutNetworkOf10000)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Draws into an image of 1200 by 800 pixels: range(1) 0 as framed by the window, 1 with the
// whole network on the surface.
void DrawNetworkOf10000(benchmark::State& state) {
    Schematic schematic(ReadNetwork(networkFile(static_cast<int>(state.range(0)))).network);
    schematic.setSurfaceSize(1200, 800);
    schematic.layOut();
    schematic.FitView();
    SurfaceScale scale = schematic.scale();
    if (state.range(1) == 1) {
        double left = 0, right = 0, top = 0, bottom = 0;
        for (int i = 1; i <= schematic.ElementCount(); ++i) {
            const NetworkElement& element = schematic.network().element(i);
            left = std::min(left, element.Left);
            right = std::max(right, element.Left);
            top = std::min(top, element.Top);
            bottom = std::max(bottom, element.Top);
        }
        scale.ScaleLeft = left;
        scale.ScaleTop = top;
        scale.ScaleWidth = right - left + 1;
        scale.ScaleHeight = bottom - top + 1;
    }
    QImage image(scale.pixelWidth, scale.pixelHeight, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        drawSchematic(painter, schematic, scale, SchematicBackground, 1200 * TwipsPerPixel);
    }
    state.counters["elements"] = schematic.ElementCount();
}
BENCHMARK(DrawNetworkOf10000)
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({0, 1})
    ->Args({1, 1})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brooklet::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
