#include "run/viewer_text.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

TEST(ViewerTextTest, EveryLineEndBecomesOneLineFeed) {
    EXPECT_EQ(ViewerText("ONE\r\nTWO\nTHREE\rFOUR\r\n"), "ONE\nTWO\nTHREE\nFOUR\n");
    EXPECT_EQ(ViewerText("A\r\n\r\nB\r\n"), "A\n\nB\n");
}

TEST(ViewerTextTest, AnOpenLastLineStaysOpen) {
    EXPECT_EQ(ViewerText("ONE\r\nTWO"), "ONE\nTWO");
    EXPECT_EQ(ViewerText(""), "");
}

TEST(ViewerTextTest, AByteOrderMarkIsNotText) {
    EXPECT_EQ(ViewerText("\xEF\xBB\xBFTITLE\r\n"), "TITLE\n");
}

TEST(ViewerTextTest, OtherBytesStandAsTheyAre) {
    const std::string bytes("A\0B\tC\fD\xE9\r\n", 10);
    EXPECT_EQ(ViewerText(bytes), std::string("A\0B\tC\fD\xE9\n", 9));
}

TEST(ViewerTextTest, PrintingPutsAMarginAndBreaksPagesAtFormFeeds) {
    const std::vector<PrintStep> steps =
        FilePrintSteps("\xEF\xBB\xBFTITLE\r\n\fHEADING IS DROPPED\r\nAB\fCD\rLAST");
    const std::vector<PrintStep> expected = {
        {false, "     TITLE"}, {true, ""}, {false, "     AB\fCD"}, {true, ""}, {false, "     LAST"}};
    EXPECT_EQ(steps, expected);
}

} // namespace
} // namespace brooklet::test
