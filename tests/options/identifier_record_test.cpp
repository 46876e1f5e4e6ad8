#include "options/identifier_record.h"

#include "session/section_table.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

const std::string Header = "Brooklet: Version 1.0                   "; // 40 columns

// A first line of the section from its four fields, each 10 wide.
std::string firstLine(const std::string& input, const std::string& output, const std::string& minimum,
                      const std::string& screen) {
    auto field = [](std::string text) {
        text.resize(10, ' ');
        return text;
    };
    return Header + field(input) + field(output) + field(minimum) + field(screen);
}

TEST(IdentifierRecord, NoLinesGiveTheDefaults) {
    const IdentifierRecord record = ReadIdentifierSection({});
    EXPECT_FALSE(record.MetricInput);
    EXPECT_FALSE(record.MetricOutput);
    EXPECT_EQ(record.MinimumHydrograph, "");
    EXPECT_FALSE(record.NoScreenOutput);
    EXPECT_EQ(record.Description1, "");
    EXPECT_EQ(record.Description2, "");
}

TEST(IdentifierRecord, ReadsEveryFieldFromItsColumns) {
    const IdentifierRecord record =
        ReadIdentifierSection({firstLine("1", "1", "  2.5", "1"), "  Upper Brook  ", "Run of 2004  "});
    EXPECT_TRUE(record.MetricInput);
    EXPECT_TRUE(record.MetricOutput);
    EXPECT_EQ(record.MinimumHydrograph, "2.5");
    EXPECT_TRUE(record.NoScreenOutput);
    EXPECT_EQ(record.Description1, "Upper Brook");
    EXPECT_EQ(record.Description2, "Run of 2004");
}

TEST(IdentifierRecord, AnyCodeButOneIsEnglishOrScreenOutput) {
    const IdentifierRecord record = ReadIdentifierSection({firstLine("0", "2", "", "Y")});
    EXPECT_FALSE(record.MetricInput);
    EXPECT_FALSE(record.MetricOutput);
    EXPECT_FALSE(record.NoScreenOutput);
}

TEST(IdentifierRecord, AFirstLineShorterThan41CharactersGivesDefaultsForAllOptions) {
    const IdentifierRecord record = ReadIdentifierSection({"Brooklet: Version 1.0", "Description"});
    EXPECT_FALSE(record.MetricInput);
    EXPECT_FALSE(record.MetricOutput);
    EXPECT_FALSE(record.NoScreenOutput);
    EXPECT_EQ(record.MinimumHydrograph, "");
    EXPECT_EQ(record.Description1, "Description");
}

TEST(IdentifierRecord, ALineOfFortyCharactersAndACodeInColumn41IsRead) {
    EXPECT_TRUE(ReadIdentifierSection({Header + "1"}).MetricInput);
}

TEST(IdentifierRecord, WritesLineOneColumnForColumn) {
    IdentifierRecord record;
    record.MetricInput = true;
    record.MinimumHydrograph = "5";
    record.NoScreenOutput = true;
    const std::vector<std::string> lines = WriteIdentifierSection(record);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], Header + "1         " + "0         " + "5.        " + "1         ");
    EXPECT_EQ(lines[0].size(), 80u);
}

TEST(IdentifierRecord, TheMinimumIsTrimmedAndGetsItsPointOnlyWhenItHasRoom) {
    IdentifierRecord record;
    record.MinimumHydrograph = "  12.5 ";
    EXPECT_EQ(WriteIdentifierSection(record)[0].substr(60, 10), "12.5      ");
    record.MinimumHydrograph = "1234567890";
    EXPECT_EQ(WriteIdentifierSection(record)[0].substr(60, 10), "1234567890");
    record.MinimumHydrograph = "12345678901";
    EXPECT_EQ(WriteIdentifierSection(record)[0].substr(60), "12345678901" + std::string("0         "));
}

TEST(IdentifierRecord, AcceptWithEverythingBlankStillWritesLineOne) {
    const std::vector<std::string> lines = WriteIdentifierSection(IdentifierRecord{});
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], firstLine("0", "0", "", "0"));
}

