#include "plots/schematic.h"

#include "editing/field_checks.h"
#include "editing/numbers.h"
#include "session/text_file.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace brooklet {
namespace {

bool blankColumns(const std::string& line, int first, int width) {
    return FieldAt(line, first, width).empty();
}

bool startsWithUpper(const std::string& line, const std::string& word) {
    return toUpper(line.substr(0, word.size())) == word;
}

// Records of a section that begins at a line starting with its word and ends before the next
// line with text in columns 1-10. Blank lines within do not end it. When the word begins a
// second section, the later one stands, as a load of the file keeps the later one.
class SectionLines {
public:
    explicit SectionLines(std::string word) : word_(std::move(word)) {}
    void take(const std::string& line) {
        if (startsWithUpper(line, word_)) {
            lines_.clear();
            open_ = true;
        } else if (open_ && !blankColumns(line, 1, 10)) {
            open_ = false;
        } else if (open_) {
            lines_.push_back(line);
        }
    }
    const std::vector<std::string>& lines() const { return lines_; }

private:
    std::string word_;
    bool open_ = false;
    std::vector<std::string> lines_;
};

bool isSplitFlow(const std::string& line) {
    return blankColumns(line, 11, 10) && toUpper(FieldAt(line, 21, 10)) == "SPLIT FLOW";
}

// The elements by their names in upper case: the first and the last of each name and how many
// bear it, so that every element finds the one it drains into at once.
struct NameIndex {
    struct Entry {
        int first = 0;
        int last = 0;
        int count = 0;
    };
    explicit NameIndex(const Network& network) {
        for (int j = 1; j <= network.count(); ++j) {
            Entry& entry = byName[toUpper(network.element(j).Name)];
            if (entry.count++ == 0)
                entry.first = j;
            entry.last = j;
        }
    }
    const Entry* find(const std::string& name) const {
        auto found = byName.find(toUpper(name));
        return found == byName.end() ? nullptr : &found->second;
    }
    std::unordered_map<std::string, Entry> byName;
};

int wholeNumber(double value) {
    return static_cast<int>(roundHalfEven(value));
}

} // namespace

NetworkReading ReadNetwork(const std::string& bytes) {
    NetworkReading reading;
    Network& network = reading.network;
    SectionLines reaches("STREAM REACH");
    SectionLines subAreas("SUB-AREA");
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string line = reader.readLine();
        reaches.take(line);
        subAreas.take(line);
    }
    const bool anyReach = std::any_of(reaches.lines().begin(), reaches.lines().end(),
                                      [](const std::string& line) { return !blankColumns(line, 11, 10); });
    if (!anyReach)
        return reading;

    NetworkElement outlet;
    outlet.Name = "OUTLET";
    outlet.Kind = OutletKind;
    network.Elements.push_back(outlet);
    for (const std::string& line : reaches.lines()) {
        if (!blankColumns(line, 11, 10)) {
            NetworkElement reach;
            reach.Name = FieldAt(line, 11, 10);
            reach.DownstreamName = FieldAt(line, 21, 10);
            reach.Kind = blankColumns(line, 41, 10) ? ChannelReachKind : StructureReachKind;
            network.Elements.push_back(reach);
        } else if (isSplitFlow(line)) {
            SplitFlow split;
            split.FromIndex = network.count();
            split.Name = network.Elements.back().Name;
            split.TargetName = FieldAt(line, 31, 10);
            network.SplitFlows.push_back(split);
        }
    }
    network.ReachCount = network.count();
    for (const std::string& line : subAreas.lines()) {
        if (blankColumns(line, 11, 10))
            continue;
        NetworkElement subArea;
        subArea.Name = FieldAt(line, 11, 10);
        subArea.DownstreamName = FieldAt(line, 21, 10);
        subArea.Kind = SubAreaKind;
        network.Elements.push_back(subArea);
    }
    network.SubAreaCount = network.count() - network.ReachCount;

    const NameIndex names(network);
    for (int i = 1; i <= network.count(); ++i) {
        NetworkElement& element = network.element(i);
        const NameIndex::Entry* match = names.find(element.DownstreamName);
        if (!match)
            continue;
        element.Downstream = match->last;
        if (match->count > 1) {
            reading.error = BoxRequest{"Element " + element.Name + " occurs more than once in the list.",
                                       "Plot Error", BoxButtons::Ok, BoxIcon::Critical};
            return reading;
        }
    }
    for (int s = 1; s <= network.splitFlowCount(); ++s) {
        SplitFlow& split = network.SplitFlows[static_cast<size_t>(s)];
        if (split.TargetName.empty())
            continue;
        if (const NameIndex::Entry* match = names.find(split.TargetName))
            split.ToIndex = match->first;
    }
    return reading;
}

