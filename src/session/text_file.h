#pragma once
// Text files as the program keeps them: whole files of lines, read in one go and written in
// one go. Lines are written with CR LF; a reader takes CR LF, LF or a CR alone as a line end.
#include <cstdint>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brooklet {

// The length of the UTF-8 byte-order mark that some editors put at the start of a file: 3, or 0
// when the bytes do not begin with one. It is no part of the file's text.
size_t byteOrderMarkLength(std::string_view bytes);

// Reads a file line by line from bytes held in memory, so "at the end" can be asked after
// every line, as the loaders need. A UTF-8 byte-order mark at the start, which some editors
// put there, is not part of the first line. A reader of a file (fromFile) holds one block of it
// at a time, for files of hundreds of megabytes read once from start to end.
class LineReader {
public:
    explicit LineReader(std::string bytes);
    // A reader of the file's bytes as they are read; nothing when it cannot be opened.
    static std::optional<LineReader> fromFile(const std::string& path);
    LineReader(LineReader&& other) noexcept;
    LineReader& operator=(LineReader&&) = delete;
    ~LineReader();

    bool atEnd() const { return pos_ >= end_ && fileAtEnd(); }
    std::string readLine() { return std::string(nextLine()); }
    // The next line as a view into the bytes, valid while the reader lives; of a reader of a
    // file, only until the next line is read.
    std::string_view nextLine();
    // How many lines have been read, so the number of the line last read.
    int lineNumber() const { return lineNumber_; }
    // Whether the line last read ended with CR LF, as the program writes lines.
    bool lastEndedWithCrLf() const { return lastEndedWithCrLf_; }

    // For a reader of bytes held whole (not of a file): where the next line starts, and the
    // bytes between two such places, so that a run of lines can be taken as it stands.
    bool holdsAllBytes() const { return !ofFile_; }
    size_t offset() const { return pos_; }
    std::string_view heldBytes(size_t from, size_t to) const {
        return std::string_view(bytes_).substr(from, to - from);
    }

private:
    LineReader() = default;
    // Between blocks of a file: whether the file has more bytes.
    bool fileAtEnd() const;
    // Reads the next block behind the bytes not yet taken; at the file's end, closes it.
    void readMore();

    std::string bytes_;
    size_t pos_ = 0;
    size_t end_ = 0;
    int lineNumber_ = 0;
    bool lastEndedWithCrLf_ = false;
    bool ofFile_ = false;
    std::FILE* file_ = nullptr;
};

// The whole file as bytes; nothing when it does not exist or cannot be read.
std::optional<std::string> readFileBytes(const std::string& path);

// The lines of bytes, as a LineReader reads them.
std::vector<std::string> splitLines(std::string bytes);

// The lines of a file; an empty list when it does not exist or cannot be read.
std::vector<std::string> readLines(const std::string& path);

// The first line of a file, if it has one.
std::optional<std::string> readFirstLine(const std::string& path);

// True when the file exists and something follows its first line: "one line read and not
// then at its end".
bool hasLineAfterFirst(const std::string& path);

// Outcome of a write: empty error when it worked, otherwise why (the system's words).
struct WriteResult {
    bool ok = true;
    std::string error;
};

// How a file is written beyond the bytes themselves.
struct WriteOptions {
    // The data reach the disk (the file, then its folder after the rename) before the write
    // counts as done: for the engineer's own files, not for work files.
    bool durable = false;
    // A file with more than one hard link is written in place, so every name sees the new data,
    // after a copy of the old file is kept in this folder (as its name plus ".old"). Without a
    // folder such a file is replaced like any other, and its other names keep the old data.
    std::string keepCopyIn;
};

// Writes the file whole by way of a sibling file (its name plus ".part") that then replaces it,
// so a failed write leaves the file as it was; the sibling of a write that was cut off is taken
// up by the next write of the file. The file keeps its permissions. A symbolic link is written
// through to the file it points to; a file without write permission is refused and left as it is.
WriteResult writeFileAtomically(const std::string& path, const std::string& bytes,
                                const WriteOptions& options = {});
// The same, the file's bytes given as pieces written one after the other.
WriteResult writeFileAtomically(const std::string& path, const std::vector<std::string_view>& pieces,
                                const WriteOptions& options = {});

// Several files replaced together: each is written to its sibling first, and only once every one
// was written do they take their places, so a failure part way leaves all of them as they were.
// Siblings not placed are removed when the set goes.
class FileSet {
public:
    FileSet() = default;
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    ~FileSet();
    // Writes the sibling of the file at path; a second write of one path replaces the first.
    WriteResult add(const std::string& path, const std::vector<std::string_view>& pieces);
    // Every file written takes its place.
    WriteResult place();

private:
    std::vector<std::string> paths_;
};

// Checks that files can be made in a folder, by making one and removing it again.
WriteResult checkFolderWritable(const std::string& folder);

// The steps of a write at which a test may make it fail, as a full disk or a folder without
// permission would, or stop it, as if the program were killed there.
enum class WriteStep { Create, Write, Rename };
struct WriteFault {
    int error = 0;     // the system's error number the step fails with; 0 lets it go on
    bool stop = false; // at Rename: nothing more is done, the sibling stays as written
};
// The hook is asked before each step, with the file (for Write, the bytes about to be written).
using WriteFaultHook = std::function<WriteFault(WriteStep step, const std::string& path, size_t bytes)>;
// For tests only; an empty hook ends it.
void setWriteFaultHook(WriteFaultHook hook);

// Joins lines, each ended by CR LF.
std::string joinLines(const std::vector<std::string>& lines);

WriteResult writeLines(const std::string& path, const std::vector<std::string>& lines,
                       const WriteOptions& options = {});

// Creates the file empty when it does not exist, as an append-open does. False on failure.
bool touchFile(const std::string& path);

bool fileExists(const std::string& path);
bool folderExists(const std::string& path);
bool createFolder(const std::string& path);
// Length in bytes; 0 when missing.
std::uintmax_t fileLength(const std::string& path);
// Deletes a file, ignoring failure.
void deleteFile(const std::string& path);
// Deletes every file in the folder whose name ends in the given extension (".tmp"), silently.
void deleteFilesWithExtension(const std::string& folder, const std::string& extension);

// The platform's folder separator, as text.
const std::string& folderSeparator();
// The process's current folder.
std::string currentFolder();
bool setCurrentFolder(const std::string& path);

} // namespace brooklet
