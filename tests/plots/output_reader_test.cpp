// The model output reader on small reports written in the report's layout: hydrographs over
// several ordinate lines and pages, several storms and alternates, the peak table with
// sub-areas, reaches and the outlet, and both duration tables.
#include <gtest/gtest.h>

#include <algorithm>

#include "plots/output_reader.h"
#include "support/program_folder.h"
#include "support/report_builder.h"

namespace brooklet::test {
namespace {

struct Location {
    std::string alternate, storm, place, second;
};

PlotData request(int kind, const std::vector<Location>& rows) {
    PlotData plot;
    plot.PlotKind = static_cast<int16_t>(kind);
    plot.newRequest(int(rows.size()));
    for (size_t r = 0; r < rows.size(); ++r) {
        auto& T = plot.PlotRequest[r + 1].T;
        T[1] = rows[r].alternate;
        T[2] = rows[r].storm;
        T[3] = rows[r].place;
        T[4] = rows[r].second;
    }
    return plot;
}

bool read(PlotData& plot, const ReportBuilder& report) {
    bool Found = false;
    ReadOutputText(report.text(), plot, Found);
    return Found;
}

std::vector<float> ys(const PlotData& plot, int row) {
    std::vector<float> values;
    for (int p = 1; p <= plot.PlotRequest[size_t(row)].T7; ++p)
        values.push_back(plot.PlotY.get(row, p));
    return values;
}
std::vector<float> xs(const PlotData& plot, int row) {
    std::vector<float> values;
    for (int p = 1; p <= plot.PlotRequest[size_t(row)].T7; ++p)
        values.push_back(plot.PlotX.get(row, p));
    return values;
}

std::vector<std::string> flows(int first, int count) {
    std::vector<std::string> values;
    for (int i = 0; i < count; ++i)
        values.push_back(std::to_string(first + i) + ".");
    return values;
}
std::vector<float> values(int first, int count) {
    std::vector<float> result;
    for (int i = 0; i < count; ++i)
        result.push_back(float(first + i));
    return result;
}

// ---- The report's path ----------------------------------------------------------------------

TEST(OutputFilePath, TakesTheNameUpToItsLastPointThenOut) {
    EXPECT_EQ(OutputFilePath("C:\\work\\brook.v2.inp"), "C:\\work\\brook.v2.out");
    EXPECT_EQ(OutputFilePath("/data/willow"), "/data/willow.out");
}

TEST(OutputFilePath, AMissingReportLeavesFoundFalse) {
    ProgramFolder folder;
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    bool Found = false;
    ReadOutputFile(folder.file("nothing.inp"), plot, Found);
    EXPECT_FALSE(Found);
}

TEST(OutputFilePath, TheReportBesideTheInputFileIsRead) {
    ProgramFolder folder;
    ReportBuilder report;
    report.banner().storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 3), 3.5).blank();
    writeBytes(folder.file("willow.out"), report.text());
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    bool Found = false;
    ReadOutputFile(folder.file("willow.inp"), plot, Found);
    EXPECT_TRUE(Found);
    EXPECT_EQ(ys(plot, 1), values(1, 3));
}

// ---- Hydrographs -----------------------------------------------------------------------------

TEST(ReadOutputFile, AnEmptyReportOrOneOfFewerThanFourLinesYieldsNoData) {
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    bool Found = false;
    ReadOutputText("", plot, Found);
    EXPECT_FALSE(Found);
    ReadOutputText("Brooklet\r\n  STORM\r\nOUTLET\r\n", plot, Found);
    EXPECT_FALSE(Found);
    EXPECT_EQ(plot.PlotRequest[1].T7, 0);
}

TEST(ReadOutputFile, AHydrographOverSeveralLinesTakesEveryOrdinateAndTheIncrementOfTheTimesPrinted) {
    ReportBuilder report;
    report.banner()
        .storm("", "100-YR")
        .hydrograph("OUTLET", "", 2.0, "0.5000 hr", flows(1, 17), 1.75)
        .blank();
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    const PlotRequestRow& row = plot.PlotRequest[1];
    EXPECT_EQ(row.T[5], "     2.00 ");
    EXPECT_EQ(row.T7, 17);
    // Three lines: the last starts at 5.50, so 3.50 hours over two lines of seven.
    EXPECT_DOUBLE_EQ(row.T6, 3.5 / 14.0);
    EXPECT_EQ(ys(plot, 1), values(1, 17));
    EXPECT_GE(plot.PlotY.pointUpper(), 17);
    EXPECT_EQ(plot.PlotX.pointUpper(), plot.PlotY.pointUpper());
}

