#include "network/delimited_values.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Items = std::vector<std::string>;

Items allItems(const std::string& bytes) {
    DelimitedReader reader(bytes);
    Items items;
    while (!reader.atEnd())
        items.push_back(reader.readItem());
    return items;
}

TEST(DelimitedReaderTest, ReadsQuotedValuesSeparatedByCommas) {
    EXPECT_EQ(allItems("\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n"),
              (Items{"Lot", "70", "75", "80", "85", ""}));
}

TEST(DelimitedReaderTest, ReadsValueByValueWithNoRegardToLineEnds) {
    EXPECT_EQ(allItems("\"a\",\"b\"\r\n\"c\"\n\"d\"\r\"e\""), (Items{"a", "b", "c", "d", "e"}));
}

TEST(DelimitedReaderTest, AQuotedValueKeepsItsBlanksAndCommas) {
    EXPECT_EQ(allItems("\" Lot, paved \",\"1\""), (Items{" Lot, paved ", "1"}));
}

TEST(DelimitedReaderTest, ABareValueIsTrimmedAndEndsAtACommaOrTheLineEnd) {
    EXPECT_EQ(allItems("  70 ,\t75\t,80\r\n"), (Items{"70", "75", "80"}));
}

TEST(DelimitedReaderTest, ALineWithNoCommaIsOneValueTheWholeLine) {
    EXPECT_EQ(allItems("LOCAL LAND USE:\r\nLot                 70.  75.  \r\n"),
              (Items{"LOCAL LAND USE:", "Lot                 70.  75."}));
}

TEST(DelimitedReaderTest, EmptyValuesBetweenAndBehindCommas) {
    EXPECT_EQ(allItems("\"name\",,a,b,c,d\r\n"), (Items{"name", "", "a", "b", "c", "d"}));
    EXPECT_EQ(allItems("\"x\",,,,,\r\n"), (Items{"x", "", "", "", "", ""}));
    EXPECT_EQ(allItems(",b"), (Items{"", "b"}));
    EXPECT_EQ(allItems("a,"), (Items{"a", ""}));
}

TEST(DelimitedReaderTest, LinesOfBlanksGiveNoValue) {
    EXPECT_EQ(allItems("\r\n  \r\n\"a\"\r\n\r\n\t\r\n\"b\"\r\n\r\n"), (Items{"a", "b"}));
    EXPECT_TRUE(allItems("").empty());
    EXPECT_TRUE(allItems(" \r\n\n\r").empty());
}

TEST(DelimitedReaderTest, TheClosingLineIsOneEmptyValue) {
    EXPECT_EQ(allItems(ClosingRecord), Items{""});
    EXPECT_EQ(allItems("\"\"\r\n"), Items{""});
}

TEST(DelimitedReaderTest, TextBehindAClosingQuoteIsPassedOver) {
    EXPECT_EQ(allItems("\"ab\"cd,\"e\"  \r\nf"), (Items{"ab", "e", "f"}));
}

TEST(DelimitedReaderTest, AQuoteLeftOpenEndsAtTheLineEnd) {
    EXPECT_EQ(allItems("\"open,still\r\nnext"), (Items{"open,still", "next"}));
    EXPECT_EQ(allItems("\"open"), Items{"open"});
}

TEST(DelimitedReaderTest, AValueAfterTheEndIsEmpty) {
    DelimitedReader reader("\"a\"");
    EXPECT_EQ(reader.readItem(), "a");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.readItem(), "");
    EXPECT_TRUE(reader.atEnd());
}

TEST(DelimitedReaderTest, SkipLineGoesOnWithTheNextLine) {
    DelimitedReader reader("\"\",\"70\",\"80\"\r\n\"Lot\",\"1\"\r\n");
    EXPECT_EQ(reader.readItem(), "");
    reader.skipLine();
    EXPECT_EQ(reader.readItem(), "Lot");
}

TEST(DelimitedReaderTest, SkipLineAfterAValueThatEndedItsLinePassesNothingOver) {
    DelimitedReader reader("\"\"\r\n\"Lot\",\"1\"\r\n");
    EXPECT_EQ(reader.readItem(), "");
    reader.skipLine();
    EXPECT_EQ(reader.readItem(), "Lot");
    EXPECT_EQ(reader.readItem(), "1");
    EXPECT_TRUE(reader.atEnd());
}

TEST(DelimitedReaderTest, BytesOfEveryKindGoThroughUnchanged) {
    EXPECT_EQ(allItems("\"Lot\xE9\",\"\xFF\""), (Items{"Lot\xE9", "\xFF"}));
}

TEST(QuotedRecordTest, QuotesEveryValueAndSeparatesThemByCommas) {
    EXPECT_EQ(QuotedRecord({"Lot", "70", "", "80", "85"}), "\"Lot\",\"70\",\"\",\"80\",\"85\"");
    EXPECT_EQ(QuotedRecord({"Sandy loam", "A/D"}), "\"Sandy loam\",\"A/D\"");
    EXPECT_EQ(ClosingRecord, "\"\"");
}

TEST(QuotedRecordTest, ARecordReadsBackToItsValues) {
    const Items values{" Lot, paved ", "70", "", "80.5", "85"};
    EXPECT_EQ(allItems(QuotedRecord(values) + "\r\n"), values);
}

} // namespace
} // namespace brooklet::test
