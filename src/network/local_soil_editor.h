#pragma once
// The two windows on the local soil file. frmLocalSoil edits the soils and their hydrologic
// soil groups; it is opened from the File menu of the main window. frmDisplaySoil shows the
// soils sorted, with a find box, as a look-up aid beside the land use calculator.
#include "editing/grid_editor.h"
#include "network/local_table_window.h"

#include <memory>

class QCheckBox;
class QTableWidget;

namespace brooklet {

class QtGrid;

class frmLocalSoil : public LocalTableWindow {
    Q_OBJECT
public:
    explicit frmLocalSoil(AppContext& context, QWidget* parent = nullptr);

    // The table behind the window: rows 1 to LocalSoil.Count, the identifier, then "A" or
    // empty, "B" or empty, "C" or empty, "D" or empty.
    const LocalTable& LocalSoil = Table;

protected:
    void showRow(int row) override;
    void clearBoxes() override;
    void storeBoxes() override;
    BoxRequest deleteQuestion() const override;
    void forgetDeletedRow() override;
    std::vector<std::string> fileLines() override;
    const std::string& filePath() const override;
    bool checkBox(int index) override;
    int nextBox(int) const override { return 1; }

private:
    void buildControls();
    void Form_Load();

    ControlArray<QCheckBox> Check1; // one per group, 2 to 5 for A to D
    ControlArray<QLabel> lblStatic;
};

class frmDisplaySoil : public QWidget {
    Q_OBJECT
public:
    explicit frmDisplaySoil(AppContext& context, QWidget* parent = nullptr);
    ~frmDisplaySoil() override;

    // The grid's own variables of the row marking: the soil display may stand beside the land
    // use calculator, whose marked cell it must not move.
    const GridContext& gridState() const { return grid_; }

private:
    void buildControls();
    void Form_Load();
    // Each change of the find box.
    void findSoil();

    AppContext& context_;
    QTableWidget* MSFlexGrid1 = nullptr;
    std::unique_ptr<QtGrid> grid;
    ControlArray<QLineEdit> txtInp;
    ControlArray<QLineEdit> txtDum;
    QPushButton* cmdCancel = nullptr;
    GridContext grid_;
    bool finding_ = false;
};

} // namespace brooklet
