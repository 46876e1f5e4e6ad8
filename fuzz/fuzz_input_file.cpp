// The input file loader on any bytes: it must neither crash nor hang, whatever the file holds.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fuzz_session.h"
#include "session/input_file.h"
#include "session/text_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    brooklet::Session session = brooklet::fuzz::fuzzSession();
    // Each load adds the land uses it brings to the local land use file; start each input afresh
    // so the file does not grow over the run.
    brooklet::deleteFile(session.LocalLandUseFile);
    session.CurrentFile = session.ProgramFolder + "fuzz.inp";
    brooklet::writeFileAtomically(session.CurrentFile,
                                  std::string(reinterpret_cast<const char*>(data), size));
    brooklet::LoadInputFile(session);
    session.CurrentFile = session.ProgramFolder + "saved.inp";
    brooklet::SaveInputFile(session);
    // A saved file loads and saves again to the very same bytes.
    brooklet::LoadInputFile(session);
    session.CurrentFile = session.ProgramFolder + "saved-again.inp";
    brooklet::SaveInputFile(session);
    if (brooklet::readFileBytes(session.ProgramFolder + "saved.inp") !=
        brooklet::readFileBytes(session.CurrentFile))
        std::abort();
    session.CurrentFile = session.ProgramFolder + "fuzz.inp";
    brooklet::AppendReformattedSections(session);
    return 0;
}
