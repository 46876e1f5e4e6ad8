#include "plots/plot_window.h"

#include <QAction>
#include <QEventLoop>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QVBoxLayout>

#include "plots/plot_painter.h"
#include "session/app_context.h"

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

void PublishPlotEntry(QWidget* editor, int entry) {
    editor->setProperty("Tag", QString::number(entry));
}

frmIO_Plots::frmIO_Plots(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {
    setObjectName("frmIO_Plots");
    setWindowTitle("Input / Output Plots");
    setAccessibleName("Input / Output Plots");

    QMenu* menufile = menuBar()->addMenu("&File");
    menufile->setObjectName("menufile");
    QAction* menuexit = menufile->addAction("E&xit");
    menuexit->setObjectName("menuexit");
    connect(menuexit, &QAction::triggered, this, &QWidget::close);
    QMenu* editfile = menuBar()->addMenu("&Edit");
    editfile->setObjectName("editfile");
    QAction* copydata = editfile->addAction("Copy &Data");
    copydata->setObjectName("copydata");
    connect(copydata, &QAction::triggered, this, &frmIO_Plots::copyData);
    editfile->addSeparator()->setObjectName("blank");
    auto toggle = [&](const char* name, const char* caption) {
        QAction* action = editfile->addAction(caption);
        action->setObjectName(name);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this] { Draw(); });
        return action;
    };
    plotpoints = toggle("plotpoints", "Plot Points");
    plotlines = toggle("plotlines", "Plot Lines");
    plotgrid = toggle("plotgrid", "Plot Grid");

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
    Picture1 = new TwipSurface(Graph1, [this](QPainter& painter) { paintSurface(painter); });
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
    PlotSource source{&context_.tabular, publishedEntry(), &session.Units, session.CurrentFile};
    PreparePlot(plot, source, view_);
    Label1->setText(fromBytes(view_.Label1));
    Label2->setText(pathToQt(view_.Label2));
    Label3->setText(fromBytes(view_.Label3).replace('\r', '\n'));
    Label4->setText(fromBytes(view_.Label4));
    Draw();
}

int frmIO_Plots::publishedEntry() const {
    const int kind = context_.plots.PlotKind;
    if (kind < UnitHydrographPlot || kind > CrossSectionPlot)
        return 0;
    const QWidget* editor = context_.windows.loaded(SourceWindows[kind]);
    return editor ? editor->property("Tag").toString().toInt() : 0;
}

void frmIO_Plots::Draw() {
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

} // namespace brooklet
