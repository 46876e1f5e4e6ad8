// The sections of value tables: rainfall distributions, input hydrographs and the
// dimensionless unit hydrograph, read and written byte for byte.
#include "tables/input_hydrograph.h"
#include "tables/rainfall_distribution.h"
#include "tables/unit_hydrograph.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

using Texts = std::vector<std::string>;

// A field of ten columns.
std::string f(std::string text) {
    text.resize(std::max<size_t>(10, text.size()), ' ');
    return text;
}
const std::string Twenty(20, ' ');
const std::string RainHeader = "RAINFALL DISTRIBUTION:" + std::string(28, ' ');
const std::string HydrographHeader = "INPUT HYDROGRAPH:" + std::string(23, ' ');
const std::string UnitHeader = "DIMENSIONLESS UNIT HYDROGRAPH:" + std::string(10, ' ');

Texts numbered(int count) {
    Texts values;
    for (int i = 1; i <= count; ++i)
        values.push_back(std::to_string(i));
    return values;
}

TEST(RainfallDistributionSection, TwentyTwoValuesAreWrittenAsFourRecordsOfFiveAndOneOfTwo) {
    const auto lines = WriteRainfallDistributionSection({{{"WB-24HR", "0.5"}, numbered(22)}});
    EXPECT_EQ(RainHeader.size(), 50u);
    EXPECT_EQ(lines, (Texts{RainHeader, std::string(10, ' ') + f("WB-24HR") + f("") + f("0.5"),
                            Twenty + f("1.") + f("2.") + f("3.") + f("4.") + f("5."),
                            Twenty + f("6.") + f("7.") + f("8.") + f("9.") + f("10."),
                            Twenty + f("11.") + f("12.") + f("13.") + f("14.") + f("15."),
                            Twenty + f("16.") + f("17.") + f("18.") + f("19.") + f("20."),
                            Twenty + f("21.") + f("22."), ""}));
}

TEST(RainfallDistributionSection, TheLastRecordIsNotFilledUpWithBlankFields) {
    const auto lines = WriteRainfallDistributionSection({{{"T", "1"}, {"0", "0.25", "1"}}});
    EXPECT_EQ(lines[2], Twenty + f("0.") + f("0.25") + f("1."));
    EXPECT_EQ(lines[2].size(), 50u);
    EXPECT_EQ(lines[1], std::string(10, ' ') + f("T") + f("") + f("1."));
}

TEST(RainfallDistributionSection, ABlankFieldInAValueRecordClosesUp) {
    const auto tables = ReadRainfallDistributionSection(
        {RainHeader, std::string(10, ' ') + f("T1") + f("") + f("0.5"),
         Twenty + f("0.") + f("") + f("0.2") + f("0.3") + f("0.4"), Twenty + f("0.5") + f("1.")});
    ASSERT_EQ(tables.size(), 1u);
    EXPECT_EQ(tables[0].Fields, (Texts{"T1", "0.5"}));
    EXPECT_EQ(tables[0].Values, (Texts{"0.", "0.2", "0.3", "0.4", "0.5", "1."}));
}

TEST(RainfallDistributionSection, ATableOfOneValueIsDroppedTogetherWithItsIdentifier) {
    const auto lines = WriteRainfallDistributionSection(
        {{{"ONE", "1"}, {"0"}}, {{"TWO", "1"}, {"0", "1"}}, {{"NONE", ""}, {}}});
    EXPECT_EQ(lines, (Texts{RainHeader, std::string(10, ' ') + f("TWO") + f("") + f("1."),
                            Twenty + f("0.") + f("1."), ""}));
    EXPECT_TRUE(WriteRainfallDistributionSection({{{"ONE", "1"}, {"0"}}}).empty());
    EXPECT_TRUE(WriteRainfallDistributionSection({}).empty());
}

TEST(RainfallDistributionSection, AFirstValueOtherThanZeroStaysAsItIs) {
    const auto tables = ReadRainfallDistributionSection(
        {RainHeader, std::string(10, ' ') + f("T1") + f("") + f("1"), Twenty + f("0.1") + f("0.2")});
    EXPECT_EQ(tables[0].Values, (Texts{"0.1", "0.2"}));
    EXPECT_EQ(WriteRainfallDistributionSection(tables)[2], Twenty + f("0.1") + f("0.2"));
}

TEST(RainfallDistributionSection, ReadingStopsAtTheFirstBlankLineAndValuesBeforeATableBelongToNone) {
    const auto tables =
        ReadRainfallDistributionSection({RainHeader, Twenty + f("9."), std::string(10, ' ') + f("T1"),
                                         Twenty + f("0.") + f("1."), "   ", std::string(10, ' ') + f("T2")});
    ASSERT_EQ(tables.size(), 1u);
    EXPECT_EQ(tables[0].Fields, (Texts{"T1", ""}));
    EXPECT_EQ(tables[0].Values, (Texts{"0.", "1."}));
}

TEST(RainfallDistributionSection, TheExampleDistributionReadsBackToTheSameRecords) {
    const Texts lines{RainHeader, "          WB-24HR             0.5       ",
                      "                    0.        0.005     0.009     0.014     0.019     ",
                      "                    0.024     0.03      ", ""};
    EXPECT_EQ(WriteRainfallDistributionSection(ReadRainfallDistributionSection(lines)), lines);
}