NetworkReading LoadNetwork(const std::string& FileName) {
    const std::optional<std::string> bytes = readFileBytes(FileName);
    return bytes ? ReadNetwork(*bytes) : NetworkReading();
}

SurfaceScale SurfaceScale::twips(int pixelWidth, int pixelHeight) {
    SurfaceScale scale;
    scale.pixelWidth = std::max(1, pixelWidth);
    scale.pixelHeight = std::max(1, pixelHeight);
    scale.ScaleWidth = scale.pixelWidth * TwipsPerPixel;
    scale.ScaleHeight = scale.pixelHeight * TwipsPerPixel;
    return scale;
}

DrawingPoint SurfaceScale::toUnits(double px, double py) const {
    return {ScaleLeft + px * unitsPerPixelX(), ScaleTop + py * unitsPerPixelY()};
}

std::vector<std::string> LegendTexts(double windowWidthTwips) {
    if (windowWidthTwips < 8000)
        return {"  = Ch.Rch", "  = St.Rch", "  = Outlet", "  = Sub-Area", "  = Div."};
    return {"  = Channel Reach", "  = Structure Reach", "  = Outlet", "  = Sub-Area", "  = Diversion"};
}

void Schematic::layOut() {
    elementCount_ = SubAreas ? network_.count() : network_.ReachCount;
    root_ = elementCount_ > 0 ? 1 : 0;
    for (int i = 1; i <= elementCount_; ++i) {
        NetworkElement& element = network_.element(i);
        element.Weight = 1;
        element.Position = 50;
        element.Depth = 0;
        element.Placed = false;
    }
    if (!root_)
        return;
    LinkChildren();
    ClearVisited();
    SetDepths();
    AddWeights();
    ClearVisited();
    PlaceChildren();
    PlaceLoose();
}

void Schematic::ClearVisited() {
    for (int i = 1; i <= network_.count(); ++i)
        network_.element(i).Visited = false;
}

// Children in list order: reaches before sub-areas, each in file order.
void Schematic::LinkChildren() {
    std::vector<int> lastChild(static_cast<size_t>(elementCount_) + 1, 0);
    for (int i = 1; i <= elementCount_; ++i) {
        network_.element(i).FirstChild = 0;
        network_.element(i).NextSibling = 0;
    }
    for (int j = 1; j <= elementCount_; ++j) {
        const int i = network_.element(j).Downstream;
        if (!shown(i))
            continue;
        if (lastChild[static_cast<size_t>(i)] == 0)
            network_.element(i).FirstChild = j;
        else
            network_.element(lastChild[static_cast<size_t>(i)]).NextSibling = j;
        lastChild[static_cast<size_t>(i)] = j;
    }
}

// Depth of every element of the outlet's tree: one more than the element it drains into.
void Schematic::SetDepths() {
    std::vector<int> pending{root_};
    while (!pending.empty()) {
        const int node = pending.back();
        pending.pop_back();
        for (int c = network_.element(node).FirstChild; c; c = network_.element(c).NextSibling) {
            NetworkElement& child = network_.element(c);
            if (child.Visited)
                continue;
            child.Visited = true;
            child.Depth = network_.element(node).Depth + 1;
            pending.push_back(c);
        }
    }
}

// Each element's weight is the total of its children's, at least 1: the leaves of its subtree.
// Elements are summed once all their children are, leaves first, so the network is walked
// once. Elements on a cycle have no leaves to start from: each keeps the total of its children
// off the cycle; they are loose and their weight places nothing.
void Schematic::AddWeights() {
    std::vector<int> childrenLeft(static_cast<size_t>(elementCount_) + 1, 0);
    for (int i = 1; i <= elementCount_; ++i)
        for (int c = network_.element(i).FirstChild; c; c = network_.element(c).NextSibling)
            ++childrenLeft[static_cast<size_t>(i)];
    std::vector<int> ready;
    for (int i = 1; i <= elementCount_; ++i)
        if (childrenLeft[static_cast<size_t>(i)] == 0)
            ready.push_back(i);
    std::vector<bool> summed(static_cast<size_t>(elementCount_) + 1, false);
    auto sumChildren = [this, &summed](int node, bool all) {
        int sum = 0;
        for (int c = network_.element(node).FirstChild; c; c = network_.element(c).NextSibling)
            if (all || summed[static_cast<size_t>(c)])
                sum += network_.element(c).Weight;
        network_.element(node).Weight = std::max(1, sum);
    };
    while (!ready.empty()) {
        const int node = ready.back();
        ready.pop_back();
        sumChildren(node, true);
        summed[static_cast<size_t>(node)] = true;
        const int down = network_.element(node).Downstream;
        if (shown(down) && --childrenLeft[static_cast<size_t>(down)] == 0)
            ready.push_back(down);
    }
    for (int i = 1; i <= elementCount_; ++i)
        if (!summed[static_cast<size_t>(i)])
            sumChildren(i, false);
}

