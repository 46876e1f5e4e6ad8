#include "plots/schematic_window.h"

#include "editing/app_context.h"
#include "editing/numbers.h"
#include "editing/widgets.h"
#include "plots/picture_export.h"
#include "plots/print_dialog.h"
#include "plots/schematic_drawing.h"
#include "session/qt_platform.h"
#include "session/section_table.h"
#include "session/text_file.h"

#include <QHelpEvent>
#include <QImage>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QToolBar>
#include <QToolTip>

namespace brooklet {

// TopoPic: the drawing surface. It paints through the one drawing routine and hands its mouse
// to the window's tools.
class SchematicSurface : public QWidget {
public:
    explicit SchematicSurface(frmTopoModel* window) : QWidget(window), window_(window) {
        setMouseTracking(true);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawSchematic(painter, window_->schematic_, window_->schematic_.scale(), window_->background_,
                      window_->windowWidthTwips());
        if (auto box = window_->zoomBox()) {
            const SurfaceScale& scale = window_->schematic_.scale();
            painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(QPointF(scale.toPixelX(box->first.x), scale.toPixelY(box->first.y)),
                                    QPointF(scale.toPixelX(box->second.x), scale.toPixelY(box->second.y)))
                                 .normalized());
        }
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            window_->mouseDown(event->position());
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (event->buttons() & Qt::LeftButton)
            window_->mouseMove(event->position());
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            window_->mouseUp(event->position());
    }
    void resizeEvent(QResizeEvent*) override { window_->surfaceResized(); }
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip) {
            auto* help = static_cast<QHelpEvent*>(event);
            const QString tip = window_->tipAt(help->pos());
            if (tip.isEmpty())
                QToolTip::hideText();
            else
                QToolTip::showText(help->globalPos(), tip, this);
            return true;
        }
        return QWidget::event(event);
    }

private:
    frmTopoModel* window_;
};

namespace {

QAction* menuItem(QMenu* menu, const QString& name, const QString& caption) {
    QAction* action = menu->addAction(caption);
    nameControl(action, name, QString(caption).remove('&'));
    return action;
}

QAction* toggleItem(QMenu* menu, const QString& name, const QString& caption) {
    QAction* action = menuItem(menu, name, caption);
    action->setCheckable(true);
    action->setChecked(true);
    return action;
}

} // namespace

