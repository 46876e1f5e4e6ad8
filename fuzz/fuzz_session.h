#pragma once
// A program folder of its own for a fuzz run, made once, for the targets whose readers take their
// bytes from the work files and the files of the program folder.
#include <filesystem>
#include <string>

#include <unistd.h>

#include "session/section_table.h"

namespace brooklet::fuzz {

inline const Session& fuzzSession() {
    static const Session session = [] {
        Session s;
        const auto root =
            std::filesystem::temp_directory_path() / ("brooklet-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(root);
        StartSession(s, root.string());
        return s;
    }();
    return session;
}

} // namespace brooklet::fuzz
