// Input files that carry the section "LOCAL LAND USE:" through a load and a save, with and
// without a local land use file: the local file, work file 15 and the saved file, byte for byte.
#include "network/local_land_use.h"
#include "session/input_file.h"

#include "support/program_folder.h"

#include <gtest/gtest.h>

namespace brooklet::test {
namespace {

using Lines = std::vector<std::string>;

std::string padded(std::string text, size_t width) {
    if (text.size() < width)
        text.resize(width, ' ');
    return text;
}

const std::string Identification = padded("Brooklet: Version 1.0", 40) + "0         0                   0";
const std::string SubArea = "          A1        R1        0.75";
const std::string LotArea = std::string(20, ' ') + "LAND AREA " + padded("Lot", 35) + "B    12.5";
const std::string MeadowArea = std::string(20, ' ') + "LAND AREA " + padded("Meadow", 35) + "C    3.";
const std::string LotRecord = padded("Lot", 50) + "70.  75.  80.  85.  ";
const std::string OrdinaryLocalFile = "\"Lot\",\"70\",\"75\",\"80\",\"85\"\r\n\"\"\r\n";

class LandUseRoundTripTest : public ProgramFolderTest {
protected:
    LandUseRoundTripTest() { StartSession(session, currentFolder()); }

    // The steps of the File commands' load and save that concern land uses.
    void load(const Lines& lines) {
        session.CurrentFile = folder.file("shed.inp");
        writeBytes(session.CurrentFile, crlf(lines));
        EXPECT_FALSE(loadCurrentFile());
    }
    // Loads CurrentFile and merges its land uses, as the File commands do for a named file;
    // true when the load had a box to show.
    bool loadCurrentFile() {
        const bool box = LoadInputFile(session).box.has_value();
        bool changed = false;
        if (!session.isUntitled())
            MergeLocalLandUse(session, changed);
        return box;
    }
    void save() {
        session.CurrentFile = folder.file("saved.inp");
        BuildLocalLandUseSection(session);
        ASSERT_TRUE(SaveInputFile(session).ok);
    }
    std::string localFile() const { return bytesOf(session.LocalLandUseFile); }
    std::string section() const { return bytesOf(session.WorkFilePath[LocalLandUseSection]); }
    std::string saved() const { return bytesOf(folder.file("saved.inp")); }

    // The saved file of a session with sections 13, 11 and 15: blank lines stand for the
    // other sections only where their work files exist, and here none do.
    std::string savedFile(const Lines& subArea, const Lines& localSection) const {
        Lines lines{Identification, ""};
        lines.insert(lines.end(), subArea.begin(), subArea.end());
        lines.push_back("");
        lines.insert(lines.end(), localSection.begin(), localSection.end());
        lines.push_back("");
        return crlf(lines);
    }

