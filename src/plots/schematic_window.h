#pragma once
// frmTopoModel: the watershed schematic of the saved input file, drawn as a tree with the outlet
// at the bottom, with tools to frame, zoom, pan and drag the view, toggles of labels, legend and
// sub-areas, copy, print, and Save As an image, SVG or PDF.
#include <QByteArray>
#include <QMainWindow>
#include <QPointF>

#include <optional>

#include "editing/colours.h"
#include "plots/schematic.h"
#include "plots/schematic_drawing.h"

class QAction;
class QImage;
class QToolBar;

namespace brooklet {

struct AppContext;
class SchematicSurface;

class frmTopoModel : public QMainWindow {
    Q_OBJECT
public:
    explicit frmTopoModel(AppContext& context, QWidget* parent = nullptr);

    // Reads the saved input file afresh and draws it; run each time the window is activated.
    void Form_Activate();
    // Lays the network out and frames it.
    void BuildSchematic();
    void FitView();
    void ApplyView();

    const Schematic& schematic() const { return schematic_; }
    Schematic& schematic() { return schematic_; }
    QWidget* surface() const;
    Rgb backgroundColour() const { return background_; }

    // The schematic as the surface shows it, on the given background.
    QImage surfaceImage(Rgb background) const;
    // The schematic as a file of the format its name ends in: PNG, SVG or PDF, on white.
    QByteArray exportBytes(const std::string& path) const;
    // The words of the tip over a point of the surface, in pixels; empty over no element.
    QString tipAt(QPointF pixel) const;

    // Tool state.
    int ZoomArmed = 0; // -1 until the rubber box has begun
    int ZoomMode = 0;  // 0 none, 1 in, 2 out
    int PanOn = 0;
    int DragOn = 0;

    // The zoom box while it is drawn, in drawing units.
    std::optional<std::pair<DrawingPoint, DrawingPoint>> zoomBox() const;

protected:
    bool event(QEvent* event) override;

private:
    friend class SchematicSurface;
    void toolClicked(const QString& key);
    void mouseDown(QPointF pixel);
    void mouseMove(QPointF pixel);
    void mouseUp(QPointF pixel);
    void surfaceResized();
    void toggle(QAction* item);
    void copySchematic();
    void printSchematic();
    void saveSchematicAs();
    void CopySchematic();
    double windowWidthTwips() const;

    AppContext& context_;
    Schematic schematic_;
    Rgb background_ = SchematicBackground;
    bool closing_ = false;
    bool activating_ = false;
    DrawingPoint start_, last_, end_;
    bool boxShown_ = false;

    SchematicSurface* TopoPic = nullptr;
    QToolBar* GraphToolBar = nullptr;
    QAction* mnuLabels = nullptr;
    QAction* mnuLegend = nullptr;
    QAction* mnuSubAreas = nullptr;
};

} // namespace brooklet
