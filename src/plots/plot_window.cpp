#include "plots/plot_window.h"

#include <QAction>
#include <QEventLoop>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolBar>
#include <QToolTip>
#include <QVBoxLayout>

#include "editing/app_context.h"
#include "editing/grid_editor.h"
#include "plots/picture_export.h"
#include "plots/plot_page_window.h"
#include "plots/plot_painter.h"
#include "plots/plot_tools.h"
#include "session/section_table.h"
#include "session/text_file.h"

namespace brooklet {
namespace {

const char* const SourceWindows[] = {"", "frmDimHyd", "frmInpHyd", "frmRainDist", "frmStruct", "frmXsect"};

// The drawing surface's size in twips, as designed.
constexpr int SurfaceWidth = 10800;
constexpr int SurfaceHeight = 6600;
constexpr int LegendStripHeight = 240;
// Labels of the axes, in twips.
constexpr int LabelFontTwips = 150;

int pixels(double twips) {
    return int(twips / TwipsPerPixel + 0.5);
}

// A surface painted in twips by a routine of the window.
class TwipSurface : public QWidget {
public:
    TwipSurface(QWidget* parent, std::function<void(QPainter&)> paint)
        : QWidget(parent), paint_(std::move(paint)) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
        paint_(painter);
    }

private:
    std::function<void(QPainter&)> paint_;
};

} // namespace

// Picture1: the drawing surface. It paints through the window's drawing routine, shows the zoom
// box while it is dragged and hands its mouse to the window's tools.
class PlotSurface : public TwipSurface {
public:
    PlotSurface(frmIO_Plots* window, QWidget* parent)
        : TwipSurface(parent, [window](QPainter& painter) { window->paintSurface(painter); }),
          window_(window) {
        setMouseTracking(true);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        TwipSurface::paintEvent(event);
        if (!window_->boxShown_)
            return;
        QPainter painter(this);
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawRect(QRectF(QPointF(window_->ZoomStartX, window_->ZoomStartY) / TwipsPerPixel,
                                QPointF(window_->ZoomLastX, window_->ZoomLastY) / TwipsPerPixel)
                             .normalized());
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            window_->mouseDown(event->position());
    }
    void mouseMoveEvent(QMouseEvent* event) override { window_->mouseMove(event->position()); }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            window_->mouseUp(event->position(), event->globalPosition().toPoint());
    }

private:
    frmIO_Plots* window_;
};

void PublishPlotEntry(QWidget* editor, int entry) {
    editor->setProperty("Tag", QString::number(entry));
}

