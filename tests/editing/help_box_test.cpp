#include "editing/help_box.h"

#include "session/section_table.h"
#include "support/program_folder.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

const std::string Blanks10(10, ' ');
const std::string RangeLead = "\r\n          Range - ";
const std::string EntryEnd = "\r\n\r\n";

// The text of one entry as the help box shows it.
std::string entry(const std::string& title, const std::string& description, const std::string& range = "") {
    return Blanks10 + title + "\r\n" + description + (range.empty() ? "" : RangeLead + range) + EntryEnd;
}

TEST(HelpKey, IsTheCodeForTheWindowAndCodeAndIndexForAField) {
    EXPECT_EQ(HelpKey("DI", 0), "DI");
    EXPECT_EQ(HelpKey("DI", 3), "DI3");
    EXPECT_EQ(HelpKey("GO", 30), "GO30");
}

TEST(HelpEntries, ShowsTitleDescriptionAndEnglishRange) {
    const std::vector<std::string> lines = {
        "FL3|Minimum Hydrograph Value - Smallest flow shown.|0 or more cfs|0 or more "
        "cu m/sec|"};
    EXPECT_EQ(HelpEntries(lines, "FL3", true), Blanks10 +
                                                   "Minimum Hydrograph Value \r\nSmallest flow shown." +
                                                   RangeLead + "0 or more cfs" + EntryEnd);
}

TEST(HelpEntries, ShowsTheMetricRangeInMetricMode) {
    const std::vector<std::string> lines = {"FL3|Minimum - Smallest flow.|0 or more cfs|0 or more cu m/sec|"};
    EXPECT_EQ(HelpEntries(lines, "FL3", false), entry("Minimum ", "Smallest flow.", "0 or more cu m/sec"));
}

TEST(HelpEntries, AnEmptyMetricRangeFallsBackToTheEnglishOne) {
    const std::vector<std::string> lines = {"DI2|Duration - First duration.|0 or more||"};
    EXPECT_EQ(HelpEntries(lines, "DI2", false), entry("Duration ", "First duration.", "0 or more"));
}

TEST(HelpEntries, AMissingMetricRangeFallsBackToTheEnglishOne) {
    const std::vector<std::string> lines = {"DI2|Duration - First duration.|0 or more|"};
    EXPECT_EQ(HelpEntries(lines, "DI2", false), entry("Duration ", "First duration.", "0 or more"));
}

TEST(HelpEntries, AnEmptyRangeGivesNoRangeLine) {
    const std::vector<std::string> lines = {"FL|Brooklet Identifier - The run's identification.||"};
    EXPECT_EQ(HelpEntries(lines, "FL", true), entry("Brooklet Identifier ", "The run's identification."));
    EXPECT_EQ(HelpEntries(lines, "FL", false), entry("Brooklet Identifier ", "The run's identification."));
    EXPECT_EQ(HelpEntries(lines, "FL", true).find("Range"), std::string::npos);
}

TEST(HelpEntries, TheKeyMustBeAllThatStandsBeforeTheFirstBar) {
    const std::vector<std::string> lines = {
        "DI30|Thirty - Not this one.|x|",
        " DI3|Blank - Not this one either.|x|",
        "DI3|Three - This one.|y|",
    };
    EXPECT_EQ(HelpEntries(lines, "DI3", true), entry("Three ", "This one.", "y"));
    EXPECT_EQ(HelpEntries(lines, "DI", true), "");
}

TEST(HelpEntries, TheKeyIsComparedWithCaseCounting) {
    const std::vector<std::string> lines = {"di3|Lower - Lower case key.|x|"};
    EXPECT_EQ(HelpEntries(lines, "DI3", true), "");
}

TEST(HelpEntries, TheTitleRunsToTheFirstDashBetweenBlanks) {
    const std::vector<std::string> lines = {"SA6|Gage Antecedent-Runoff - Condition - one to three.|1 to 3|"};
    EXPECT_EQ(HelpEntries(lines, "SA6", true),
              entry("Gage Antecedent-Runoff ", "Condition - one to three.", "1 to 3"));
}

TEST(HelpEntries, ADescriptionGoesOnOverLinesWithoutABarWithNoSeparator) {
    const std::vector<std::string> lines = {
        "RC5|Channel Length - The length",
        " of the channel",
        "measured along the stream.|more than 0 ft|more than 0 m|",
    };
    EXPECT_EQ(
        HelpEntries(lines, "RC5", true),
        entry("Channel Length ", "The length of the channelmeasured along the stream.", "more than 0 ft"));
    EXPECT_EQ(
        HelpEntries(lines, "RC5", false),
        entry("Channel Length ", "The length of the channelmeasured along the stream.", "more than 0 m"));
}

TEST(HelpEntries, LinesWithoutABarBeforeTheRangeArePassedOver) {
    const std::vector<std::string> lines = {
        "GO1|Precision - Decimals printed.|",
        "passed over",
        "0 to 3|",
    };
    EXPECT_EQ(HelpEntries(lines, "GO1", true), entry("Precision ", "Decimals printed.", "0 to 3"));
}

TEST(HelpEntries, RepeatedKeysAreAllShownInFileOrder) {
    const std::vector<std::string> lines = {
        "AR1|First - One.|a|",
        "AR2|Other - Not shown.|b|",
        "AR1|Second - Two.|c|",
    };
    EXPECT_EQ(HelpEntries(lines, "AR1", true), entry("First ", "One.", "a") + entry("Second ", "Two.", "c"));
}