frmTopoModel::frmTopoModel(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {
    setObjectName("frmTopoModel");
    setWindowTitle("Brooklet Watershed Schematic");
    setAccessibleName(windowTitle());

    QMenu* mnuFile = menuBar()->addMenu("&File");
    nameControl(mnuFile, "mnuFile", "File");
    QAction* mnuSaveAs = menuItem(mnuFile, "mnuSaveAs", "Save &As...");
    QAction* mnuPrint = menuItem(mnuFile, "mnuPrint", "&Print");
    mnuPrint->setShortcut(QKeySequence::Print);
    mnuFile->addSeparator()->setObjectName("mnuNull");
    QAction* mnuExit = menuItem(mnuFile, "mnuExit", "E&xit");
    QMenu* mnuEdit = menuBar()->addMenu("&Edit");
    nameControl(mnuEdit, "mnuEdit", "Edit");
    QAction* mnuCopy = menuItem(mnuEdit, "mnuCopy", "&Copy");
    mnuCopy->setShortcut(QKeySequence::Copy);
    QMenu* mnuView = menuBar()->addMenu("&View");
    nameControl(mnuView, "mnuView", "View");
    mnuLabels = toggleItem(mnuView, "mnuLabels", "&Labels");
    mnuLegend = toggleItem(mnuView, "mnuLegend", "L&egend");
    mnuSubAreas = toggleItem(mnuView, "mnuSubAreas", "&Sub-Areas");
    connect(mnuSaveAs, &QAction::triggered, this, &frmTopoModel::saveSchematicAs);
    connect(mnuPrint, &QAction::triggered, this, &frmTopoModel::printSchematic);
    connect(mnuExit, &QAction::triggered, this, &QWidget::close);
    connect(mnuCopy, &QAction::triggered, this, &frmTopoModel::copySchematic);
    for (QAction* item : {mnuLabels, mnuLegend, mnuSubAreas})
        connect(item, &QAction::triggered, this, [this, item] { toggle(item); });

    GraphToolBar = addToolBar("Schematic tools");
    nameControl(GraphToolBar, "GraphToolBar", "Schematic tools");
    GraphToolBar->setMovable(false);
    GraphToolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const std::pair<const char*, const char*> tools[] = {{"Frame", "Frame All"},  {"ZoomIn", "Zoom In"},
                                                         {"ZoomOut", "Zoom Out"}, {"Pan", "Pan"},
                                                         {"Drag", "Drag"},        {"Pointer", "Pointer"}};
    for (const auto& [key, caption] : tools) {
        QAction* tool = GraphToolBar->addAction(caption);
        nameControl(tool, key, caption);
        connect(tool, &QAction::triggered, this, [this, key = QString(key)] { toolClicked(key); });
    }

    TopoPic = new SchematicSurface(this);
    nameControl(TopoPic, "TopoPic", "Watershed schematic");
    setCentralWidget(TopoPic);
    resize(800, 600);
}

QWidget* frmTopoModel::surface() const {
    return TopoPic;
}

double frmTopoModel::windowWidthTwips() const {
    return width() * TwipsPerPixel;
}

bool frmTopoModel::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    return QMainWindow::event(event);
}

void frmTopoModel::Form_Activate() {
    if (closing_ || activating_)
        return;
    activating_ = true;
    schematic_ = Schematic();
    TopoPic->update();
    const std::string& file = context_.session.CurrentFile;
    if (trim(file).empty()) {
        closing_ = true;
        close();
        if (QWidget* main = context_.windows.loaded("frmMain")) {
            main->raise();
            main->activateWindow();
        }
        activating_ = false;
        return;
    }
    if (QWidget* main = context_.windows.loaded("frmMain"); main && !main->isMinimized())
        resize(main->size());
    NetworkReading reading = LoadNetwork(file);
    if (reading.error) {
        closing_ = true;
        context_.platform.showBox(*reading.error);
        close();
        activating_ = false;
        return;
    }
    schematic_ = Schematic(std::move(reading.network));
    schematic_.Labels = mnuLabels->isChecked();
    schematic_.Legend = mnuLegend->isChecked();
    mnuSubAreas->setChecked(true);
    BuildSchematic();
    activating_ = false;
}

void frmTopoModel::BuildSchematic() {
    schematic_.SubAreas = mnuSubAreas->isChecked();
    schematic_.Labels = mnuLabels->isChecked();
    schematic_.Legend = mnuLegend->isChecked();
    schematic_.setSurfaceSize(TopoPic->width(), TopoPic->height());
    schematic_.layOut();
    FitView();
}

void frmTopoModel::FitView() {
    schematic_.FitView();
    TopoPic->update();
}

void frmTopoModel::ApplyView() {
    schematic_.ApplyView();
    TopoPic->update();
}

QString frmTopoModel::tipAt(QPointF pixel) const {
    const int index = schematic_.elementAt(schematic_.scale().toUnits(pixel.x(), pixel.y()));
    return index ? fromBytes(schematic_.network().element(index).Name + " ") : QString();
}

QImage frmTopoModel::surfaceImage(Rgb background) const {
    QImage image(TopoPic->size(), QImage::Format_ARGB32);
    QPainter painter(&image);
    drawSchematic(painter, schematic_, schematic_.scale(), background, windowWidthTwips());
    return image;
}

void frmTopoModel::surfaceResized() {
    if (isMinimized())
        return;
    BuildSchematic();
}

