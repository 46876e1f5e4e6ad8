#pragma once
// What the local land use window and the local soil window share: an editable list of the
// entries' names, cmbInp(1), with its hidden shadow box txtInp(1), a table of five texts a row
// behind it, the step that runs when the list is left, the delete button with its question,
// and an Accept that writes a file of the installation, not a work file, and leaves the
// data-changed flag alone. Each window tells how it shows, clears and stores its boxes, which
// question it asks and which file it writes.
#include "network/local_table.h"
#include "options/entry_window.h"
#include "session/messages.h"

class QComboBox;

namespace brooklet {

class LocalTableWindow : public EntryWindow {
    Q_OBJECT
public:
    // Leaving the list: the shadow box takes the list's text, the boxes are stored into the
    // row selected before, the last row of that name is selected and shown, or a new row is
    // added for a new name; the list takes the colour of the shadow box.
    void leaveList();
    // cmdDelCur: after a Yes to the question, the row selected is emptied and its name leaves
    // the list; the list takes the focus in any case.
    void deleteCurrent();
    // cmdFinished: the file is written from the table, then the window closes. A file that
    // cannot be written stays as it was, a box says so, and the window stays open with what
    // was typed.
    void finish();

    const LocalTable& table() const { return Table; }

protected:
    LocalTableWindow(AppContext& context, EntryDesign design, int previousAtLoad, QWidget* parent = nullptr);

    // The list and its shadow box, named for a screen reader by the label of the names.
    QComboBox* addList(const QString& accessibleName);
    // cmdDelCur, cmdCancel and cmdFinished in a row, with the help box below them.
    void addCommandButtons(const QString& deleteCaption, const QString& cancelCaption,
                           const QString& finishedCaption);
    // The state at load: the table reset, the list empty.
    void resetTable();
    // A row read from the file; its name joins the list, through AddUnique when unique is set.
    void addLoadedRow(const FiveTexts& row, bool unique);

    // Row Row's fields go to the boxes, which turn white; the list copies the shadow box.
    virtual void showRow(int row) = 0;
    // Empties the boxes of a new name.
    virtual void clearBoxes() = 0;
    // The boxes go back into the row selected before.
    virtual void storeBoxes() = 0;
    // The question cmdDelCur asks.
    virtual BoxRequest deleteQuestion() const = 0;
    // Forgets the row just deleted: the local land use window forgets the row selected before,
    // the soil window the row selected.
    virtual void forgetDeletedRow() = 0;
    // The lines of the file Accept writes, and its path.
    virtual std::vector<std::string> fileLines() = 0;
    virtual const std::string& filePath() const = 0;

    // The window pattern's work file steps have nothing to do here: the file is not a section.
    void setDefaults() override {}
    void readSection(const std::vector<std::string>&) override {}
    std::vector<std::string> sectionRecords() override { return {}; }
    // Box 1 lives in the list.
    void focusBox(int index) override;
    // The rows stored away from the boxes count as edits too.
    QStringList editState() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    // The list copies the shadow box.
    void listCopiesShadow();
    // The check of the shadow box: a name whose trim is longer than Length is cut.
    void cutShadowBox(size_t Length);
    std::string listText() const;

    ControlArray<QComboBox> cmbInp;
    QPushButton* cmdDelCur = nullptr;
    LocalTable Table;

private:
    // Tab or Enter in the list: box 1 is checked and the focus moves on. Enter leaves the list
    // first, and the focus leaving the list on the way is not a second leaving; after Tab the
    // list is left only when the focus goes elsewhere.
    void listKey(bool enter);

    int previousAtLoad_;
    bool movingOn_ = false;
};

} // namespace brooklet
