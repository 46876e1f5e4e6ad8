#include "editing/field_checks.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

TEST(ValidRealAtLeast, BlankTextFollowsAllowBlank) {
    bool valid = false;
    ValidRealAtLeast(true, 0, "    ", valid);
    EXPECT_TRUE(valid);
    ValidRealAtLeast(false, 0, "", valid);
    EXPECT_FALSE(valid);
    ValidRealAtLeast(false, 0, "   ", valid);
    EXPECT_FALSE(valid);
}

TEST(ValidRealAbove, RefusesTheMinimumThatAtLeastAccepts) {
    bool valid = true;
    for (const char* zero : {"0", "0.0", "-0", ".0"}) {
        ValidRealAbove(false, 0, zero, valid);
        EXPECT_FALSE(valid) << zero;
        ValidRealAtLeast(false, 0, zero, valid);
        EXPECT_TRUE(valid) << zero;
    }
    ValidRealAbove(false, 0, "0.0001", valid);
    EXPECT_TRUE(valid);
    ValidRealAtLeast(false, 0, "-0.0001", valid);
    EXPECT_FALSE(valid);
}

TEST(ValidRealRange, BoundsAreIncludedAndNonNumbersFail) {
    bool valid = false;
    ValidRealRange(false, 1, 10, "1", valid);
    EXPECT_TRUE(valid);
    ValidRealRange(false, 1, 10, "10", valid);
    EXPECT_TRUE(valid);
    ValidRealRange(false, 1, 10, "10.001", valid);
    EXPECT_FALSE(valid);
    ValidRealRange(false, 1, 10, "0.999", valid);
    EXPECT_FALSE(valid);
    ValidRealRange(false, 1, 10, "12a", valid);
    EXPECT_FALSE(valid);
    ValidRealRange(true, 1, 10, "", valid);
    EXPECT_TRUE(valid);
}

TEST(ValidRealRange, ComparesInSinglePrecision) {
    bool valid = false;
    // 0.1 in single precision is a little above 0.1, but equals the single-precision minimum.
    ValidRealAbove(false, 0.1, "0.1", valid);
    EXPECT_FALSE(valid);
    ValidRealRange(false, 0, 0.1, "0.1", valid);
    EXPECT_TRUE(valid);
    // 16777217 is not a single-precision number: it converts to 16777216.
    ValidRealRange(false, 0, 16777216, "16777217", valid);
    EXPECT_TRUE(valid);
}

TEST(ValidRealAtLeast, TextsBeyondSinglePrecisionFail) {
    bool valid = true;
    ValidRealAtLeast(false, 0, "1e39", valid);
    EXPECT_FALSE(valid);
    ValidRealAtLeast(false, 0, "1D38", valid);
    EXPECT_TRUE(valid);
}

TEST(ValidNumber, AcceptsAnyNumberAndFollowsAllowBlank) {
    bool valid = false;
    for (const char* text : {"1e3", "1,000", "-5", "5-", "$3.50"}) {
        ValidNumber(false, text, valid);
        EXPECT_TRUE(valid) << text;
    }
    ValidNumber(false, "12a", valid);
    EXPECT_FALSE(valid);
    ValidNumber(true, "  ", valid);
    EXPECT_TRUE(valid);
    ValidNumber(false, "  ", valid);
    EXPECT_FALSE(valid);
}

TEST(ValidInteger, RoundsHalvesToEvenBeforeTheRangeTest) {
    bool valid = false;
    int16_t value = 0;
    ValidInteger(false, 0, 100, "2.5", valid, value);
    EXPECT_TRUE(valid);
    EXPECT_EQ(value, 2);
    ValidInteger(false, 0, 100, "3.5", valid, value);
    EXPECT_TRUE(valid);
    EXPECT_EQ(value, 4);
    // The value is stored even when the range test then fails.
    ValidInteger(false, 0, 100, "150", valid, value);
    EXPECT_FALSE(valid);
    EXPECT_EQ(value, 150);
}

TEST(ValidInteger, BlankAndOutOfRangeTexts) {
    bool valid = false;
    int16_t value = 7;
    ValidInteger(true, 1, 10, "  ", valid, value);
    EXPECT_TRUE(valid);
    EXPECT_EQ(value, 7); // untouched
    ValidInteger(false, 1, 10, "", valid, value);
    EXPECT_FALSE(valid);
    ValidInteger(false, -40000, 40000, "40000", valid, value);
    EXPECT_FALSE(valid);
    EXPECT_EQ(value, 7);
    ValidInteger(false, 1, 10, "x", valid, value);
    EXPECT_FALSE(valid);
    ValidInteger(false, 1, 10, "1e1", valid, value);
    EXPECT_TRUE(valid);
    EXPECT_EQ(value, 10);
}

TEST(ValidText, CutsAnOverLongTextQuietly) {
    bool valid = false;
    std::string cleaned;
    ValidText(1, 80, std::string(81, 'a'), valid, cleaned);
    EXPECT_TRUE(valid);
    EXPECT_EQ(cleaned, std::string(80, 'a'));
}

TEST(ValidText, LeadingBlanksCountInTheCut) {
    bool valid = false;
    std::string cleaned;
    ValidText(1, 5, "  abcdef", valid, cleaned);
    EXPECT_TRUE(valid);
    EXPECT_EQ(cleaned, "  abc");
}

TEST(ValidText, TooShortIsInvalidAndTrimmed) {
    bool valid = true;
    std::string cleaned;
    ValidText(1, 10, "   ", valid, cleaned);
    EXPECT_FALSE(valid);
    EXPECT_EQ(cleaned, "");
    ValidText(1, 10, "  ab ", valid, cleaned);
    EXPECT_TRUE(valid);
    EXPECT_EQ(cleaned, "ab");
}

