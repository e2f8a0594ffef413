#include "faults/FaultySystem.h"

#include <bit>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <linux/filter.h>
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

// The thread that calls is one of this process: its pointers and descriptors are good here, too.
std::string pathOf(const FileCall& call, const seccomp_data& data)
{
    const int folder = call.descriptor == none ? AT_FDCWD : int(data.args[call.descriptor]);
    const std::filesystem::path start
        = folder == AT_FDCWD ? "." : "/proc/self/fd/" + std::to_string(folder);
    const char* const given
        = call.path == none ? nullptr : std::bit_cast<const char*>(data.args[call.path]);
    std::error_code isGone;
    const auto top = std::filesystem::read_symlink(start, isGone); // also of what has no name
    const std::filesystem::path path = (top.empty() ? start : top) / (given ? given : "");
    const auto parent = std::filesystem::weakly_canonical(path.parent_path(), isGone);
    return parent / path.filename();
}

bool isBeyond(Volume volume, const seccomp_data& data)
{
    if (data.nr == SYS_openat)
        return volume >= Volume::plain && (data.args[2] & O_TMPFILE) == O_TMPFILE;
    return volume == Volume::simple && (data.nr == SYS_copy_file_range || data.nr == SYS_renameat2);
}

// The error with which a call is to fail, if it is.
std::optional<int> errorOf(const seccomp_data& data, Fault& fault)
{
    if (isBeyond(fault.volume, data))
        return data.nr == SYS_renameat2 ? EINVAL : EOPNOTSUPP;
    if (data.nr != fault.call.number)
        return std::nullopt;
    const std::string path = pathOf(fault.call, data);
    if (!(path + "/").starts_with("/Applications/") && !path.starts_with("/tmp/"))
        return std::nullopt;
    if (++fault.calls < fault.step || (fault.calls > fault.step && fault.error != nothing))
        return std::nullopt;
    fault.path = path;
    const bool isWritten = data.nr == SYS_fdatasync || data.nr == SYS_syncfs
        || (data.nr == SYS_close && (fcntl(int(data.args[0]), F_GETFL) & O_ACCMODE) != O_RDONLY);
    fault.hasLostData = isWritten && fault.error != EINTR;
    return fault.error;
}

}

const std::vector<FileCall>& fileCalls()
{
    // One error of each branch that the program takes. An interrupted call is made again.
    static const std::vector<FileCall> calls {
        { "newfstatat", SYS_newfstatat, 0, 1, { EINTR, EIO } },
        { "faccessat2", SYS_faccessat2, 0, 1, { EIO } },
        { "openat", SYS_openat, 0, 1, { EINTR, EIO, EOPNOTSUPP } },
        { "openat2", SYS_openat2, 0, 1, { EINTR, EIO, ENOSYS } },
        { "getdents64", SYS_getdents64, 0, none, { EINTR, EIO } },
        { "readlinkat", SYS_readlinkat, 0, 1, { EINTR, EIO } },
        { "mkdirat", SYS_mkdirat, 0, 1, { EINTR, EIO } },
        { "symlinkat", SYS_symlinkat, 1, 2, { EINTR, EIO } },
        { "linkat", SYS_linkat, 2, 3, { EINTR, EIO } },
        { "unlinkat", SYS_unlinkat, 0, 1, { EBUSY, EINTR, EIO } },
        { "renameat2", SYS_renameat2, 2, 3, { EINTR, EINVAL, EIO } },
        { "renameat", SYS_renameat, 2, 3, { EINTR, EIO } },
        { "pread64", SYS_pread64, 0, none, { EINTR, EIO, nothing } },
        { "write", SYS_write, 0, none, { EINTR, EIO, ENOSPC, nothing } },
        { "pwrite64", SYS_pwrite64, 0, none, { EINTR, EIO, nothing } },
        { "copy_file_range", SYS_copy_file_range, 2, none, { EINTR, EIO, EXDEV, nothing } },
        { "lseek", SYS_lseek, 0, none, { EINTR, EIO } },
        { "ftruncate", SYS_ftruncate, 0, none, { EINTR, EIO } },
        { "fchmod", SYS_fchmod, 0, none, { EINTR, EIO, EPERM }, mode },
        { "fchown", SYS_fchown, 0, none, { EINTR, EPERM }, owner },
        { "fchownat", SYS_fchownat, 0, 1, { EINTR, EPERM }, owner },
        { "utimensat", SYS_utimensat, 0, 1, { EINTR, EIO, EPERM }, times },
        { "flistxattr", SYS_flistxattr, 0, none, { EINTR, EIO, EOPNOTSUPP }, attribute },
        { "fgetxattr", SYS_fgetxattr, 0, none, { EINTR, EIO, EOPNOTSUPP }, attribute },
        { "fsetxattr", SYS_fsetxattr, 0, none, { EINTR, EIO, ENOSPC }, attribute },
        { "fremovexattr", SYS_fremovexattr, 0, none, { EINTR, EIO, EPERM } },
        { "fdatasync", SYS_fdatasync, 0, none, { EINTR, EIO } },
        { "syncfs", SYS_syncfs, 0, none, { EINTR, EIO } },
        { "flock", SYS_flock, 0, none, { EINTR, ENOLCK, EWOULDBLOCK } },
        { "close", SYS_close, 0, none, { EIO } },
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
