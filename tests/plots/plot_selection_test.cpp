// The plot selection's core: the Multiple list's counter of attempts and the request built from
// the window's choices.
#include <gtest/gtest.h>

#include "plots/plot_selection.h"
#include "support/program_folder.h"

namespace brooklet::test {
namespace {

TEST(ChangeMultiList, CountsEveryAttemptAndRefusesTheEleventh) {
    StringList list;
    int count = 0;
    bool OK = false;
    EXPECT_FALSE(ChangeMultiList(list, count, 1, "Outlet", OK));
    EXPECT_TRUE(OK);
    EXPECT_FALSE(ChangeMultiList(list, count, 1, " outlet ", OK));
    EXPECT_EQ(list.items, std::vector<std::string>({"Outlet"}));
    EXPECT_EQ(count, 2);
    for (int k = 0; k < 8; ++k)
        ChangeMultiList(list, count, 1, "SA-" + std::to_string(k), OK);
    EXPECT_EQ(count, 10);
    const auto box = ChangeMultiList(list, count, 1, "SA-9", OK);
    ASSERT_TRUE(box);
    EXPECT_EQ(*box, MultipleSelectionsExceededBox());
    EXPECT_EQ(box->text, "Maximum Multiple Selections exceeded - current selection ignored");
    EXPECT_FALSE(OK);
    EXPECT_EQ(count, 11);
    EXPECT_EQ(list.items.size(), 9u);
}

TEST(ChangeMultiList, RemovesAnItemFoundOnlyAndLowersTheCounter) {
    StringList list({"SA-1", "Outlet"});
    int count = 5;
    bool OK = false;
    ChangeMultiList(list, count, -1, "OUTLET", OK);
    EXPECT_EQ(list.items, std::vector<std::string>({"SA-1"}));
    EXPECT_EQ(count, 4);
    ChangeMultiList(list, count, -1, "Outlet", OK);
    EXPECT_EQ(count, 4);
    EXPECT_TRUE(OK);
}

class BuildPlotRequestTest : public ProgramFolderTest {
protected:
    BuildPlotRequestTest() {
        session.WorkFilePath[SubAreaSection] = folder.file("subarea.wrk");
        writeBytes(session.WorkFilePath[SubAreaSection],
                   crlf({"Sub-Area:", "          SA-1      R-1       FIELD-1"}));
        session.Units.OutputFlowUnit = "cms";
        session.Units.OutputUnitFlowUnit = "m^3/sec/sq km";
    }
    Session session;
    PlotData plot;
};

TEST_F(BuildPlotRequestTest, ListedLocationsSplitAtTheirLastDash) {
    PlotChoices choices;
    choices.GraphicType = 1;
    choices.Varies = 4;
    choices.Storm = "10-YR";
    choices.Alternate = "PLAN-B";
    choices.Multiple = {"UP-RIVER - Upstream", "R-1 - Downstream", "SA-1", "Outlet", "SA-9"};
    BuildPlotRequest(choices, session, plot);
    EXPECT_EQ(plot.PlotKind, OutputHydrographPlot);
    ASSERT_EQ(plot.SeriesCount, 5);
    EXPECT_EQ(plot.MultiStormCount, 1);
    const auto& rows = plot.PlotRequest;
    EXPECT_EQ(rows[1].T[3], "UP-RIVER");
    EXPECT_EQ(rows[1].T[4], "Upstream");
    EXPECT_EQ(rows[2].T[3], "R-1");
    EXPECT_EQ(rows[2].T[4], "Downstream");
    EXPECT_EQ(rows[3].T[3], "SA-1");
    EXPECT_EQ(rows[3].T[4], "FIELD-1");
    EXPECT_EQ(rows[4].T[3], "Outlet");
    EXPECT_EQ(rows[4].T[4], "");
    EXPECT_EQ(rows[5].T[4], "");
    for (int r = 1; r <= 5; ++r) {
        EXPECT_EQ(rows[size_t(r)].T[1], "PLAN-B");
        EXPECT_EQ(rows[size_t(r)].T[2], "10-YR");
    }
}

TEST_F(BuildPlotRequestTest, OneHydrographTakesTheSubAreaThenTheReachThenTheOutlet) {
    PlotChoices choices;
    choices.GraphicType = 1;
    choices.Varies = 1;
    choices.Multiple = {"ignored"};
    choices.Reach = "R-1";
    choices.ReachEnd = 1;
    BuildPlotRequest(choices, session, plot);
    ASSERT_EQ(plot.SeriesCount, 1);
    EXPECT_EQ(plot.PlotRequest[1].T[3], "R-1");
    EXPECT_EQ(plot.PlotRequest[1].T[4], "Upstream");
    choices.ReachEnd = 0;
    BuildPlotRequest(choices, session, plot);
    EXPECT_EQ(plot.PlotRequest[1].T[4], "Downstream");
    choices.Reach.clear();
    BuildPlotRequest(choices, session, plot);
    EXPECT_EQ(plot.PlotRequest[1].T[3], "Outlet");
}

TEST_F(BuildPlotRequestTest, AlternatesVaryInColumnOneAndPeakFlowsTakeTheUnitOfFlowPerArea) {
    PlotChoices choices;
    choices.GraphicType = 1;
    choices.Varies = 3;
    choices.Storm = "10-YR";
    choices.Multiple = {"PLAN-A", "PLAN-B", "PLAN-C"};
    BuildPlotRequest(choices, session, plot);
    EXPECT_EQ(plot.MultiAlternateCount, 3);
    EXPECT_EQ(plot.MultiStormCount, 1);
    EXPECT_EQ(plot.PlotRequest[3].T[1], "PLAN-C");
    EXPECT_EQ(plot.PlotRequest[3].T[2], "10-YR");

    choices.GraphicType = 2;
    choices.Locations[2] = true;
    choices.FlowUnits = 2;
    BuildPlotRequest(choices, session, plot);
    EXPECT_EQ(plot.PlotKind, PeakFlowPlot);
    ASSERT_EQ(plot.SeriesCount, 1);
    EXPECT_EQ(plot.PlotRequest[1].T[3], "Reach");
    EXPECT_EQ(plot.FlowUnitLabel, "m^3/sec/sq km");
    choices.FlowUnits = 1;
    BuildPlotRequest(choices, session, plot);
    EXPECT_EQ(plot.FlowUnitLabel, "cms");
}

} // namespace
} // namespace brooklet::test
