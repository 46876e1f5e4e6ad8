// Check Watershed's rules, each on a small crafted watershed that trips it, beside a clean one
// and the example watershed that trip nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "check/check_watershed.h"
#include "network/standard_land_use.h"
#include "session/text_file.h"
#include "support/program_folder.h"

namespace brooklet {
namespace {

using test::crlf;

// A record of ten-column fields from column 1.
std::string tens(std::initializer_list<std::string> fields) {
    std::string record;
    for (const std::string& field : fields)
        record += field + std::string(field.size() < 10 ? 10 - field.size() : 0, ' ');
    return record;
}

// The identification line: the header in columns 1-40, then the run options.
std::string identificationLine(const std::string& input, const std::string& output,
                               const std::string& minimum, const std::string& screen) {
    std::string header = "BROOKLET: VERSION 1.0";
    header.resize(40, ' ');
    return header + tens({input, output, minimum, screen});
}

void addStandardLandUses(CheckInput& input) {
    const StandardLandUseTable& table = StandardLandUse();
    for (int row = 1; row <= StandardLandUseRows; ++row)
        addKnownLandUse(input, {table(row, 0), {table(row, 1), table(row, 2), table(row, 3), table(row, 4)}});
}

Findings check(const std::vector<std::string>& lines) {
    CheckInput input = CutInputFileForCheck(crlf(lines));
    addStandardLandUses(input);
    return CheckWatershed(input);
}

// The sections of a clean watershed, each a list of lines; a test changes one and joins them.
struct Watershed {
    std::vector<std::string> identification = {identificationLine("0", "0", "0.5", "0")};
    std::vector<std::string> subAreas = {
        "SUB-AREA:",
        tens({"", "A1", "R1", "G1", "1.0", "70.", "0.5"}),
        tens({"", "A2", "R2", "G1", "2.0", "75.", "0.6"}),
    };
    std::vector<std::string> reaches = {
        "STREAM REACH:",
        tens({"", "R1", "R2", "XS1", "", "1000.", "900."}),
        tens({"", "R2", "OUTLET", "", "DAM"}),
    };
    std::vector<std::string> storms = {
        "STORM ANALYSIS:",
        tens({"", "S1", "G1", "0.", "5.", "Type II", "2", "3."}),
    };
    std::vector<std::string> crossSections = {
        "STREAM CROSS SECTION:",
        tens({"", "XS1", "10.", "", "9.", "1.", "100."}),
        tens({"", "", "8.", "0.", "0.", "0.", "0.001"}),
        tens({"", "", "9.", "10.", "5.", "10.", "0.001"}),
        tens({"", "", "10.", "50.", "20.", "20.", "0.001"}),
    };
    std::vector<std::string> structures = {
        "STRUCTURE RATING:",
        tens({"", "DAM", "100."}),
        tens({"", "", "100.", "0.", "0."}),
        tens({"", "", "101.", "10.", "5."}),
    };
    std::vector<std::string> more; // further sections, with their blank lines

    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        for (const auto* section :
             {&identification, &subAreas, &reaches, &storms, &crossSections, &structures, &more}) {
            all.insert(all.end(), section->begin(), section->end());
            all.push_back("");
        }
        return all;
    }
};

// The findings whose message holds Text.
std::vector<Finding> withText(const Findings& findings, const std::string& text) {
    std::vector<Finding> found;
    std::copy_if(findings.begin(), findings.end(), std::back_inserter(found),
                 [&](const Finding& finding) { return finding.message.find(text) != std::string::npos; });
    return found;
}

std::string allMessages(const Findings& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += std::to_string(finding.line) + ": " + severityWord(finding.severity) + ": " +
                finding.message + "\n";
    return text;
}

TEST(CheckWatershed, CleanWatershedHasNoFindings) {
    const Findings findings = check(Watershed().lines());
    EXPECT_TRUE(findings.empty()) << allMessages(findings);
}

TEST(CheckWatershed, ExampleWatershedHasNoErrors) {
    CheckInput input =
        CutInputFileForCheck(test::bytesOf(std::string(BROOKLET_EXAMPLES_DIR) + "/watershed.inp"));
    addStandardLandUses(input);
    const Findings findings = CheckWatershed(input);
    EXPECT_EQ(errorCount(findings), 0) << allMessages(findings);
}

TEST(CheckWatershed, SubAreaDrainingIntoAMissingReachIsAnErrorOnItsLine) {
    Watershed watershed;
    watershed.subAreas[2] = tens({"", "A2", "R9", "G1", "2.0", "75.", "0.6"});
    const Findings findings = check(watershed.lines());
    ASSERT_EQ(findings.size(), 1u) << allMessages(findings);
    const Finding& finding = findings[0];
    EXPECT_EQ(finding.severity, Severity::Error);
    EXPECT_EQ(finding.section, SubAreaSection);
    EXPECT_EQ(finding.identifier, "A2");
    EXPECT_EQ(finding.field, "Sub-Area Reach Identifier");
    EXPECT_EQ(finding.box, 2);
    EXPECT_EQ(finding.line, 5);
    EXPECT_EQ(finding.message,
              "Sub-area A2 drains into R9, which is no stream reach, sub-area or OUTLET. Choose an "
              "existing reach, or add reach R9 in Stream Reach.");
    EXPECT_EQ(
        findingLine("w.inp", finding),
        "w.inp:5: error: Sub-area A2 drains into R9, which is no stream reach, sub-area or OUTLET. Choose an "
        "existing reach, or add reach R9 in Stream Reach.");
}

TEST(CheckWatershed, ReferencesIgnoreCaseAsTheIdentifierListsDo) {
    Watershed watershed;
    watershed.subAreas[1] = tens({"", "A1", "r1", "g1", "1.0", "70.", "0.5"});
    watershed.reaches[2] = tens({"", "R2", "outlet", "", "dam"});
    const Findings findings = check(watershed.lines());
    EXPECT_TRUE(findings.empty()) << allMessages(findings);
}

TEST(CheckWatershed, ReachDrainingNowhereAndSplitFlowToAMissingReach) {
    Watershed watershed;
    watershed.reaches[1] = tens({"", "R1", "", "XS1", "", "1000.", "900."});
    watershed.reaches.insert(watershed.reaches.begin() + 2,
                             tens({"", "", "SPLIT FLOW", "R7", "", "1.", "2.", "0.5"}));
    const Findings findings = check(watershed.lines());
    ASSERT_EQ(withText(findings, "Stream reach R1 drains into no element").size(), 1u)
        << allMessages(findings);
    const auto split = withText(findings, "splits its flow to R7");
    ASSERT_EQ(split.size(), 1u) << allMessages(findings);
    EXPECT_EQ(split[0].box, 14);
    EXPECT_EQ(split[0].line, 9);
    // A1 drains into R1, which now ends nowhere: A1 is cut off with it, told as a warning.
    const auto cutOff = withText(findings, "Sub-area A1 drains into R1, which does not reach the outlet");
    ASSERT_EQ(cutOff.size(), 1u) << allMessages(findings);
    EXPECT_EQ(cutOff[0].severity, Severity::Warning);
}

TEST(CheckWatershed, InputHydrographNamesAReachAndAStorm) {
    Watershed watershed;
    watershed.more = {"INPUT HYDROGRAPH:", tens({"", "Q1", "R5", "S9", "0.", "0.5", "1.", "0."}),
                      tens({"", "", "0.", "4.", "0."})};
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "Input hydrograph Q1 enters R5, which is no stream reach").size(), 1u)
        << allMessages(findings);
    EXPECT_EQ(withText(findings, "Input hydrograph Q1 belongs to storm S9").size(), 1u)
        << allMessages(findings);
}

