#include "editing/numbers.h"

#include <gtest/gtest.h>

namespace brooklet {
namespace {

TEST(NumericText, AcceptsWhatAGeneralNumberParserAccepts) {
    for (const char* text :
         {"1",   "-1",     "+1",    "1-",       "1+", " 12 ", "1.",  ".5", "1.5",   "1e3", "1E-3",
          "1d3", "2.5D+2", "1,000", "12,345.5", "$5", "-$5",  "$-5", "5$", "  - 4", "0"})
        EXPECT_TRUE(isNumericText(text)) << text;
}

TEST(NumericText, RefusesOtherLettersAndMalformedTexts) {
    for (const char* text : {"",    " ",  "12a", "a12",   ".",  "-", "1.2.3", "1e",   "1e+", "--1",
                             "-1-", ",1", "1,",  "1 000", "e5", "$", "1$$",   "0x10", "1..", "1,.5"})
        EXPECT_FALSE(isNumericText(text)) << text;
}

TEST(NumericValue, ReadsSignsSeparatorsAndExponents) {
    EXPECT_DOUBLE_EQ(*numericValue("1,000"), 1000.0);
    EXPECT_DOUBLE_EQ(*numericValue("1e3"), 1000.0);
    EXPECT_DOUBLE_EQ(*numericValue("2.5D+2"), 250.0);
    EXPECT_DOUBLE_EQ(*numericValue("5-"), -5.0);
    EXPECT_DOUBLE_EQ(*numericValue("-$5"), -5.0);
    EXPECT_DOUBLE_EQ(*numericValue(" .25 "), 0.25);
}

TEST(NumericValue, TextsBeyondTheRangeFail) {
    EXPECT_FALSE(numericValue("1e400").has_value());
    EXPECT_FALSE(toSingle("1e39").has_value());
    EXPECT_TRUE(toSingle("3e38").has_value());
    EXPECT_FALSE(toInteger16("32768").has_value());
    EXPECT_FALSE(toInteger16("-32769").has_value());
    EXPECT_EQ(*toInteger16("32767"), 32767);
    EXPECT_EQ(*toInteger16("-32768"), -32768);
    EXPECT_EQ(*toInteger16("32767.4"), 32767);
    EXPECT_FALSE(toInteger16("32767.5").has_value()); // rounds to the even 32768
}

TEST(RoundHalfEven, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(roundHalfEven(0.5), 0.0);
    EXPECT_EQ(roundHalfEven(1.5), 2.0);
    EXPECT_EQ(roundHalfEven(2.5), 2.0);
    EXPECT_EQ(roundHalfEven(-2.5), -2.0);
    EXPECT_EQ(roundHalfEven(-3.5), -4.0);
    EXPECT_EQ(roundHalfEven(2.4999), 2.0);
    EXPECT_EQ(roundHalfEven(2.5001), 3.0);
    EXPECT_DOUBLE_EQ(roundHalfEven(1.25, 1), 1.2);
    EXPECT_DOUBLE_EQ(roundHalfEven(1.35, 1), 1.4);
}

TEST(LeadingNumber, ReadsTheNumberATextBeginsWith) {
    EXPECT_DOUBLE_EQ(leadingNumber("  12.5abc"), 12.5);
    EXPECT_DOUBLE_EQ(leadingNumber("-3e2x"), -300.0);
    EXPECT_DOUBLE_EQ(leadingNumber("1.5D1"), 15.0);
    EXPECT_DOUBLE_EQ(leadingNumber("7e"), 7.0);
    EXPECT_DOUBLE_EQ(leadingNumber("abc"), 0.0);
    EXPECT_DOUBLE_EQ(leadingNumber(""), 0.0);
    EXPECT_DOUBLE_EQ(leadingNumber("1,000"), 1.0);
}

TEST(ExactNumberText, GivesAsManyDigitsAsTheDoubleNeeds) {
    EXPECT_EQ(ExactNumberText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(ExactNumberText(0.3), "0.3");
    EXPECT_EQ(ExactNumberText(1.3), "1.3");
    EXPECT_EQ(ExactNumberText(-0.0), "0");
    EXPECT_EQ(ExactNumberText(2.0 / 3.0), "0.6666666666666666");
}

TEST(Trim, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("\ta\t"), "\ta\t");
    EXPECT_EQ(trim("   "), "");
}

} // namespace
} // namespace brooklet
