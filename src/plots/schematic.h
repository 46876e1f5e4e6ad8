#pragma once
// The watershed network of a saved input file as the schematic draws it: the elements (the
// outlet, the reaches and the sub-areas), each linked to the element it drains into, and the
// split flows between reaches; the tree layout that stands the outlet at the bottom and every
// element above the one it drains into; and the view, the part of the drawing that is shown.
//
// Elements and split flows are numbered from 1 as the windows name them; element 1 is always
// the outlet. Places are in drawing units; a picture keeps its size in pixels whatever the
// scale, so its size in drawing units follows the scale of the surface.
#include <optional>
#include <string>
#include <vector>

#include "session/messages.h"

namespace brooklet {

// Kind of an element, also the number of its picture.
constexpr int ChannelReachKind = 1;
constexpr int StructureReachKind = 2;
constexpr int OutletKind = 3;
constexpr int SubAreaKind = 4;
// The legend's fifth row and picture.
constexpr int DiversionPicture = 5;

struct NetworkElement {
    std::string Name;
    int Kind = ChannelReachKind;
    int Downstream = 0; // index of the element it drains into, 0 for none
    std::string DownstreamName;
    bool Placed = false;
    int FirstChild = 0;
    int NextSibling = 0;
    int Weight = 1;   // width of its subtree in leaves
    int Depth = 0;    // steps from the outlet
    int Position = 0; // horizontal place in tenths of the drawing unit
    bool Visited = false;
    // The place of its picture, in drawing units.
    double Left = 0;
    double Top = 0;
};

struct SplitFlow {
    int FromIndex = 0;
    std::string Name;
    int ToIndex = 0; // 0 while the target is no element of the network
    std::string TargetName;
};

struct Network {
    std::vector<NetworkElement> Elements{1}; // Elements[0] is unused
    std::vector<SplitFlow> SplitFlows{1};    // SplitFlows[0] is unused
    int ReachCount = 0;                      // the outlet and the reaches, the first places of the list
    int SubAreaCount = 0;                    // the sub-areas, after them

    int count() const { return static_cast<int>(Elements.size()) - 1; }
    int splitFlowCount() const { return static_cast<int>(SplitFlows.size()) - 1; }
    NetworkElement& element(int index) { return Elements[static_cast<size_t>(index)]; }
    const NetworkElement& element(int index) const { return Elements[static_cast<size_t>(index)]; }
};

struct NetworkReading {
    Network network;
    // The "Plot Error" box of an element linked to a name that occurs more than once; the
    // window shows it and closes.
    std::optional<BoxRequest> error;
};

// Reads the stream reach and sub-area sections of the input file's bytes, and links every
// element to the element it drains into and every split flow to its target. A file without
// reaches gives an empty network (no outlet either): nothing is drawn.
NetworkReading ReadNetwork(const std::string& bytes);
// The same on a file; a file that cannot be read gives an empty network, silently.
NetworkReading LoadNetwork(const std::string& FileName);

// A point and a line in drawing units.
struct DrawingPoint {
    double x = 0;
    double y = 0;
    bool operator==(const DrawingPoint& other) const { return x == other.x && y == other.y; }
};
struct DrawingLine {
    DrawingPoint from;
    DrawingPoint to;
};

// A diversion: a dotted shaft and a solid head of three corners.
struct DiversionArrow {
    DrawingLine shaft;
    DrawingPoint head[3];
};

// What the drawing surface shows: the drawing units at its left and top edges, the units its
// width and height span, and its size in pixels.
struct SurfaceScale {
    double ScaleLeft = 0;
    double ScaleTop = 0;
    double ScaleWidth = 0;
    double ScaleHeight = 0;
    int pixelWidth = 1;
    int pixelHeight = 1;

    // The surface in twips, as it stands before a view is set.
    static SurfaceScale twips(int pixelWidth, int pixelHeight);
    double unitsPerPixelX() const { return ScaleWidth / pixelWidth; }
    double unitsPerPixelY() const { return ScaleHeight / pixelHeight; }
    DrawingPoint toUnits(double px, double py) const;
    double toPixelX(double x) const { return (x - ScaleLeft) / unitsPerPixelX(); }
    double toPixelY(double y) const { return (y - ScaleTop) / unitsPerPixelY(); }
};

// Twips per pixel of the screen the design was drawn on.
constexpr double TwipsPerPixel = 15;
// Size of an element's picture, in pixels.
constexpr int PicturePixels = 32;

// The legend's five texts: full words, or short ones when the window is narrower than 8000
// twips.
std::vector<std::string> LegendTexts(double windowWidthTwips);

// The network laid out as a tree, and the view on it.
class Schematic {
public:
    Schematic() = default;
    explicit Schematic(Network network) : network_(std::move(network)) {}

    const Network& network() const { return network_; }
    Network& network() { return network_; }
    // The outlet at the root of the tree.
    int Root() const { return root_; }
    // The elements taking part: the outlet and the reaches, and the sub-areas when shown.
    int ElementCount() const { return elementCount_; }
    bool shown(int index) const { return index >= 1 && index <= elementCount_; }

    // The toggles of the View menu, all checked at a new reading.
    bool SubAreas = true;
    bool Labels = true;
    bool Legend = true;

    // Lays the elements out: children linked, depths, weights, the tree placed and the loose
    // elements beside it.
    void layOut();
    // The view around the shown pictures, then ApplyView.
    void FitView();
    // Sets the surface's scale to the view with a tenth of a margin on all sides.
    void ApplyView();

    // The surface's size in pixels; the scale keeps its units per pixel until the next view.
    void setSurfaceSize(int pixelWidth, int pixelHeight);
    const SurfaceScale& scale() const { return scale_; }

    // The view: the part of the drawing the user framed.
    double ViewLeft = 0;
    double ViewTop = 0;
    double ViewRight = 0;
    double ViewBottom = 0;

    // Size of a picture in drawing units, at the present scale.
    double pictureWidth() const { return PicturePixels * scale_.unitsPerPixelX(); }
    double pictureHeight() const { return PicturePixels * scale_.unitsPerPixelY(); }
    // Where an element's label begins: beside its picture, a little further for the outlet.
    DrawingPoint labelPlace(int index) const;

    // Lines from each element of the outlet's tree to the element it drains into.
    std::vector<DrawingLine> DrawLinks() const;
    // The arrows of the split flows, one per split flow.
    std::vector<DiversionArrow> DrawDiversions() const;

    // The shown element whose picture holds the point, 0 for none; the last drawn wins.
    int elementAt(DrawingPoint point) const;

private:
    void ClearVisited();
    void LinkChildren();
    void SetDepths();
    void AddWeights();
    void PlaceChildren();
    void PlaceLoose();

    Network network_;
    int root_ = 0;
    int elementCount_ = 0;
    SurfaceScale scale_ = SurfaceScale::twips(1, 1);
    bool viewSet_ = false; // the surface is in twips until the first view
};

} // namespace brooklet