frmIO_Plots::frmIO_Plots(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {
    setObjectName("frmIO_Plots");
    setWindowTitle("Input / Output Plots");
    setAccessibleName("Input / Output Plots");

    auto item = [](QMenu* menu, const char* name, const QString& caption) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        return action;
    };
    QMenu* menufile = menuBar()->addMenu("&File");
    menufile->setObjectName("menufile");
    QAction* saveasItem = item(menufile, "saveas", "&Save As");
    saveasItem->setShortcut(QKeySequence::SaveAs);
    QAction* previewItem = item(menufile, "preview", "&Print Preview");
    QAction* printItem = item(menufile, "print", "P&rint");
    printItem->setShortcut(QKeySequence::Print);
    QAction* menuexit = item(menufile, "menuexit", "E&xit");
    connect(saveasItem, &QAction::triggered, this, &frmIO_Plots::saveas);
    connect(previewItem, &QAction::triggered, this, [this] { ShowPlotPage(2); });
    connect(printItem, &QAction::triggered, this, [this] { ShowPlotPage(1); });
    connect(menuexit, &QAction::triggered, this, &QWidget::close);

    QMenu* editfile = menuBar()->addMenu("&Edit");
    editfile->setObjectName("editfile");
    QAction* copyItem = item(editfile, "copy", "&Copy");
    copyItem->setShortcut(QKeySequence::Copy);
    QAction* copydata = item(editfile, "copydata", "Copy &Data");
    QAction* zoominItem = item(editfile, "zoomin", "&Zoom In");
    QAction* zoomoutItem = item(editfile, "zoomout", "Zoom &Out");
    QAction* pointerItem = item(editfile, "Pointer", "&Pointer");
    connect(copyItem, &QAction::triggered, this, &frmIO_Plots::copy);
    connect(copydata, &QAction::triggered, this, &frmIO_Plots::copyData);
    connect(zoominItem, &QAction::triggered, this, &frmIO_Plots::zoomin);
    connect(zoomoutItem, &QAction::triggered, this, &frmIO_Plots::zoomout);
    connect(pointerItem, &QAction::triggered, this, &frmIO_Plots::Pointer);
    editfile->addSeparator()->setObjectName("blank");
    auto toggle = [&](const char* name, const char* caption) {
        QAction* action = item(editfile, name, caption);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this] { Draw(); });
        return action;
    };
    plotpoints = toggle("plotpoints", "Plot Points");
    plotlines = toggle("plotlines", "Plot Lines");
    plotgrid = toggle("plotgrid", "Plot Grid");

    // Help opens over this modal window, so modally itself.
    QMenu* help = menuBar()->addMenu("&Help");
    help->setObjectName("help");
    struct HelpItem {
        const char* name;
        const char* caption;
        const char* window;
    };
    for (const HelpItem& entry :
         {HelpItem{"contents", "&Contents", "frmOverview"}, HelpItem{"index", "&Index", "frmHelpFac"},
          HelpItem{"about", "&About", "frmAbout"}})
        connect(item(help, entry.name, entry.caption), &QAction::triggered, this,
                [this, window = entry.window] { context_.windows.ShowModal(window); });

    // The toolbar's buttons are the menu items of the same names, each button named by its key.
    Graphtools = addToolBar("Graph tools");
    nameControl(Graphtools, "Graphtools", "Graph tools");
    Graphtools->setMovable(false);
    Graphtools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const std::pair<const char*, QAction*> tools[] = {
        {"SaveAs", saveasItem}, {"Preview", previewItem}, {"Print", printItem},    {"Copy", copyItem},
        {"ZoomIn", zoominItem}, {"ZoomOut", zoomoutItem}, {"Pointer", pointerItem}};
    for (const auto& [key, action] : tools) {
        Graphtools->addAction(action);
        QWidget* button = Graphtools->widgetForAction(action);
        nameControl(button, key, action->text().remove('&'));
    }
    Timer1 = new QTimer(this);
    Timer1->setObjectName("Timer1");
    Timer1->setSingleShot(true);

    Graph1 = new QWidget(this);
    Graph1->setObjectName("Graph1");
    Graph1->setAutoFillBackground(true);
    auto* grid = new QGridLayout(Graph1);
    Label1 = new QLabel(Graph1);
    Label2 = new QLabel(Graph1);
    Label3 = new QLabel(Graph1);
    Label4 = new QLabel(Graph1);
    nameControl(Label1, "Label1", "Title");
    nameControl(Label2, "Label2", "File");
    nameControl(Label3, "Label3", "Y axis");
    nameControl(Label4, "Label4", "X axis");
    QFont titleFont = Label1->font();
    titleFont.setBold(true);
    titleFont.setPointSize(titleFont.pointSize() + 2);
    Label1->setFont(titleFont);
    Label1->setAlignment(Qt::AlignCenter);
    Label4->setAlignment(Qt::AlignCenter);
    Label3->setAlignment(Qt::AlignCenter);
    Picture1 = new PlotSurface(this, Graph1);
    nameControl(Picture1, "Picture1", "Plot");
    Picture1->setFixedSize(pixels(SurfaceWidth), pixels(SurfaceHeight));
    Picture2 = new TwipSurface(Graph1, [this](QPainter& painter) { paintLegendStrip(painter); });
    nameControl(Picture2, "Picture2", "Legend markers");
    Picture2->setFixedSize(pixels(360 * 10 + 120), pixels(LegendStripHeight));
    auto* legends = new QVBoxLayout;
    legends->addWidget(Picture2);
    for (int i = 1; i <= 10; ++i) {
        auto* row = new QHBoxLayout;
        auto* line = new QFrame(Graph1);
        line->setObjectName(indexedName("legline", i));
        line->setFixedSize(pixels(450), 4);
        line->setAutoFillBackground(true);
        line->hide();
        auto* text = new QLabel(Graph1);
        nameControl(text, indexedName("Legend", i), QString("Legend %1").arg(i));
        text->hide();
        row->addWidget(line);
        row->addWidget(text, 1);
        legends->addLayout(row);
        legline.add(i, line);
        Legend.add(i, text);
    }
    legends->addStretch();
    grid->addWidget(Label1, 0, 0, 1, 3);
    grid->addWidget(Label2, 1, 0, 1, 3);
    grid->addWidget(Label3, 2, 0);
    grid->addWidget(Picture1, 2, 1);
    grid->addLayout(legends, 2, 2);
    grid->addWidget(Label4, 3, 1);
    setCentralWidget(Graph1);

    // The load: the plot kind's toggles, then PreparePlot and Draw.
    Session& session = context_.session;
    PlotData& plot = context_.plots;
    view_ = InitialView(plot.PlotKind, SurfaceWidth, SurfaceHeight);
    plotpoints->setChecked(view_.plotpoints);
    plotlines->setChecked(view_.plotlines);
    plotgrid->setChecked(view_.plotgrid);
    PlotSource source{sourceTables(), publishedEntry(), &session.Units, session.CurrentFile};
    PreparePlot(plot, source, view_);
    Label1->setText(fromBytes(view_.Label1));
    Label2->setText(pathToQt(view_.Label2));
    Label3->setText(fromBytes(view_.Label3).replace('\r', '\n'));
    Label4->setText(fromBytes(view_.Label4));
    Draw();
}

