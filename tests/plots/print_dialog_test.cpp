#include "plots/print_dialog.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

class PrintDialogTest : public ::testing::Test {
protected:
    // The four values at once, each set where no other is dragged.
    void setAll(int min, int from, int to, int max) {
        dialog.setMax(max);
        dialog.setToPage(to);
        dialog.setFromPage(from);
        dialog.setMin(min);
        expectPages(min, from, to, max);
    }
    void expectPages(int min, int from, int to, int max) {
        EXPECT_EQ(dialog.Min(), min);
        EXPECT_EQ(dialog.FromPage(), from);
        EXPECT_EQ(dialog.ToPage(), to);
        EXPECT_EQ(dialog.max(), max);
    }
    PrintRangeRecord answer(const std::string& printer) {
        PrintRangeRecord record;
        record.Flags = PrintPageNumbersFlag | PrintCollateFlag;
        record.FromPage = 2;
        record.ToPage = 3;
        record.MinPage = 1;
        record.MaxPage = 9;
        record.printer = {printer, 3, 2, 2};
        return record;
    }
    ScriptedPlatform platform;
    clsPrintDialog dialog{platform};
};

TEST_F(PrintDialogTest, AllIsZeroWhenMade) {
    EXPECT_EQ(dialog.Flags, 0);
    EXPECT_FALSE(dialog.CancelError);
    expectPages(0, 0, 0, 0);
}

TEST_F(PrintDialogTest, MinAboveTheOthersDragsThemUp) {
    setAll(1, 6, 8, 10);
    dialog.setMin(7);
    expectPages(7, 7, 8, 10);
    dialog.setMin(9);
    expectPages(9, 9, 9, 10);
    dialog.setMin(12);
    expectPages(12, 12, 12, 12);
    dialog.setMin(4);
    expectPages(4, 12, 12, 12);
}

TEST_F(PrintDialogTest, FromPageDragsToPageAndMaxUpAndMinDown) {
    setAll(3, 4, 6, 8);
    dialog.setFromPage(7);
    expectPages(3, 7, 7, 8);
    dialog.setFromPage(9);
    expectPages(3, 9, 9, 9);
    dialog.setFromPage(2);
    expectPages(2, 2, 9, 9);
}

TEST_F(PrintDialogTest, ToPageDragsMaxUpAndFromPageAndMinDown) {
    setAll(3, 5, 6, 8);
    dialog.setToPage(10);
    expectPages(3, 5, 10, 10);
    dialog.setToPage(4);
    expectPages(3, 4, 4, 10);
    dialog.setToPage(2);
    expectPages(2, 2, 2, 10);
}

TEST_F(PrintDialogTest, MaxBelowTheOthersDragsThemDown) {
    setAll(3, 5, 7, 9);
    dialog.setMax(6);
    expectPages(3, 5, 6, 6);
    dialog.setMax(4);
    expectPages(3, 4, 4, 4);
    dialog.setMax(2);
    expectPages(2, 2, 2, 2);
    dialog.setMax(11);
    expectPages(2, 2, 2, 11);
}

TEST_F(PrintDialogTest, AValueBelowOneIsTakenAsZero) {
    setAll(2, 3, 4, 5);
    dialog.setMin(-3);
    expectPages(0, 3, 4, 5);
    dialog.setFromPage(0);
    expectPages(0, 0, 4, 5);
    dialog.setMax(-1);
    expectPages(0, 0, 0, 0);
}

TEST_F(PrintDialogTest, TheDialogIsGivenTheFlagsPagesAndPresentPrinter) {
    dialog.Flags = 6;
    dialog.setMin(1);
    dialog.CancelError = true;
    platform.printRangeAnswers.push_back(std::nullopt);
    dialog.ShowPrinter();
    ASSERT_EQ(platform.printRangeDialogs.size(), 1u);
    const PrintRangeRecord& shown = platform.printRangeDialogs[0];
    EXPECT_EQ(shown.Flags, 6);
    EXPECT_EQ(shown.MinPage, 1);
    EXPECT_EQ(shown.FromPage, 1);
    EXPECT_EQ(shown.ToPage, 1);
    EXPECT_EQ(shown.MaxPage, 1);
    EXPECT_EQ(shown.printer.DeviceName, "Office Laser");
}

TEST_F(PrintDialogTest, AcceptedTheChoicesComeBackAndThePrinterIsMadePresent) {
    platform.printRangeAnswers.push_back(answer("plotter"));
    EXPECT_TRUE(dialog.ShowPrinter());
    EXPECT_EQ(dialog.Flags, PrintPageNumbersFlag | PrintCollateFlag);
    EXPECT_EQ(dialog.FromPage(), 2);
    EXPECT_EQ(dialog.ToPage(), 3);
    EXPECT_EQ(platform.printersMadePresent, std::vector<std::string>{"Plotter"});
    EXPECT_EQ(platform.present.DeviceName, "Plotter");
    EXPECT_EQ(platform.present.Copies, 3);
    EXPECT_EQ(platform.present.Orientation, 2);
    EXPECT_EQ(platform.present.Duplex, 2);
}

TEST_F(PrintDialogTest, ANameDifferentFromThePresentOneOnlyInCaseIsLookedUp) {
    platform.printRangeAnswers.push_back(answer("Office Laser"));
    EXPECT_TRUE(dialog.ShowPrinter());
    EXPECT_EQ(platform.printersMadePresent, std::vector<std::string>{"Office Laser"});
    platform.present.DeviceName = "PLOTTER";
    platform.printRangeAnswers.push_back(answer("Plotter"));
    EXPECT_TRUE(dialog.ShowPrinter());
    EXPECT_EQ(platform.printersMadePresent.size(), 1u);
}

TEST_F(PrintDialogTest, ANameOfNoPrinterLeavesThePresentOne) {
    platform.printRangeAnswers.push_back(answer("Gone"));
    EXPECT_TRUE(dialog.ShowPrinter());
    EXPECT_TRUE(platform.printersMadePresent.empty());
    EXPECT_EQ(platform.present.DeviceName, "Office Laser");
}

TEST_F(PrintDialogTest, ASettingThePrinterRefusesIsPassedOver) {
    platform.refusesDuplex = true;
    platform.printRangeAnswers.push_back(answer("Office Laser"));
    EXPECT_TRUE(dialog.ShowPrinter());
    EXPECT_EQ(platform.present.Duplex, 1);
    EXPECT_EQ(platform.present.Copies, 3);
    EXPECT_EQ(platform.present.Orientation, 2);
}

TEST_F(PrintDialogTest, CancelGivesFalseWithCancelErrorAndTrueWithout) {
    dialog.Flags = 6;
    dialog.setFromPage(2);
    dialog.CancelError = true;
    platform.printRangeAnswers.push_back(std::nullopt);
    EXPECT_FALSE(dialog.ShowPrinter());
    dialog.CancelError = false;
    platform.printRangeAnswers.push_back(std::nullopt);
    EXPECT_TRUE(dialog.ShowPrinter());
    EXPECT_EQ(dialog.Flags, 6);
    EXPECT_EQ(dialog.FromPage(), 2);
    EXPECT_TRUE(platform.printersMadePresent.empty());
    EXPECT_EQ(platform.present.Copies, 1);
}

} // namespace
} // namespace brooklet::test
