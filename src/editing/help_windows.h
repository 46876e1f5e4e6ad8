#pragma once
// The plain help windows of the Help menu: fixed text or a picture, and a "Close" button.
#include <QStringList>
#include <QWidget>

namespace brooklet {

struct AppContext;

// The disclaimer that the main window and the About window show.
extern const char* const DisclaimerText;

// A window of fixed help: its content above, cmdClose "Close" below.
class PlainHelpWindow : public QWidget {
    Q_OBJECT
public:
    PlainHelpWindow(const QString& name, const QString& caption, QWidget* parent = nullptr);

protected:
    // Places the window's content above the button.
    void addContent(QWidget* content);
};

class frmAbout : public PlainHelpWindow {
    Q_OBJECT
public:
    explicit frmAbout(AppContext& context, QWidget* parent = nullptr);
};

// frmOverview, frmHelpFac and frmGettingStarted: windows of paragraphs of text alone.
class TextHelpWindow : public PlainHelpWindow {
    Q_OBJECT
public:
    // The names of these windows.
    static QStringList names();
    // The window of that name, with its caption and its text.
    explicit TextHelpWindow(const QString& name, QWidget* parent = nullptr);
};

// The picture of the system: the programs, the files between them, and what carries what.
class DiagramPicture : public QWidget {
    Q_OBJECT
public:
    explicit DiagramPicture(QWidget* parent = nullptr);
    // The titles of the parts drawn, programs and files.
    static QStringList partTitles();
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class frmDiagram : public PlainHelpWindow {
    Q_OBJECT
public:
    explicit frmDiagram(AppContext& context, QWidget* parent = nullptr);
};

} // namespace brooklet
