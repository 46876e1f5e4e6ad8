#pragma once
// A temporary program folder for one test: made fresh, made the current folder, holding the
// program's data files, removed again at the end.
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brooklet::test {

class ProgramFolder {
public:
    ProgramFolder();
    ~ProgramFolder();
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    // The folder, without a trailing separator.
    const std::string& path() const { return path_; }
    // A path inside the folder.
    std::string file(const std::string& name) const;
    // Copies a reference file of tests/data into the folder; gives its new path.
    std::string copyTestData(const std::string& name, const std::string& as = std::string()) const;

private:
    std::string path_;
    std::string previous_;
};

// Writes bytes to a file, replacing it.
void writeBytes(const std::string& path, const std::string& bytes);
// The bytes of a file; empty when it does not exist.
std::string bytesOf(const std::string& path);
// Lines joined with CR LF, each ended by one.
std::string crlf(const std::vector<std::string>& lines);
// A reference file of tests/data, by name.
std::string testDataPath(const std::string& name);

// A test that runs in its own program folder.
class ProgramFolderTest : public ::testing::Test {
protected:
    ProgramFolder folder;
};

} // namespace brooklet::test
