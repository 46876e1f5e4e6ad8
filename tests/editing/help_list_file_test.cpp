// The help list file that ships in the program folder: every key a window can ask for has an
// entry with a title, a description and the ranges of its field's check.
#include "editing/help_box.h"

#include "editing/numbers.h"
#include "session/text_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace brooklet {
namespace {

const std::string RangeLead = "          Range - ";

std::vector<std::string> shippedLines() {
    return readLines(std::string(BROOKLET_DATA_DIR) + "/BrookletHelp.lst");
}

// The range line of a key's entry in one unit system; empty when it has none.
std::string rangeOf(const std::string& key, bool english) {
    const std::string text = HelpEntries(shippedLines(), key, english);
    const size_t at = text.find(RangeLead);
    if (at == std::string::npos)
        return {};
    const size_t from = at + RangeLead.size();
    return text.substr(from, text.find("\r\n", from) - from);
}

TEST(HelpListFile, Exists) {
    EXPECT_FALSE(shippedLines().empty());
}

TEST(HelpListFile, HasAnEntryForEveryKeyAWindowAsksFor) {
    const std::vector<std::string> lines = shippedLines();
    for (const std::string& key : AllHelpKeys()) {
        EXPECT_FALSE(HelpEntries(lines, key, true).empty()) << "no entry for " << key;
        EXPECT_FALSE(HelpEntries(lines, key, false).empty()) << "no entry for " << key;
    }
}

TEST(HelpListFile, HoldsNoKeyThatNoWindowAsksFor) {
    const std::vector<std::string> keys = AllHelpKeys();
    const std::set<std::string> known(keys.begin(), keys.end());
    std::set<std::string> seen;
    for (const std::string& line : shippedLines()) {
        const size_t bar = line.find('|');
        if (bar == std::string::npos || bar == 0)
            continue;
        const std::string key = line.substr(0, bar);
        EXPECT_EQ(known.count(key), 1u) << "unknown key " << key;
        EXPECT_TRUE(seen.insert(key).second) << "key written twice " << key;
    }
}

TEST(HelpListFile, EveryEntryHasATitleAndAUsefulDescription) {
    const std::vector<std::string> lines = shippedLines();
    for (const std::string& key : AllHelpKeys()) {
        const std::string text = HelpEntries(lines, key, true);
        const size_t titleEnd = text.find("\r\n");
        ASSERT_NE(titleEnd, std::string::npos) << key;
        EXPECT_FALSE(trim(text.substr(0, titleEnd)).empty()) << "no title for " << key;
        const size_t descriptionEnd = text.find("\r\n", titleEnd + 2);
        const std::string description = text.substr(titleEnd + 2, descriptionEnd - titleEnd - 2);
        EXPECT_GE(description.size(), 40u) << "short description for " << key << ": " << description;
    }
}

TEST(HelpListFile, EveryFieldHasARangeAndTheWindowEntriesHaveNone) {
    for (const std::string& key : AllHelpKeys()) {
        const bool windowEntry =
            std::none_of(key.begin(), key.end(), [](char c) { return c >= '0' && c <= '9'; });
        EXPECT_EQ(rangeOf(key, true).empty(), windowEntry) << key;
        EXPECT_EQ(rangeOf(key, false).empty(), windowEntry) << key;
    }
}

// Ranges of the fields whose checks the windows run, in both unit systems.
struct RangeCase {
    const char* key;
    const char* english;
    const char* metric;
};

class HelpListRanges : public ::testing::TestWithParam<RangeCase> {};

TEST_P(HelpListRanges, AgreeWithTheFieldsCheck) {
    const RangeCase& range = GetParam();
    EXPECT_NE(rangeOf(range.key, true).find(range.english), std::string::npos)
        << range.key << " English: " << rangeOf(range.key, true);
    EXPECT_NE(rangeOf(range.key, false).find(range.metric), std::string::npos)
        << range.key << " metric: " << rangeOf(range.key, false);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, HelpListRanges,
    ::testing::Values(
        RangeCase{"FL3", "0 or greater, in cfs", "0 or greater, in cu m/sec"},
        RangeCase{"FL5", "1 to 80 characters", "1 to 80 characters"}, RangeCase{"DH1", "0 to 1", "0 to 1"},
        RangeCase{"DI2", "0 or greater", "0 or greater"}, RangeCase{"GO1", "0 to 3", "0 to 3"},
        RangeCase{"GO2", "0 or greater, in cfs", "0 or greater, in cu m/sec"},
        RangeCase{"GO3", "0.01 or greater", "0.01 or greater"},
        RangeCase{"TA1", "0.001 to 100", "0.001 to 100"},
        RangeCase{"TA5", "greater than 0, in ft", "greater than 0, in m"},
        RangeCase{"SA3", "0 or greater, in hours", "0 or greater, in hours"},
        RangeCase{"SA4", "greater than 0, in inches", "greater than 0, in millimetres"},
        RangeCase{"SA6", "1, 2 or 3", "1, 2 or 3"},
        RangeCase{"SR4", "0 or greater, in cfs", "0 or greater, in cu m/sec"},
        RangeCase{"SR5", "in ac ft", "in ha m"},
        RangeCase{"RD2", "greater than 0, in hours", "greater than 0, in hours"},
        RangeCase{"LL3", "30 to 100, not below A", "30 to 100, not below A"},
        RangeCase{"IH5", "greater than 0", "greater than 0"},
        RangeCase{"IH6", "0 or greater, in sq mi", "0 or greater, in sq km"},
        RangeCase{"XS8", "in sq ft", "in sq m"}, RangeCase{"XS10", "greater than 0", "greater than 0"},
        RangeCase{"RC5", "greater than 0, in ft", "greater than 0, in m"},
        RangeCase{"RC6", "0 or greater, in ft", "0 or greater, in m"},
        RangeCase{"RC7", "in csm", "in cu m/sec/sq km"}, RangeCase{"RC18", "0.001 to 1", "0.001 to 1"},
        RangeCase{"AR4", "greater than 0, in sq mi", "greater than 0, in sq km"},
        RangeCase{"AR5", "30 to 100", "30 to 100"},
        RangeCase{"AR12", "sheet 0 to 100 ft", "sheet 0 to 30.5 m"},
        RangeCase{"AR14", "0.0005 to 1", "0.0005 to 1"}, RangeCase{"AR24", "in ft/sec", "in m/sec"},
        RangeCase{"AA2", "up to 70 characters", "up to 70 characters"}));

} // namespace
} // namespace brooklet