TEST(HelpEntries, RemarkLinesAreSkipped) {
    const std::vector<std::string> lines = {
        "This file holds the help of the entry windows.",
        "|FL3|A bar in column 1 - remark|x|",
        "",
        "FL3|Minimum - Smallest flow.|0 or more|",
    };
    EXPECT_EQ(HelpEntries(lines, "FL3", true), entry("Minimum ", "Smallest flow.", "0 or more"));
}

TEST(HelpEntries, AnEntryCutOffByTheEndOfTheFileShowsWhatItHas) {
    EXPECT_EQ(HelpEntries({"FL5|Description - The first line"}, "FL5", true),
              Blanks10 + "Description \r\nThe first line");
    EXPECT_EQ(HelpEntries({"FL5|Description - Text.|"}, "FL5", true), Blanks10 + "Description \r\nText.");
}

TEST(HelpEntries, AKeyWithoutATitleDoesNotStopTheReader) {
    const std::vector<std::string> lines = {"FL1|No title here|English|", "FL1|Input Units - Units.|code|"};
    EXPECT_EQ(HelpEntries(lines, "FL1", true), Blanks10 + "\r\nNo title here" + RangeLead + "English" +
                                                   EntryEnd + entry("Input Units ", "Units.", "code"));
}

class LoadHelpTextTest : public test::ProgramFolderTest {
protected:
    Session session;
    void SetUp() override { session.HelpListFile = folder.file("help.lst"); }
};

TEST_F(LoadHelpTextTest, NotesTheIndexShownAndReadsTheFile) {
    test::writeBytes(session.HelpListFile,
                     "DI|Duration Increment - Durations.||\r\nDI2|First - One.|hr||\r\n");
    short shown = NoHelpShown;
    EXPECT_EQ(LoadHelpText(shown, 2, "DI", session), entry("First ", "One.", "hr"));
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(LoadHelpText(shown, 0, "DI", session), entry("Duration Increment ", "Durations."));
    EXPECT_EQ(shown, 0);
}

TEST_F(LoadHelpTextTest, FollowsTheUnitSystemOfTheSession) {
    test::writeBytes(session.HelpListFile, "FL3|Minimum - Flow.|cfs|cu m/sec|\n");
    short shown = NoHelpShown;
    session.EnglishUnits = false;
    EXPECT_EQ(LoadHelpText(shown, 3, "FL", session), entry("Minimum ", "Flow.", "cu m/sec"));
}

TEST_F(LoadHelpTextTest, AMissingFileGivesAnEmptyText) {
    short shown = NoHelpShown;
    EXPECT_EQ(LoadHelpText(shown, 3, "FL", session), "");
    EXPECT_EQ(shown, 3);
}

TEST(HelpCodeTable, GivesEachWindowItsCode) {
    EXPECT_EQ(HelpCodeFor("frmFlume", 0), "FL");
    EXPECT_EQ(HelpCodeFor("frmFlume", 3), "FL");
    EXPECT_EQ(HelpCodeFor("frmStorm", 7), "SA");
    EXPECT_EQ(HelpCodeFor("frmGraphicsOutput", 0), "GP");
}

TEST(HelpCodeTable, EveryHeaderShowsItsWindowsEntry) {
    EXPECT_EQ(HelpCodeFor("frmVerification", 0), "VE");
    EXPECT_EQ(HelpCodeFor("frmLocalLanduse", 0), "LL");
}

TEST(HelpCodeTable, TheCalculatorsAskForTheirOwnEntryUnderACodeOfTheirOwn) {
    EXPECT_EQ(HelpCodeFor("frmTc", 0), "ART");
    EXPECT_EQ(HelpCodeFor("frmTc", 12), "AR");
    EXPECT_EQ(HelpCodeFor("frmLandUse", 0), "ARL");
    EXPECT_EQ(HelpCodeFor("frmLandUse", 28), "AR");
}

TEST(HelpCodeTable, LabelsThatShowNoHelpHaveNoCode) {
    EXPECT_EQ(HelpCodeFor("frmFlume", 4), "");
    EXPECT_EQ(HelpCodeFor("frmReaches", 19), "");
    EXPECT_EQ(HelpCodeFor("frmReaches", 20), "");
    EXPECT_EQ(HelpCodeFor("frmTc", 26), "");
    EXPECT_EQ(HelpCodeFor("frmVerification", 16), "");
    EXPECT_EQ(HelpCodeFor("frmNothing", 1), "");
}

TEST(HelpCodeTable, HoldsEveryWindowCode) {
    std::vector<std::string> codes;
    for (const HelpRequests& window : HelpCodeTable())
        codes.push_back(window.Code);
    for (const char* code : {"FL", "DH", "DI", "GO", "TA", "SA", "SR", "RD", "LL", "IH", "XS", "RC", "AR",
                             "ART", "ARL", "AA", "VE", "GP"})
        EXPECT_NE(std::find(codes.begin(), codes.end(), code), codes.end()) << code;
}

TEST(HelpCodeTable, AllKeysAreListedOnce) {
    const std::vector<std::string> keys = AllHelpKeys();
    for (size_t i = 0; i < keys.size(); ++i)
        for (size_t j = i + 1; j < keys.size(); ++j)
            EXPECT_NE(keys[i], keys[j]);
    // AR1 is asked for by the sub-area window and both calculators, and listed once.
    EXPECT_EQ(std::count(keys.begin(), keys.end(), "AR1"), 1);
    EXPECT_NE(std::find(keys.begin(), keys.end(), "VE41"), keys.end());
    EXPECT_EQ(std::find(keys.begin(), keys.end(), "VE30"), keys.end());
    EXPECT_NE(std::find(keys.begin(), keys.end(), "LL"), keys.end());
    EXPECT_NE(std::find(keys.begin(), keys.end(), "VE"), keys.end());
}

} // namespace
} // namespace brooklet
