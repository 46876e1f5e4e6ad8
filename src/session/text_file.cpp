#include "session/text_file.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace fs = std::filesystem;

namespace brooklet {

namespace {

// The bytes a reader of a file takes in at a time.
constexpr size_t BlockSize = size_t(1) << 20;

void skipByteOrderMark(const std::string& bytes, size_t end, size_t& pos) {
    if (end >= 3 && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0)
        pos = 3;
}

#if defined(__SSE2__) || defined(_M_X64)
// The number of the lowest bit set of a value that is not 0.
int lowestBitSet(unsigned value) {
#if defined(__GNUC__)
    return __builtin_ctz(value);
#else
    int bit = 0;
    while (!(value & (1u << bit)))
        ++bit;
    return bit;
#endif
}
#endif

// The first CR or LF of bytes first to end, or end: one pass over the bytes, sixteen at a time
// where the processor compares them so.
size_t findLineEnd(const char* bytes, size_t first, size_t end) {
    size_t at = first;
#if defined(__SSE2__) || defined(_M_X64)
    const __m128i cr = _mm_set1_epi8('\r');
    const __m128i lf = _mm_set1_epi8('\n');
    auto lineEnds = [&](size_t from) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + from));
        return unsigned(
            _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(block, cr), _mm_cmpeq_epi8(block, lf))));
    };
    for (; at + 32 <= end; at += 32) {
        // Bit n set: byte n of the 32 is a CR or LF; the lowest bit set is the first found.
        const unsigned found = lineEnds(at) | (lineEnds(at + 16) << 16);
        if (found != 0)
            return at + size_t(lowestBitSet(found));
    }
    for (; at + 16 <= end; at += 16) {
        if (const unsigned found = lineEnds(at))
            return at + size_t(lowestBitSet(found));
    }
#endif
    for (; at < end; ++at)
        if (bytes[at] == '\r' || bytes[at] == '\n')
            return at;
    return end;
}

} // namespace

LineReader::LineReader(std::string bytes) : bytes_(std::move(bytes)), end_(bytes_.size()) {
    skipByteOrderMark(bytes_, end_, pos_);
}

std::optional<LineReader> LineReader::fromFile(const std::string& path) {
    std::error_code ec;
    if (!fs::is_regular_file(path, ec))
        return std::nullopt;
    LineReader reader;
    reader.ofFile_ = true;
    reader.file_ = std::fopen(path.c_str(), "rb");
    if (!reader.file_)
        return std::nullopt;
    reader.readMore();
    skipByteOrderMark(reader.bytes_, reader.end_, reader.pos_);
    return reader;
}

LineReader::LineReader(LineReader&& other) noexcept
    : bytes_(std::move(other.bytes_)), pos_(other.pos_), end_(other.end_), lineNumber_(other.lineNumber_),
      lastEndedWithCrLf_(other.lastEndedWithCrLf_), ofFile_(other.ofFile_),
      file_(std::exchange(other.file_, nullptr)) {}

LineReader::~LineReader() {
    if (file_)
        std::fclose(file_);
}

void LineReader::readMore() {
    if (!file_)
        return;
    // The bytes not yet taken go to the front, and the block behind them.
    std::memmove(bytes_.data(), bytes_.data() + pos_, end_ - pos_);
    end_ -= pos_;
    pos_ = 0;
    if (bytes_.size() < end_ + BlockSize)
        bytes_.resize(end_ + BlockSize);
    const size_t read = std::fread(bytes_.data() + end_, 1, BlockSize, file_);
    end_ += read;
    if (read == 0) {
        std::fclose(file_);
        file_ = nullptr;
    }
}

bool LineReader::fileAtEnd() const {
    if (!file_)
        return true;
    // Asked between blocks: one byte more tells.
    const int next = std::getc(file_);
    if (next == EOF)
        return true;
    std::ungetc(next, file_);
    return false;
}

std::string_view LineReader::nextLine() {
    ++lineNumber_;
    size_t end = findLineEnd(bytes_.data(), pos_, end_);
    // A line that runs past the bytes held, or a CR that may be followed by its LF, waits for
    // the next block.
    while ((end == end_ || (end + 1 == end_ && bytes_[end] == '\r')) && file_) {
        readMore();
        end = findLineEnd(bytes_.data(), pos_, end_);
    }
    const size_t start = pos_;
    pos_ = end;
    lastEndedWithCrLf_ = pos_ + 1 < end_ && bytes_[pos_] == '\r' && bytes_[pos_ + 1] == '\n';
    if (pos_ < end_)
        pos_ += lastEndedWithCrLf_ ? 2 : 1;
    return std::string_view(bytes_.data() + start, end - start);
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

std::vector<std::string> splitLines(std::string bytes) {
    std::vector<std::string> lines;
    LineReader reader(std::move(bytes));
    while (!reader.atEnd())
        lines.push_back(reader.readLine());
    return lines;
}

std::vector<std::string> readLines(const std::string& path) {
    auto bytes = readFileBytes(path);
    return bytes ? splitLines(std::move(*bytes)) : std::vector<std::string>();
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

WriteResult writeFileAtomically(const std::string& path, const std::string& bytes) {
    return writeFileAtomically(path, std::vector<std::string_view>{bytes});
}

WriteResult writeFileAtomically(const std::string& requested, const std::vector<std::string_view>& pieces) {
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
        for (const std::string_view piece : pieces)
            out.write(piece.data(), static_cast<std::streamsize>(piece.size()));
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
