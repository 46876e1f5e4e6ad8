#include "options/duration_increment.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

const std::string Header = "DURATION INCREMENT:                     "; // 40 columns

TEST(DurationIncrement, NoLinesGiveHoursAndNoDurations) {
    const DurationIncrementRecord record = ReadDurationIncrementSection({});
    EXPECT_FALSE(record.Days);
    for (const std::string& duration : record.Durations)
        EXPECT_EQ(duration, "");
}

TEST(DurationIncrement, ReadsTheUnitAndTheDurationsFromTheirColumns) {
    const DurationIncrementRecord record =
        ReadDurationIncrementSection({Header + "Days      " + "  1.5     " + "6.        " + "    24."});
    EXPECT_TRUE(record.Days);
    EXPECT_EQ(record.duration(2), "1.5");
    EXPECT_EQ(record.duration(3), "6.");
    EXPECT_EQ(record.duration(4), "24.");
}

TEST(DurationIncrement, OnlyDaysInAnyCaseCountsAsDays) {
    EXPECT_TRUE(ReadDurationIncrementSection({Header + "DAYS"}).Days);
    EXPECT_TRUE(ReadDurationIncrementSection({Header + " dAyS     1."}).Days);
    EXPECT_FALSE(ReadDurationIncrementSection({Header + "Day       1."}).Days);
    EXPECT_FALSE(ReadDurationIncrementSection({Header + "Hours     1."}).Days);
    EXPECT_FALSE(ReadDurationIncrementSection({Header + "DAYSX"}).Days);
    EXPECT_FALSE(ReadDurationIncrementSection({"DURATION INCREMENT: Days"}).Days);
}

TEST(DurationIncrement, OnlyTheFirstLineIsRead) {
    const DurationIncrementRecord record =
        ReadDurationIncrementSection({Header + "Hours     1.", Header + "Days      2.        3.        4."});
    EXPECT_FALSE(record.Days);
    EXPECT_EQ(record.duration(2), "1.");
    EXPECT_EQ(record.duration(3), "");
}

TEST(DurationIncrement, WritesTheLineColumnForColumn) {
    DurationIncrementRecord record;
    record.duration(2) = "1";
    record.duration(3) = " 6.5 ";
    record.duration(4) = "24";
    const std::vector<std::string> lines = WriteDurationIncrementSection(record);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], Header + "Hours     " + "1.        " + "6.5       " + "24.       ");
    EXPECT_EQ(lines[0].size(), 80u);
}

TEST(DurationIncrement, DaysAreWrittenAsDays) {
    DurationIncrementRecord record;
    record.Days = true;
    record.duration(4) = "2";
    EXPECT_EQ(WriteDurationIncrementSection(record),
              std::vector<std::string>{Header + "Days      " + std::string(20, ' ') + "2.        "});
}

TEST(DurationIncrement, ThreeBlankDurationsWriteNothing) {
    DurationIncrementRecord record;
    record.Days = true;
    record.duration(3) = "   ";
    EXPECT_TRUE(WriteDurationIncrementSection(record).empty());
}

TEST(DurationIncrement, ALongDurationIsNotCutAndGetsNoPoint) {
    DurationIncrementRecord record;
    record.duration(2) = "1234567890";
    record.duration(3) = "12345678901";
    EXPECT_EQ(WriteDurationIncrementSection(record)[0],
              Header + "Hours     " + "1234567890" + "12345678901" + std::string(10, ' '));
}

TEST(DurationIncrement, ARecordReadAndWrittenAgainIsTheSameRecord) {
    const std::string line = Header + "Days      " + "0.5       " + "1.        " + "7.        ";
    EXPECT_EQ(WriteDurationIncrementSection(ReadDurationIncrementSection({line})),
              std::vector<std::string>{line});
}

TEST(DurationIncrement, TheUnitWords) {
    EXPECT_EQ(DurationUnitWord(false), "hr");
    EXPECT_EQ(DurationUnitWord(true), "days");
}

} // namespace
} // namespace brooklet
