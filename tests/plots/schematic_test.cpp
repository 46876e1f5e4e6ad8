#include "plots/schematic.h"

#include "network_records.h"
#include "support/program_folder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace brooklet::test {
namespace {

std::string file(const std::vector<std::string>& reaches, const std::vector<std::string>& subAreas = {}) {
    std::vector<std::string> lines = {"Brooklet: Version 1.0", "TITLE", ""};
    if (!subAreas.empty()) {
        lines.push_back("SUB-AREA:");
        lines.insert(lines.end(), subAreas.begin(), subAreas.end());
        lines.push_back("");
    }
    lines.push_back("STREAM REACH:");
    lines.insert(lines.end(), reaches.begin(), reaches.end());
    lines.push_back("");
    lines.push_back("STRUCTURE RATING:");
    lines.push_back(networkRecord({"", "STR1", "1.", "2."}));
    return crlf(lines);
}

Schematic laidOut(const std::string& bytes, bool subAreas = true) {
    NetworkReading reading = ReadNetwork(bytes);
    EXPECT_FALSE(reading.error);
    Schematic schematic(std::move(reading.network));
    schematic.SubAreas = subAreas;
    schematic.layOut();
    return schematic;
}

const NetworkElement& named(const Schematic& schematic, const std::string& name) {
    for (const NetworkElement& element : schematic.network().Elements)
        if (element.Name == name)
            return element;
    ADD_FAILURE() << "no element " << name;
    return schematic.network().Elements[0];
}

TEST(NetworkReader, ReadsReachesThenSubAreasAfterTheOutlet) {
    const Network network =
        ReadNetwork(file({reach("R1", "OUTLET"), reach("DAM", "R1", "STR1"), splitFlow("R1")},
                         {subArea("S1", "DAM"), subArea("S2", "R1")}))
            .network;
    ASSERT_EQ(network.count(), 5);
    EXPECT_EQ(network.ReachCount, 3);
    EXPECT_EQ(network.SubAreaCount, 2);
    const std::vector<std::tuple<std::string, int, std::string, int>> expected = {
        {"OUTLET", OutletKind, "", 0},
        {"R1", ChannelReachKind, "OUTLET", 1},
        {"DAM", StructureReachKind, "R1", 2},
        {"S1", SubAreaKind, "DAM", 3},
        {"S2", SubAreaKind, "R1", 2}};
    for (int i = 1; i <= 5; ++i) {
        const NetworkElement& element = network.element(i);
        EXPECT_EQ(element.Name, std::get<0>(expected[i - 1])) << i;
        EXPECT_EQ(element.Kind, std::get<1>(expected[i - 1])) << i;
        EXPECT_EQ(element.DownstreamName, std::get<2>(expected[i - 1])) << i;
        EXPECT_EQ(element.Downstream, std::get<3>(expected[i - 1])) << i;
        EXPECT_FALSE(element.Placed);
        EXPECT_EQ(element.Weight, 1);
    }
    ASSERT_EQ(network.splitFlowCount(), 1);
    EXPECT_EQ(network.SplitFlows[1].FromIndex, 3);
    EXPECT_EQ(network.SplitFlows[1].Name, "DAM");
    EXPECT_EQ(network.SplitFlows[1].TargetName, "R1");
    EXPECT_EQ(network.SplitFlows[1].ToIndex, 2);
}

TEST(NetworkReader, HeadersAndNamesAreComparedInUpperCaseAndBlankLinesDoNotEndASection) {
    const Network network = ReadNetwork(crlf({"stream reach:", reach("r1", "outlet"), "", reach("R2", "R1"),
                                              "STORM ANALYSIS:", reach("NOT", "R1")}))
                                .network;
    ASSERT_EQ(network.count(), 3);
    EXPECT_EQ(network.element(2).Downstream, 1);
    EXPECT_EQ(network.element(3).Name, "R2");
    EXPECT_EQ(network.element(3).Downstream, 2);
}

TEST(NetworkReader, AReachIntoTheOutletLinksToElementOne) {
    const Network network = ReadNetwork(file({reach("R1", "OUTLET")})).network;
    EXPECT_EQ(network.element(2).Downstream, 1);
}

TEST(NetworkReader, AFileWithoutReachesGivesNothingToDraw) {
    EXPECT_EQ(
        ReadNetwork(crlf({"Brooklet: Version 1.0", "", "SUB-AREA:", subArea("S1", "R1")})).network.count(),
        0);
    EXPECT_EQ(ReadNetwork(crlf({"STREAM REACH:", splitFlow("R1"), ""})).network.count(), 0);
    EXPECT_EQ(ReadNetwork("").network.count(), 0);
    Schematic schematic(ReadNetwork("").network);
    schematic.layOut();
    EXPECT_EQ(schematic.ElementCount(), 0);
    EXPECT_TRUE(schematic.DrawLinks().empty());
}

TEST(NetworkReader, AFileThatCannotBeReadGivesNothing) {
    EXPECT_EQ(LoadNetwork("no such file.inp").network.count(), 0);
    EXPECT_FALSE(LoadNetwork("no such file.inp").error);
}

TEST(NetworkReader, ANameThatOccursTwiceEndsTheReadingWithPlotError) {
    const NetworkReading reading =
        ReadNetwork(file({reach("R1", "OUTLET"), reach("R2", "R1")}, {subArea("R1", "R2")}));
    ASSERT_TRUE(reading.error);
    EXPECT_EQ(reading.error->text, "Element R2 occurs more than once in the list.");
    EXPECT_EQ(reading.error->title, "Plot Error");
    EXPECT_EQ(reading.error->icon, BoxIcon::Critical);
    EXPECT_EQ(reading.error->buttons, BoxButtons::Ok);
}

TEST(NetworkReader, ASplitFlowToANameOutsideTheNetworkHasNoTarget) {
    const Network network = ReadNetwork(file({reach("R1", "OUTLET"), splitFlow("ELSEWHERE")})).network;
    ASSERT_EQ(network.splitFlowCount(), 1);
    EXPECT_EQ(network.SplitFlows[1].ToIndex, 0);
    EXPECT_EQ(network.SplitFlows[1].FromIndex, 2);
}

TEST(SchematicLayout, ASingleReachStandsRightAboveTheOutlet) {
    const Schematic schematic = laidOut(file({reach("R1", "OUTLET")}));
    const NetworkElement& outlet = schematic.network().element(1);
    const NetworkElement& r1 = schematic.network().element(2);
    EXPECT_EQ(schematic.Root(), 1);
    EXPECT_EQ(outlet.Left, 500);
    EXPECT_EQ(outlet.Top, 800);
    EXPECT_EQ(r1.Position, 50);
    EXPECT_EQ(r1.Depth, 1);
    EXPECT_EQ(r1.Left, 500);
    EXPECT_EQ(r1.Top, 600);
    EXPECT_EQ(outlet.Top - r1.Top, 200);
    EXPECT_TRUE(r1.Placed);
}

TEST(SchematicLayout, TwoLeafChildrenStandOneHundredUnitsApart) {
    const Schematic schematic = laidOut(file({reach("R1", "OUTLET"), reach("R2", "OUTLET")}));
    const NetworkElement& outlet = schematic.network().element(1);
    EXPECT_EQ(outlet.Weight, 2);
    EXPECT_EQ(outlet.FirstChild, 2);
    EXPECT_EQ(schematic.network().element(2).NextSibling, 3);
    EXPECT_EQ(schematic.network().element(2).Position, 45);
    EXPECT_EQ(schematic.network().element(3).Position, 55);
    EXPECT_EQ(schematic.network().element(2).Left, 450);
    EXPECT_EQ(schematic.network().element(3).Left, 550);
}

TEST(SchematicLayout, WeightsShareTheSpanAmongChildren) {
    // OUTLET <- R1 <- (R2, R3, S1); OUTLET <- R4.
    const Schematic schematic =
        laidOut(file({reach("R1", "OUTLET"), reach("R2", "R1"), reach("R3", "R1"), reach("R4", "OUTLET")},
                     {subArea("S1", "R1"), subArea("S2", "R4")}));
    EXPECT_EQ(named(schematic, "OUTLET").Weight, 4);
    EXPECT_EQ(named(schematic, "R1").Weight, 3);
    EXPECT_EQ(named(schematic, "R4").Weight, 1);
    // R1 takes 30 of the outlet's 40 tenths: 50 - 20 + 0 + 15.
    EXPECT_EQ(named(schematic, "R1").Position, 45);
    EXPECT_EQ(named(schematic, "R4").Position, 65); // 50 - 20 + 30 + 5
    // Siblings in list order, reaches before sub-areas: R2, R3, S1 in R1's 30 tenths.
    EXPECT_EQ(named(schematic, "R2").Position, 35);
    EXPECT_EQ(named(schematic, "R3").Position, 45);
    EXPECT_EQ(named(schematic, "S1").Position, 55);
    EXPECT_EQ(named(schematic, "S1").Top, 400);
    EXPECT_EQ(named(schematic, "S1").Depth, 2);
    EXPECT_EQ(named(schematic, "S2").Left, 650);
}

TEST(SchematicLayout, SubAreasToggledOffCloseUpTheTree) {
    const std::string bytes =
        file({reach("R1", "OUTLET"), reach("R2", "OUTLET")}, {subArea("S1", "R1"), subArea("S2", "R1")});
    const Schematic with = laidOut(bytes, true);
    EXPECT_EQ(with.ElementCount(), 5);
    EXPECT_EQ(named(with, "OUTLET").Weight, 3);
    EXPECT_EQ(named(with, "R1").Weight, 2);
    EXPECT_EQ(named(with, "R1").Left, 450); // 50 - 15 + 0 + 10
    EXPECT_EQ(named(with, "R2").Left, 600); // 50 - 15 + 20 + 5
    const Schematic without = laidOut(bytes, false);
    EXPECT_EQ(without.ElementCount(), 3);
    EXPECT_FALSE(without.shown(4));
    EXPECT_EQ(named(without, "OUTLET").Weight, 2);
    EXPECT_EQ(named(without, "R1").Weight, 1);
    EXPECT_EQ(named(without, "R1").FirstChild, 0);
    EXPECT_EQ(named(without, "R1").Left, 450);
    EXPECT_EQ(named(without, "R2").Left, 550); // closer to its neighbour than with sub-areas
}

TEST(SchematicLayout, TurningSubAreasOffAndOnAgainGivesTheFirstLayout) {
    Schematic schematic(
        ReadNetwork(file({reach("R1", "OUTLET")}, {subArea("S1", "R1"), subArea("S2", "R1")})).network);
    schematic.layOut();
    const std::vector<NetworkElement> first = schematic.network().Elements;
    schematic.SubAreas = false;
    schematic.layOut();
    schematic.SubAreas = true;
    schematic.layOut();
    for (size_t i = 1; i < first.size(); ++i) {
        EXPECT_EQ(schematic.network().Elements[i].Left, first[i].Left) << i;
        EXPECT_EQ(schematic.network().Elements[i].NextSibling, first[i].NextSibling) << i;
    }
}

TEST(SchematicLayout, ACycleOfReachesIsLooseAndEndsEveryWalk) {
    const Schematic schematic = laidOut(file({reach("R1", "OUTLET"), reach("R2", "OUTLET"), reach("C1", "C2"),
                                              reach("C2", "C1"), reach("C3", "C1")}));
    EXPECT_TRUE(named(schematic, "R1").Placed);
    for (const char* name : {"C1", "C2", "C3"})
        EXPECT_FALSE(named(schematic, name).Placed) << name;
    // Placed: outlet at (500, 800), R1 at (450, 600), R2 at (550, 600): RangeX 100, RangeY 200.
    EXPECT_EQ(named(schematic, "C1").Left, 430);
    EXPECT_EQ(named(schematic, "C1").Top, 600);
    EXPECT_DOUBLE_EQ(named(schematic, "C2").Top, 600 + 200 / 9.0);
    EXPECT_DOUBLE_EQ(named(schematic, "C3").Top, 600 + 2 * 200 / 9.0);
    // No link is drawn for an element outside the outlet's tree.
    EXPECT_EQ(schematic.DrawLinks().size(), 2u);
}

TEST(SchematicLayout, AReachWhoseDownstreamNameMatchesNothingIsLoose) {
    const Schematic schematic = laidOut(file({reach("R1", "OUTLET"), reach("R2", "NOWHERE")}));
    EXPECT_EQ(named(schematic, "R2").Downstream, 0);
    EXPECT_FALSE(named(schematic, "R2").Placed);
    // Only the outlet and R1 are placed: RangeX 0, so the first column stands at the least left.
    EXPECT_EQ(named(schematic, "R2").Left, 500);
    EXPECT_EQ(named(schematic, "R2").Top, 600);
}

TEST(SchematicLayout, LooseElementsStandInColumnsOfTen) {
    std::vector<std::string> reaches = {reach("R1", "OUTLET"), reach("R2", "OUTLET"), reach("R3", "R1")};
    for (int i = 0; i < 12; ++i)
        reaches.push_back(reach("L" + std::to_string(i), "NOWHERE"));
    const Schematic schematic = laidOut(file(reaches));
    // Placed lefts 450..550 (RangeX 100), tops 400..800 (RangeY 400).
    EXPECT_EQ(named(schematic, "L0").Left, 430);
    EXPECT_EQ(named(schematic, "L0").Top, 400);
    EXPECT_DOUBLE_EQ(named(schematic, "L9").Top, 400 + 9 * 400 / 9.0);
    EXPECT_EQ(named(schematic, "L9").Left, 430);
    EXPECT_EQ(named(schematic, "L10").Left, 410);
    EXPECT_EQ(named(schematic, "L10").Top, 400);
    EXPECT_DOUBLE_EQ(named(schematic, "L11").Top, 400 + 400 / 9.0);
}

TEST(SchematicLayout, AVeryLongChainLaysOutWithoutDeepCalls) {
    std::vector<std::string> reaches = {reach("C0", "OUTLET")};
    for (int i = 1; i < 100000; ++i)
        reaches.push_back(reach("C" + std::to_string(i), "C" + std::to_string(i - 1)));
    const Schematic schematic = laidOut(file(reaches));
    const NetworkElement& top = schematic.network().element(100001);
    EXPECT_EQ(top.Depth, 100000);
    EXPECT_EQ(top.Left, 500);
    EXPECT_EQ(top.Top, 800 - 200.0 * 100000);
    EXPECT_EQ(schematic.network().element(1).Weight, 1);
}

// A surface of 600 by 400 pixels on the two-reach network, framed.
Schematic framedTwoReaches() {
    Schematic schematic = laidOut(file({reach("R1", "OUTLET"), reach("R2", "OUTLET"), splitFlow("R1")}));
    schematic.setSurfaceSize(600, 400);
    schematic.FitView();
    return schematic;
}

TEST(SchematicView, FitViewFramesThePicturesInTwipsFirst) {
    Schematic schematic = laidOut(file({reach("R1", "OUTLET"), reach("R2", "OUTLET")}));
    schematic.setSurfaceSize(600, 400);
    EXPECT_EQ(schematic.pictureWidth(), 480); // 32 pixels of 15 twips
    schematic.FitView();
    // Lefts 450..550 plus a picture of 480; tops 600..800 plus 480.
    EXPECT_EQ(schematic.ViewLeft, 450);
    EXPECT_EQ(schematic.ViewRight, 1030);
    EXPECT_EQ(schematic.ViewTop, 600);
    EXPECT_EQ(schematic.ViewBottom, 1280);
    const SurfaceScale& scale = schematic.scale();
    EXPECT_DOUBLE_EQ(scale.ScaleLeft, 740 - 0.6 * 580);
    EXPECT_DOUBLE_EQ(scale.ScaleWidth, 1.2 * 580);
    EXPECT_DOUBLE_EQ(scale.ScaleTop, 940 - 0.6 * 680);
    EXPECT_DOUBLE_EQ(scale.ScaleHeight, 816);
    EXPECT_DOUBLE_EQ(schematic.pictureWidth(), 32 * 696 / 600.0);
}

TEST(SchematicView, ASmallViewIsWidenedAndHeldWithinItsLimits) {
    Schematic schematic = laidOut(file({reach("R1", "OUTLET")}));
    schematic.setSurfaceSize(600, 400);
    schematic.ViewLeft = 10;
    schematic.ViewRight = 20;
    schematic.ViewTop = 0;
    schematic.ViewBottom = 30000;
    schematic.ApplyView();
    EXPECT_EQ(schematic.ViewRight - schematic.ViewLeft, 100);
    EXPECT_EQ(schematic.ViewBottom - schematic.ViewTop, 10000);
    EXPECT_DOUBLE_EQ(schematic.scale().ScaleLeft, 15 - 60);
    EXPECT_DOUBLE_EQ(schematic.scale().ScaleWidth, 120);
    EXPECT_DOUBLE_EQ(schematic.scale().ScaleTop, 15000 - 6000);
    EXPECT_DOUBLE_EQ(schematic.scale().ScaleHeight, 12000);
}

TEST(SchematicView, ApplyingTheViewAgainChangesNothing) {
    Schematic schematic = framedTwoReaches();
    const SurfaceScale before = schematic.scale();
    schematic.ApplyView();
    EXPECT_EQ(schematic.scale().ScaleLeft, before.ScaleLeft);
    EXPECT_EQ(schematic.scale().ScaleWidth, before.ScaleWidth);
    EXPECT_EQ(schematic.scale().ScaleTop, before.ScaleTop);
    EXPECT_EQ(schematic.scale().ScaleHeight, before.ScaleHeight);
}

TEST(SchematicView, LinksLeaveAtNineTenthsAndArriveAtOneTwentieth) {
    const Schematic schematic = framedTwoReaches();
    const double w = schematic.pictureWidth(), h = schematic.pictureHeight();
    const std::vector<DrawingLine> links = schematic.DrawLinks();
    ASSERT_EQ(links.size(), 2u);
    EXPECT_DOUBLE_EQ(links[0].from.x, 450 + w / 2);
    EXPECT_DOUBLE_EQ(links[0].from.y, 600 + std::floor(h * 0.9));
    EXPECT_DOUBLE_EQ(links[0].to.x, 500 + w / 2);
    EXPECT_DOUBLE_EQ(links[0].to.y, 800 - std::floor(h * 0.05));
    EXPECT_DOUBLE_EQ(links[1].from.x, 550 + w / 2);
}

TEST(SchematicView, ADiversionIsAShaftWithAHeadAtItsTarget) {
    const Schematic schematic = framedTwoReaches();
    const double W = schematic.pictureWidth(), H = schematic.pictureHeight();
    const std::vector<DiversionArrow> arrows = schematic.DrawDiversions();
    ASSERT_EQ(arrows.size(), 1u);
    const DiversionArrow& arrow = arrows[0];
    // From R2 (550, 600) to R1 (450, 600).
    const double X1 = 550 + 0.6 * W, Y1 = 600 + std::floor(H * 0.9);
    const double X2 = 450 + 0.6 * W, Y2 = 600 - std::floor(H * 0.05);
    EXPECT_EQ(arrow.shaft.from, (DrawingPoint{X1, Y1}));
    EXPECT_EQ(arrow.shaft.to, (DrawingPoint{X2, Y2}));
    const double L = std::hypot(X2 - X1, Y2 - Y1), ux = (X2 - X1) / L, uy = (Y2 - Y1) / L;
    const double X3 = X2 - 0.4 * W * ux, Y3 = Y2 - 0.4 * H * uy;
    EXPECT_DOUBLE_EQ(arrow.head[0].x, X3 + 0.25 * W * uy);
    EXPECT_DOUBLE_EQ(arrow.head[0].y, Y3 - 0.25 * H * ux);
    EXPECT_DOUBLE_EQ(arrow.head[1].x, X3 - 0.25 * W * uy);
    EXPECT_DOUBLE_EQ(arrow.head[1].y, Y3 + 0.25 * H * ux);
    EXPECT_EQ(arrow.head[2], (DrawingPoint{X2, Y2}));
}

TEST(SchematicView, ADiversionOutOfTheNetworkIsAStubToTheLeft) {
    Schematic schematic = laidOut(file({reach("R1", "OUTLET"), splitFlow("ELSEWHERE")}));
    schematic.setSurfaceSize(600, 400);
    const double W = schematic.pictureWidth(), H = schematic.pictureHeight();
    const DiversionArrow arrow = schematic.DrawDiversions().at(0);
    EXPECT_EQ(arrow.shaft.from, (DrawingPoint{500 + W / 2, 600 + 0.9 * H}));
    EXPECT_EQ(arrow.shaft.to, (DrawingPoint{690, 600 + 0.9 * H}));
    EXPECT_EQ(arrow.head[0], (DrawingPoint{690, 600 + 1.15 * H}));
    EXPECT_EQ(arrow.head[1], (DrawingPoint{690 - 0.4 * W, 600 + 0.9 * H}));
    EXPECT_EQ(arrow.head[2], (DrawingPoint{690, 600 + 0.65 * H}));
}

TEST(SchematicView, LabelsStandBesideTheirPicturesTheOutletsFurther) {
    const Schematic schematic = framedTwoReaches();
    const double w = schematic.pictureWidth();
    EXPECT_EQ(schematic.labelPlace(1), (DrawingPoint{500 + 1.2 * w, 800}));
    EXPECT_EQ(schematic.labelPlace(2), (DrawingPoint{450 + w, 600}));
}

TEST(SchematicView, APointFindsTheElementUnderIt) {
    const Schematic schematic = framedTwoReaches();
    EXPECT_EQ(schematic.elementAt({551, 601}), 3);
    EXPECT_EQ(schematic.elementAt({501, 801}), 1);
    EXPECT_EQ(schematic.elementAt({0, 0}), 0);
}

TEST(SchematicView, TheLegendHasShortWordsInANarrowWindow) {
    EXPECT_EQ(LegendTexts(7999), (std::vector<std::string>{"  = Ch.Rch", "  = St.Rch", "  = Outlet",
                                                           "  = Sub-Area", "  = Div."}));
    EXPECT_EQ(LegendTexts(8000), (std::vector<std::string>{"  = Channel Reach", "  = Structure Reach",
                                                           "  = Outlet", "  = Sub-Area", "  = Diversion"}));
}

} // namespace
} // namespace brooklet::test

namespace brooklet::test {
namespace {

TEST(SchematicLayout, TheReferenceNetworkFile) {
    const NetworkReading reading = LoadNetwork(testDataPath("schematic_network.inp"));
    ASSERT_FALSE(reading.error);
    Schematic schematic(reading.network);
    schematic.layOut();
    const Network& network = schematic.network();
    EXPECT_EQ(network.ReachCount, 8);
    EXPECT_EQ(network.SubAreaCount, 4);
    ASSERT_EQ(network.splitFlowCount(), 2);
    EXPECT_EQ(network.SplitFlows[1].Name, "R2");
    EXPECT_EQ(network.SplitFlows[1].ToIndex, 4);
    EXPECT_EQ(network.SplitFlows[2].Name, "DAM");
    EXPECT_EQ(network.SplitFlows[2].ToIndex, 0);
    std::string loose;
    for (int i = 1; i <= schematic.ElementCount(); ++i)
        if (!network.element(i).Placed)
            loose += network.element(i).Name + " ";
    EXPECT_EQ(loose, "C1 C2 LOOSE A4 ");
    EXPECT_EQ(network.element(1).Weight, 3); // the leaves A1, A2 and A3
}

} // namespace
} // namespace brooklet::test