TEST(InputHydrographSection, TheIdentifierRecordHoldsSevenFieldsWithPointsOnTheNumbers) {
    const auto lines =
        WriteInputHydrographSection({{{"QUARRY", "EASTFORK", "", "0", "0.5", "", "2"}, {"0", "4", "0"}}});
    EXPECT_EQ(lines, (Texts{HydrographHeader,
                            std::string(10, ' ') + f("QUARRY") + f("EASTFORK") + f("") + f("0.") + f("0.5") +
                                f("") + f("2."),
                            Twenty + f("0.") + f("4.") + f("0."), ""}));
    const auto tables = ReadInputHydrographSection(lines);
    EXPECT_EQ(tables[0].Fields, (Texts{"QUARRY", "EASTFORK", "", "0.", "0.5", "", "2."}));
}

TEST(InputHydrographSection, ALastFlowAboveZeroIsFollowedByZero) {
    const auto lines = WriteInputHydrographSection({{{"H"}, {"0", "3", "12.5"}}});
    EXPECT_EQ(lines[2], Twenty + f("0.") + f("3.") + f("12.5") + f("0."));
}

TEST(InputHydrographSection, WithFiveTenOrFifteenFlowsTheZeroStandsAloneInANewRecord) {
    for (int count : {5, 10, 15}) {
        const auto lines = WriteInputHydrographSection({{{"H"}, numbered(count)}});
        ASSERT_EQ(lines.size(), size_t(2 + count / 5 + 1 + 1)) << count;
        EXPECT_EQ(lines[lines.size() - 2], Twenty + f("0.")) << count;
    }
}

TEST(InputHydrographSection, AHydrographEndingInZeroGetsNothingAdded) {
    const auto lines =
        WriteInputHydrographSection({{{"H"}, {"0", "5", "0."}}, {{"K"}, {"0", "1", "2", "3", "0"}}});
    EXPECT_EQ(lines[2], Twenty + f("0.") + f("5.") + f("0."));
    EXPECT_EQ(lines[4], Twenty + f("0.") + f("1.") + f("2.") + f("3.") + f("0."));
    EXPECT_EQ(lines[5], "");
}

TEST(InputHydrographSection, AHydrographWithASingleValueIsNotWritten) {
    EXPECT_TRUE(WriteInputHydrographSection({{{"H", "R"}, {"5"}}}).empty());
}

TEST(InputHydrographSection, TheAddedZeroIsAFlowAtTheNextLoad) {
    const auto tables = ReadInputHydrographSection(WriteInputHydrographSection({{{"H"}, {"0", "7"}}}));
    EXPECT_EQ(tables[0].Values, (Texts{"0.", "7.", "0."}));
}

TEST(UnitHydrographSection, ALastValueOfFivePercentIsFollowedByZero) {
    EXPECT_EQ(WriteUnitHydrographSection({"0", "1", "0.05"}),
              (Texts{UnitHeader, Twenty + f("0.") + f("1.") + f("0.05") + f("0.")}));
}

TEST(UnitHydrographSection, FiveValuesEndingAboveZeroGiveASecondRecordWithZeroInColumn22) {
    const auto lines = WriteUnitHydrographSection({"0", "0.5", "1", "0.5", "0.2"});
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[2], " " + Twenty + f("0."));
    EXPECT_EQ(lines[2].find("0."), 21u);
    EXPECT_EQ(ReadUnitHydrographSection(lines), (Texts{"0.", "0.5", "1.", "0.5", "0.2", "0."}));
}

TEST(UnitHydrographSection, NoEmptyRecordEndsTheSectionAndNoValuesWriteNothing) {
    const auto lines = WriteUnitHydrographSection({"0", "1", "0"});
    EXPECT_EQ(lines, (Texts{UnitHeader, Twenty + f("0.") + f("1.") + f("0.")}));
    EXPECT_TRUE(WriteUnitHydrographSection({}).empty());
}

TEST(UnitHydrographSection, RecordsWithoutValuesArePassedOverAndABlankLineEndsTheReading) {
    EXPECT_EQ(
        ReadUnitHydrographSection({UnitHeader, Twenty + f("0.") + f("") + f("0.3"),
                                   std::string(10, ' ') + f("X"), Twenty + f("1."), "", Twenty + f("0.5")}),
        (Texts{"0.", "0.3", "1."}));
    EXPECT_TRUE(ReadUnitHydrographSection({UnitHeader}).empty());
}

TEST(ValueTables, TablesGoIntoTheSharedStoreOneAfterAnotherAndComeBack) {
    GridContext context;
    const std::vector<ValueTable> tables{
        {{"A", "0.5"}, {"0", "1"}}, {{"B", ""}, {}}, {{"C", "1"}, {"0", "0.4", "1"}}};
    LoadValueTables(context, tables, RainTableFields);
    EXPECT_EQ(context.TableCount, 3);
    EXPECT_EQ(context.ValueCount, 5);
    EXPECT_EQ(context.TableFirst, (std::vector<int>{0, 1, 0, 3}));
    EXPECT_EQ(context.TableLast, (std::vector<int>{0, 2, 0, 5}));
    EXPECT_EQ(context.IdentifierTable(1, 3), "C");
    EXPECT_EQ(context.ValueStore(4), "0.4");
    EXPECT_EQ(StoredValueTables(context), tables);
}

} // namespace
} // namespace brooklet
