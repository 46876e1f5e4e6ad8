#pragma once
// The help box of a window on screen: labels that show their help when clicked, and the box
// that shows it. The text comes from the help list file through editing/help_box.
#include <QLabel>
#include <QPlainTextEdit>

#include <string>

namespace brooklet {

struct Session;

// A label that asks for help when it is clicked: lblHeader for the window, lblInput(i) for a
// field. It looks like a link, so the user knows it can be clicked.
class HelpLabel : public QLabel {
    Q_OBJECT
public:
    explicit HelpLabel(const QString& text, QWidget* parent = nullptr);
    // A label that shows no help keeps its ordinary look.
    void setAsksForHelp(bool asks);
    bool asksForHelp() const { return asks_; }

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool asks_ = false;
};

// The box a window keeps for its help, hidden at first.
QPlainTextEdit* makeHelpBox(QWidget* parent);

// Empties the box and hides it.
void HideHelp(QPlainTextEdit* HelpBox);

// Toggles item Index of the window whose help code is Code: a click on the item shown hides it,
// a click on another item shows that one instead. Index 0 is the window's own entry.
void ShowHelpItem(Session& session, int Index, QPlainTextEdit* HelpBox, const std::string& Code);

// The text of the box in the form the help list reader builds it, lines ended by CR LF.
std::string helpBoxText(const QPlainTextEdit* HelpBox);

} // namespace brooklet