TEST(ReadOutputFile, AHydrographOfASingleLineKeepsThePrintedIncrement) {
    ReportBuilder report;
    report.banner().storm("", "10-YR").hydrograph("OUTLET", "", 0.0, "0.2500 hr", flows(5, 6), 1.75).blank();
    PlotData plot = request(6, {{"", "10-YR", "outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_DOUBLE_EQ(plot.PlotRequest[1].T6, 0.25);
    EXPECT_EQ(ys(plot, 1), values(5, 6));
}

TEST(ReadOutputFile, AnIncrementWithoutAnHTakesAllTenColumns) {
    ReportBuilder report;
    report.banner().storm("", "10-YR").hydrograph("OUTLET", "", 0.0, "0.75", flows(5, 2), 1.75).blank();
    PlotData plot = request(6, {{"", "10-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_DOUBLE_EQ(plot.PlotRequest[1].T6, 0.75);
}

TEST(ReadOutputFile, TheLastLineOfTheFileIsNeverUsed) {
    ReportBuilder report;
    report.banner().storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 10), 3.5);
    report.lines.pop_back(); // the file ends on the last ordinate line
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), values(1, 7));
    EXPECT_DOUBLE_EQ(plot.PlotRequest[1].T6, 0.5);
}

TEST(ReadOutputFile, APageHeaderInAnOrdinateBlockIsInvisibleWithItsThreeLines) {
    ReportBuilder report;
    report.banner().storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 14), 3.5).blank();
    ReportBuilder header;
    header.pageHeader(2);
    const auto second = report.lines.end() - 3; // before the second ordinate line
    report.lines.insert(second, header.lines.begin(), header.lines.end());
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), values(1, 14));
    EXPECT_DOUBLE_EQ(plot.PlotRequest[1].T6, 0.5);
}

TEST(ReadOutputFile, APageHeaderWhoseThirdLineIsNotBlankTakesTheFourthLineWithIt) {
    ReportBuilder report;
    report.banner().storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 21), 3.5).blank();
    ReportBuilder header;
    header.pageHeader(2, "  continued");
    const auto second = report.lines.end() - 4; // before the second of three ordinate lines
    report.lines.insert(second, header.lines.begin(), header.lines.end());
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    // The fourth line is read in the place of the third: the second ordinate line comes next.
    EXPECT_EQ(ys(plot, 1), values(1, 21));

    // With a blank line after the header, that blank line is the one read with it.
    ReportBuilder spaced;
    spaced.banner().storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 21), 3.5).blank();
    header.blank();
    spaced.lines.insert(spaced.lines.end() - 4, header.lines.begin(), header.lines.end());
    PlotData again = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(again, spaced));
    EXPECT_EQ(ys(again, 1), values(1, 21));
}

TEST(ReadOutputFile, TwoRowsAskingForTheSameHydrographLeaveTheSecondEmpty) {
    ReportBuilder report;
    report.banner().storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 9), 3.5).blank();
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}, {"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), values(1, 9));
    EXPECT_EQ(plot.PlotRequest[2].T7, 0);
    EXPECT_EQ(plot.PlotRequest[2].T[5], "");
}

TEST(ReadOutputFile, ALocationNotRequestedIsPassedOverLineByLine) {
    ReportBuilder report;
    report.banner().storm("", "100-YR");
    report.hydrograph("UPPER-1", "NORTHGAGE", 0.0, "0.5000 hr", flows(100, 9), 3.5);
    report.hydrograph("MILLPOND", "DOWNSTREAM", 0.0, "0.5000 hr", flows(200, 8), 3.5).blank();
    PlotData plot = request(6, {{"", "100-YR", "MILLPOND", "Downstream"}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), values(200, 8));

    PlotData none = request(6, {{"", "100-YR", "EASTFORK", "Upstream"}});
    EXPECT_FALSE(read(none, report));
    EXPECT_EQ(none.PlotRequest[1].T7, 0);
}