void frmTopoModel::toggle(QAction* item) {
    (void)item; // the check mark is reversed by the menu itself
    BuildSchematic();
}

std::optional<std::pair<DrawingPoint, DrawingPoint>> frmTopoModel::zoomBox() const {
    if (!boxShown_)
        return std::nullopt;
    return std::make_pair(start_, last_);
}

void frmTopoModel::toolClicked(const QString& key) {
    if (key == "Frame") {
        FitView();
    } else if (key == "ZoomIn" || key == "ZoomOut") {
        ZoomArmed = -1;
        ZoomMode = key == "ZoomIn" ? 1 : 2;
        PanOn = DragOn = 0;
        TopoPic->setCursor(ZoomCursor(ZoomMode == 1));
    } else if (key == "Pan") {
        PanOn = 1;
        ZoomArmed = ZoomMode = DragOn = 0;
        TopoPic->setCursor(Qt::CrossCursor);
    } else if (key == "Drag") {
        DragOn = 1;
        ZoomMode = PanOn = 0;
        TopoPic->setCursor(Qt::OpenHandCursor);
    } else if (key == "Pointer") {
        TopoPic->unsetCursor();
        ZoomArmed = ZoomMode = 0;
    }
}

void frmTopoModel::mouseDown(QPointF pixel) {
    const DrawingPoint point = schematic_.scale().toUnits(pixel.x(), pixel.y());
    if (ZoomMode >= 1 && ZoomArmed)
        start_ = last_ = end_ = point;
    if (DragOn)
        last_ = point;
}

void frmTopoModel::mouseMove(QPointF pixel) {
    const DrawingPoint point = schematic_.scale().toUnits(pixel.x(), pixel.y());
    if (ZoomMode >= 1) {
        if (ZoomArmed) {
            last_ = start_;
            ZoomArmed = 0;
        }
        // The box follows the mouse from its start.
        last_ = point;
        boxShown_ = true;
        TopoPic->update();
    }
    if (DragOn) {
        const double dx = last_.x - point.x, dy = last_.y - point.y;
        schematic_.ViewLeft += dx;
        schematic_.ViewRight += dx;
        schematic_.ViewTop += dy;
        schematic_.ViewBottom += dy;
        ApplyView();
        // The point taken up stays under the mouse.
        last_ = schematic_.scale().toUnits(pixel.x(), pixel.y());
    }
}

void frmTopoModel::mouseUp(QPointF pixel) {
    const DrawingPoint point = schematic_.scale().toUnits(pixel.x(), pixel.y());
    if (ZoomMode >= 1) {
        boxShown_ = false;
        ZoomArmed = 0;
        end_ = point;
        const double X1 = std::min(start_.x, end_.x), X2 = std::max(start_.x, end_.x);
        const double Y1 = std::min(start_.y, end_.y), Y2 = std::max(start_.y, end_.y);
        const double Cx = (X1 + X2) / 2, Cy = (Y1 + Y2) / 2;
        // The zoom steps go by what the surface shows.
        const SurfaceScale& scale = schematic_.scale();
        double halfWidth = 0, halfHeight = 0;
        if (ZoomMode == 1 && (X2 - X1 < 20 || Y2 - Y1 < 20)) {
            halfWidth = 3 * 0.1 * scale.ScaleWidth;
            halfHeight = 3 * 0.1 * scale.ScaleHeight;
        } else if (ZoomMode == 1) {
            halfWidth = (X2 - X1) / 2;
            halfHeight = (Y2 - Y1) / 2;
        } else {
            halfWidth = 0.6 * scale.ScaleWidth;
            halfHeight = 0.6 * scale.ScaleHeight;
        }
        schematic_.ViewLeft = Cx - halfWidth;
        schematic_.ViewRight = Cx + halfWidth;
        schematic_.ViewTop = Cy - halfHeight;
        schematic_.ViewBottom = Cy + halfHeight;
        ZoomArmed = -1;
        ApplyView();
    } else if (PanOn) {
        const double dx = point.x - (schematic_.ViewLeft + schematic_.ViewRight) / 2;
        const double dy = point.y - (schematic_.ViewTop + schematic_.ViewBottom) / 2;
        schematic_.ViewLeft += dx;
        schematic_.ViewRight += dx;
        schematic_.ViewTop += dy;
        schematic_.ViewBottom += dy;
        ApplyView();
    }
}

