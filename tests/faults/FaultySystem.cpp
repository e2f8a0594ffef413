#include "faults/FaultySystem.h"

#include <bit>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <linux/filter.h>
#include <linux/fs.h>
#include <linux/openat2.h>
#include <linux/seccomp.h>
#include <optional>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int none = -1;

// Lets this thread's calls of these numbers be answered by who listens to the descriptor.
int listenToThisThread(std::initializer_list<int> numbers)
{
    std::vector<sock_filter> filter { BPF_STMT(BPF_LD | BPF_W | BPF_ABS, 0) };
    for (const int number : numbers) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, unsigned(number), 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program { static_cast<unsigned short>(filter.size()), filter.data() };
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    return int(
        syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

std::string targetOf(const std::string& link)
{
    std::error_code isNone;
    return std::filesystem::read_symlink(link, isNone);
}

// The thread that calls is one of this process: its pointers and descriptors are good here, too.
std::string pathOf(const FileCall& call, const seccomp_data& data)
{
    const int folder = call.descriptor == none ? AT_FDCWD : int(data.args[call.descriptor]);
    const char* const given
        = call.path == none ? nullptr : std::bit_cast<const char*>(data.args[call.path]);
    const std::string path = given ? given : "";
    if (path.starts_with("/"))
        return path.starts_with("/proc/self/fd/") ? targetOf(path) : path;
    const std::string start = folder == AT_FDCWD ? "cwd" : "fd/" + std::to_string(folder);
    return targetOf("/proc/self/" + start) + "/" + path;
}

bool isBeyondSimpleVolume(const seccomp_data& data)
{
    const auto flags = data.nr == SYS_openat2 ? std::bit_cast<const open_how*>(data.args[2])->flags
                                              : data.args[2];
    return data.nr == SYS_copy_file_range || data.nr == SYS_renameat2
        || ((data.nr == SYS_openat || data.nr == SYS_openat2) && (flags & O_TMPFILE) == O_TMPFILE);
}

// The error with which a call is to fail, if it is.
std::optional<int> errorOf(const seccomp_data& data, Fault& fault)
{
    if (fault.isOnSimpleVolume && isBeyondSimpleVolume(data))
        return data.nr == SYS_renameat2 ? EINVAL : EOPNOTSUPP;
    if (data.nr != fault.call.number || (data.nr == SYS_ioctl && data.args[1] != FICLONE))
        return std::nullopt;
    const std::string path = pathOf(fault.call, data);
    if (!(path + "/").starts_with("/Applications/") && !path.starts_with("/tmp/"))
        return std::nullopt;
    if (++fault.calls < fault.step || (fault.calls > fault.step && fault.error != nothing))
        return std::nullopt;
    fault.path = path;
    fault.hasLostData = data.nr == SYS_fsync || data.nr == SYS_fdatasync || data.nr == SYS_syncfs
        || (data.nr == SYS_close && (fcntl(int(data.args[0]), F_GETFL) & O_ACCMODE) != O_RDONLY);
    return fault.error;
}

}

const std::vector<FileCall>& fileCalls()
{
    static const std::vector<FileCall> calls {
        { "newfstatat", SYS_newfstatat, 0, 1, { EIO, EACCES, ENOMEM } },
        { "fstat", SYS_fstat, 0, none, { EIO, ENOMEM } },
        { "faccessat2", SYS_faccessat2, 0, 1, { EIO, EACCES, ENOMEM } },
        { "openat", SYS_openat, 0, 1, { EIO, EACCES, EINTR, EMFILE, ENOSPC, EOPNOTSUPP } },
        { "openat2", SYS_openat2, 0, 1, { EIO, EACCES, EAGAIN, EINTR, EMFILE, ENOSPC, ENOSYS } },
        { "getdents64", SYS_getdents64, 0, none, { EIO, ENOMEM } },
        { "readlinkat", SYS_readlinkat, 0, 1, { EIO, EACCES, ENOMEM } },
        { "mkdirat", SYS_mkdirat, 0, 1, { EIO, EACCES, ENOSPC, EROFS } },
        { "mknodat", SYS_mknodat, 0, 1, { EIO, ENOSPC, EPERM } },
        { "symlinkat", SYS_symlinkat, 1, 2, { EIO, ENOSPC, EPERM } },
        { "linkat", SYS_linkat, 2, 3, { EIO, EACCES, EMLINK, ENOENT, ENOSPC, EXDEV } },
        { "unlinkat", SYS_unlinkat, 0, 1, { EIO, EACCES, EBUSY, EROFS } },
        { "renameat2", SYS_renameat2, 2, 3, { EIO, EACCES, EINVAL, ENOSPC, ENOSYS } },
        { "read", SYS_read, 0, none, { EIO, EINTR, nothing } },
        { "pread64", SYS_pread64, 0, none, { EIO, EINTR, nothing } },
        { "write", SYS_write, 0, none, { EIO, EINTR, ENOSPC, nothing } },
        { "pwrite64", SYS_pwrite64, 0, none, { EIO, EDQUOT, EINTR, ENOSPC, nothing } },
        { "copy_file_range", SYS_copy_file_range, 2, none,
            { EIO, EINTR, ENOSPC, ENOSYS, EOPNOTSUPP, EXDEV, nothing } },
        { "ioctl", SYS_ioctl, 0, none, { EIO, EINTR, ENOSPC, ENOTTY, EXDEV } },
        { "lseek", SYS_lseek, 0, none, { EIO, EINVAL } },
        { "ftruncate", SYS_ftruncate, 0, none, { EIO, EFBIG, ENOSPC } },
        { "fchmod", SYS_fchmod, 0, none, { EIO, ENOSYS, EOPNOTSUPP, EPERM, EROFS }, mode },
        { "fchmodat", SYS_fchmodat, 0, 1, { EIO, ENOSYS, EOPNOTSUPP, EPERM, EROFS }, mode },
        { "fchown", SYS_fchown, 0, none, { EIO, EINVAL, EPERM } },
        { "fchownat", SYS_fchownat, 0, 1, { EIO, EINVAL, EPERM } },
        { "utimensat", SYS_utimensat, 0, 1, { EIO, ENOSYS, EOPNOTSUPP, EPERM, EROFS }, times },
        { "flistxattr", SYS_flistxattr, 0, none, { EIO, ENOMEM, EOPNOTSUPP, ERANGE }, attribute },
        { "fgetxattr", SYS_fgetxattr, 0, none, { EIO, ENODATA, ENOMEM, EOPNOTSUPP }, attribute },
        { "fsetxattr", SYS_fsetxattr, 0, none, { EIO, EACCES, EDQUOT, ENOSPC, EOPNOTSUPP, EPERM },
            attribute },
        { "fsync", SYS_fsync, 0, none, { EIO, ENOSPC } },
        { "fdatasync", SYS_fdatasync, 0, none, { EIO, ENOSPC } },
        { "syncfs", SYS_syncfs, 0, none, { EIO, ENOSPC } },
        { "flock", SYS_flock, 0, none, { EINTR, ENOLCK, EWOULDBLOCK } },
        { "close", SYS_close, 0, none, { EIO, EDQUOT, ENOSPC } },
        { "renameat", SYS_renameat, 2, 3, { EIO, EACCES, ENOSPC } },
        { "readlink", SYS_readlink, none, 0, { EIO, EACCES, ENOMEM } },
    };
    return calls;
}

void runWithFault(Fault& fault, const std::function<void()>& work)
{
    std::promise<int> promise;
    std::thread thread([&] {
        promise.set_value(listenToThisThread(
            { fault.call.number, SYS_openat, SYS_openat2, SYS_copy_file_range, SYS_renameat2 }));
        work();
    });
    const int listener = promise.get_future().get();
    for (pollfd state { listener, POLLIN, 0 }; poll(&state, 1, -1), state.revents & POLLIN;) {
        seccomp_notif question {};
        if (ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &question) < 0)
            continue;
        seccomp_notif_resp answer { question.id, 0, 0, SECCOMP_USER_NOTIF_FLAG_CONTINUE };
        if (const auto error = errorOf(question.data, fault))
            answer = { question.id, 0, -*error, 0 };
        ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &answer);
    }
    thread.join();
}