TEST(CheckWatershed, ReachNamesAMissingStructureAndCrossSection) {
    Watershed watershed;
    watershed.reaches[1] = tens({"", "R1", "R2", "XS9", "", "1000.", "900."});
    watershed.reaches[2] = tens({"", "R2", "OUTLET", "", "WEIR"});
    const Findings findings = check(watershed.lines());
    const auto structure = withText(findings, "structure WEIR, which has no rating table");
    ASSERT_EQ(structure.size(), 1u) << allMessages(findings);
    EXPECT_EQ(structure[0].box, 4);
    EXPECT_EQ(withText(findings, "cross section XS9, which Stream Cross Section does not define").size(), 1u);
    // The tables no reach uses now are warnings.
    EXPECT_EQ(withText(findings, "Structure DAM is used by no stream reach").size(), 1u);
    EXPECT_EQ(withText(findings, "Cross section XS1 is used by no stream reach").size(), 1u);
}

TEST(CheckWatershed, StormRainTableAndSubAreaGage) {
    Watershed watershed;
    watershed.storms[1] = tens({"", "S1", "G1", "0.", "5.", "WB-24", "2", "3."});
    watershed.subAreas[2] = tens({"", "A2", "R2", "G7", "2.0", "75.", "0.6"});
    const Findings findings = check(watershed.lines());
    const auto table = withText(findings, "uses rain table WB-24");
    ASSERT_EQ(table.size(), 1u) << allMessages(findings);
    EXPECT_EQ(table[0].entry, "S1|G1");
    EXPECT_EQ(table[0].box, 5);
    EXPECT_EQ(
        withText(findings, "takes its rain from gage G7, which no storm of Storm Analysis names").size(), 1u);
}

