// The help list reader and the identification section reader on any bytes: neither may crash,
// hang or grow without bound, whatever the file holds.
#include <cstdint>
#include <string>

#include "editing/help_box.h"
#include "options/identifier_record.h"
#include "session/text_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<std::string> lines =
        brooklet::splitLines(std::string(reinterpret_cast<const char*>(data), size));

    std::vector<std::string> keys = {"FL", "FL3", "DI3", ""};
    // The key of the first line, whatever it is, so entries of any key are read through.
    if (!lines.empty())
        keys.push_back(lines.front().substr(0, lines.front().find('|')));
    for (const std::string& key : keys)
        for (bool english : {true, false}) {
            const std::string text = brooklet::HelpEntries(lines, key, english);
            // The box never holds more than the file and the few words the reader adds.
            if (text.size() > 64 * (size + 1))
                __builtin_trap();
        }

    brooklet::WriteIdentifierSection(brooklet::ReadIdentifierSection(lines));
    return 0;
}