TEST(IdentifierRecord, DescriptionsAreWrittenAsTheyStandAndBlankOnesLeftOut) {
    IdentifierRecord record;
    record.Description1 = "   ";
    record.Description2 = "  Second line ";
    const std::vector<std::string> lines = WriteIdentifierSection(record);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1], "  Second line ");
}

TEST(IdentifierRecord, TheHeaderIsAlwaysWrittenInTheCurrentForm) {
    // A file of the old form, whose header the loader has already translated.
    const IdentifierRecord record =
        ReadIdentifierSection({"FLUME: VERSION 2001" + std::string(21, ' ') + "1"});
    EXPECT_EQ(WriteIdentifierSection(record)[0].substr(0, 40), Header);
}

TEST(IdentifierRecord, ARecordReadAndWrittenComesBackTheSame) {
    const std::vector<std::string> lines = {firstLine("1", "0", "0.5", "1"), "Upper Brook", "Second line"};
    EXPECT_EQ(WriteIdentifierSection(ReadIdentifierSection(lines)), lines);
}

// The table of unit words: each word with its English and its metric form.
struct UnitWordRow {
    const char* name;
    std::string UnitWords::*word;
    const char* english;
    const char* metric;
};

const UnitWordRow UnitWordTable[] = {
    {"AreaUnit", &UnitWords::AreaUnit, "sq mi", "sq km"},
    {"UnitFlowUnit", &UnitWords::UnitFlowUnit, "csm", "cu m/sec/sq km"},
    {"SmallAreaUnit", &UnitWords::SmallAreaUnit, "sq ft", "sq m"},
    {"FlowUnit", &UnitWords::FlowUnit, "cfs", "cu m/sec"},
    {"LengthUnit", &UnitWords::LengthUnit, "ft", "m"},
    {"DepthUnit", &UnitWords::DepthUnit, "in", "mm"},
    {"DepthRateUnit", &UnitWords::DepthRateUnit, "in/sec", "mm/sec"},
    {"VolumeUnit", &UnitWords::VolumeUnit, "ac ft", "ha m"},
    {"VelocityUnit", &UnitWords::VelocityUnit, "ft/sec", "m/sec"},
    {"SectionAreaUnit", &UnitWords::SectionAreaUnit, "cu ft/ft len", "cu m/m len"},
    {"OutputFlowUnit", &UnitWords::OutputFlowUnit, "cfs", "cms"},
    {"OutputUnitFlowUnit", &UnitWords::OutputUnitFlowUnit, "csm", "m^3/sec/sq km"},
    {"OutputAreaUnit", &UnitWords::OutputAreaUnit, "sq mi", "sq km"},
};

TEST(UnitWords, EachSystemGivesItsColumnOfTheTable) {
    for (bool english : {true, false}) {
        Session session;
        session.EnglishUnits = !english;
        SetInputUnitWords(session, english);
        SetOutputUnitWords(session.Units, english);
        EXPECT_EQ(session.EnglishUnits, english);
        for (const UnitWordRow& row : UnitWordTable)
            EXPECT_EQ(session.Units.*row.word, english ? row.english : row.metric) << row.name;
    }
}

TEST(UnitWords, TheFlowWordOfTheInputUnits) {
    EXPECT_EQ(InputFlowUnit(true), "cfs");
    EXPECT_EQ(InputFlowUnit(false), "cu m/sec");
}

TEST(UnitWords, MetricInputWithEnglishOutputGivesWordsOfBothSystems) {
    Session session;
    SetInputUnitWords(session, false);
    SetOutputUnitWords(session.Units, true);
    EXPECT_EQ(session.Units.FlowUnit, "cu m/sec");
    EXPECT_EQ(session.Units.OutputFlowUnit, "cfs");
    EXPECT_EQ(session.Units.AreaUnit, "sq km");
    EXPECT_EQ(session.Units.OutputAreaUnit, "sq mi");
}

} // namespace
} // namespace brooklet