TEST(CheckWatershed, StandardRainTableInAnyCaseAndRainDistributionTablesAreKnown) {
    Watershed watershed;
    watershed.storms = {"STORM ANALYSIS:", tens({"", "S1", "G1", "0.", "5.", "TYPE II", "2", "3."}),
                        tens({"", "S2", "G1", "0.", "6.", "MINE", "2", "3."})};
    watershed.more = {"RAINFALL DISTRIBUTION:", tens({"", "MINE", "", "0.5"}),
                      tens({"", "", "0.", "0.4", "1."})};
    const Findings findings = check(watershed.lines());
    EXPECT_TRUE(findings.empty()) << allMessages(findings);
}

TEST(CheckWatershed, StormThatGivesNoRainAtAGageInUseIsAWarning) {
    Watershed watershed;
    watershed.storms.push_back(tens({"", "S2", "G2", "0.", "5.", "Type II", "2", "3."}));
    const Findings findings = check(watershed.lines());
    ASSERT_EQ(findings.size(), 1u) << allMessages(findings);
    EXPECT_EQ(findings[0].severity, Severity::Warning);
    EXPECT_EQ(
        findings[0].message,
        "Storm S2 gives no rain at gage G1, which Sub-area A1 uses. Add a record of the storm at that gage.");
}

TEST(CheckWatershed, IdentifiersDefinedTwice) {
    Watershed watershed;
    watershed.subAreas.push_back(tens({"", "a1", "R1", "G1", "1.0", "70.", "0.5"}));
    watershed.structures.push_back(tens({"", "DAM", "100."}));
    watershed.structures.push_back(tens({"", "", "100.", "0.", "0."}));
    watershed.storms.push_back(tens({"", "S1", "G1", "0.", "6.", "Type II", "2", "3."}));
    const Findings findings = check(watershed.lines());
    const auto subArea = withText(findings, "Sub-area a1 is defined twice (first on line 4)");
    ASSERT_EQ(subArea.size(), 1u) << allMessages(findings);
    EXPECT_EQ(subArea[0].line, 6);
    EXPECT_EQ(withText(findings, "Structure DAM is defined twice").size(), 1u) << allMessages(findings);
    EXPECT_EQ(withText(findings, "Storm S1 has two records for gage G1").size(), 1u) << allMessages(findings);
}

TEST(CheckWatershed, ReachAndSubAreaOfOneNameAreAnError) {
    Watershed watershed;
    watershed.subAreas.push_back(tens({"", "R1", "R2", "G1", "1.0", "70.", "0.5"}));
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "Sub-area R1 has the name of a stream reach").size(), 1u)
        << allMessages(findings);
}

TEST(CheckWatershed, CycleOfReachesIsOneError) {
    Watershed watershed;
    watershed.reaches.push_back(tens({"", "R3", "R4", "XS1"}));
    watershed.reaches.push_back(tens({"", "R4", "R5", "XS1"}));
    watershed.reaches.push_back(tens({"", "R5", "R3", "XS1"}));
    watershed.subAreas.push_back(tens({"", "A3", "R4", "G1", "1.0", "70.", "0.5"}));
    const Findings findings = check(watershed.lines());
    const auto cycle = withText(findings, "drain into each other in a circle");
    ASSERT_EQ(cycle.size(), 1u) << allMessages(findings);
    EXPECT_EQ(cycle[0].message,
              "The elements R3, R4, R5 drain into each other in a circle, so their water never "
              "reaches the outlet. Change where one of them drains.");
    EXPECT_EQ(cycle[0].severity, Severity::Error);
    // A3 drains into the circle: cut off with it.
    EXPECT_EQ(withText(findings, "Sub-area A3 drains into R4, which does not reach the outlet").size(), 1u)
        << allMessages(findings);
}

TEST(CheckWatershed, NothingDrainsIntoTheOutlet) {
    Watershed watershed;
    watershed.reaches[2] = tens({"", "R2", "R1", "", "DAM"});
    const Findings findings = check(watershed.lines());
    const auto outlet = withText(findings, "No element drains into OUTLET");
    ASSERT_EQ(outlet.size(), 1u) << allMessages(findings);
    EXPECT_EQ(outlet[0].line, 7); // the header of Stream Reach
    EXPECT_EQ(withText(findings, "in a circle").size(), 1u);
}

