// Saves a picture of every window of the program into a folder, for review. It runs in a
// fresh program folder with the example watershed loaded, so windows show real data.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <iostream>

#include "app/file_commands.h"
#include "app/main_window.h"
#include "app/window_catalog.h"
#include "editing/app_context.h"
#include "session/qt_platform.h"

namespace {

// Answers every question with its first button, so no window waits for a person.
class UnattendedPlatform : public brooklet::QtPlatform {
public:
    brooklet::BoxAnswer showBox(const brooklet::BoxRequest& box) override {
        return box.buttons == brooklet::BoxButtons::Ok || box.buttons == brooklet::BoxButtons::OkCancel
                   ? brooklet::BoxAnswer::Ok
                   : brooklet::BoxAnswer::Yes;
    }
    std::optional<std::string> showOpenDialog(const brooklet::FileDialogSettings&) override { return {}; }
    std::optional<std::string> showSaveDialog(const brooklet::FileDialogSettings&) override { return {}; }
    std::optional<brooklet::PrinterChoice>
    showPrinterDialog(const brooklet::PrinterDialogSettings&) override {
        return {};
    }
};

bool save(QWidget* window, const QString& folder, const QString& name) {
    // Offscreen, no window becomes active by itself; the windows that fill themselves when they
    // become active (the schematic) are told so, as on a screen.
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(window, &activate);
    QApplication::processEvents();
    const bool ok = window->grab().save(QDir(folder).filePath(name + ".png"));
    std::cout << (ok ? "saved " : "FAILED ") << name.toStdString() << "\n";
    return ok;
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    const QString target =
        QDir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("screenshots")).absolutePath();
    QDir().mkpath(target);

    QTemporaryDir programFolder;
    for (const QString& source : {QString(BROOKLET_DATA_DIR), QString(BROOKLET_EXAMPLES_DIR)})
        for (const QString& file : QDir(source).entryList(QDir::Files))
            QFile::copy(QDir(source).filePath(file), QDir(programFolder.path()).filePath(file));
    QDir::setCurrent(programFolder.path());

    UnattendedPlatform platform;
    brooklet::AppContext context(platform);
    brooklet::registerAllWindows(context.windows);
    brooklet::frmMain main(context);
    main.show();
    bool ok = save(&main, target, "frmMain");

    const QStringList examples = QDir(programFolder.path()).entryList({"*.inp"}, QDir::Files);
    if (!examples.isEmpty()) {
        context.session.CurrentFile =
            brooklet::pathFromQt(QDir(programFolder.path()).filePath(examples.first()));
        brooklet::LoadInputFile(context);
        // ReOpen Last Session shows the loaded file the way a user returns to it.
        main.fileCommand(3);
        main.Form_Activate();
        ok = save(&main, target, "frmMain_loaded") && ok;
    }
    context.session.ViewIndex = 1; // the viewer shows the input file
    for (const QString& name : context.windows.registeredNames()) {
        if (QWidget* window = context.windows.ShowWindowAtOrigin(name))
            ok = save(window, target, name) && ok;
    }

    // A result plot, as the plot selection window draws it: the first storm at the outlet. The
    // plot window may be modal, so it is pictured and closed as soon as it shows.
    context.windows.unload("frmIO_Plots");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (auto* selection = context.windows.ShowWindowAtOrigin("frmGraphicsOutput")) {
        auto* storms = selection->findChild<QComboBox*>("Cmbinp(3)");
        auto* outlet = selection->findChild<QCheckBox*>("Chk7");
        auto* display = selection->findChild<QPushButton*>("CmdPlot");
        if (storms && storms->count() > 0 && outlet && display) {
            storms->setCurrentIndex(0);
            emit storms->activated(0);
            outlet->click();
            bool pictured = false;
            const auto picture = [&] {
                QWidget* plot = context.windows.loaded("frmIO_Plots");
                if (pictured || !plot || !plot->isVisible())
                    return;
                pictured = true;
                ok = save(plot, target, "frmIO_Plots_hydrograph") && ok;
                plot->close();
            };
            QTimer::singleShot(0, picture);
            display->click();
            picture();
        }
    }
    return ok ? 0 : 1;
}