TEST(ReadOutputFile, ALocationLineNotAskedForLeavesTheNextLineToTheSearch) {
    ReportBuilder report;
    report.banner().storm("", "100-YR");
    report.hydrograph("MILLPOND", "DOWNSTREAM", 0.0, "0.5000 hr", flows(200, 8), 3.5).blank();
    // A location line that is not asked for stands just before the one that is.
    const auto asked =
        std::find(report.lines.begin(), report.lines.end(),
                  ReportBuilder::at({{1, "MILLPOND"}, {21, "DOWNSTREAM"}, {45, "12.50"}, {60, "123."}}));
    ASSERT_NE(asked, report.lines.end());
    report.lines.insert(asked, ReportBuilder::at({{1, "UPPER-1"}, {21, "NORTHGAGE"}}));
    PlotData plot = request(6, {{"", "100-YR", "MILLPOND", "Downstream"}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), values(200, 8));
    EXPECT_EQ(plot.PlotRequest[1].T7, 8);
}

TEST(ReadOutputFile, SeveralStormsAndAlternatesFillTheirOwnRows) {
    ReportBuilder report;
    report.banner();
    report.storm("", "10-YR").hydrograph("UPPER-1", "NORTHGAGE", 0.0, "0.5000 hr", flows(10, 4), 3.5);
    report.pageHeader(2);
    report.storm("", "100-YR").hydrograph("UPPER-1", "NORTHGAGE", 1.0, "0.5000 hr", flows(100, 9), 1.75);
    report.storm("BUILDOUT", "100-YR")
        .hydrograph("UPPER-1", "NORTHGAGE", 0.0, "0.5000 hr", flows(300, 3), 3.5);
    report.hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(400, 2), 3.5).blank();
    PlotData plot = request(6, {{"", "100-YR", "UPPER-1", "NORTHGAGE "},
                                {"", "10-YR", "UPPER-1", "NORTHGAGE"},
                                {"buildout", "100-YR", "UPPER-1", "NORTHGAGE"},
                                {"BUILDOUT", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), values(100, 9));
    EXPECT_EQ(plot.PlotRequest[1].T[5], "     1.00 ");
    EXPECT_DOUBLE_EQ(plot.PlotRequest[1].T6, 0.25);
    EXPECT_EQ(ys(plot, 2), values(10, 4));
    EXPECT_EQ(ys(plot, 3), values(300, 3));
    EXPECT_EQ(ys(plot, 4), values(400, 2));
}

TEST(ReadOutputFile, AFieldThatIsNotANumberCountsButLeavesItsCell) {
    ReportBuilder report;
    report.banner()
        .storm("", "100-YR")
        .hydrograph("OUTLET", "", 0.0, "0.5000 hr", {"1.", "****", "3."}, 3.5)
        .blank();
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(ys(plot, 1), (std::vector<float>{1.0f, 0.0f, 3.0f}));
}

