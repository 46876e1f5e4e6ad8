#pragma once
// What the tests of the row grid windows share: the window opened as the user opens it, its
// combo box, boxes and grid, typing with Tab and Enter, clicks on grid rows, the work file, and
// a stand-in plot window that notes what it was handed.
#include "../network/local_window_fixture.h"

#include "editing/colours.h"
#include "session/text_file.h"
#include "tables/grid_editor_window.h"

#include <QTableWidget>

namespace brooklet::test {

// Ten-column fields of a record, as the sections write them.
inline std::string tens(std::initializer_list<std::string> fields) {
    std::string record;
    for (const std::string& text : fields)
        record += text + std::string(text.size() < 10 ? 10 - text.size() : 0, ' ');
    return record;
}

// Stands in for the plot window: notes the plot kind and the entry handed over, then closes
// itself once its events run, as a user closing it would.
class PlotWindowStandIn : public QWidget {
public:
    PlotWindowStandIn(AppContext& context, const QString& editor) {
        kind = context.plots.PlotKind;
        if (QWidget* window = context.windows.loaded(editor))
            entry = window->property("Tag").toString();
        opened += 1;
    }
    static inline int kind = 0;
    static inline QString entry;
    static inline int opened = 0;
    static inline bool wasModal = false;

protected:
    void showEvent(QShowEvent*) override {
        wasModal = isModal();
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    }
};

template <typename W> class GridWindowTest : public LocalWindowTest<W> {
protected:
    GridWindowTest(QString name, int section)
        : LocalWindowTest<W>(name), name_(std::move(name)), section_(section) {
        PlotWindowStandIn::kind = 0;
        PlotWindowStandIn::entry.clear();
        PlotWindowStandIn::opened = 0;
    }

    void writeWorkFile(const std::vector<std::string>& lines) {
        writeBytes(this->workFile(section_), crlf(lines));
    }
    std::string workFileBytes() { return bytesOf(this->workFile(section_)); }
    QTableWidget* grid() { return this->template control<QTableWidget>(this->window, "MSFlexGrid1"); }
    QPushButton* plotButton() { return this->button("CmdPlot"); }
    std::string cell(int row, int col) {
        const QTableWidgetItem* item = grid()->item(row, col);
        return item ? toBytes(item->text()) : std::string();
    }
    Texts gridRow(int row) {
        Texts texts;
        for (int col = 0; col < grid()->columnCount(); ++col)
            texts.push_back(cell(row, col));
        return texts;
    }
    Rgb cellColour(int row, int col) {
        const QTableWidgetItem* item = grid()->item(row, col);
        return item && item->background().style() != Qt::NoBrush ? fromQColor(item->background().color())
                                                                 : UntouchedColour;
    }
    // Types into the box that has the focus, then presses the key.
    void typeAndPress(int index, const QString& text, Qt::Key key = Qt::Key_Tab) {
        EXPECT_EQ(this->focused(), this->box(index)) << "box " << index << " has not the focus";
        QTest::keyClicks(this->box(index), text);
        QTest::keyClick(this->box(index), key);
    }
    // Types a row into the key box and the boxes behind it, with Tab after each.
    void typeRow(int keyBox, std::initializer_list<QString> texts) {
        int index = keyBox;
        for (const QString& text : texts)
            typeAndPress(index++, text);
    }
    // A click on grid row Row with the button.
    void clickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
        const QRect rect = grid()->visualRect(grid()->model()->index(row, 0));
        QTest::mouseClick(grid()->viewport(), button, {}, rect.center());
    }
    void registerPlotWindow() {
        const QString editor = name_;
        this->context->windows.registerWindow(
            "frmIO_Plots", [editor](AppContext& context) { return new PlotWindowStandIn(context, editor); });
    }

private:
    QString name_;
    int section_;
};

} // namespace brooklet::test