// The copy is drawn on white; the surface goes back to its own colour.
void frmTopoModel::copySchematic() {
    background_ = CopyBackground;
    ApplyView();
    CopySchematic();
    background_ = SchematicBackground;
    ApplyView();
}

void frmTopoModel::CopySchematic() {
    CopyPictureToClipboard(context_.platform, surfaceImage(background_));
}

// The schematic goes to the present printer as the picture a copy takes, after a blank line.
void frmTopoModel::printSchematic() {
    clsPrintDialog dialog(context_.platform);
    dialog.Flags = PrintPageNumbersFlag | PrintNoSelectionFlag;
    dialog.setMin(1);
    dialog.CancelError = true;
    if (!dialog.ShowPrinter())
        return;
    context_.platform.clearClipboard();
    background_ = CopyBackground;
    ApplyView();
    CopySchematic();
    if (std::unique_ptr<PrintTarget> printer = context_.platform.openPresentPrinter()) {
        printer->printLine(" ");
        if (const std::optional<Bitmap> picture = context_.platform.clipboardBitmap())
            printer->drawBitmap(*picture, 0, 0);
        printer->endDoc();
    }
    background_ = SchematicBackground;
    ApplyView();
}
namespace {

// The format by the file's extension; a name without one of the three becomes a PNG file.
PictureFormat exportFormat(std::string& path) {
    const std::optional<PictureFormat> format = PictureFormatOf(path);
    if (format == PictureFormat::Svg || format == PictureFormat::Pdf)
        return *format;
    if (format != PictureFormat::Png)
        path += ".png";
    return PictureFormat::Png;
}

} // namespace

QByteArray frmTopoModel::exportBytes(const std::string& path) const {
    std::string name = path;
    const PictureFormat format = exportFormat(name);
    if (format == PictureFormat::Png)
        return ImageFileBytes(surfaceImage(CopyBackground), format);
    const QString title = windowTitle() + " - " + pathToQt(context_.session.CurrentFile);
    return DrawingFileBytes(format, TopoPic->size(), title, [this](QPainter& painter) {
        drawSchematic(painter, schematic_, schematic_.scale(), CopyBackground, windowWidthTwips());
    });
}

// Save As: the schematic as it stands in the window, as a PNG picture or as an SVG or PDF
// drawing of lines and text, on white.
void frmTopoModel::saveSchematicAs() {
    FileDialogSettings dialog;
    dialog.DialogTitle = "Save Schematic As";
    dialog.Filter = "PNG Picture (*.png)|*.png|SVG Drawing (*.svg)|*.svg|PDF Document (*.pdf)|*.pdf";
    dialog.FileName = BaseName(context_.session.CurrentFile) + "png";
    dialog.InitDir = DirectoryPart(context_.session.CurrentFile);
    // An existing file is replaced only when the user confirms it.
    dialog.ConfirmOverwrite = true;
    std::optional<std::string> chosen = context_.platform.showSaveDialog(dialog);
    if (!chosen || chosen->empty())
        return;
    exportFormat(*chosen);
    const QByteArray bytes = exportBytes(*chosen);
    const WriteResult written = writeFileAtomically(*chosen, std::string(bytes.constData(), bytes.size()));
    if (!written.ok)
        context_.platform.showBox(
            {"The schematic could not be saved as " + *chosen + " (" + written.error + ").", SystemBoxTitle,
             BoxButtons::Ok, BoxIcon::Exclamation});
}

} // namespace brooklet
