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
    void setClipboardText(const std::string&) override {}
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