const QWidget* frmIO_Plots::sourceEditor() const {
    const int kind = context_.plots.PlotKind;
    if (kind < UnitHydrographPlot || kind > CrossSectionPlot)
        return nullptr;
    return context_.windows.loaded(SourceWindows[kind]);
}

int frmIO_Plots::publishedEntry() const {
    const QWidget* editor = sourceEditor();
    return editor ? editor->property("Tag").toString().toInt() : 0;
}

const GridContext* frmIO_Plots::sourceTables() const {
    const auto* holder = dynamic_cast<const TabularTablesHolder*>(sourceEditor());
    return holder ? &holder->tabularTables() : nullptr;
}

void frmIO_Plots::Draw() {
    ++drawCount_;
    view_.plotpoints = plotpoints->isChecked();
    view_.plotlines = plotlines->isChecked();
    view_.plotgrid = plotgrid->isChecked();
    drawing_ = DrawPlot(context_.plots, view_);
    for (int i = 1; i <= 10; ++i) {
        const LegendEntry& entry = view_.Legend[size_t(i)];
        Legend(i)->setText(fromBytes(entry.text));
        Legend(i)->setVisible(entry.visible);
        setBackground(legline(i), PlotColour(entry.lineColour));
        legline(i)->setVisible(entry.lineVisible);
    }
    Picture1->update();
    Picture2->update();
}

void frmIO_Plots::paintSurface(QPainter& painter) const {
    QFont font = painter.font();
    font.setPixelSize(LabelFontTwips);
    painter.setFont(font);
    PaintPlot(painter, drawing_);
}

void frmIO_Plots::paintLegendStrip(QPainter& painter) const {
    PaintLegendMarkers(painter, drawing_);
}

