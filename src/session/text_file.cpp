#include "session/text_file.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

namespace brooklet {

LineReader::LineReader(std::string bytes) : bytes_(std::move(bytes)) {
    if (bytes_.compare(0, 3, "\xEF\xBB\xBF") == 0)
        pos_ = 3;
}

std::string_view LineReader::nextLine() {
    ++lineNumber_;
    const size_t start = pos_;
    // The line ends at the first CR or LF: find the LF, then a CR before it.
    const char* begin = bytes_.data() + start;
    const size_t rest = bytes_.size() - start;
    const void* lf = std::memchr(begin, '\n', rest);
    const size_t toLf = lf ? static_cast<size_t>(static_cast<const char*>(lf) - begin) : rest;
    const void* cr = std::memchr(begin, '\r', toLf);
    pos_ = start + (cr ? static_cast<size_t>(static_cast<const char*>(cr) - begin) : toLf);
    const std::string_view line = std::string_view(bytes_).substr(start, pos_ - start);
    if (pos_ < bytes_.size()) {
        if (bytes_[pos_] == '\r' && pos_ + 1 < bytes_.size() && bytes_[pos_ + 1] == '\n')
            pos_ += 2;
        else
            ++pos_;
    }
    return line;
}

std::optional<std::string> readFileBytes(const std::string& path) {
    std::error_code ec;
    if (!fs::is_regular_file(path, ec))
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    // One read of the size the file has; a file that grows meanwhile is read on to its end.
    const auto size = fs::file_size(path, ec);
    std::string bytes(ec ? 0 : static_cast<size_t>(size), '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<size_t>(in.gcount()));
    if (in) {
        char block[65536];
        while (in.read(block, sizeof block) || in.gcount() > 0)
            bytes.append(block, static_cast<size_t>(in.gcount()));
    }
    if (in.bad())
        return std::nullopt;
    return bytes;
}

std::vector<std::string> readLines(const std::string& path) {
    std::vector<std::string> lines;
    auto bytes = readFileBytes(path);
    if (!bytes)
        return lines;
    LineReader reader(std::move(*bytes));
    while (!reader.atEnd())
        lines.push_back(reader.readLine());
    return lines;
}

std::optional<std::string> readFirstLine(const std::string& path) {
    auto bytes = readFileBytes(path);
    if (!bytes || bytes->empty())
        return std::nullopt;
    return LineReader(std::move(*bytes)).readLine();
}

bool hasLineAfterFirst(const std::string& path) {
    auto bytes = readFileBytes(path);
    if (!bytes)
        return false;
    LineReader reader(std::move(*bytes));
    reader.readLine();
    return !reader.atEnd();
}

namespace {

// The file a path names in the end, following symbolic links (a bounded number of them, so a
// loop of links ends).
fs::path linkTarget(fs::path path) {
    std::error_code ec;
    for (int hops = 0; hops < 40 && fs::is_symlink(path, ec); ++hops) {
        const fs::path target = fs::read_symlink(path, ec);
        if (ec)
            break;
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    return path;
}

} // namespace

WriteResult writeFileAtomically(const std::string& requested, const std::string& bytes) {
    const std::string path = linkTarget(requested).string();
    std::error_code linkError;
    if (fs::is_symlink(path, linkError))
        return {false, "its links lead round in a circle"};
    std::error_code ec;
    const fs::file_status existing = fs::status(path, ec);
    const bool exists = !ec && fs::exists(existing);
    if (exists && (existing.permissions() & fs::perms::owner_write) == fs::perms::none)
        return {false, "it is read-only"};
    const std::string sibling = path + ".part";
    {
        std::ofstream out(sibling, std::ios::binary | std::ios::trunc);
        if (!out)
            return {false, "it cannot be created"};
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.flush();
        if (!out) {
            out.close();
            deleteFile(sibling);
            return {false, "it cannot be written"};
        }
    }
    // The new file takes the place of the old one with the old one's permissions.
    if (exists)
        fs::permissions(sibling, existing.permissions(), ec);
    fs::rename(sibling, path, ec);
    if (ec) {
        deleteFile(sibling);
        return {false, ec.message()};
    }
    return {};
}

std::string joinLines(const std::vector<std::string>& lines) {
    std::string bytes;
    size_t size = 0;
    for (const auto& line : lines)
        size += line.size() + 2;
    bytes.reserve(size);
    for (const auto& line : lines) {
        bytes += line;
        bytes += "\r\n";
    }
    return bytes;
}

WriteResult writeLines(const std::string& path, const std::vector<std::string>& lines) {
    return writeFileAtomically(path, joinLines(lines));
}

bool touchFile(const std::string& path) {
    std::ofstream out(path, std::ios::binary | std::ios::app);
    return static_cast<bool>(out);
}

bool fileExists(const std::string& path) {
    std::error_code ec;
    return fs::is_regular_file(path, ec);
}

bool folderExists(const std::string& path) {
    std::error_code ec;
    return fs::is_directory(path, ec);
}

bool createFolder(const std::string& path) {
    std::error_code ec;
    fs::create_directories(path, ec);
    return !ec;
}

std::uintmax_t fileLength(const std::string& path) {
    std::error_code ec;
    const auto size = fs::file_size(path, ec);
    return ec ? 0 : size;
}

void deleteFile(const std::string& path) {
    std::error_code ec;
    fs::remove(path, ec);
}

void deleteFilesWithExtension(const std::string& folder, const std::string& extension) {
    std::error_code ec;
    fs::directory_iterator it(folder, ec);
    if (ec)
        return;
    std::vector<fs::path> doomed;
    for (const auto& entry : it) {
        const std::string name = entry.path().filename().string();
        if (name.size() >= extension.size() &&
            name.compare(name.size() - extension.size(), extension.size(), extension) == 0)
            doomed.push_back(entry.path());
    }
    for (const auto& path : doomed)
        fs::remove(path, ec);
}

const std::string& folderSeparator() {
    static const std::string separator(1, fs::path::preferred_separator);
    return separator;
}

std::string currentFolder() {
    std::error_code ec;
    return fs::current_path(ec).string();
}

bool setCurrentFolder(const std::string& path) {
    std::error_code ec;
    fs::current_path(path, ec);
    return !ec;
}

} // namespace brooklet