    Session session;
};

TEST_F(LandUseRoundTripTest, ACarriedSectionWithALocalFileIsMergedAndRegeneratedFromTheFile) {
    writeBytes(session.LocalLandUseFile, OrdinaryLocalFile);
    load({Identification, "", "Sub-Area:", SubArea, LotArea, "", "LOCAL LAND USE:", LotRecord, ""});

    // Each line of the section arrives as one value, the whole line, and is kept as a name.
    const std::string merged = crlf({"\"Lot\",,70,75,80,85", "\"LOCAL LAND USE:\",,,,,",
                                     "\"" + padded("Lot", 50) + "70.  75.  80.  85.\",,,,,"});
    EXPECT_EQ(localFile(), merged);
    EXPECT_EQ(section(), crlf({"LOCAL LAND USE:", LotRecord}));

    save();
    // The merged lines read back five values to a record, so the first record's values have
    // slid one place along; its name is what the sub-area names.
    const Lines regenerated{"LOCAL LAND USE:", padded("Lot", 50) + "     70.  75.  80.  "};
    EXPECT_EQ(section(), crlf({"LOCAL LAND USE:", padded("Lot", 50) + "     70.  75.  80.  ", ""}));
    EXPECT_EQ(saved(), savedFile({"Sub-Area:", SubArea, LotArea}, regenerated));
    EXPECT_EQ(localFile(), merged);
}

TEST_F(LandUseRoundTripTest, ACarriedSectionWithoutALocalFileStartsTheFileAndIsSavedAsItCame) {
    load({Identification, "", "Sub-Area:", SubArea, LotArea, "", "LOCAL LAND USE:", LotRecord, ""});

    const std::string started =
        crlf({"\"LOCAL LAND USE:\",,,,,", "\"" + padded("Lot", 50) + "70.  75.  80.  85.\",,,,,"});
    EXPECT_EQ(localFile(), started);

    save();
    // No row of the file is named by the sub-areas, so the section that came stays as it was.
    EXPECT_EQ(section(), crlf({"LOCAL LAND USE:", LotRecord}));
    EXPECT_EQ(saved(), savedFile({"Sub-Area:", SubArea, LotArea}, {"LOCAL LAND USE:", LotRecord}));
    EXPECT_EQ(localFile(), started);
}

TEST_F(LandUseRoundTripTest, AFileWithoutTheSectionGainsItOnSaveAndKeepsItOnReload) {
    writeBytes(session.LocalLandUseFile, OrdinaryLocalFile);
    load({Identification, "", "Sub-Area:", SubArea, LotArea, MeadowArea, ""});
    EXPECT_EQ(localFile(), OrdinaryLocalFile);
    EXPECT_FALSE(fileExists(session.WorkFilePath[LocalLandUseSection]));

    save();
    EXPECT_EQ(section(), crlf({"LOCAL LAND USE:", LotRecord, ""}));
    const std::string expected =
        savedFile({"Sub-Area:", SubArea, LotArea, MeadowArea}, {"LOCAL LAND USE:", LotRecord});
    EXPECT_EQ(saved(), expected);
    EXPECT_EQ(localFile(), OrdinaryLocalFile);

    // Loading the saved file again: the section is read into work file 15, and its lines join
    // the local file as names.
    session.CurrentFile = folder.file("saved.inp");
    ASSERT_FALSE(loadCurrentFile());
    EXPECT_EQ(section(), crlf({"LOCAL LAND USE:", LotRecord}));
    EXPECT_EQ(localFile(), crlf({"\"Lot\",,70,75,80,85", "\"LOCAL LAND USE:\",,,,,",
                                 "\"" + padded("Lot", 50) + "70.  75.  80.  85.\",,,,,"}));
}

TEST_F(LandUseRoundTripTest, AFileThatUsesNoLocalLandUseSavesWithoutTheSection) {
    writeBytes(session.LocalLandUseFile, OrdinaryLocalFile);
    load({Identification, "", "Sub-Area:", SubArea, MeadowArea, ""});
    save();
    EXPECT_FALSE(fileExists(session.WorkFilePath[LocalLandUseSection]));
    EXPECT_EQ(saved(), crlf({Identification, "", "Sub-Area:", SubArea, MeadowArea, ""}));
    EXPECT_EQ(localFile(), OrdinaryLocalFile);
}

TEST_F(LandUseRoundTripTest, AnUntitledSessionMergesNothing) {
    session.CurrentFile = folder.file("gone.inp");
    writeBytes(session.WorkFilePath[LocalLandUseSection], crlf({"LOCAL LAND USE:", LotRecord}));
    ASSERT_TRUE(loadCurrentFile());
    EXPECT_EQ(session.CurrentFile, UntitledFile);
    EXPECT_FALSE(fileExists(session.LocalLandUseFile));
}

TEST_F(LandUseRoundTripTest, ALoadStoppedByAnUnknownHeaderStillMergesWhatWasRead) {
    session.CurrentFile = folder.file("shed.inp");
    writeBytes(session.CurrentFile, crlf({"LOCAL LAND USE:", "Orchard", "", "Nonsense:", ""}));
    ASSERT_TRUE(loadCurrentFile());
    EXPECT_EQ(localFile(), crlf({"\"LOCAL LAND USE:\",,,,,", "\"Orchard\",,,,,"}));
}

} // namespace
} // namespace brooklet::test