TEST(CheckWatershed, LongCycleIsWalkedWithoutRecursion) {
    constexpr int Length = 100000;
    CheckInput input;
    SectionText& reaches = input.sections[ReachSection];
    reaches.lines.push_back("STREAM REACH:");
    for (int i = 0; i < Length; ++i)
        reaches.lines.push_back(
            tens({"", "R" + std::to_string(i), "R" + std::to_string((i + 1) % Length), "XS"}));
    input.sections[CrossSectionSection].lines = {"STREAM CROSS SECTION:", tens({"", "XS", "1."}),
                                                 tens({"", "", "1.", "0.", "0.", "0."})};
    for (SectionText& text : input.sections)
        for (size_t i = 0; i < text.lines.size(); ++i)
            text.lineNumbers.push_back(static_cast<int>(i) + 1);
    const auto started = std::chrono::steady_clock::now();
    const Findings findings = CheckWatershed(input);
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(5));
    const auto cycle = withText(findings, "in a circle");
    ASSERT_EQ(cycle.size(), 1u);
    EXPECT_NE(cycle[0].message.find("and 99992 more"), std::string::npos) << cycle[0].message;
}

TEST(CheckWatershed, RatingTablesMustRise) {
    Watershed watershed;
    watershed.structures.push_back(tens({"", "", "102.", "8.", "6."}));
    watershed.crossSections[4] = tens({"", "", "10.", "50.", "20.", "5.", "0.001"});
    const Findings findings = check(watershed.lines());
    const auto discharge =
        withText(findings, "Structure DAM does not rise in its Structure Discharge at point 3");
    ASSERT_EQ(discharge.size(), 1u) << allMessages(findings);
    EXPECT_EQ(discharge[0].box, 4);
    EXPECT_EQ(discharge[0].line, 24);
    EXPECT_EQ(withText(findings, "Cross section XS1 does not rise in its Cross Section Top Width at point 3")
                  .size(),
              1u)
        << allMessages(findings);
}

TEST(CheckWatershed, RainTableMayNotFallAndStructureNeedsRows) {
    Watershed watershed;
    watershed.structures = {"STRUCTURE RATING:", tens({"", "DAM", "100."})};
    watershed.storms[1] = tens({"", "S1", "G1", "0.", "5.", "MINE", "2", "3."});
    watershed.more = {"RAINFALL DISTRIBUTION:", tens({"", "MINE", "", "0.5"}),
                      tens({"", "", "0.", "0.5", "0.5", "0.4", "1."})};
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(
        withText(findings, "Rain table MINE falls in its Mass Rainfall Points at point 4 (0.4 after 0.5)")
            .size(),
        1u)
        << allMessages(findings);
    EXPECT_EQ(withText(findings, "Structure DAM has no rating table").size(), 1u) << allMessages(findings);
}

TEST(CheckWatershed, ValuesOutsideTheFieldChecks) {
    Watershed watershed;
    watershed.subAreas[1] = tens({"", "A1", "R1", "G1", "0", "29.9", "x"});
    watershed.reaches[1] = tens({"", "R1", "R2", "XS1", "", "0.", "-1"});
    watershed.storms[1] = tens({"", "S1", "G1", "0.", "0", "Type II", "4", "3."});
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "has the drainage area \"0\", which is not a number above 0").size(), 1u)
        << allMessages(findings);
    EXPECT_EQ(
        withText(findings, "has the curve number \"29.9\", which is not a number from 30 to 100").size(), 1u);
    EXPECT_EQ(withText(findings, "has the time of concentration \"x\"").size(), 1u);
    EXPECT_EQ(withText(findings, "has the channel length \"0.\"").size(), 1u);
    EXPECT_EQ(withText(findings, "has the valley length \"-1\"").size(), 1u);
    EXPECT_EQ(withText(findings, "has the rainfall \"0\"").size(), 1u);
    EXPECT_EQ(withText(findings, "antecedent runoff condition \"4\"").size(), 1u);
}

TEST(CheckWatershed, SubAreaWithoutAreaOrDetails) {
    Watershed watershed;
    watershed.subAreas[1] = tens({"", "A1", "R1", "G1", "", "", ""});
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "has no drainage area and no land use details").size(), 1u)
        << allMessages(findings);
    EXPECT_EQ(withText(findings, "has no curve number and no land use details").size(), 1u);
    EXPECT_EQ(withText(findings, "has no time of concentration and no flow path details").size(), 1u);
}

TEST(CheckWatershed, SplitFlowByCrossSectionAndFlowsBoth) {
    Watershed watershed;
    watershed.reaches.insert(watershed.reaches.begin() + 2,
                             tens({"", "", "SPLIT FLOW", "R2", "XS1", "1.", "", "0.0009"}));
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "both by a cross section and by starting and ending flows").size(), 1u)
        << allMessages(findings);
    EXPECT_EQ(withText(findings, "split flow drainage area \"0.0009\"").size(), 1u) << allMessages(findings);
}

