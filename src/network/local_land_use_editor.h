#pragma once
// frmLocalLanduse: the user's own land uses, each a name with the curve numbers of the four
// hydrologic soil groups, kept in the local land use file of the installation. Opened from the
// File menu of the main window; the land use calculator lists these rows above the standard
// ones, and a save carries those in use into the input file.
#include "network/local_table_window.h"

namespace brooklet {

class frmLocalLanduse : public LocalTableWindow {
    Q_OBJECT
public:
    explicit frmLocalLanduse(AppContext& context, QWidget* parent = nullptr);

    // The table behind the window: rows 1 to LocalLandUse.Count, the name and the curve
    // numbers of groups A, B, C and D.
    const LocalTable& LocalLandUse = Table;

protected:
    void showRow(int row) override;
    void clearBoxes() override;
    void storeBoxes() override;
    BoxRequest deleteQuestion() const override;
    void forgetDeletedRow() override;
    std::vector<std::string> fileLines() override;
    const std::string& filePath() const override;
    bool checkBox(int index) override;
    int nextBox(int index) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void Form_Load();
};

} // namespace brooklet
