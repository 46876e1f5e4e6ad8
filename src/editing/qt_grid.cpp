#include "editing/qt_grid.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QScrollBar>

namespace brooklet {

// Notes the row under the mouse at each press on the table.
class QtGrid::MouseWatcher : public QObject {
public:
    MouseWatcher(QtGrid& grid, QObject* parent) : QObject(parent), grid_(grid) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            grid_.setMouseRow(grid_.table()->rowAt(mouse->position().toPoint().y()));
        }
        return false;
    }

private:
    QtGrid& grid_;
};

QtGrid::QtGrid(QTableWidget* table) : table_(table), watcher_(new MouseWatcher(*this, table->viewport())) {
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setAutoScroll(false);
    table_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    table_->viewport()->installEventFilter(watcher_);
    if (table_->currentRow() >= 0)
        row_ = table_->currentRow();
    if (table_->currentColumn() >= 0)
        col_ = table_->currentColumn();
}

QtGrid::~QtGrid() {
    delete watcher_.data();
}

int QtGrid::Row() const {
    return table_->currentRow() >= 0 ? table_->currentRow() : row_;
}

int QtGrid::Col() const {
    return table_->currentColumn() >= 0 ? table_->currentColumn() : col_;
}

void QtGrid::setRow(int row) {
    moveTo(row, Col());
}

void QtGrid::setCol(int col) {
    moveTo(Row(), col);
}

void QtGrid::moveTo(int row, int col) {
    row_ = row;
    col_ = col;
    if (hasCell(row, col))
        table_->setCurrentCell(row, col, QItemSelectionModel::NoUpdate);
}

int QtGrid::TopRow() const {
    return table_->verticalScrollBar()->value();
}

void QtGrid::setTopRow(int row) {
    table_->verticalScrollBar()->setValue(row);
}

void QtGrid::AddItem(const std::string& Text, int Row) {
    const int row = (Row < 0 || Row > Rows()) ? Rows() : Row;
    table_->insertRow(row);
    const QStringList cells = fromBytes(Text).split(QLatin1Char('\t'));
    for (int col = 0; col < Cols() && col < cells.size(); ++col)
        if (!cells[col].isEmpty())
            itemAt(row, col)->setText(cells[col]);
}

void QtGrid::RemoveItem(int Row) {
    if (Row >= 0 && Row < Rows())
        table_->removeRow(Row);
}

QTableWidgetItem* QtGrid::itemAt(int row, int col) {
    QTableWidgetItem* item = table_->item(row, col);
    if (!item) {
        item = new QTableWidgetItem;
        table_->setItem(row, col, item);
    }
    return item;
}

std::string QtGrid::cellText(int row, int col) const {
    const QTableWidgetItem* item = hasCell(row, col) ? table_->item(row, col) : nullptr;
    return item ? toBytes(item->text()) : std::string();
}

void QtGrid::setCellText(int row, int col, const std::string& text) {
    if (hasCell(row, col))
        itemAt(row, col)->setText(fromBytes(text));
}

Rgb QtGrid::cellColour(int row, int col) const {
    const QTableWidgetItem* item = hasCell(row, col) ? table_->item(row, col) : nullptr;
    if (!item || item->background().style() == Qt::NoBrush)
        return UntouchedColour;
    return fromQColor(item->background().color());
}

void QtGrid::setCellColour(int row, int col, Rgb colour) {
    if (hasCell(row, col))
        itemAt(row, col)->setBackground(toQColor(colour));
}

int gridKeyCode(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
        return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    default:
        break;
    }
    const QString text = event.text();
    if (text.size() == 1 && text[0].unicode() >= 32 && text[0].unicode() < 256)
        return text[0].unicode();
    return 0;
}

GridKeyFeeder::GridKeyFeeder(QTableWidget* table, std::function<void(int& Key)> handler)
    : QObject(table), table_(table), handler_(std::move(handler)) {
    table_->installEventFilter(this);
}

bool GridKeyFeeder::eventFilter(QObject* watched, QEvent* event) {
    if (watched != table_ || event->type() != QEvent::KeyPress)
        return false;
    int key = gridKeyCode(*static_cast<QKeyEvent*>(event));
    if (key == 0)
        return false;
    handler_(key);
    return true;
}

void QtBoxes::setBoxText(int index, const std::string& text) {
    // A cell's text is shown whole, even where it is wider than the box's field.
    if (QLineEdit* box = boxes_(index))
        setTextUncut(box, fromBytes(text));
}

void QtBoxes::setBoxColour(int index, Rgb colour) {
    if (QLineEdit* box = boxes_(index))
        setBackground(box, colour);
}

} // namespace brooklet