TEST(AppendField, PointsAndPaddingInWidthFive) {
    std::string record;
    AppendField(record, "12", 5, true);
    EXPECT_EQ(record, "12.  ");
    record.clear();
    AppendField(record, "12.5", 5, true);
    EXPECT_EQ(record, "12.5 ");
    record.clear();
    AppendField(record, "12345", 5, true);
    EXPECT_EQ(record, "12345");
}

TEST(AppendField, AnOverLongValueIsNotCutAndShiftsTheRest) {
    std::string record = "AB";
    AppendField(record, "123456", 5, true);
    AppendField(record, "7", 3, false);
    EXPECT_EQ(record, "AB1234567  ");
}

TEST(AppendField, TellsWhetherTheValueFitItsField) {
    std::string record;
    EXPECT_TRUE(AppendField(record, "12345", 5, true));
    EXPECT_TRUE(AppendField(record, "  12  ", 5, true));
    EXPECT_FALSE(AppendField(record, "123456", 5, true));
    EXPECT_FALSE(AppendField(record, "ABCDEF", 5, false));
    EXPECT_TRUE(FieldFits("1234567890", 10, true));
    EXPECT_FALSE(FieldFits("12345678901", 10, true));
    // A trailing point is added only where there is room, so it never makes a value too wide.
    EXPECT_TRUE(FieldFits("123456789", 10, true));
    // Blanks around a number are trimmed before it is placed; a text keeps them.
    EXPECT_TRUE(FieldFits("  1234567890  ", 10, true));
    EXPECT_FALSE(FieldFits(" REACH12345", 10, false));
}

TEST(FieldFitWatch, HearsEveryValueThatShiftsItsRecordAndOnlyWhileItLives) {
    std::string record;
    AppendField(record, "12345678901", 10, true);
    FieldFitWatch outer;
    {
        FieldFitWatch inner;
        AppendField(record, "1.5", 10, true);
        EXPECT_TRUE(inner.allFit());
        AppendField(record, "0.30000000000000004", 10, true);
        AppendField(record, "LONG LAND USE NAME OF MORE THAN THIRTY-FIVE", 35, false);
        EXPECT_EQ(inner.overflows(), 2);
        EXPECT_EQ(inner.firstValue(), "0.30000000000000004");
        EXPECT_EQ(inner.firstWidth(), 10);
    }
    EXPECT_TRUE(outer.allFit());
    AppendField(record, "ABCDEF", 5, false);
    EXPECT_EQ(outer.overflows(), 1);
    EXPECT_EQ(outer.firstValue(), "ABCDEF");
}

TEST(FieldTooLongNote, NamesTheValueItsLengthAndTheWidth) {
    EXPECT_EQ(
        FieldTooLongNote("12345678901", 10),
        "The value 12345678901 is 11 characters long, but its field in the record holds only 10; nothing is "
        "written until it is shortened.");
}

TEST(AppendField, ABlankValueGivesBlanks) {
    std::string record;
    AppendField(record, "", 10, true);
    EXPECT_EQ(record, std::string(10, ' '));
    record.clear();
    AppendField(record, "   ", 10, true);
    EXPECT_EQ(record, std::string(10, ' '));
}

TEST(AppendField, TextFieldsKeepWhatWasTyped) {
    std::string record;
    AppendField(record, "REACH1", 10, false);
    AppendField(record, "1,000", 8, true);
    EXPECT_EQ(record, "REACH1    1,000.  ");
}

TEST(EnsureDecimalPoint, TrimsAndAddsAPointOnlyWithRoom) {
    std::string text = "  7 ";
    EnsureDecimalPoint(text, 3);
    EXPECT_EQ(text, "7.");
    text = "123";
    EnsureDecimalPoint(text, 3);
    EXPECT_EQ(text, "123");
    text = "1.5";
    EnsureDecimalPoint(text, 8);
    EXPECT_EQ(text, "1.5");
    text = "  ";
    EnsureDecimalPoint(text, 8);
    EXPECT_EQ(text, "");
}

TEST(PadField, AppendsBlanksAndNeverCuts) {
    std::string text = "ab";
    PadField(4, text);
    EXPECT_EQ(text, "ab  ");
    text = "abcdef";
    PadField(4, text);
    EXPECT_EQ(text, "abcdef");
}

TEST(FieldAt, TrimsTheColumnsAndGivesEmptyPastTheEnd) {
    const std::string record = "REACH1    12.5    X";
    EXPECT_EQ(FieldAt(record, 1, 10), "REACH1");
    EXPECT_EQ(FieldAt(record, 11, 8), "12.5");
    EXPECT_EQ(FieldAt(record, 19, 10), "X");
    EXPECT_EQ(FieldAt(record, 30, 10), "");
}

TEST(RedimPreserve3D, KeepsElementsInBothBoundsAndEmptiesNewOnes) {
    Array3D<std::string> array(2, 3, 2);
    for (int i = 1; i <= 2; ++i)
        for (int j = 1; j <= 3; ++j)
            for (int k = 1; k <= 2; ++k)
                array(i, j, k) = std::to_string(i * 100 + j * 10 + k);
    RedimPreserve3D(array, 3, 2, 4);
    EXPECT_EQ(array.n1(), 3);
    EXPECT_EQ(array.n2(), 2);
    EXPECT_EQ(array.n3(), 4);
    EXPECT_EQ(array(1, 1, 1), "111");
    EXPECT_EQ(array(2, 2, 2), "222");
    EXPECT_EQ(array(2, 2, 3), "");
    EXPECT_EQ(array(3, 1, 1), "");
    RedimPreserve3D(array, 1, 1, 1);
    EXPECT_EQ(array(1, 1, 1), "111");
}

} // namespace
} // namespace brooklet