// A parent's span of 10 * Weight tenths is shared among its children by their weights, each
// child at the centre of its share, one level (200 units) higher than its parent.
void Schematic::PlaceChildren() {
    NetworkElement& root = network_.element(root_);
    root.Left = 500;
    root.Top = 800;
    root.Placed = true;
    root.Position = 50;
    std::vector<int> pending{root_};
    while (!pending.empty()) {
        const int node = pending.back();
        pending.pop_back();
        const int W = network_.element(node).Weight;
        const int P = network_.element(node).Position;
        int Used = 0;
        for (int c = network_.element(node).FirstChild; c; c = network_.element(c).NextSibling) {
            NetworkElement& child = network_.element(c);
            if (child.Visited)
                break;
            child.Position = P - 5 * W + 10 * Used + 5 * child.Weight;
            child.Left = 10.0 * child.Position;
            child.Top = 800.0 - 200.0 * child.Depth;
            child.Placed = true;
            child.Visited = true;
            pending.push_back(c);
            Used += child.Weight;
        }
    }
}

// Elements that do not reach the outlet stand in columns of ten to the left of the tree, each
// column a fifth of the tree's width further out.
void Schematic::PlaceLoose() {
    double leastLeft = 0, greatestLeft = 0, leastTop = 0, greatestTop = 0;
    bool first = true;
    for (int i = 1; i <= elementCount_; ++i) {
        const NetworkElement& element = network_.element(i);
        if (!element.Placed)
            continue;
        if (first) {
            leastLeft = greatestLeft = element.Left;
            leastTop = greatestTop = element.Top;
            first = false;
        }
        leastLeft = std::min(leastLeft, element.Left);
        greatestLeft = std::max(greatestLeft, element.Left);
        leastTop = std::min(leastTop, element.Top);
        greatestTop = std::max(greatestTop, element.Top);
    }
    const int RangeX = wholeNumber(greatestLeft - leastLeft);
    const int RangeY = wholeNumber(greatestTop - leastTop);
    int Column = 1, Row = 0;
    for (int i = 1; i <= elementCount_; ++i) {
        NetworkElement& element = network_.element(i);
        if (element.Placed)
            continue;
        element.Left = leastLeft - RangeX * 0.2 * Column;
        element.Top = leastTop + Row * (RangeY / 9.0);
        if (++Row > 9) {
            ++Column;
            Row = 0;
        }
    }
}

void Schematic::setSurfaceSize(int pixelWidth, int pixelHeight) {
    if (!viewSet_) {
        scale_ = SurfaceScale::twips(pixelWidth, pixelHeight);
        return;
    }
    scale_.pixelWidth = std::max(1, pixelWidth);
    scale_.pixelHeight = std::max(1, pixelHeight);
}

void Schematic::FitView() {
    if (elementCount_ == 0)
        return;
    const double width = pictureWidth(), height = pictureHeight();
    ViewLeft = ViewTop = HUGE_VAL;
    ViewRight = ViewBottom = -HUGE_VAL;
    for (int i = 1; i <= elementCount_; ++i) {
        const NetworkElement& element = network_.element(i);
        ViewLeft = std::min(ViewLeft, element.Left);
        ViewRight = std::max(ViewRight, element.Left + width);
        ViewTop = std::min(ViewTop, element.Top);
        ViewBottom = std::max(ViewBottom, element.Top + height);
    }
    if (ViewRight - ViewLeft < 60) {
        const double widen = (60 - (ViewRight - ViewLeft)) / 2;
        ViewLeft -= widen;
        ViewRight += widen;
    }
    if (ViewBottom - ViewTop < 50) {
        const double widen = (50 - (ViewBottom - ViewTop)) / 2;
        ViewTop -= widen;
        ViewBottom += widen;
    }
    ApplyView();
}