TEST(CheckWatershed, LandUsesAndSoilGroupsThatNoTableDefines) {
    Watershed watershed;
    watershed.subAreas[1] = tens({"", "A1", "R1", "G1", "", "", "0.5"});
    watershed.subAreas.insert(
        watershed.subAreas.begin() + 2,
        {std::string(20, ' ') + "LAND AREA Moon Rock" + std::string(26, ' ') + "B    0.5",
         std::string(20, ' ') + "LAND AREA Woods (Good)" + std::string(23, ' ') + "E    0.5",
         std::string(20, ' ') + "LAND AREA Farm Pond" + std::string(26, ' ') + "C    0.5"});
    watershed.more = {"LOCAL LAND USE:", "Farm Pond" + std::string(41, ' ') + "70.  80.  "};
    const Findings findings = check(watershed.lines());
    const auto unknown = withText(findings, "uses the land use \"Moon Rock\", which neither");
    ASSERT_EQ(unknown.size(), 1u) << allMessages(findings);
    EXPECT_EQ(unknown[0].line, 5);
    EXPECT_EQ(withText(findings, "the soil group \"E\", where only").size(), 1u) << allMessages(findings);
    EXPECT_EQ(
        withText(findings, "Farm Pond the soil group C, for which that land use has no curve number").size(),
        1u)
        << allMessages(findings);
}

TEST(CheckWatershed, AlternateEntriesAreCheckedLikeTheBaseData) {
    Watershed watershed;
    watershed.more = {"ALTERNATE ANALYSIS:",
                      "ALT1      Changes",
                      tens({"", "AREAS"}),
                      tens({"", "A1", "R8", "G1", "1.0", "70.", "0.5"}),
                      tens({"", "A1", "R1", "G1", "1.0", "70.", "0.5"}),
                      tens({"", "A9", "R1", "G1", "1.0", "70.", "0.5"}),
                      "ALT2      Nothing"};
    const Findings findings = check(watershed.lines());
    const auto missing = withText(findings, "Alternate ALT1, sub-area A1 drains into R8");
    ASSERT_EQ(missing.size(), 1u) << allMessages(findings);
    EXPECT_EQ(missing[0].section, AlternateSection);
    EXPECT_EQ(missing[0].entry, "ALT1");
    EXPECT_EQ(withText(findings, "Alternate ALT1 lists sub-area A1 twice").size(), 1u)
        << allMessages(findings);
    EXPECT_EQ(withText(findings, "Alternate ALT1 changes sub-area A9, which Sub-Area does not have").size(),
              1u);
    EXPECT_EQ(withText(findings, "Alternate ALT2 changes nothing").size(), 1u);
}

TEST(CheckWatershed, RunOptionCodes) {
    Watershed watershed;
    watershed.identification = {identificationLine("2", "0", "-1", "0")};
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "The Input Units Code is \"2\", where only 0 or 1 count").size(), 1u)
        << allMessages(findings);
    EXPECT_EQ(withText(findings, "The Minimum Hydrograph Value is \"-1\"").size(), 1u);
}

TEST(CheckWatershed, UnitHydrographValuesAndPeak) {
    Watershed watershed;
    watershed.more = {"DIMENSIONLESS UNIT HYDROGRAPH:", tens({"", "", "0.", "0.5", "1.2", "0.3", "0."})};
    const Findings findings = check(watershed.lines());
    EXPECT_EQ(withText(findings, "has the value \"1.2\"").size(), 1u) << allMessages(findings);
    EXPECT_EQ(withText(findings, "never reaches 1").size(), 1u) << allMessages(findings);
}

TEST(CheckWatershed, UnknownHeaderStopsTheReadingAndIsAFinding) {
    std::vector<std::string> lines = Watershed().lines();
    lines.insert(lines.begin() + 2, "NOT A SECTION:");
    const Findings findings = check(lines);
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings[0].line, 3);
    EXPECT_NE(findings[0].message.find("\"NOT A SECTION:\" is no section header"), std::string::npos);
}

TEST(CheckWatershed, ExitCodes) {
    EXPECT_EQ(checkExitCode({}), 0);
    Finding warning;
    warning.severity = Severity::Warning;
    Finding error;
    EXPECT_EQ(checkExitCode({warning}), 1);
    EXPECT_EQ(checkExitCode({warning, error}), 2);
}

} // namespace
} // namespace brooklet