QImage frmIO_Plots::surfaceImage() const {
    QImage image(Picture1->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    paintSurface(painter);
    return image;
}

void frmIO_Plots::copyData() {
    context_.platform.setClipboardText(PlotDataText(context_.plots, view_));
}

namespace {

PlotPoint twips(QPointF pixel) {
    return {float(pixel.x() * TwipsPerPixel), float(pixel.y() * TwipsPerPixel)};
}

} // namespace

void frmIO_Plots::zoomin() {
    ZoomOn = true;
    ZoomStep = 0;
    Picture1->setCursor(ZoomCursor(true));
}

// One step back to the limits of the whole data; nothing is drawn when they stand already.
void frmIO_Plots::zoomout() {
    ZoomOn = false;
    Picture1->unsetCursor();
    if (ZoomOut(view_))
        Draw();
}

void frmIO_Plots::Pointer() {
    Picture1->unsetCursor();
    ZoomOn = false;
    ZoomStep = 0;
}

void frmIO_Plots::mouseDown(QPointF pixel) {
    if (!ZoomOn)
        return;
    const PlotPoint point = ClampPressPoint(view_.frame, twips(pixel));
    ZoomStep = 1;
    ZoomStartX = point.x;
    ZoomStartY = point.y;
}

void frmIO_Plots::mouseMove(QPointF pixel) {
    if (!ZoomOn || ZoomStep == 0)
        return;
    const PlotPoint point = ClampPressPoint(view_.frame, twips(pixel));
    if (ZoomStep == 2)
        boxShown_ = true;
    ZoomStep = 2;
    ZoomLastX = point.x;
    ZoomLastY = point.y;
    Picture1->update();
}

void frmIO_Plots::mouseUp(QPointF pixel, QPoint globalPixel) {
    const PlotPoint point = ClampReleasePoint(view_.frame, twips(pixel));
    if (ZoomOn) {
        ZoomToBox(view_.frame, ZoomStartX, ZoomStartY, point.x, point.y);
        ZoomOn = false;
        ZoomStep = 0;
        boxShown_ = false;
        Picture1->unsetCursor();
        Draw();
        return;
    }
    // The read-out of the point under the pointer, in the surface's tool tip.
    Timer1->stop();
    const QString tip = fromBytes(PointerReadout(context_.plots, view_.frame, point.x, point.y));
    Picture1->setToolTip(tip);
    if (tip.contains(',')) {
        Timer1->start(5000);
        QToolTip::showText(globalPixel, tip, Picture1);
    } else {
        QToolTip::hideText();
    }
}

QImage frmIO_Plots::graphImage() const {
    return Graph1->grab().toImage();
}

void frmIO_Plots::copy() {
    CopyPictureToClipboard(context_.platform, graphImage());
}

// Save As: the plot as a bitmap (BMP or PNG) or as a drawing of lines and text (SVG or PDF),
// by the filter chosen or the extension typed; any other name is saved as a bitmap.
void frmIO_Plots::saveas() {
    const QImage picture = graphImage();
    CopyPictureToClipboard(context_.platform, picture);
    FileDialogSettings dialog;
    dialog.DialogTitle = "Save As";
    dialog.Filter = "All Files (*.*)|*.*|Bitmap Files (*.bmp)|*.bmp|PNG Files (*.png)|*.png|"
                    "SVG Files (*.svg)|*.svg|PDF Files (*.pdf)|*.pdf";
    dialog.FilterIndex = 2;
    dialog.InitDir = DirectoryPart(context_.session.CurrentFile);
    dialog.ConfirmOverwrite = true;
    dialog.FilterExtension = true;
    const std::optional<std::string> chosen = context_.platform.showSaveDialog(dialog);
    if (!chosen || chosen->empty())
        return;
    const PictureFormat format = PictureFormatOf(*chosen).value_or(PictureFormat::Bmp);
    QByteArray bytes;
    if (format == PictureFormat::Bmp || format == PictureFormat::Png) {
        bytes = ImageFileBytes(picture, format);
    } else {
        bytes = DrawingFileBytes(format, Graph1->size(), windowTitle() + " - " + Label1->text(),
                                 [this](QPainter& painter) {
                                     Graph1->render(&painter, QPoint(), QRegion(),
                                                    QWidget::DrawWindowBackground | QWidget::DrawChildren);
                                 });
    }
    const WriteResult written =
        writeFileAtomically(*chosen, std::string(bytes.constData(), size_t(bytes.size())));
    if (!written.ok)
        context_.platform.showBox({"The plot could not be saved as " + *chosen + " (" + written.error + ").",
                                   SystemBoxTitle, BoxButtons::Ok, BoxIcon::Exclamation});
}

void frmIO_Plots::ShowPlotPage(int Mode) {
    copy();
    auto* page = new frmGraphPP(context_, this);
    page->takePlot(windowTitle(), Graph1->size());
    if (Mode == 1) {
        page->PrintForm();
        delete page;
        return;
    }
    page->setAttribute(Qt::WA_DeleteOnClose);
    context_.windows.adopt("frmGraphPP", page);
    context_.windows.ShowModal("frmGraphPP");
}

} // namespace brooklet
