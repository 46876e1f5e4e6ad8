// The program folder: the start folder when it holds the program's data files, otherwise the
// user's own folder, made on the first start with the installed data files copied in.
#include "support/program_folder.h"

#include "app/program_folder.h"
#include "session/text_file.h"

#include <filesystem>

namespace brooklet::test {
namespace {

namespace fs = std::filesystem;

class ProgramFolderChoiceTest : public ProgramFolderTest {
protected:
    void SetUp() override {
        fs::create_directories(installed + "/examples");
        writeBytes(installed + "/BrookletHelp.lst", "installed help\r\n");
        writeBytes(installed + "/examples/watershed.inp", "installed example\r\n");
        writeBytes(installed + "/examples/watershed.out", "installed report\r\n");
        fs::create_directories(start);
    }
    const std::string installed = folder.file("usr/share/brooklet");
    const std::string start = folder.file("home");
    const std::string user = folder.file("home/.local/share/Brooklet");
};

TEST_F(ProgramFolderChoiceTest, AFolderThatHoldsTheHelpListIsTheProgramFolder) {
    writeBytes(start + "/BrookletHelp.lst", "own help\r\n");
    const auto choice = ChooseProgramFolder(start, user, installed);
    EXPECT_EQ(choice.folder, start);
    EXPECT_FALSE(choice.box.has_value());
    EXPECT_FALSE(fs::exists(user)) << "no user folder is made when the start folder serves";
}

TEST_F(ProgramFolderChoiceTest, AnyOtherStartMakesTheUsersFolderWithTheInstalledFiles) {
    const auto choice = ChooseProgramFolder(start, user, installed);
    EXPECT_EQ(choice.folder, user);
    EXPECT_FALSE(choice.box.has_value());
    EXPECT_TRUE(fs::is_directory(user + "/temp"));
    EXPECT_EQ(bytesOf(user + "/BrookletHelp.lst"), "installed help\r\n");
    EXPECT_EQ(bytesOf(user + "/examples/watershed.inp"), "installed example\r\n");
    EXPECT_EQ(bytesOf(user + "/examples/watershed.out"), "installed report\r\n");
}

TEST_F(ProgramFolderChoiceTest, TheUsersOwnFilesAreNeverReplaced) {
    fs::create_directories(user + "/examples");
    writeBytes(user + "/examples/watershed.inp", "the engineer's changes\r\n");
    ChooseProgramFolder(start, user, installed);
    EXPECT_EQ(bytesOf(user + "/examples/watershed.inp"), "the engineer's changes\r\n");
    EXPECT_EQ(bytesOf(user + "/examples/watershed.out"), "installed report\r\n");
}

TEST_F(ProgramFolderChoiceTest, AFolderThatCannotBeMadeIsToldByNameAndWhatToDo) {
    writeBytes(folder.file("blocked"), "a file where the folder should be");
    const std::string blocked = folder.file("blocked/Brooklet");
    const auto choice = ChooseProgramFolder(start, blocked, installed);
    EXPECT_TRUE(choice.folder.empty());
    ASSERT_TRUE(choice.box.has_value());
    EXPECT_NE(choice.box->text.find("Brooklet could not make its program folder " + blocked + " ("),
              std::string::npos)
        << choice.box->text;
    EXPECT_NE(choice.box->text.find("start Brooklet in a folder that holds the file BrookletHelp.lst"),
              std::string::npos);
    EXPECT_EQ(choice.box->title, "Brooklet System");
    EXPECT_EQ(choice.box->icon, BoxIcon::Critical);
}

TEST_F(ProgramFolderChoiceTest, AMissingHelpListIsToldWithWhereToFindIt) {
    fs::remove(installed + "/BrookletHelp.lst");
    const auto choice = ChooseProgramFolder(start, user, installed);
    EXPECT_EQ(choice.folder, user) << "the program still starts";
    ASSERT_TRUE(choice.box.has_value());
    EXPECT_EQ(choice.box->text, "The help list file " + user + "/BrookletHelp.lst" +
                                    " is missing, so the help boxes of the entry windows stay empty. Copy "
                                    "BrookletHelp.lst of Brooklet's installation (" +
                                    installed + ") into that folder.");
}

TEST_F(ProgramFolderChoiceTest, AHelpListThatCannotBeReadIsToldWithWhatToDo) {
    // A folder in the file's place cannot be read as a file, not even by root.
    fs::create_directories(user + "/BrookletHelp.lst");
    const auto choice = ChooseProgramFolder(start, user, installed);
    EXPECT_EQ(choice.folder, user) << "a folder of that name is no help list";
    ASSERT_TRUE(choice.box.has_value());
    EXPECT_EQ(choice.box->text,
              "The help list file " + user + "/BrookletHelp.lst" +
                  " cannot be read, so the help boxes of the entry windows stay empty. Give your "
                  "user the right to read it, or copy it anew from Brooklet's installation.");
}

} // namespace
} // namespace brooklet::test
