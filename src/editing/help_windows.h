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
    // Adds a text of paragraphs, each a plain text, in a box the user can read and select.
    void addText(const QStringList& paragraphs);
    void addContent(QWidget* content);
};

class frmAbout : public PlainHelpWindow {
    Q_OBJECT
public:
    explicit frmAbout(AppContext& context, QWidget* parent = nullptr);
};

class frmOverview : public PlainHelpWindow {
    Q_OBJECT
public:
    explicit frmOverview(AppContext& context, QWidget* parent = nullptr);
};

class frmHelpFac : public PlainHelpWindow {
    Q_OBJECT
public:
    explicit frmHelpFac(AppContext& context, QWidget* parent = nullptr);
};

class frmGettingStarted : public PlainHelpWindow {
    Q_OBJECT
public:
    explicit frmGettingStarted(AppContext& context, QWidget* parent = nullptr);
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
