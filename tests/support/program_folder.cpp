#include "support/program_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <unistd.h>

namespace fs = std::filesystem;

namespace brooklet::test {

ProgramFolder::ProgramFolder() {
    std::string pattern = (fs::temp_directory_path() / "brooklet-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot make a temporary program folder");
    path_ = pattern;
    previous_ = fs::current_path().string();
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(BROOKLET_DATA_DIR, ec))
        if (entry.is_regular_file())
            fs::copy_file(entry.path(), fs::path(path_) / entry.path().filename());
    fs::current_path(path_);
}

ProgramFolder::~ProgramFolder() {
    std::error_code ec;
    fs::current_path(previous_, ec);
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(path_, ec);
}

std::string ProgramFolder::file(const std::string& name) const {
    return (fs::path(path_) / name).string();
}

std::string ProgramFolder::copyTestData(const std::string& name, const std::string& as) const {
    const std::string target = file(as.empty() ? name : as);
    fs::copy_file(testDataPath(name), target, fs::copy_options::overwrite_existing);
    return target;
}

void writeBytes(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::string crlf(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const auto& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

std::string testDataPath(const std::string& name) {
    return (fs::path(BROOKLET_TEST_DATA_DIR) / name).string();
}

} // namespace brooklet::test
