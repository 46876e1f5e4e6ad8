#pragma once
// Makes the program's file writing fail on purpose, as a full disk, a folder without write
// permission or a program killed in the middle of a save would, for as long as it lives.
#include <cerrno>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "session/text_file.h"

namespace brooklet::test {

class WriteFaults {
public:
    WriteFaults() {
        setWriteFaultHook([this](WriteStep step, const std::string& path, size_t bytes) {
            return fault(step, path, bytes);
        });
    }
    ~WriteFaults() {
        setWriteFaultHook({});
        restoreFolders();
    }
    WriteFaults(const WriteFaults&) = delete;
    WriteFaults& operator=(const WriteFaults&) = delete;

    // The disk takes this many bytes more, in all files together, then no more.
    void diskFullAfter(size_t bytes) { bytesLeft_ = static_cast<long long>(bytes); }
    // No file can be made in the folder (a path ending in its separator), as without permission.
    // The folder is made read-only as well; a test run as root, which permissions do not stop,
    // still sees the refusal.
    void refuseFolder(const std::string& folder) {
        refusedFolders_.push_back(folder);
#ifndef _WIN32
        ::chmod(folder.c_str(), 0555);
        chmodded_.push_back(folder);
#endif
    }
    // The file whose name ends so cannot be made: the disk is full when its turn comes.
    void refuseFile(const std::string& nameEnd) {
        refusedFiles_.push_back(nameEnd);
    }
    // The next write of the file stops after its data is written and before it takes the file's
    // place, as if the program were killed there.
    void stopBeforeRename(const std::string& path) {
        stopped_.push_back(path);
    }
    // How many writes were stopped or refused.
    int faults() const {
        return faults_;
    }

    // Gives the folders their permissions back (also done at the end).
    void restoreFolders() {
#ifndef _WIN32
        for (const std::string& folder : chmodded_)
            ::chmod(folder.c_str(), 0755);
#endif
        chmodded_.clear();
        refusedFolders_.clear();
    }

private:
    WriteFault fault(WriteStep step, const std::string& path, size_t bytes) {
        if (step == WriteStep::Create) {
            for (const std::string& folder : refusedFolders_)
                if (path.compare(0, folder.size(), folder) == 0)
                    return failWith(EACCES);
            for (const std::string& end : refusedFiles_)
                if (path.size() >= end.size() && path.compare(path.size() - end.size(), end.size(), end) == 0)
                    return failWith(ENOSPC);
        }
        if (step == WriteStep::Write && bytesLeft_ >= 0) {
            if (static_cast<long long>(bytes) > bytesLeft_)
                return failWith(ENOSPC);
            bytesLeft_ -= static_cast<long long>(bytes);
        }
        if (step == WriteStep::Rename)
            for (auto stopped = stopped_.begin(); stopped != stopped_.end(); ++stopped)
                if (path == *stopped) {
                    stopped_.erase(stopped);
                    ++faults_;
                    return WriteFault{0, true};
                }
        return {};
    }
    WriteFault failWith(int error) {
        ++faults_;
        return WriteFault{error, false};
    }

    long long bytesLeft_ = -1;
    std::vector<std::string> refusedFolders_;
    std::vector<std::string> chmodded_;
    std::vector<std::string> refusedFiles_;
    std::vector<std::string> stopped_;
    int faults_ = 0;
};

} // namespace brooklet::test
