#include "support/PrivateMachine.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* stage = "/mnt";
constexpr std::array ownFolders { "tmp", "Applications", "Volumes", "run" };

void require(int result, const std::string& what)
{
    if (result < 0)
        throw std::runtime_error(what + ": " + std::strerror(errno));
}

void write(const char* path, const std::string& text)
{
    std::ofstream(path) << text;
}

// Whoever is not root becomes root of a user namespace.
void unshareMounts()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    if (user == 0) {
        require(unshare(CLONE_NEWNS), "no mount namespace");
        return;
    }
    require(unshare(CLONE_NEWNS | CLONE_NEWUSER), "no user namespace");
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", "0 " + std::to_string(user) + " 1");
    write("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
}

void bind(const fs::path& from, const fs::path& to)
{
    fs::create_directories(to);
    require(mount(from.c_str(), to.c_str(), nullptr, MS_BIND | MS_REC, nullptr), to.string());
}

void buildRoot(const std::string& keep)
{
    require(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), "mounts stay shared");
    require(mount("none", stage, "tmpfs", 0, "mode=0755"), "no tmpfs");
    for (const auto& entry : fs::directory_iterator("/")) {
        const std::string name = entry.path().filename();
        const fs::path staged = fs::path(stage) / name;
        if (entry.is_symlink())
            fs::copy_symlink(entry.path(), staged);
        else if (entry.is_directory() && entry.path() != stage
            && std::ranges::find(ownFolders, name) == ownFolders.end())
            bind(entry.path(), staged);
    }
    for (const char* const name : ownFolders)
        fs::create_directory(fs::path(stage) / name);
    require(chmod((fs::path(stage) / "tmp").c_str(), 01777), "tmp");
    bind(keep, stage + keep);
    require(chroot(stage), "no new root");
    require(chdir("/"), "no new root");
}

}

std::string enterPrivateMachine(const std::string& keep)
{
    try {
        unshareMounts();
        buildRoot(keep);
        return {};
    } catch (const std::exception& error) {
        return error.what();
    }
}
