#include "faults/FaultySystem.h"

#include <bit>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <optional>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

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
    return int(
        syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

// The thread that calls is one of this process: its pointers and descriptors are good here, too.
std::string pathOf(const FileCall& call, const seccomp_data& data)
{
    const int descriptor = int(data.args[call.path > 0 ? call.path - 1 : 0]);
    std::error_code isNone; // AT_FDCWD
    fs::path path = fs::read_symlink("/proc/self/fd/" + std::to_string(descriptor), isNone);
    if (call.path > 0 && data.args[call.path] > 0)
        path /= std::bit_cast<const char*>(data.args[call.path]);
    return fs::weakly_canonical(path.parent_path(), isNone) / path.filename();
}

// The error with which a call is to fail, if it is.
std::optional<int> errorOf(const seccomp_data& data, Fault& fault)
{
    const bool isNameless = data.nr == SYS_openat && (data.args[2] & O_TMPFILE) == O_TMPFILE;
    const bool isRare = data.nr == SYS_copy_file_range || data.nr == SYS_renameat2;
    if ((isNameless && fault.volume != Volume::complete)
        || (isRare && fault.volume == Volume::simple))
        return EOPNOTSUPP;
    const std::string path = data.nr == fault.call.number ? pathOf(fault.call, data) : "";
    if (!path.starts_with("/Applications") && !path.starts_with("/tmp")) return std::nullopt;
    if (++fault.calls < fault.step || (fault.calls > fault.step && fault.error != nothing))
        return std::nullopt;
    fault.path = path;
    const bool isWritten = data.nr == SYS_fdatasync || data.nr == SYS_syncfs
        || (data.nr == SYS_close && (fcntl(int(data.args[0]), F_GETFL) & O_ACCMODE) != O_RDONLY);
    fault.hasLostData = isWritten && fault.error != EINTR;
    return fault.error;
}

}

const std::vector<FileCall> fileCalls {
    { "newfstatat", SYS_newfstatat, 1 },
    { "faccessat2", SYS_faccessat2, 1 },
    { "openat", SYS_openat, 1, { EINTR, EIO, EOPNOTSUPP } },
    { "openat2", SYS_openat2, 1, { EINTR, EIO, ENOSYS } },
    { "getdents64", SYS_getdents64 },
    { "readlinkat", SYS_readlinkat, 1 },
    { "mkdirat", SYS_mkdirat, 1 },
    { "symlinkat", SYS_symlinkat, 2 },
    { "linkat", SYS_linkat, 3, { EINTR, EIO, ENOENT } },
    { "unlinkat", SYS_unlinkat, 1, { EBUSY, EINTR, EIO } },
    { "renameat2", SYS_renameat2, 3, { EINTR, EINVAL, EIO } },
    { "renameat", SYS_renameat, 3 },
    { "pread64", SYS_pread64, 0, { EINTR, EIO, nothing } },
    { "write", SYS_write, 0, { EINTR, EIO, ENOSPC, nothing } },
    { "pwrite64", SYS_pwrite64, 0, { EINTR, EIO, nothing } },
    { "copy_file_range", SYS_copy_file_range, 0, { EINTR, EIO, EXDEV, nothing } },
    { "lseek", SYS_lseek },
    { "ftruncate", SYS_ftruncate },
    { "fchmod", SYS_fchmod, 0, { EINTR, EIO, EPERM }, mode },
    { "fchown", SYS_fchown, 0, { EINTR, EPERM }, owner },
    { "fchownat", SYS_fchownat, 1, { EINTR, EPERM }, owner },
    { "utimensat", SYS_utimensat, 1, { EINTR, EIO, EPERM }, times },
    { "flistxattr", SYS_flistxattr, 0, { EINTR, EIO, EOPNOTSUPP }, attribute },
    { "fgetxattr", SYS_fgetxattr, 0, { EINTR, EIO, EOPNOTSUPP }, attribute },
    { "fsetxattr", SYS_fsetxattr, 0, { EINTR, EIO, ENOSPC }, attribute },
    { "fremovexattr", SYS_fremovexattr, 0, { EINTR, EIO, EPERM } },
    { "fdatasync", SYS_fdatasync },
    { "syncfs", SYS_syncfs },
    { "flock", SYS_flock, 0, { EINTR, ENOLCK, EWOULDBLOCK } },
    { "close", SYS_close },
};

void runWithFault(Fault& fault, const std::function<void()>& work)
{
    std::promise<int> listener;
    const std::jthread thread([&] {
        listener.set_value(listenToThisThread(
            { fault.call.number, SYS_openat, SYS_copy_file_range, SYS_renameat2 }));
        work();
    });
    pollfd state { listener.get_future().get(), POLLIN, 0 };
    while (poll(&state, 1, -1), state.revents & POLLIN) {
        seccomp_notif question {};
        ioctl(state.fd, SECCOMP_IOCTL_NOTIF_RECV, &question);
        seccomp_notif_resp answer { question.id, 0, 0, SECCOMP_USER_NOTIF_FLAG_CONTINUE };
        if (const auto error = errorOf(question.data, fault))
            answer = { question.id, 0, -*error, 0 };
        ioctl(state.fd, SECCOMP_IOCTL_NOTIF_SEND, &answer);
    }
}