TEST(ReadOutputFile, TheHydrographPassEndsAtThePeakTable) {
    ReportBuilder report;
    report.banner().peakTable({"100-YR"}).peakRow("OUTLET", "5.", "", {"99."});
    report.storm("", "100-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 3), 3.5).blank();
    PlotData plot = request(6, {{"", "100-YR", "Outlet", ""}});
    EXPECT_FALSE(read(plot, report));
}

// ---- Peak flows ------------------------------------------------------------------------------

ReportBuilder peakReport() {
    ReportBuilder report;
    report.banner().storm("", "10-YR").hydrograph("OUTLET", "", 0.0, "0.5000 hr", flows(1, 3), 3.5);
    report.peakTable({"10-YR", "100-YR"});
    report.peakRow("UPPER-1", "1.12", "", {"110.", "210."});
    report.peakRow("UPPER-1", "1.12", "BUILDOUT", {"111.", "211."});
    report.peakRow("EASTFK-1", "0.86", "", {"86.", "186."});
    report.peakRow("UPPERMAIN", "1.57", "", {"150.", "250."});
    report.peakRow("DOWNSTREAM", "", "", {"148.", "248."});
    report.peakRow("MILLPOND", "2.80", "", {"260.", "360."});
    report.peakRow("DOWNSTREAM", "", "", {"120.", "220."});
    report.peakRow("OUTLET", "4.50", "", {"300.", "400."});
    return report.blank();
}

TEST(ReadOutputFile, ThePeakTableGivesSubAreasReachesWithBothEndsAndTheOutlet) {
    PlotData plot = request(
        7, {{"", "100-YR", "Subarea", ""}, {"", "100-YR", "Reach", ""}, {"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, peakReport()));
    EXPECT_EQ(xs(plot, 1), (std::vector<float>{1.12f, 1.12f, 0.86f}));
    // The row of the alternate gives its area but no flow.
    EXPECT_EQ(ys(plot, 1), (std::vector<float>{210.0f, 0.0f, 186.0f}));
    // The first reach's upstream row was taken under the sub-areas, then moved.
    EXPECT_EQ(xs(plot, 2), (std::vector<float>{1.57f, 1.57f, 2.80f, 2.80f}));
    EXPECT_EQ(ys(plot, 2), (std::vector<float>{250.0f, 248.0f, 360.0f, 220.0f}));
    EXPECT_EQ(xs(plot, 3), (std::vector<float>{4.5f}));
    EXPECT_EQ(ys(plot, 3), (std::vector<float>{400.0f}));
}

TEST(ReadOutputFile, APeakRowOfAnotherAlternateKeepsItsAreaButNotItsFlow) {
    PlotData plot = request(7, {{"BUILDOUT", "10-YR", "Subarea", ""}});
    EXPECT_TRUE(read(plot, peakReport()));
    // Only the second row is of the alternate; the others store their areas alone.
    EXPECT_EQ(xs(plot, 1), (std::vector<float>{1.12f, 1.12f, 0.86f}));
    EXPECT_EQ(ys(plot, 1), (std::vector<float>{0.0f, 111.0f, 0.0f}));
}

TEST(ReadOutputFile, FlowsPerUnitAreaAreDividedByTheDrainageArea) {
    PlotData plot = request(7, {{"", "10-YR", "Subarea", ""}, {"", "10-YR", "Outlet", ""}});
    plot.FlowUnitLabel = "csm ";
    EXPECT_TRUE(read(plot, peakReport()));
    EXPECT_FLOAT_EQ(plot.PlotY.get(1, 1), 110.0f / 1.12f);
    EXPECT_FLOAT_EQ(plot.PlotY.get(1, 3), 86.0f / 0.86f);
    EXPECT_FLOAT_EQ(plot.PlotY.get(2, 1), 300.0f / 4.5f);
}

TEST(ReadOutputFile, AnOutletOnlyRequestEndsWithTheOutletsValues) {
    PlotData plot = request(7, {{"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, peakReport()));
    EXPECT_EQ(plot.PlotRequest[1].T7, 1);
    EXPECT_EQ(xs(plot, 1), (std::vector<float>{4.5f}));
    EXPECT_EQ(ys(plot, 1), (std::vector<float>{400.0f}));
}

TEST(ReadOutputFile, AnOutletAsTheFirstPeakRowGoesToTheOutletStepWithNoPoints) {
    ReportBuilder report;
    report.banner().peakTable({"100-YR"}).peakRow("OUTLET", "4.50", "", {"400."});
    report.peakRow("UPPER-1", "1.12", "", {"210."}).blank();
    PlotData plot = request(7, {{"", "100-YR", "Subarea", ""}, {"", "100-YR", "Outlet", ""}});
    EXPECT_TRUE(read(plot, report));
    EXPECT_EQ(plot.PlotRequest[1].T7, 0);
    EXPECT_EQ(xs(plot, 2), (std::vector<float>{4.5f}));
    EXPECT_EQ(ys(plot, 2), (std::vector<float>{400.0f}));
}

TEST(ReadOutputFile, APeakTableWithoutTheRequestedStormGivesNothing) {
    PlotData plot = request(7, {{"", "500-YR", "Subarea", ""}});
    EXPECT_FALSE(read(plot, peakReport()));
}

// ---- Durations -------------------------------------------------------------------------------

ReportBuilder durationReport() {
    ReportBuilder report;
    report.banner()
        .storm("", "100-YR")
        .hydrograph("MILLPOND", "UPSTREAM", 0.0, "0.5000 hr", flows(1, 8), 3.5);
    report.durationTable(false, false, {"90", "75", "50", "25"});
    report.durationRow("UPPER-1", "", "100-YR", {"1.0", "2.0", "3.0", "4.0", "5.0"});
    report.durationRow("MILLPOND", "", "100-YR", {"1.5", "2.5", "3.5", "4.5", "5.5"});
    report.durationRow("DOWNSTREAM", "", "10-YR", {"9.1", "9.2", "9.3", "9.4", "9.5"});
    report.durationRow("DOWNSTREAM", "", "100-YR", {"1.6", "2.6", "3.6", "4.6", "5.6"});
    report.durationRow("OUTLET", "", "100-YR", {"1.7", "2.7", "3.7", "4.7", "5.7"});
    report.durationTable(true, false, {"0.5", "1.0", "2.0", "3.0"});
    report.durationRow("UPPER-1", "", "100-YR", {"6.0", "7.0", "8.0", "9.0", "10.0"});
    report.durationRow("MILLPOND", "", "100-YR", {"6.5", "7.5", "8.5", "9.5", "10.5"});
    report.durationRow("DOWNSTREAM", "", "100-YR", {"6.6", "7.6", "8.6", "9.6", "10.6"});
    report.durationRow("OUTLET", "", "100-YR", {"6.7", "7.7", "8.7", "9.7", "10.7"});
    return report.blank();
}

std::vector<std::string> durationTexts(const PlotData& plot) {
    const auto& T = plot.PlotRequest[1].T;
    return std::vector<std::string>(T.begin() + 8, T.end());
}

TEST(ReadOutputFile, AnUpstreamRequestTakesTheDurationsOfItsDownstreamRow) {
    PlotData plot = request(8, {{"", "100-YR", "MILLPOND", "Upstream"}});
    EXPECT_TRUE(read(plot, durationReport()));
    EXPECT_EQ(ys(plot, 1), values(1, 8));
    EXPECT_EQ(durationTexts(plot),
              (std::vector<std::string>{"90% of Peak", "75% of Peak", "50% of Peak", "25% of Peak",
                                        "0.5 Stage", "1.0 Stage", "2.0 Stage", "3.0 Stage", "1.6", "2.6",
                                        "3.6", "4.6", "6.6", "7.6", "8.6", "9.6"}));
}

TEST(ReadOutputFile, ASubAreaRequestTakesTheNextDownstreamRowOfItsStorm) {
    PlotData plot = request(8, {{"", "100-YR", "UPPER-1", "NORTHGAGE"}});
    EXPECT_FALSE(read(plot, durationReport()));
    // Not its own row: the next DOWNSTREAM row of its alternate and storm, in each table.
    EXPECT_EQ(durationTexts(plot),
              (std::vector<std::string>{"90% of Peak", "75% of Peak", "50% of Peak", "25% of Peak",
                                        "0.5 Stage", "1.0 Stage", "2.0 Stage", "3.0 Stage", "1.6", "2.6",
                                        "3.6", "4.6", "6.6", "7.6", "8.6", "9.6"}));
}

TEST(ReadOutputFile, TheOutletKeepsItsOwnRowWhenTheFileEndsFirstAndItsFifthFieldLandsInT20) {
    ReportBuilder report;
    report.banner().durationTable(false, false, {"90", "75", "50", "25"});
    report.durationRow("DOWNSTREAM", "", "100-YR", {"1.6", "2.6", "3.6", "4.6", "5.6"});
    report.durationRow("OUTLET", "", "100-YR", {"1.7", "2.7", "3.7", "4.7", "5.7"}).blank();
    PlotData plot = request(8, {{"", "100-YR", "Outlet", ""}});
    read(plot, report);
    EXPECT_EQ(durationTexts(plot),
              (std::vector<std::string>{"90% of Peak", "75% of Peak", "50% of Peak", "25% of Peak", "", "",
                                        "", "", "1.7", "2.7", "3.7", "4.7", "5.7", "", "", ""}));
}

TEST(ReadOutputFile, AStageHeadingPassedWhileSeekingADownstreamRowIsNotTaken) {
    // The outlet's search for a DOWNSTREAM row runs into the stage table: its headings are not
    // read, and its rows are stored under the percent-of-peak columns.
    PlotData plot = request(8, {{"", "100-YR", "Outlet", ""}});
    read(plot, durationReport());
    EXPECT_EQ(durationTexts(plot),
              (std::vector<std::string>{"90% of Peak", "75% of Peak", "50% of Peak", "25% of Peak", "", "",
                                        "", "", "6.7", "7.7", "8.7", "9.7", "10.7", "", "", ""}));
}

TEST(ReadOutputFile, AFirstKindTableMarkedBaseIsTheStageTable) {
    ReportBuilder report;
    report.banner().durationTable(false, true, {"0.5", "1.0", "2.0", "3.0"});
    report.durationRow("OUTLET", "", "100-YR", {"6.7", "7.7", "8.7", "9.7", "10.7"});
    report.blank();
    PlotData plot = request(8, {{"", "100-YR", "Outlet", ""}});
    read(plot, report);
    const auto& T = plot.PlotRequest[1].T;
    EXPECT_EQ(T[12], "0.5 Stage");
    EXPECT_EQ(T[15], "3.0 Stage");
    EXPECT_EQ(T[20], "6.7");
    EXPECT_EQ(T[23], "9.7");
    EXPECT_EQ(T[8], "");
    EXPECT_EQ(T[16], "");
}

} // namespace
} // namespace brooklet::test
