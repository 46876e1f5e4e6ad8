// Windows on a large watershed: the main window's Open of a large input file with its list
// refresh, and the identifier editor opened and accepted.
#include <QApplication>

#include <benchmark/benchmark.h>

#include "generated_watershed.h"
#include "options/entry_window.h"
#include "session/app_context.h"
#include "session/file_commands.h"
#include "session/main_window.h"
#include "session/text_file.h"
#include "session/window_catalog.h"
#include "tables/grid_editor_window.h"

#include <QComboBox>

namespace brooklet::bench {
namespace {

// Answers every box with OK and cancels every dialog: nothing waits for a person.
class QuietPlatform : public Platform {
public:
    BoxAnswer showBox(const BoxRequest&) override { return BoxAnswer::Ok; }
    std::optional<std::string> showOpenDialog(const FileDialogSettings&) override { return {}; }
    std::optional<std::string> showSaveDialog(const FileDialogSettings&) override { return {}; }
    void endProgram() override {}
    bool runProgramAndWait(const std::string&, const std::string&) override { return false; }
    std::optional<PrinterChoice> showPrinterDialog(const PrinterDialogSettings&) override { return {}; }
};

// A program folder with a large input file, and the main window loaded in it.
struct LargeSession {
    explicit LargeSession(int subAreas) : context(platform) {
        makeProgramFolder("windows");
        registerAllWindows(context.windows);
        main = std::make_unique<frmMain>(context);
        WatershedSize size;
        size.subAreas = size.reaches = subAreas;
        file = currentFolder() + "/large.inp";
        writeFileAtomically(file, generatedInputFile(size));
    }
    void closeWindows() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window != main.get() && !window->parentWidget())
                window->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QuietPlatform platform;
    AppContext context;
    std::unique_ptr<frmMain> main;
    std::string file;
};

void MainWindowOpensALargeFile(benchmark::State& state) {
    LargeSession session(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        session.context.session.CurrentFile = session.file;
        LoadInputFile(session.context);
        session.main->Form_Activate();
        state.PauseTiming();
        session.closeWindows();
        state.ResumeTiming();
    }
}
BENCHMARK(MainWindowOpensALargeFile)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

void IdentifierEditorOpensAndAccepts(benchmark::State& state) {
    LargeSession session(static_cast<int>(state.range(0)));
    session.context.session.CurrentFile = session.file;
    LoadInputFile(session.context);
    session.closeWindows();
    for (auto _ : state) {
        auto* editor = qobject_cast<EntryWindow*>(session.context.windows.ShowWindowAtOrigin("frmFlume"));
        editor->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
BENCHMARK(IdentifierEditorOpensAndAccepts)->Arg(5000)->Unit(benchmark::kMillisecond);

// A rating section of 1,000 entries of 20 rows each in its work file: structures (section 10)
// or cross sections (section 7), in their record layouts.
void writeRatingSection(const Session& session, int section, const char* prefix, int rowFields) {
    std::string file = section == StructureSection ? "STRUCTURE RATING:" : "STREAM CROSS SECTION:";
    file += "\r\n";
    auto ten = [](const std::string& text) { return text + std::string(10 - text.size(), ' '); };
    for (int entry = 1; entry <= 1000; ++entry) {
        file += ten("") + ten(prefix + std::to_string(entry)) + ten("100.") + "\r\n";
        for (int row = 0; row < 20; ++row) {
            file += ten("") + ten("") + ten(std::to_string(100 + row) + ".");
            for (int field = 1; field < rowFields; ++field)
                file += ten(std::to_string(row * 10 + field) + ".");
            file += "\r\n";
        }
    }
    file += "\r\n";
    writeFileAtomically(session.WorkFilePath[section], file);
}

GridEditorWindow* openRatingWindow(LargeSession& session, const QString& name) {
    return qobject_cast<GridEditorWindow*>(session.context.windows.ShowWindowAtOrigin(name));
}

void pickEntry(GridEditorWindow* window, const QString& entry) {
    window->findChild<QComboBox*>("cmbInp(1)")->setEditText(entry);
    window->leaveIdentifier();
}

// Opening the window on 1,000 entries of 20 rows, picking one, and accepting, each timed alone.
void RatingWindow(benchmark::State& state, const QString& name, int section, const char* prefix, int rowFields,
                  int step) {
    LargeSession session(1);
    writeRatingSection(session.context.session, section, prefix, rowFields);
    const QString entry = QString(prefix) + "500";
    for (auto _ : state) {
        if (step != 0)
            state.PauseTiming();
        GridEditorWindow* window = openRatingWindow(session, name);
        if (step == 0)
            state.PauseTiming();
        if (step == 1)
            state.ResumeTiming();
        pickEntry(window, entry);
        if (step == 1)
            state.PauseTiming();
        if (step == 2)
            state.ResumeTiming();
        window->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (step != 2)
            state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(RatingWindow, StructureOpens, "frmStruct", StructureSection, "S", 3, 0)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);
BENCHMARK_CAPTURE(RatingWindow, StructurePicks, "frmStruct", StructureSection, "S", 3, 1)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);
BENCHMARK_CAPTURE(RatingWindow, StructureAccepts, "frmStruct", StructureSection, "S", 3, 2)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);
BENCHMARK_CAPTURE(RatingWindow, CrossSectionOpens, "frmXsect", CrossSectionSection, "X", 5, 0)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);
BENCHMARK_CAPTURE(RatingWindow, CrossSectionPicks, "frmXsect", CrossSectionSection, "X", 5, 1)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);
BENCHMARK_CAPTURE(RatingWindow, CrossSectionAccepts, "frmXsect", CrossSectionSection, "X", 5, 2)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);

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
