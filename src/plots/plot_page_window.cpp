#include "plots/plot_page_window.h"

#include <QLabel>
#include <QMenuBar>
#include <QPixmap>

#include "editing/app_context.h"
#include "editing/widgets.h"
#include "plots/plot_painter.h"
#include "session/qt_platform.h"

namespace brooklet {

frmGraphPP::frmGraphPP(AppContext& context, QWidget* parent)
    : QMainWindow(parent, Qt::Window), context_(context) {
    setObjectName("frmGraphPP");
    setWindowTitle("Print Preview");
    setAccessibleName(windowTitle());
    QAction* mnuExit = menuBar()->addAction("E&xit");
    mnuExit->setObjectName("mnuExit");
    connect(mnuExit, &QAction::triggered, this, &QWidget::close);
    auto* page = new QWidget(this);
    nameControl(page, "page", "Page");
    page->setAutoFillBackground(true);
    setBackground(page, {255, 255, 255});
    GraphicsPicture = new QLabel(page);
    nameControl(GraphicsPicture, "GraphicsPicture", "Plot page");
    GraphicsPicture->move(0, 0);
    if (const std::optional<Bitmap> picture = context_.platform.clipboardBitmap()) {
        GraphicsPicture->setPixmap(QPixmap::fromImage(toQImage(*picture)));
        GraphicsPicture->resize(picture->width, picture->height);
    }
    setCentralWidget(page);
    move(0, 0);
}

void frmGraphPP::takePlot(const QString& plotCaption, QSize graphSize) {
    setWindowTitle(plotCaption + " Print ");
    setAccessibleName(windowTitle());
    GraphicsPicture->setGeometry(0, 0, graphSize.width(), graphSize.height());
    // Room for the caption, the menu and the frame, as 340 and 120 twips.
    resize(graphSize.width() + int(120 / TwipsPerPixel), graphSize.height() + int(340 / TwipsPerPixel));
}

void frmGraphPP::PrintForm() {
    const std::optional<Bitmap> picture = context_.platform.clipboardBitmap();
    std::unique_ptr<PrintTarget> printer = context_.platform.openPresentPrinter();
    if (!printer || !picture)
        return;
    printer->drawBitmap(*picture, 0, 0);
    printer->endDoc();
}

} // namespace brooklet
