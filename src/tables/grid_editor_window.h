#pragma once
// The grid editor pattern: a tabular window whose entries are tables of rows, kept in
// ascending order of their first column, the key. The boxes KeyBox..LastBox are the editor of
// the current grid row: nothing is typed into the grid itself. Typing a key places the row (an
// equal key selects the row that has it); the boxes behind it go into the row's cells when they
// are checked, and must rise strictly with the key where the window says so. Tab or Enter past
// the last box moves on to the next row. A click picks a row, a right click deletes the current
// row after a question. Ctrl+V in the grid or its boxes types the rows of spreadsheet text into
// the boxes, row by row; Ctrl+C in the grid copies the rows chosen with a Shift click (from the
// current row to the row clicked) as spreadsheet text. In a box, a single value is pasted and
// the text chosen is copied, through the platform's clipboard.
//
// A window derives from GridEditorWindow with its RowGridDesign, builds its controls with
// addGrid among the entry window's helpers, and tells its field checks (validateBox), which
// boxes are checked blank, which columns must rise, and its section codec.
#include <QStringList>

#include <memory>

#include "tables/identifier_window.h"

class QTableWidget;

namespace brooklet {

class QtGrid;
class QtBoxes;

struct RowGridDesign {
    int KeyBox = 3;                   // the box of the grid's key column, column 0
    int LastBox = 5;                  // the box of the grid's last column
    int NewEntryClearsTo = 5;         // a new entry empties boxes 2 to this one
    QStringList Heads;                // the column heads, in the grid's fixed row
    int HeadHeightTwips = 0;          // the height of the fixed row; 0 for an ordinary row
    BoxRequest RowQuestion;           // the question before a row is deleted
    bool ScrollsAfterLastBox = false; // moving on past the last box scrolls the grid as a key does
};

class GridEditorWindow : public IdentifierWindow {
    Q_OBJECT
public:
    QTableWidget* grid() const { return MSFlexGrid1; }

    // A left click on grid row Row: it becomes the current row, or the first free row if it
    // lies beyond; the key box takes the focus. With Shift, the rows from the current row to Row
    // are selected for copying instead, and the current row stays.
    void pickRow(int Row, bool extendSelection = false);
    // A right click: the current row is deleted after the question.
    void deleteRow();
    // Ctrl+V: each row of the clipboard text goes into the boxes and is checked as if typed, cell
    // by cell, and the next row comes; a refused value is also marked red in the grid. A refused
    // key ends the paste, its box red and holding the focus.
    void pasteRows();
    // Ctrl+C: the selected rows in use as spreadsheet text.
    void copyRows();

protected:
    GridEditorWindow(AppContext& context, EntryDesign design, TabularDesign tabularDesign,
                     RowGridDesign rowDesign, QWidget* parent = nullptr);
    ~GridEditorWindow() override;

    // MSFlexGrid1: the fixed row of heads and ten free rows, columns of the given width.
    QTableWidget* addGrid(const QString& accessibleName, int columnWidthTwips);
    // A comment label lblComment(Index).
    QLabel* addComment(int index, const QString& caption);
    // A decoration line Line1(Index).
    QWidget* addLine(int index);

    // The field's own check of a box that is not blank, or that the window checks blank.
    virtual void validateBox(int index, const std::string& text, bool& valid) = 0;
    // Whether box Index is checked when blank.
    virtual bool checkedWhenBlank(int) const { return false; }
    // Whether the value of box Index must lie strictly between those of the rows above and below.
    virtual bool mustRise(int index) const = 0;
    // The grid variables and the tables at load, before the work file is read.
    void setDefaults() override;
    // The grid on row 1, the list of identifiers filled.
    void afterLoad() override;
    // Fills the identifier list at load.
    virtual void fillIdentifierList() = 0;

    bool checkBox(int index) override;
    void storeGrid() override;
    void showEntryGrid(int entry) override;
    void clearGrid() override;
    void startNewEntry() override;
    void updatePlotButton() override;
    void moveOn(int from) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    const RowGridDesign& rowDesign() const { return rowDesign_; }

    QTableWidget* MSFlexGrid1 = nullptr;

private:
    // The boxes of the grid row, KeyBox..LastBox.
    bool isRowBox(int index) const { return index >= rowDesign_.KeyBox && index <= rowDesign_.LastBox; }
    int boxIndexOf(QObject* control) const;
    // The key box: the row is placed or found, marked and loaded into the boxes.
    void placeKey(const std::string& text, bool valid);
    // The value of box Index goes into the current row; false when it does not rise there.
    bool putValue(int index, const std::string& text);
    // The focus goes to box Index (or its combo box) with its text selected.
    void focusAndSelect(int index);
    // On to the next row, as Tab or Enter past the last box goes.
    void nextRow();
    // Ctrl+V and Ctrl+C in the grid, or in a row box where they are meant for the rows.
    bool clipboardKey(QObject* watched, QKeyEvent* key);

    RowGridDesign rowDesign_;
    std::unique_ptr<QtGrid> Grid;
    std::unique_ptr<QtBoxes> Boxes;
    bool movingOn_ = false;
    // The row picked with Shift for copying; -1 for none.
    int selectionEnd_ = -1;
};

} // namespace brooklet
