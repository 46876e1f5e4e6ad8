#pragma once
// frmGraphPP: the page of a plot as it prints, the picture the plot window put on the clipboard
// at the top left. The plot window makes it to preview the page or, unseen, to print it.
#include <QMainWindow>

class QLabel;

namespace brooklet {

struct AppContext;

class frmGraphPP : public QMainWindow {
    Q_OBJECT
public:
    // Loads at the top left, with the clipboard's picture.
    explicit frmGraphPP(AppContext& context, QWidget* parent = nullptr);

    // Takes the plot's caption and size: the picture at the top left in the plot's size, the
    // window a little larger.
    void takePlot(const QString& plotCaption, QSize graphSize);
    // Prints the page on the present printer: its picture at the top left of the paper. Without a
    // printer nothing is printed.
    void PrintForm();

private:
    AppContext& context_;
    QLabel* GraphicsPicture = nullptr;
};

} // namespace brooklet
