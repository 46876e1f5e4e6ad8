#pragma once
// The entry window pattern that every editor window follows. A window reads its section's work
// file into its controls when it loads, works on its controls only while the user edits, and
// rewrites the whole work file on "Accept Changes". Tab or Enter in a box checks the box, eats
// the key and moves the focus by the window's own order of indexes; a refused box keeps the
// focus. A click on a label toggles its help. When the window closes, the main window refreshes
// its section list.
//
// A window derives from EntryWindow, builds its controls, then calls Form_Load; it tells only
// what differs: its defaults, how it reads and writes its records, its checks and its order.
//
// From the keyboard, Escape is "No Changes" and Ctrl+Enter "Accept Changes". Closing the window
// by its close box after the user changed something asks whether to keep the changes, and so
// does every command that closes the window to begin another session or to end the program.
//
// A window opened from this one to work on its data (a calculator of the sub-area window, a
// window on an alternate) is its child: before this window writes or closes, the child closes,
// asked first whether to keep its changes, so what it holds never lands anywhere else.
#include <QPointer>
#include <QWidget>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "editing/help_view.h"
#include "editing/widgets.h"
#include "session/messages.h"
#include "session/window_host.h"

class QButtonGroup;
class QGridLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace brooklet {

struct AppContext;
struct Session;
class TextTable;

// What an editor window is by design.
struct EntryDesign {
    QString Window;       // its name, "frmFlume"
    QString Caption;      // the caption it was designed with
    int CaptionKeep = 0;  // how many characters of it the run-time caption keeps
    std::string HelpCode; // the code of its help entries
    int Section = 0;      // the section whose work file it edits
};

class EntryWindow : public QWidget, public SessionEditor {
    Q_OBJECT
public:
    const EntryDesign& design() const { return design_; }
    bool accepting() const { return Accepting; }
    // The box index that the last Tab or Enter sent the focus to; -1 before any.
    int focusMovedTo() const { return focusMovedTo_; }

    // "Accept Changes": writes the section from the controls, sets DataChanged and closes.
    virtual void acceptChanges();
    // "No Changes": closes; nothing is written and DataChanged stays as it was.
    void noChanges();
    // Closes the window as its close box does: after a change, the question whether to keep
    // it comes first. False when the window stays open (Cancel, or an Accept that could not
    // write its work file).
    bool closeAsking();
    // Makes a window opened from this one on this one's data its child: the child closes
    // before this window writes or closes.
    void adoptChild(EntryWindow* child);

    // The user changed something since the window first showed (editState).
    bool holdsTyping() const override;
    BoxRequest typingQuestion() const override;
    // "Accept Changes", as a click on it does; true when the window has closed.
    bool keepTyping() override;

    // Shows the entry named Entry (a window of one entry is that entry) and gives box Box the
    // focus, as a finding of Check Watershed asks. False when the window has no such entry:
    // then nothing is shown and nothing new is made.
    virtual bool showEntry(const std::string& entry, int box);

protected:
    EntryWindow(AppContext& context, EntryDesign design, QWidget* parent = nullptr);

    // The load: caption with the current file, help code, flags, the defaults, then the work
    // file when it has content. A missing or empty work file leaves the defaults.
    void Form_Load();

    // The controls' values before the work file is read.
    virtual void setDefaults() = 0;
    // The lines of a work file that has content, its header line first.
    virtual void readSection(const std::vector<std::string>& lines) = 0;
    // The last step of the load, after the work file.
    virtual void afterLoad() {}
    // The whole section from the current controls, at Accept; no lines leave the file empty.
    virtual std::vector<std::string> sectionRecords() = 0;
    // Whether the Accept that has just written the work file sets DataChanged.
    virtual bool acceptSetsDataChanged() const { return true; }
    // Checks box Index on Tab or Enter and paints it; false when the box is refused.
    virtual bool checkBox(int index) = 0;
    // The box that Tab or Enter leads to from box Index (from Index - 1 after a refusal).
    virtual int nextBox(int index) const { return index + 1; }
    // The label whose help F1 shows in box Index.
    virtual int labelOfBox(int index) const { return index; }
    // Gives box Index the focus.
    virtual void focusBox(int index);

