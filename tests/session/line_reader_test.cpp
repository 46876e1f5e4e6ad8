// The line reader on bytes held in memory and on a file read a block at a time: the same lines,
// whatever the line ends and wherever a block ends.
#include <gtest/gtest.h>

#include <random>

#include "session/text_file.h"
#include "support/program_folder.h"

namespace brooklet::test {
namespace {

// Every line and the "at the end" answer before each.
std::vector<std::string> linesOf(LineReader& reader) {
    std::vector<std::string> lines;
    while (!reader.atEnd())
        lines.push_back(reader.readLine());
    return lines;
}

std::vector<std::string> fileLines(const std::string& path) {
    auto reader = LineReader::fromFile(path);
    EXPECT_TRUE(reader.has_value());
    return reader ? linesOf(*reader) : std::vector<std::string>();
}

class LineReaderTest : public ProgramFolderTest {
protected:
    // The lines read from memory and from a file of the same bytes, which must agree.
    std::vector<std::string> bothWays(const std::string& bytes) {
        LineReader memory(bytes);
        const std::vector<std::string> lines = linesOf(memory);
        writeBytes(folder.file("lines.txt"), bytes);
        EXPECT_EQ(fileLines(folder.file("lines.txt")), lines);
        return lines;
    }
};

TEST_F(LineReaderTest, TakesCrLfLfAndCrAloneAndSkipsAByteOrderMark) {
    EXPECT_EQ(bothWays("\xEF\xBB\xBF"
                       "one\r\ntwo\nthree\rfour"),
              (std::vector<std::string>{"one", "two", "three", "four"}));
    EXPECT_EQ(bothWays("a\r\n\r\n\n\rb\r"), (std::vector<std::string>{"a", "", "", "", "b"}));
    EXPECT_EQ(bothWays(""), std::vector<std::string>());
    EXPECT_EQ(bothWays("\xEF\xBB"), std::vector<std::string>({"\xEF\xBB"}));
}

TEST_F(LineReaderTest, AFileReadsTheSameLinesWhereverItsBlocksEnd) {
    constexpr size_t block = size_t(1) << 20;
    // A CR LF split by the end of the first block, a line across it, and a line longer than a
    // block.
    std::string bytes(block - 1, 'x');
    bytes += "\r\nsecond\r\n";
    bytes += std::string(block + 10, 'y') + "\rlast";
    const auto lines = bothWays(bytes);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[1], "second");
    EXPECT_EQ(lines[2].size(), block + 10);
    EXPECT_EQ(bothWays(std::string(block, 'z') + "\r"), std::vector<std::string>({std::string(block, 'z')}));
}

TEST_F(LineReaderTest, RandomLineEndsReadAlikeFromMemoryAndFromAFile) {
    std::mt19937 random(16);
    const char pieces[] = {'a', 'b', ' ', '\r', '\n'};
    std::string bytes;
    for (int i = 0; i < 3'000'000; ++i)
        bytes += pieces[random() % 5];
    EXPECT_GT(bothWays(bytes).size(), 1'000'000u);
}

TEST_F(LineReaderTest, TellsTheLineEndItMetAndTheBytesOfARunOfLines) {
    LineReader reader("\xEF\xBB\xBF"
                      "a\r\nbc\r\nd\ne\rf");
    EXPECT_TRUE(reader.holdsAllBytes());
    const size_t start = reader.offset();
    EXPECT_EQ(start, 3u);
    std::vector<bool> crLf;
    while (!reader.atEnd()) {
        reader.nextLine();
        crLf.push_back(reader.lastEndedWithCrLf());
    }
    EXPECT_EQ(crLf, (std::vector<bool>{true, true, false, false, false}));
    LineReader again("a\r\nbc\r\nd");
    again.nextLine();
    again.nextLine();
    EXPECT_EQ(again.heldBytes(0, again.offset()), "a\r\nbc\r\n");
    writeBytes(folder.file("y.txt"), "a\r\n");
    auto y = LineReader::fromFile(folder.file("y.txt"));
    ASSERT_TRUE(y.has_value());
    EXPECT_FALSE(y->holdsAllBytes());
}

TEST_F(LineReaderTest, AMissingFileGivesNoReader) {
    EXPECT_FALSE(LineReader::fromFile(folder.file("missing.txt")).has_value());
    EXPECT_FALSE(LineReader::fromFile(folder.path()).has_value());
}

} // namespace
} // namespace brooklet::test
