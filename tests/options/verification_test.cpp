#include "options/verification.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brooklet {
namespace {

const std::string Header = "VERIFICATION:                           "; // 40 columns
const std::string DataPrep = "          DATA PREP ";
const std::string Processing = "          PROCESSING";

// The fields of checks First to Last, "Y " for those set.
std::string fields(int first, int last, std::initializer_list<int> set) {
    std::string text;
    for (int index = first; index <= last; ++index)
        text += std::find(set.begin(), set.end(), index) != set.end() ? "Y " : "  ";
    return text;
}

VerificationRecord withChecks(std::initializer_list<int> set) {
    VerificationRecord record;
    for (int index : set)
        record.Checks[static_cast<size_t>(index)] = true;
    return record;
}

std::vector<int> setChecks(const VerificationRecord& record) {
    std::vector<int> set;
    for (int index = 0; index <= LastVerificationCheck; ++index)
        if (record.Checks[static_cast<size_t>(index)])
            set.push_back(index);
    return set;
}

TEST(Verification, TheChecksAreOneToFifteenTwentyOneToTwentyNineAndThirtyOneToFortyOne) {
    std::vector<int> checks;
    for (int index = -1; index <= 43; ++index)
        if (IsVerificationCheck(index))
            checks.push_back(index);
    std::vector<int> expected;
    for (int index = 1; index <= 41; ++index)
        if (index < 16 || (index > 20 && index != 30))
            expected.push_back(index);
    EXPECT_EQ(checks, expected);
}

TEST(Verification, NoLinesSetNoCheck) {
    EXPECT_TRUE(setChecks(ReadVerificationSection({})).empty());
}

TEST(Verification, ReadsEachCheckFromItsColumn) {
    const VerificationRecord record = ReadVerificationSection(
        {Header, DataPrep + fields(1, 30, {1, 3, 15, 21, 29}), Processing + fields(31, 41, {31, 33, 41})});
    EXPECT_EQ(setChecks(record), (std::vector<int>{1, 3, 15, 21, 29, 31, 33, 41}));
}

TEST(Verification, NamesAndYesAreReadInAnyCase) {
    const VerificationRecord record =
        ReadVerificationSection({Header, "          data prep y", "          Processing  y"});
    EXPECT_EQ(setChecks(record), (std::vector<int>{1, 32}));
}

TEST(Verification, AYesAtAReservedPlaceOrBeyondTheLastCheckIsPassedOver) {
    // Col 51 is place 16, col 79 place 30, col 81 lies beyond the line's last place; in the
    // PROCESSING line col 43 would be place 42.
    std::string prep = DataPrep + fields(1, 30, {16, 17, 18, 19, 20, 30}) + "Y";
    std::string processing = Processing + fields(31, 41, {}) + "Y Y";
    const VerificationRecord record = ReadVerificationSection({Header, prep, processing});
    EXPECT_TRUE(setChecks(record).empty());
}

TEST(Verification, OnlyTheFirstColumnOfAFieldCounts) {
    const VerificationRecord record = ReadVerificationSection({Header, DataPrep + " Y Y"});
    EXPECT_TRUE(setChecks(record).empty());
}

TEST(Verification, WritesTheGroupsColumnForColumnAndAnEmptyLine) {
    const std::vector<std::string> lines = WriteVerificationSection(withChecks({1, 15, 21, 29, 31, 41}));
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], Header);
    EXPECT_EQ(lines[1], DataPrep + "Y " + std::string(26, ' ') + "Y " + std::string(10, ' ') + "Y " +
                            std::string(14, ' ') + "Y   ");
    EXPECT_EQ(lines[1].size(), 80u);
    EXPECT_EQ(lines[2], Processing + "Y " + std::string(18, ' ') + "Y ");
    EXPECT_EQ(lines[3], "");
}

TEST(Verification, ARecordOfOnlyProcessingChecksHasNoDataPrepLine) {
    EXPECT_EQ(WriteVerificationSection(withChecks({35})),
              (std::vector<std::string>{Header, Processing + fields(31, 41, {35}), ""}));
}

TEST(Verification, ARecordOfOnlyDataPrepChecksHasNoProcessingLine) {
    EXPECT_EQ(WriteVerificationSection(withChecks({2})),
              (std::vector<std::string>{Header, DataPrep + fields(1, 30, {2}), ""}));
}

TEST(Verification, ReservedPlacesAreWrittenBlank) {
    EXPECT_TRUE(WriteVerificationSection(withChecks({16, 20, 30})).empty());
    EXPECT_EQ(WriteVerificationSection(withChecks({16, 22})),
              (std::vector<std::string>{Header, DataPrep + fields(1, 30, {22}), ""}));
}

TEST(Verification, NoCheckSetWritesNothing) {
    EXPECT_TRUE(WriteVerificationSection(VerificationRecord{}).empty());
}

TEST(Verification, ARecordReadAndWrittenAgainIsTheSameRecord) {
    const std::vector<std::string> lines = {Header, DataPrep + fields(1, 30, {4, 6, 23, 29}),
                                            Processing + fields(31, 41, {32, 40}), ""};
    EXPECT_EQ(WriteVerificationSection(ReadVerificationSection(lines)), lines);
}

} // namespace
} // namespace brooklet