    // Building the window: a header, rows of label, fields and unit word, the two buttons and
    // the help box below them.
    HelpLabel* addHeader(const QString& caption);
    HelpLabel* addLabel(int index, const QString& caption);
    // A box of a field of FieldWidth columns takes no more characters than that; a box that
    // fills no field (a shadow of a list, a calculated display) is built with 0.
    QLineEdit* addBox(int index, const QString& accessibleName, int fieldWidth = StandardFieldWidth);
    QLabel* addUnitLabel(int index);
    QRadioButton* addOption(ControlArray<QRadioButton>& array, const QString& arrayName, int index,
                            const QString& caption, QButtonGroup* group);
    void addRow(QWidget* label, std::initializer_list<QWidget*> fields, QWidget* unit = nullptr);
    void addButtons(const QString& cancelCaption, const QString& finishedCaption,
                    std::initializer_list<QPushButton*> leading = {});
    // A button of the window's button row, named by its design name and its caption.
    QPushButton* makeButton(const QString& name, const QString& caption);
    // A control that, given the focus by the keyboard, hands it on to box Index.
    void passFocusOn(QWidget* control, int index);

    // Closes the children as their close boxes do, each asked about its changes; while every
    // session window closes, they close unasked. False when one of them stays open, and the
    // step that asked goes no further.
    bool closeChildren();

    // Paints a checked box: its window's accepted colour, or red.
    void paintBox(int index, bool valid);
    // Toggles help item Index of this window (0 for the header).
    void showHelp(int index);
    // Shows a note of the window's own in the help box, in place of any help item.
    void showNote(const std::string& note);
    // Whether every box holds no more than its field's columns; the first box that holds more
    // turns red, takes the focus and the help box says why. Accept writes nothing until then.
    bool boxesFitTheirFields();

    // What the user can change, as texts: compared with what it was when the window first
    // showed, it tells whether closing by the close box loses anything. By default the texts,
    // ticks, choices, lists and grid cells of every control; a window that keeps edits
    // elsewhere too adds them.
    virtual QStringList editState() const;
    // The tables in memory where the window stores typing away from its controls (the entries
    // not on show), as bytes; compared in the same way. None by default.
    virtual void addHeldData(std::string& /*data*/) const {}
    // A table's texts as bytes, up to its last row holding any, for addHeldData.
    static void appendTable(std::string& data, const TextTable& table);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    AppContext& context;
    Session& session;
    ControlArray<QLineEdit> txtInp;
    ControlArray<HelpLabel> lblInput;
    ControlArray<QLabel> lblInUnit;
    HelpLabel* lblHeader = nullptr;
    QPlainTextEdit* txtHelp = nullptr;
    QPushButton* cmdFinished = nullptr;
    QPushButton* cmdCancel = nullptr;
    // Set by Accept: only then does a box that loses the focus get checked.
    bool Accepting = false;

private:
    void boxKey(int index);
    // Escape and Ctrl+Enter press the window's buttons; their tool tips and descriptions say so.
    void addCloseKeys();
    void describeCloseKeys();
    // The button, as a click on it does; the routine when the window has no such button.
    void press(QPushButton* button, void (EntryWindow::*routine)());
    // The question of the close box, asked when the user changed something.
    BoxRequest keepChangesQuestion() const;
    int boxIndexOf(QObject* control) const;

    EntryDesign design_;
    QGridLayout* form_ = nullptr;
    int focusMovedTo_ = -1;
    std::map<QObject*, int> passOn_;
    QStringList shownState_;
    std::string shownData_;
    bool stateTaken_ = false;
    std::vector<QPointer<EntryWindow>> children_;
};

} // namespace brooklet
