// The model output reader on a generated report of about 100 MB, beside a plain count of the
// same file's lines in the same run; and ten series of 100,000 points drawn into an image of the
// plot surface's size.
#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "plots/output_reader.h"
#include "plots/plot_painter.h"
#include "support/report_builder.h"

namespace brooklet::bench {
namespace {

using test::ReportBuilder;

// Storms of a hundred locations with hydrographs of 300 points, a peak table and both duration
// tables, repeated to about 100 MB.
const std::string& reportPath() {
    static const std::string path = [] {
        const std::string file =
            (std::filesystem::temp_directory_path() / "brooklet_bench_report.out").string();
        ReportBuilder part;
        std::vector<std::string> flows;
        for (int i = 0; i < 300; ++i)
            flows.push_back(std::to_string(100 + (i * 37) % 900) + ".5");
        for (int storm = 0; storm < 4; ++storm) {
            part.storm("", "STORM-" + std::to_string(storm));
            for (int location = 0; location < 100; ++location) {
                if (location % 10 == 0)
                    part.pageHeader(location);
                part.hydrograph("SA-" + std::to_string(location), "GAGE", 0.0, "0.1000 hr", flows, 0.7);
            }
        }
        const std::string body = part.text();
        ReportBuilder tail;
        tail.peakTable({"STORM-0", "STORM-1", "STORM-2", "STORM-3"});
        for (int location = 0; location < 100; ++location)
            tail.peakRow("SA-" + std::to_string(location), "1.5", "", {"10.", "20.", "30.", "40."});
        tail.peakRow("OUTLET", "150.", "", {"10.", "20.", "30.", "40."});
        tail.durationTable(false, false, {"90", "75", "50", "25"});
        tail.durationRow("OUTLET", "", "STORM-3", {"1.", "2.", "3.", "4.", "5."});
        tail.blank();
        ReportBuilder head;
        head.banner();
        std::FILE* out = std::fopen(file.c_str(), "wb");
        std::fputs(head.text().c_str(), out);
        for (size_t written = 0; written < 100'000'000; written += body.size())
            std::fwrite(body.data(), 1, body.size(), out);
        // The requested storm comes last.
        ReportBuilder last;
        last.storm("", "STORM-9");
        last.hydrograph("OUTLET", "", 0.0, "0.1000 hr", flows, 0.7);
        std::fputs(last.text().c_str(), out);
        std::fputs(tail.text().c_str(), out);
        std::fclose(out);
        return file;
    }();
    return path;
}

void BM_CountLinesOfReport(benchmark::State& state) {
    const std::string& path = reportPath();
    std::vector<char> block(1 << 20);
    for (auto _ : state) {
        std::FILE* in = std::fopen(path.c_str(), "rb");
        size_t lines = 0, bytes = 0, n = 0;
        while ((n = std::fread(block.data(), 1, block.size(), in)) > 0) {
            bytes += n;
            for (const char* p = block.data();
                 (p = static_cast<const char*>(std::memchr(p, '\n', size_t(block.data() + n - p)))); ++p)
                ++lines;
        }
        std::fclose(in);
        benchmark::DoNotOptimize(lines);
        state.SetBytesProcessed(state.bytes_processed() + int64_t(bytes));
    }
}
BENCHMARK(BM_CountLinesOfReport)->Unit(benchmark::kMillisecond);

void BM_ReadOutputFile(benchmark::State& state) {
    const std::string& path = reportPath();
    const auto kind = static_cast<int16_t>(state.range(0));
    const std::string inputFile = path.substr(0, path.size() - 3) + "inp";
    for (auto _ : state) {
        PlotData plot;
        plot.PlotKind = kind;
        plot.newRequest(1);
        auto& T = plot.PlotRequest[1].T;
        T[2] = kind == PeakFlowPlot ? "STORM-3" : "STORM-9";
        T[3] = kind == PeakFlowPlot ? "Subarea" : "Outlet";
        bool Found = false;
        ReadOutputFile(inputFile, plot, Found);
        if (!Found && kind != TimeAnalysisPlot)
            state.SkipWithError("nothing found");
        state.SetBytesProcessed(state.bytes_processed() + int64_t(std::filesystem::file_size(path)));
    }
}
BENCHMARK(BM_ReadOutputFile)
    ->Arg(OutputHydrographPlot)
    ->Arg(PeakFlowPlot)
    ->Arg(TimeAnalysisPlot)
    ->Unit(benchmark::kMillisecond);

// Ten hydrograph-like series of 100,000 points.
PlotData tenLongSeries() {
    PlotData plot;
    plot.PlotKind = OutputHydrographPlot;
    constexpr int points = 100'000;
    plot.newRequest(10);
    plot.MultiStormCount = 10;
    plot.PlotX.growPoints(points);
    plot.PlotY.growPoints(points);
    for (int s = 1; s <= 10; ++s) {
        auto& row = plot.PlotRequest[size_t(s)];
        row.T[2] = "STORM-" + std::to_string(s);
        row.T[3] = "Outlet";
        row.T[5] = "0.0";
        row.T6 = 0.01;
        row.T7 = points;
        for (int p = 1; p <= points; ++p) {
            const double t = p / double(points) * 10.0;
            plot.PlotY.set(s, p, float(100.0 * s * t * std::exp(1.0 - t / 2.0) + 5.0 * std::sin(p * 0.01)));
        }
    }
    return plot;
}

// The steps of the plot window's load timed apart and together: the set-up (PreparePlot), the
// layout (Draw) and the painting into an image of the plot surface's size.
enum DrawStep { AllSteps, SetUp, Layout, Painting };

void BM_DrawTenSeriesOfHundredThousandPoints(benchmark::State& state) {
    const auto step = DrawStep(state.range(0));
    PlotData plot = tenLongSeries();
    QImage image(720, 440, QImage::Format_RGB32);
    auto setUp = [&plot] {
        // The set-up of a hydrograph plot works on the plot data in place, as the window's load
        // does, and gives the same result each time.
        PlotView view = InitialView(OutputHydrographPlot, 10800, 6600);
        PreparePlot(plot, PlotSource{}, view);
        return view;
    };
    auto paint = [&image](const PlotDrawing& drawing) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
        PaintPlot(painter, drawing);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    };
    const PlotView preparedView = setUp();
    PlotView layoutView = preparedView;
    const PlotDrawing laidOut = DrawPlot(plot, layoutView);
    for (auto _ : state) {
        switch (step) {
        case AllSteps: {
            PlotView view = setUp();
            paint(DrawPlot(plot, view));
            break;
        }
        case SetUp:
            benchmark::DoNotOptimize(setUp());
            break;
        case Layout: {
            PlotView view = preparedView;
            benchmark::DoNotOptimize(DrawPlot(plot, view));
            break;
        }
        case Painting:
            paint(laidOut);
            break;
        }
    }
}
BENCHMARK(BM_DrawTenSeriesOfHundredThousandPoints)
    ->ArgName("step")
    ->Arg(AllSteps)
    ->Arg(SetUp)
    ->Arg(Layout)
    ->Arg(Painting)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brooklet::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::filesystem::remove(brooklet::bench::reportPath());
    return 0;
}
