#include "FaultySystem.h"

#include <algorithm>
#include <bit>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <linux/magic.h>
#include <poll.h>
#include <seccomp.h>
#include <sys/vfs.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

// Returns the descriptor on which the notifications about calls of this thread arrive.
int filterThisThread()
{
    seccomp_reset(nullptr, 0); // closes the descriptor of the previous run
    void* const filter = seccomp_init(SCMP_ACT_NOTIFY);
    // fcntl and, from glibc 2.39, fstat only use open descriptors.
    for (const char* const name :
        { "brk", "clock_gettime", "exit", "fcntl", "fstat", "futex", "getpid", "getrandom",
            "gettid", "madvise", "mmap", "mprotect", "munmap", "prlimit64", "rt_sigprocmask" })
        seccomp_rule_add(filter, SCMP_ACT_ALLOW, seccomp_syscall_resolve_name(name), 0);
    seccomp_load(filter);
    const int listener = seccomp_notify_fd(filter);
    seccomp_release(filter);
    return listener;
}

// The calling thread belongs to this process: its pointers and descriptors are valid here.
std::string pathOf(const FileCall& call, const seccomp_data& data)
{
    if (call.path < 0) return "";
    const auto descriptor = std::to_string(int(data.args[std::max(0, call.path - 1)]));
    std::error_code isNone; // AT_FDCWD
    fs::path path = fs::read_symlink("/proc/self/fd/" + descriptor, isNone);
    if (call.path > 0 && data.args[call.path] > 0)
        path /= std::bit_cast<const char*>(data.args[call.path]);
    path = path.lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

bool isReached(Fault& fault)
{
    const int call = ++fault.count;
    if (fault.error == EINTR) return fault.step <= 2 && call % 2 == fault.step % 2;
    return call == fault.step || (fault.error == nothing && call > fault.step);
}

// Returns the error of the call, or no value if the call continues.
std::optional<int> answer(const seccomp_data& data, Fault& fault)
{
    const auto call = std::ranges::find(fileCalls, data.nr,
        [](const FileCall& known) { return seccomp_syscall_resolve_name(known.name.c_str()); });
    if (call == fileCalls.end()) {
        ADD_FAILURE() << "unknown system call " << data.nr;
        return std::nullopt;
    }
    const std::string path = pathOf(*call, data);
    const int descriptor = int(data.args[0]);
    // Other files, such as that of the time zone, are read at unpredictable times.
    const bool isOfTask = path.starts_with("/Applications") || path.starts_with("/tmp");
    if (isOfTask && fault.calls.contains(call->name) && isReached(fault)) {
        fault.hasOccurred = true;
        if (fault.interfere) {
            fault.interfere(path);
        } else {
            if (fault.name == "close_EIO") ftruncate(descriptor, 0); // the data of the file is lost
            if (call->name == "close") close(descriptor); // an error does not keep it open
            return fault.error;
        }
    }
    if (call->name == "fsync" || call->name == "sync") fault.flushed.insert(path);
    const bool isNamed = call->name == "openat" && (data.args[2] & O_TMPFILE) != O_TMPFILE;
    if (isNamed || !fault.unsupported.contains(call->name)) return std::nullopt;
    if (call->name != "fstatfs") return EOPNOTSUPP;
    auto* const volume = std::bit_cast<struct statfs*>(data.args[1]);
    fstatfs(descriptor, volume);
    volume->f_type = FUSE_SUPER_MAGIC;
    return nothing;
}

}

void runWithFault(Fault& fault, const std::function<void()>& work)
{
    std::promise<int> listener;
    const std::jthread thread([&] {
        listener.set_value(filterThisThread());
        work();
    });
    pollfd state { listener.get_future().get(), POLLIN, 0 };
    while (poll(&state, 1, -1), state.revents & POLLIN) {
        seccomp_notif question {};
        seccomp_notify_receive(state.fd, &question);
        const auto error = answer(question.data, fault);
        seccomp_notif_resp response { question.id, 0, -error.value_or(0), 0 };
        if (!error) response.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        seccomp_notify_respond(state.fd, &response);
    }
}
