// The input file loader on any bytes: it must neither crash nor hang, whatever the file holds.
#include <cstdint>
#include <filesystem>
#include <string>

#include <unistd.h>

#include "session/input_file.h"
#include "session/text_file.h"

namespace {

// One program folder for the whole run, made once.
const brooklet::Session& folder() {
    static brooklet::Session session = [] {
        brooklet::Session s;
        const auto root =
            std::filesystem::temp_directory_path() / ("brooklet-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(root);
        brooklet::StartSession(s, root.string());
        return s;
    }();
    return session;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    brooklet::Session session = folder();
    session.CurrentFile = session.ProgramFolder + "fuzz.inp";
    brooklet::writeFileAtomically(session.CurrentFile,
                                  std::string(reinterpret_cast<const char*>(data), size));
    brooklet::LoadInputFile(session);
    session.CurrentFile = session.ProgramFolder + "saved.inp";
    brooklet::SaveInputFile(session);
    session.CurrentFile = session.ProgramFolder + "fuzz.inp";
    brooklet::AppendReformattedSections(session);
    return 0;
}
