// Windows on a large watershed: the main window's Open of a large input file with its list
// refresh, the identifier, sub-area and reach editors opened and accepted, and the storm
// window on a large storm section.
#include <QApplication>

#include <benchmark/benchmark.h>

#include "app/file_commands.h"
#include "app/main_window.h"
#include "app/window_catalog.h"
#include "editing/app_context.h"
#include "generated_watershed.h"
#include "options/entry_window.h"
#include "session/text_file.h"
#include "tables/storm_analysis.h"
#include "tables/storm_editor.h"

#include "tables/grid_editor_window.h"
#include "tables/input_hydrograph.h"
#include "tables/rainfall_distribution.h"
#include "tables/unit_hydrograph.h"
#include "tables/unit_hydrograph_editor.h"
#include "tables/value_grid_window.h"
#include <QClipboard>

#include "network/sub_area_editor.h"
#include "tables/alternate_editor.h"
#include <QKeyEvent>
#include <QTableWidget>

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
    ProgramExit runProgramAndWait(const std::string&, const std::vector<std::string>&, const std::string&,
                                  const std::vector<std::string>&, const std::string&) override {
        return {};
    }
    void stopProgram() override {}
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

// The sub-area and reach windows on 5,000 sub-areas (a third with sheet, channel and land use
// records) and 5,000 reaches: load, the list fills, and Accept writing the work file.
void NetworkEditorOpensAndAccepts(benchmark::State& state, const char* window) {
    LargeSession session(static_cast<int>(state.range(0)));
    session.context.session.CurrentFile = session.file;
    LoadInputFile(session.context);
    session.closeWindows();
    for (auto _ : state) {
        auto* editor = qobject_cast<EntryWindow*>(session.context.windows.ShowWindowAtOrigin(window));
        editor->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // Each opening counts its land use records on from the last; a session begins at 0.
        state.PauseTiming();
        session.context.watershed.LandUseStoreCount = 0;
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(NetworkEditorOpensAndAccepts, SubArea, "frmSubArea")
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NetworkEditorOpensAndAccepts, Reaches, "frmReaches")
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
// The sub-area window on 5,000 sub-areas with its row A2502 (sheet, channel and two land use
// records) picked; each round opens a calculator from its button and returns from it, which
// hands the row back and rewrites work file 11.
void CalculatorOpensAndReturns(benchmark::State& state, int button) {
    LargeSession session(static_cast<int>(state.range(0)));
    session.context.session.CurrentFile = session.file;
    LoadInputFile(session.context);
    session.closeWindows();
    auto* subArea = qobject_cast<frmSubArea*>(session.context.windows.ShowWindowAtOrigin("frmSubArea"));
    subArea->findChild<QComboBox*>("cmbInp(1)")->setEditText("A2502");
    subArea->leaveList(1);
    for (auto _ : state) {
        subArea->openCalculator(button);
        auto* calculator =
            qobject_cast<EntryWindow*>(session.context.windows.loaded(button == 0 ? "frmLandUse" : "frmTc"));
        calculator->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
BENCHMARK_CAPTURE(CalculatorOpensAndReturns, LandUse, 0)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalculatorOpensAndReturns, Tc, 1)->Arg(5000)->Unit(benchmark::kMillisecond);

// The storm window opened on a storm section of n rows, a row for the last pair pasted in
// (which looks the pair up through every row and writes into it), and Accept.
void StormWindowOpensTakesARowAndAccepts(benchmark::State& state) {
    LargeSession session(10);
    const int rows = static_cast<int>(state.range(0));
    std::vector<StormRecord> storms;
    for (int i = 1; i <= rows; ++i)
        storms.push_back(
            {"S" + std::to_string(i / 20), "G" + std::to_string(i % 20), "0.", "5.2", "Type II", "2", "3.1"});
    const std::string& workFile = session.context.session.WorkFilePath[StormSection];
    const std::string section = joinLines(WriteStormSection(storms));
    const StormRecord& last = storms.back();
    QApplication::clipboard()->setText(
        QString::fromStdString(last[0] + "\t" + last[1] + "\t1\t6\tType II\t3\t2.9"));
    for (auto _ : state) {
        state.PauseTiming();
        writeFileAtomically(workFile, section);
        state.ResumeTiming();
        auto* storm = qobject_cast<frmStorm*>(session.context.windows.ShowWindowAtOrigin("frmStorm"));
        storm->pasteRows();
        storm->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
BENCHMARK(StormWindowOpensTakesARowAndAccepts)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
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
void RatingWindow(benchmark::State& state, const QString& name, int section, const char* prefix,
                  int rowFields, int step) {
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

// The value windows on 200 tables of 2,000 values (the unit hydrograph window on its one table
// of 2,000): opening, showing a table, typing a value into it and accepting, each timed alone.
std::vector<std::string> valueTexts(int count, double step) {
    std::vector<std::string> values;
    for (int n = 0; n < count; ++n)
        values.push_back(std::to_string(n * step).substr(0, 8));
    return values;
}

void writeValueSection(const Session& session, int section) {
    std::vector<std::string> lines;
    if (section == UnitHydrographSection) {
        lines = WriteUnitHydrographSection(valueTexts(2000, 0.0005));
    } else {
        std::vector<ValueTable> tables;
        for (int t = 1; t <= 200; ++t) {
            const std::string name = "T" + std::to_string(t);
            if (section == RainfallDistributionSection)
                tables.push_back({{name, "0.1"}, valueTexts(2000, 0.0005)});
            else
                tables.push_back({{name, "R1", "S1", "0.", "0.1", "1.", "0."}, valueTexts(2000, 0.5)});
        }
        lines = section == RainfallDistributionSection ? WriteRainfallDistributionSection(tables)
                                                       : WriteInputHydrographSection(tables);
    }
    std::string file;
    for (const std::string& line : lines)
        file += line + "\r\n";
    writeFileAtomically(session.WorkFilePath[section], file);
}

// A value typed into cell (row, col) of the window's grid, as the user clicks and types.
void typeValue(ValueGridPanel& panel, int row, int col, const QString& text) {
    panel.pressCell(row, col, Qt::LeftButton, QPoint());
    for (const QChar character : text) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(panel.MSFlexGrid1, &key);
    }
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QCoreApplication::sendEvent(panel.MSFlexGrid1, &enter);
}

void ValueWindow(benchmark::State& state, const QString& name, int section, int step) {
    LargeSession session(1);
    writeValueSection(session.context.session, section);
    for (auto _ : state) {
        if (step != 0)
            state.PauseTiming();
        QWidget* window = session.context.windows.ShowWindowAtOrigin(name);
        if (step == 0)
            state.PauseTiming();
        auto* named = qobject_cast<NamedValueWindow*>(window);
        ValueGridPanel& panel = named ? named->panel() : qobject_cast<frmDimHyd*>(window)->panel();
        if (step == 1)
            state.ResumeTiming();
        if (named) {
            window->findChild<QComboBox*>("cmbInp(1)")->setEditText("T100");
            named->leaveIdentifier();
        }
        if (step == 1)
            state.PauseTiming();
        if (step == 2)
            state.ResumeTiming();
        typeValue(panel, 10, 2, "0.0101");
        if (step == 2)
            state.PauseTiming();
        if (step == 3)
            state.ResumeTiming();
        static_cast<EntryWindow*>(window)->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (step != 3)
            state.ResumeTiming();
    }
}
#define VALUE_WINDOW_BENCHMARK(Label, Name, Section, Step)                                                   \
    BENCHMARK_CAPTURE(ValueWindow, Label, Name, Section, Step)->Unit(benchmark::kMillisecond)->Iterations(20)
VALUE_WINDOW_BENCHMARK(RainDistOpens, "frmRainDist", RainfallDistributionSection, 0);
VALUE_WINDOW_BENCHMARK(RainDistShows, "frmRainDist", RainfallDistributionSection, 1);
VALUE_WINDOW_BENCHMARK(RainDistTypes, "frmRainDist", RainfallDistributionSection, 2);
VALUE_WINDOW_BENCHMARK(RainDistAccepts, "frmRainDist", RainfallDistributionSection, 3);
VALUE_WINDOW_BENCHMARK(InpHydOpens, "frmInpHyd", InputHydrographSection, 0);
VALUE_WINDOW_BENCHMARK(InpHydShows, "frmInpHyd", InputHydrographSection, 1);
VALUE_WINDOW_BENCHMARK(InpHydTypes, "frmInpHyd", InputHydrographSection, 2);
VALUE_WINDOW_BENCHMARK(InpHydAccepts, "frmInpHyd", InputHydrographSection, 3);
VALUE_WINDOW_BENCHMARK(DimHydOpensAndShows, "frmDimHyd", UnitHydrographSection, 0);
VALUE_WINDOW_BENCHMARK(DimHydTypes, "frmDimHyd", UnitHydrographSection, 2);
VALUE_WINDOW_BENCHMARK(DimHydAccepts, "frmDimHyd", UnitHydrographSection, 3);
// The alternate window on 10 alternates of 500 sub-areas (each with a sheet flow and a land
// use record) and 500 reaches (each with a base flow): load, the last alternate chosen, which
// fills both lists, and Accept writing the work file.
void AlternateWindowOpensChoosesAndAccepts(benchmark::State& state) {
    LargeSession session(10);
    auto ten = [](const std::string& text) {
        return text + std::string(10 - std::min<size_t>(10, text.size()), ' ');
    };
    std::string file = "ALTERNATE ANALYSIS:\r\n";
    for (int alternate = 1; alternate <= 10; ++alternate) {
        file += ten("ALT" + std::to_string(alternate)) + "Generated variant of the watershed\r\n";
        file += "          REACHES\r\n";
        for (int reach = 1; reach <= 500; ++reach) {
            file += ten("") + ten("R" + std::to_string(reach)) + ten("R" + std::to_string(reach + 1)) +
                    ten("XS1") + ten("") + ten("1200.") + ten("1300.") + "YNYNYN\r\n";
            file += ten("") + ten("") + ten("BASE FLOW") + ten("2.5") + "\r\n";
        }
        file += "          AREAS\r\n";
        for (int area = 1; area <= 500; ++area) {
            file += ten("") + ten("A" + std::to_string(area)) + ten("R" + std::to_string(area)) + ten("G1") +
                    ten("") + ten("") + ten("") + "YNYNY\r\n";
            file += ten("") + ten("") + ten("SHEET") + ten("100.") + ten("0.02") + ten("0.24") + ten("F") +
                    "\r\n";
            file += ten("") + ten("") + ten("LAND AREA") + "Meadow" + std::string(29, ' ') + "B    0.5\r\n";
        }
    }
    file += "\r\n";
    const std::string& workFile = session.context.session.WorkFilePath[AlternateSection];
    for (auto _ : state) {
        state.PauseTiming();
        writeFileAtomically(workFile, file);
        state.ResumeTiming();
        QWidget* window = session.context.windows.ShowWindowAtOrigin("frmAlternate");
        auto* alternates = qobject_cast<frmAlternate*>(window);
        window->findChild<QComboBox*>("cmbInp(1)")->setEditText("ALT10");
        alternates->leaveIdentifier();
        alternates->acceptChanges();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
BENCHMARK(AlternateWindowOpensChoosesAndAccepts)->Unit(benchmark::kMillisecond);

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
