#include "session/text_file.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#ifndef _WIN32
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace fs = std::filesystem;

namespace brooklet {

namespace {

// The bytes a reader of a file takes in at a time.
constexpr size_t BlockSize = size_t(1) << 20;

void skipByteOrderMark(const std::string& bytes, size_t end, size_t& pos) {
    pos = byteOrderMarkLength(std::string_view(bytes).substr(0, end));
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

size_t byteOrderMarkLength(std::string_view bytes) {
    return bytes.substr(0, 3) == "\xEF\xBB\xBF" ? 3 : 0;
}

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

WriteFaultHook& faultHook() {
    static WriteFaultHook hook;
    return hook;
}

WriteFault askHook(WriteStep step, const std::string& path, size_t bytes) {
    const WriteFaultHook& hook = faultHook();
    return hook ? hook(step, path, bytes) : WriteFault{};
}

WriteResult failure(int error) {
    return {false, std::generic_category().message(error)};
}

std::string siblingOf(const std::string& path) {
    return path + ".part";
}

const WriteResult StoppedBeforeRename = {false, "stopped before the new data took the file's place"};

#ifdef _WIN32

// The permissions of an existing file, which its replacement takes.
struct OldFile {
    fs::perms permissions;
};

WriteResult writeSibling(const std::string& path, const std::vector<std::string_view>& pieces,
                         const OldFile* old, bool /*durable*/) {
    const std::string sibling = siblingOf(path);
    if (const WriteFault fault = askHook(WriteStep::Create, sibling, 0); fault.error)
        return failure(fault.error);
    std::ofstream out(sibling, std::ios::binary | std::ios::trunc);
    if (!out)
        return {false, "it cannot be created"};
    int error = 0;
    for (const std::string_view piece : pieces) {
        if (const WriteFault fault = askHook(WriteStep::Write, sibling, piece.size()); fault.error) {
            error = fault.error;
            break;
        }
        out.write(piece.data(), static_cast<std::streamsize>(piece.size()));
    }
    out.close();
    if (error || !out) {
        deleteFile(sibling);
        return error ? failure(error) : WriteResult{false, "it cannot be written"};
    }
    std::error_code ec;
    if (old)
        fs::permissions(sibling, old->permissions, ec);
    return {};
}

WriteResult placeSibling(const std::string& path, bool /*durable*/) {
    const std::string sibling = siblingOf(path);
    const WriteFault fault = askHook(WriteStep::Rename, path, 0);
    if (fault.stop)
        return StoppedBeforeRename;
    std::error_code ec;
    if (!fault.error)
        fs::rename(sibling, path, ec);
    if (fault.error || ec) {
        deleteFile(sibling);
        return fault.error ? failure(fault.error) : WriteResult{false, ec.message()};
    }
    return {};
}

#else

using OldFile = struct stat;

// Opens a file for writing, made when missing; -1 with errno set on failure.
int openForWriting(const std::string& path, int flags, mode_t mode) {
    if (const WriteFault fault = askHook(WriteStep::Create, path, 0); fault.error) {
        errno = fault.error;
        return -1;
    }
    int fd;
    do
        fd = ::open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, mode);
    while (fd < 0 && errno == EINTR);
    return fd;
}

// Writes the pieces whole from the file's present position: 0, or the system's error number.
// A write the fault hook does not see is the putting back of bytes the file held already.
int writeAll(int fd, const std::string& path, const std::vector<std::string_view>& pieces,
             bool hooked = true) {
    for (std::string_view piece : pieces) {
        while (!piece.empty()) {
            if (hooked)
                if (const WriteFault fault = askHook(WriteStep::Write, path, piece.size()); fault.error)
                    return fault.error;
            const ssize_t written = ::write(fd, piece.data(), piece.size());
            if (written < 0) {
                if (errno == EINTR)
                    continue;
                return errno;
            }
            piece.remove_prefix(size_t(written));
        }
    }
    return 0;
}

// A close that fails may mean that data never reached the file.
int closeChecked(int fd) {
    return ::close(fd) == 0 ? 0 : errno;
}

// The folder's entry of a renamed file reaches the disk too. The file has its place already, so
// a file system that cannot sync a folder changes nothing of the result.
void syncFolder(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// Writes the sibling of path, with the permissions (and, where allowed, the owner) of the file it
// is to replace; on failure nothing of it is left.
WriteResult writeSibling(const std::string& path, const std::vector<std::string_view>& pieces,
                         const OldFile* old, bool durable) {
    const std::string sibling = siblingOf(path);
    const mode_t mode = old ? (old->st_mode & 07777) : 0666;
    const int fd = openForWriting(sibling, O_CREAT | O_TRUNC, mode);
    if (fd < 0)
        return failure(errno);
    int error = 0;
    if (old) {
        if (old->st_uid != ::geteuid() || old->st_gid != ::getegid())
            (void)!::fchown(fd, old->st_uid, old->st_gid);
        if (::fchmod(fd, mode) != 0)
            error = errno;
    }
    if (!error)
        error = writeAll(fd, sibling, pieces);
    if (!error && durable && ::fsync(fd) != 0)
        error = errno;
    const int closed = closeChecked(fd);
    if (!error)
        error = closed;
    if (error) {
        ::unlink(sibling.c_str());
        return failure(error);
    }
    return {};
}

WriteResult placeSibling(const std::string& path, bool durable) {
    const std::string sibling = siblingOf(path);
    const WriteFault fault = askHook(WriteStep::Rename, path, 0);
    if (fault.stop)
        return StoppedBeforeRename;
    int error = fault.error;
    if (!error && ::rename(sibling.c_str(), path.c_str()) != 0)
        error = errno;
    if (error) {
        ::unlink(sibling.c_str());
        return failure(error);
    }
    if (durable)
        syncFolder(path);
    return {};
}

// A file of several hard links: a rename would part its names, so the new bytes are written over
// the old ones, after a copy of the old file is kept. A write that fails puts the old bytes back,
// which takes no new room on the disk, as the file holds their blocks already.
WriteResult writeInPlace(const std::string& path, const std::vector<std::string_view>& pieces,
                         const WriteOptions& options) {
    const auto old = readFileBytes(path);
    if (!old)
        return {false, "it cannot be read"};
    const std::string copy = options.keepCopyIn + fs::path(path).filename().string() + ".old";
    if (const WriteResult kept = writeFileAtomically(copy, *old, WriteOptions{true, {}}); !kept.ok)
        return {false, "a copy of it could not be kept as " + copy + ": " + kept.error};
    const int fd = openForWriting(path, 0, 0);
    if (fd < 0)
        return failure(errno);
    size_t size = 0;
    for (const std::string_view piece : pieces)
        size += piece.size();
    int error = writeAll(fd, path, pieces);
    if (!error && ::ftruncate(fd, off_t(size)) != 0)
        error = errno;
    if (!error && options.durable && ::fsync(fd) != 0)
        error = errno;
    if (error && ::lseek(fd, 0, SEEK_SET) == 0 && writeAll(fd, path, {*old}, false) == 0)
        (void)!::ftruncate(fd, off_t(old->size()));
    if (error)
        ::fsync(fd);
    const int closed = closeChecked(fd);
    if (!error)
        error = closed;
    return error ? failure(error) : WriteResult{};
}

#endif

} // namespace

void setWriteFaultHook(WriteFaultHook hook) {
    faultHook() = std::move(hook);
}

WriteResult writeFileAtomically(const std::string& path, const std::string& bytes,
                                const WriteOptions& options) {
    return writeFileAtomically(path, std::vector<std::string_view>{bytes}, options);
}

WriteResult writeFileAtomically(const std::string& requested, const std::vector<std::string_view>& pieces,
                                const WriteOptions& options) {
    const std::string path = linkTarget(requested).string();
    std::error_code linkError;
    if (fs::is_symlink(path, linkError))
        return {false, "its links lead round in a circle"};
#ifdef _WIN32
    std::error_code ec;
    const fs::file_status existing = fs::status(path, ec);
    const bool exists = !ec && fs::exists(existing);
    if (exists && (existing.permissions() & fs::perms::owner_write) == fs::perms::none)
        return {false, "it is read-only"};
    const OldFile old{existing.permissions()};
    const bool regular = exists && fs::is_regular_file(existing);
#else
    OldFile old{};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    if (exists && !(old.st_mode & S_IWUSR))
        return {false, "it is read-only"};
    const bool regular = exists && S_ISREG(old.st_mode);
    if (regular && old.st_nlink > 1 && !options.keepCopyIn.empty())
        return writeInPlace(path, pieces, options);
#endif
    if (const WriteResult written = writeSibling(path, pieces, regular ? &old : nullptr, options.durable);
        !written.ok)
        return written;
    return placeSibling(path, options.durable);
}

FileSet::~FileSet() {
    for (const std::string& path : paths_)
        deleteFile(siblingOf(path));
}

WriteResult FileSet::add(const std::string& path, const std::vector<std::string_view>& pieces) {
    const WriteResult written = writeSibling(path, pieces, nullptr, false);
    if (written.ok && std::find(paths_.begin(), paths_.end(), path) == paths_.end())
        paths_.push_back(path);
    return written;
}

WriteResult FileSet::place() {
    for (size_t i = 0; i < paths_.size(); ++i) {
        const WriteResult placed = placeSibling(paths_[i], false);
        if (!placed.ok) {
            paths_.erase(paths_.begin(), paths_.begin() + std::ptrdiff_t(i) + 1);
            return placed;
        }
    }
    paths_.clear();
    return {};
}

WriteResult checkFolderWritable(const std::string& folder) {
    const std::string probe = (fs::path(folder) / "~WriteCheck.tmp").string();
    const WriteResult written = writeSibling(probe, {}, nullptr, false);
    if (written.ok)
        deleteFile(siblingOf(probe));
    return written;
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

WriteResult writeLines(const std::string& path, const std::vector<std::string>& lines,
                       const WriteOptions& options) {
    return writeFileAtomically(path, joinLines(lines), options);
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
