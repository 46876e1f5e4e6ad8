#include "options/time_analysis.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

const std::string Header = "TIME ANALYSIS:                          "; // 40 columns
const std::string Blank10(10, ' ');

TEST(TimeAnalysis, NoLinesGiveEmptyBoxes) {
    const TimeAnalysisRecord record = ReadTimeAnalysisSection({});
    for (const std::string& box : record.Boxes)
        EXPECT_EQ(box, "");
}

TEST(TimeAnalysis, ReadsEachLineByItsName) {
    const TimeAnalysisRecord record = ReadTimeAnalysisSection({
        Header,
        Blank10 + "ELEVATION " + "0.5       " + "  1.      " + "2.",
        Blank10 + "FLOW      " + "10.       " + "25.       " + "50.       " + "90.       ",
    });
    const std::array<std::string, 8> expected = {"10.", "25.", "50.", "90.", "0.5", "1.", "2.", ""};
    EXPECT_EQ(record.Boxes, expected);
}

TEST(TimeAnalysis, TheNamesAreComparedExactly) {
    const TimeAnalysisRecord record = ReadTimeAnalysisSection({
        Header,
        Blank10 + "flow      " + "10.",
        Blank10 + "ELEVATIONS" + "1.",
        "FLOW                10.",
    });
    for (const std::string& box : record.Boxes)
        EXPECT_EQ(box, "");
}

TEST(TimeAnalysis, TheFirstLineIsTheHeaderEvenWhenItLooksLikeARow) {
    const TimeAnalysisRecord record = ReadTimeAnalysisSection({Blank10 + "FLOW      " + "10."});
    EXPECT_EQ(record.box(1), "");
}

TEST(TimeAnalysis, ALaterLineOfTheSameNameWins) {
    const TimeAnalysisRecord record =
        ReadTimeAnalysisSection({Header, Blank10 + "FLOW      10.       20.", Blank10 + "FLOW      30."});
    EXPECT_EQ(record.box(1), "30.");
    EXPECT_EQ(record.box(2), "");
}

TEST(TimeAnalysis, WritesBothLinesColumnForColumn) {
    TimeAnalysisRecord record;
    record.Boxes = {"10", "25", "50", "100", "0.5", "1", "", ""};
    EXPECT_EQ(WriteTimeAnalysisSection(record),
              (std::vector<std::string>{
                  Header,
                  Blank10 + "FLOW      10.       25.       50.       100.      ",
                  Blank10 + "ELEVATION 0.5       1.        " + std::string(20, ' '),
              }));
}

TEST(TimeAnalysis, ARowIsWrittenOnlyWhenItsFirstBoxHoldsSomething) {
    TimeAnalysisRecord record;
    record.box(3) = "50";
    record.box(5) = "2";
    EXPECT_EQ(WriteTimeAnalysisSection(record),
              (std::vector<std::string>{Header, Blank10 + "ELEVATION 2." + std::string(38, ' ')}));
}

TEST(TimeAnalysis, BothFirstBoxesEmptyWriteNothing) {
    TimeAnalysisRecord record;
    record.box(2) = "10";
    record.box(8) = "3";
    EXPECT_TRUE(WriteTimeAnalysisSection(record).empty());
}

TEST(TimeAnalysis, AFirstBoxOfBlanksIsNotEmptyAndWritesItsRow) {
    TimeAnalysisRecord record;
    record.box(1) = "  ";
    EXPECT_EQ(WriteTimeAnalysisSection(record),
              (std::vector<std::string>{Header, Blank10 + "FLOW      " + std::string(40, ' ')}));
}

TEST(TimeAnalysis, ARecordReadAndWrittenAgainIsTheSameRecord) {
    const std::vector<std::string> lines = {Header,
                                            Blank10 + "FLOW      10.       25.       50.       90.       ",
                                            Blank10 + "ELEVATION 0.5       1.        2.                  "};
    EXPECT_EQ(WriteTimeAnalysisSection(ReadTimeAnalysisSection(lines)), lines);
}

} // namespace
} // namespace brooklet
