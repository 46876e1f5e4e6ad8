#pragma once
// frmFileDisp: shows one of the files that belong to the input file (the input file itself, the
// printed page, error, debug, hydrograph and Tally files), switches between them and prints.
#include <QMainWindow>

#include <string>

#include "editing/widgets.h"

class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;

namespace brooklet {

struct AppContext;

// Opens the viewer on the file chosen by ViewIndex, loading it afresh when it was open already.
void ShowFileViewer(AppContext& context);

class frmFileDisp : public QMainWindow {
    Q_OBJECT
public:
    explicit frmFileDisp(AppContext& context, QWidget* parent = nullptr);

    // Loads the file of ViewIndex into the text box.
    void loadFile();
    // The path on show.
    const std::string& shownPath() const { return path_; }
    void printFile();

private:
    AppContext& context_;
    std::string path_;
    QLabel* lblWindow = nullptr;
    QPlainTextEdit* RichTextBox1 = nullptr;
    QPushButton* cmdCancel = nullptr;
    QMenu* mnuView = nullptr;
    ControlArray<QAction> viewItems_;
};

} // namespace brooklet
