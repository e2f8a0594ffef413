#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <set>

using Names = std::set<std::string>;

constexpr int nothing = 0; // in place of an error: this call and all later ones have no effect

// A system call on files, and the errors to try.
struct FileCall {
    std::string name;
    int path = 0; // the index among the arguments; 0: a descriptor comes first; -1: no path
    std::vector<int> errors = { EIO };
    std::vector<int> tolerated = {}; // the task succeeds; a file may lack a part of its metadata
};

// From openat, which creates files, the calls change the applications folder.
inline const std::vector<FileCall> fileCalls { { "newfstatat", 1 }, { "fstatfs" },
    { "faccessat2", 1 }, { "openat2", 1, { EIO, ENOSYS } }, { "getdents64" }, { "readlinkat", 1 },
    { "pread64", 0, { EIO, nothing } }, { "lseek" }, { "flistxattr", 0, { EIO }, { E2BIG } },
    { "fgetxattr", 0, { EIO }, { EOPNOTSUPP, ERANGE } },
    { "flock", 0, { EWOULDBLOCK }, { ENOLCK } },
    { "copy_file_range", 0, { EIO, nothing }, { EXDEV } },
    { "write", 0, {}, { EIO, ENOSPC, nothing } }, { "fdatasync", 0, {}, { EIO } },
    { "openat", 1, { EIO, EOPNOTSUPP } }, { "close" }, { "mkdirat", 1 }, { "symlinkat", 2 },
    { "linkat", 3, { EIO }, { ENOENT } }, { "unlinkat", 1, { EBUSY, EIO } },
    { "renameat2", 3, { EIO }, { EINVAL } }, { "renameat", 3 }, { "pwrite64", 0, { EIO, nothing } },
    { "sync_file_range", 0, {}, { EINVAL } }, { "ftruncate" }, { "fchmod", 0, { EIO }, { EPERM } },
    { "fchown", 0, {}, { EPERM } }, { "fchownat", 1, {}, { EPERM } },
    { "utimensat", 1, { EIO, ENOMEM }, { EINVAL } },
    { "fsetxattr", 0, { EIO, ESTALE, EUCLEAN }, { EDQUOT, ENOSPC } },
    { "fremovexattr", 0, { EIO }, { EPERM } }, { "fsync" }, { "syncfs" }, { "sync", -1, {} } };

struct Fault {
    std::string name = {};
    Names calls = {};
    int error = EIO; // EINTR: at steps 1 and 2, every second call is interrupted
    bool isTolerated = false;
    std::function<void(const std::string& path)> interfere = nullptr; // instead, before the call
    Names unsupported = {};
    int step = 0; // counts the calls from 1

    // The results.
    int count = 0; // of calls
    bool hasOccurred = false;
    Names flushed = {}; // by fsync or sync

    friend void PrintTo(const Fault& fault, std::ostream* stream) { *stream << fault.name; }
};

// Runs `work` on a new thread. A system call that is neither in `fileCalls` nor known to use no
// file fails the test.
void runWithFault(Fault& fault, const std::function<void()>& work);