// The view's width and height are held within 100 to 10000 units, the height a whole number;
// the surface shows the view and a tenth of it more on every side. The view keeps what was
// held, so moving the view or drawing it again does not widen it.
void Schematic::ApplyView() {
    const double W = std::clamp(ViewRight - ViewLeft, 100.0, 10000.0);
    const double H = std::clamp(roundHalfEven(ViewBottom - ViewTop), 100.0, 10000.0);
    const double centreX = (ViewLeft + ViewRight) / 2;
    const double centreY = (ViewTop + ViewBottom) / 2;
    ViewLeft = centreX - W / 2;
    ViewRight = ViewLeft + W;
    ViewTop = centreY - H / 2;
    ViewBottom = ViewTop + H;
    const double left = centreX - 0.6 * W;
    const double right = left + 1.2 * W;
    const double top = centreY - 0.6 * H;
    const double bottom = roundHalfEven(top + 1.2 * H);
    if (left < right - 1 && top < bottom - 1) {
        scale_.ScaleLeft = left;
        scale_.ScaleTop = top;
        scale_.ScaleWidth = right - left;
        scale_.ScaleHeight = bottom - top;
        viewSet_ = true;
    }
}

DrawingPoint Schematic::labelPlace(int index) const {
    const NetworkElement& element = network_.element(index);
    return {element.Left + pictureWidth() * (index == root_ ? 1.2 : 1.0), element.Top};
}

std::vector<DrawingLine> Schematic::DrawLinks() const {
    std::vector<DrawingLine> lines;
    if (!root_)
        return lines;
    const double width = pictureWidth(), height = pictureHeight();
    std::vector<int> pending{root_};
    while (!pending.empty()) {
        const int node = pending.back();
        pending.pop_back();
        const NetworkElement& element = network_.element(node);
        if (shown(element.Downstream)) {
            const NetworkElement& down = network_.element(element.Downstream);
            lines.push_back({{element.Left + width / 2, element.Top + std::floor(height * 0.9)},
                             {down.Left + width / 2, down.Top - std::floor(height * 0.05)}});
        }
        // The sibling after the first child's subtree, as the walk by child and sibling goes.
        if (element.NextSibling)
            pending.push_back(element.NextSibling);
        if (element.FirstChild)
            pending.push_back(element.FirstChild);
    }
    return lines;
}

std::vector<DiversionArrow> Schematic::DrawDiversions() const {
    std::vector<DiversionArrow> arrows;
    const double W = pictureWidth(), H = pictureHeight();
    for (int s = 1; s <= network_.splitFlowCount(); ++s) {
        const SplitFlow& split = network_.SplitFlows[static_cast<size_t>(s)];
        if (!shown(split.FromIndex))
            continue;
        const NetworkElement& from = network_.element(split.FromIndex);
        DiversionArrow arrow;
        if (shown(split.ToIndex)) {
            const NetworkElement& to = network_.element(split.ToIndex);
            const double X1 = from.Left + 0.6 * W, Y1 = from.Top + std::floor(H * 0.9);
            const double X2 = to.Left + 0.6 * W, Y2 = to.Top - std::floor(H * 0.05);
            const double L = std::hypot(X2 - X1, Y2 - Y1);
            const double ux = L > 0 ? (X2 - X1) / L : 0, uy = L > 0 ? (Y2 - Y1) / L : 0;
            const double X3 = X2 - 0.4 * W * ux, Y3 = Y2 - 0.4 * H * uy;
            arrow.shaft = {{X1, Y1}, {X2, Y2}};
            arrow.head[0] = {X3 + 0.25 * W * uy, Y3 - 0.25 * H * ux};
            arrow.head[1] = {X3 - 0.25 * W * uy, Y3 + 0.25 * H * ux};
            arrow.head[2] = {X2, Y2};
        } else {
            // The target is no element of the network: a level stub to the left.
            const double Y = from.Top + 0.9 * H;
            const double start = from.Left + W / 2;
            const double X = wholeNumber(start - 50);
            arrow.shaft = {{start, Y}, {X, Y}};
            arrow.head[0] = {X, from.Top + 1.15 * H};
            arrow.head[1] = {X - 0.4 * W, Y};
            arrow.head[2] = {X, from.Top + 0.65 * H};
        }
        arrows.push_back(arrow);
    }
    return arrows;
}

int Schematic::elementAt(DrawingPoint point) const {
    const double width = pictureWidth(), height = pictureHeight();
    for (int i = elementCount_; i >= 1; --i) {
        const NetworkElement& element = network_.element(i);
        if (point.x >= element.Left && point.x <= element.Left + width && point.y >= element.Top &&
            point.y <= element.Top + height)
            return i;
    }
    return 0;
}

} // namespace brooklet
