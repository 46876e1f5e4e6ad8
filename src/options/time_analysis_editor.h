#pragma once
// frmTimeA: the editor of section 12, the flow and elevation levels of the time analysis. Each
// row of four boxes is kept free of holes: a box left blank with Tab or Enter closes up its
// row, and a box whose left neighbour is blank hands the focus on to the start of the other
// row.
#include "options/entry_window.h"

namespace brooklet {

class frmTimeA : public EntryWindow {
    Q_OBJECT
public:
    explicit frmTimeA(AppContext& context, QWidget* parent = nullptr);

protected:
    void setDefaults() override;
    void readSection(const std::vector<std::string>& lines) override;
    std::vector<std::string> sectionRecords() override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    int labelOfBox(int index) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    // Box Index takes the text and colour of the boxes behind it in its row; the last of the
    // row is emptied and turned white.
    void closeUpRow(int index);
    // The box that takes the focus instead of box Index, or Index itself.
    int focusTarget(int index) const;
};

} // namespace brooklet
