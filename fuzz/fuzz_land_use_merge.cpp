// The land use merge after a load and the rebuilding of "LOCAL LAND USE:" before a save, on any
// bytes in the files they read: the local land use file, the section's own work file, and the
// land use records of the sub-areas and the alternates, which are sliced by columns. The bytes are
// cut at form feeds into these four, in this order; when fewer parts come, each file without a
// part of its own takes the whole bytes. Neither routine may crash or hang, and neither may write
// a file out of all proportion to what it read.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz_session.h"
#include "network/local_land_use.h"
#include "session/text_file.h"

namespace {

using namespace brooklet;

std::vector<std::string> parts(const std::string& bytes) {
    std::vector<std::string> cut;
    size_t from = 0;
    while (cut.size() < 3) {
        const size_t formFeed = bytes.find('\f', from);
        if (formFeed == std::string::npos)
            break;
        cut.push_back(bytes.substr(from, formFeed - from));
        from = formFeed + 1;
    }
    if (cut.empty())
        return std::vector<std::string>(4, bytes);
    cut.push_back(bytes.substr(from));
    while (cut.size() < 4)
        cut.push_back(bytes);
    return cut;
}

size_t lengthOf(const std::string& path) {
    return readFileBytes(path).value_or(std::string()).size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Session& session = brooklet::fuzz::fuzzSession();
    const std::vector<std::string> files = parts(std::string(reinterpret_cast<const char*>(data), size));
    const std::string& localFile = files[0];
    const std::string& section = files[1];
    ClearWorkFiles(session);
    writeFileAtomically(session.LocalLandUseFile, localFile);
    writeFileAtomically(session.WorkFilePath[LocalLandUseSection], section);
    writeFileAtomically(session.WorkFilePath[SubAreaSection], files[2]);
    writeFileAtomically(session.WorkFilePath[AlternateSection], files[3]);

    bool Changed = true;
    MergeLocalLandUse(session, Changed);
    // Each value read becomes at most one row: its text, two quotes, five commas and a line end.
    const size_t merged = lengthOf(session.LocalLandUseFile);
    if (merged > 10 * (localFile.size() + section.size() + 2))
        __builtin_trap();
    if (!Changed && merged != localFile.size())
        __builtin_trap();
    // The work file of the section is read, not altered.
    if (readFileBytes(session.WorkFilePath[LocalLandUseSection]).value_or(std::string()) != section)
        __builtin_trap();

    BuildLocalLandUseSection(session);
    // At most a record for each row of the local file: its name padded to 50 columns, four values
    // padded to five columns with their points, and the header and closing lines.
    if (lengthOf(session.WorkFilePath[LocalLandUseSection]) > std::max(section.size(), 80 * (merged + 2)))
        __builtin_trap();

    // The next load's merge of the rebuilt section, and the next save's rebuilding.
    MergeLocalLandUse(session, Changed);
    BuildLocalLandUseSection(session);
    return 0;
}
