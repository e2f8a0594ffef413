// At every system call on files of an install and an uninstall, the call fails or is interrupted,
// the process is killed, or another process replaces a folder by a symlink.

#include "BundleTask.h"
#include "FaultySystem.h"
#include "Logger.h"
#include "fakes/RecordedReport.h"
#include "support/Tree.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <sys/xattr.h>

namespace fs = std::filesystem;

namespace {

using Tree = std::map<std::string, std::string>;

const char* const defaultAcl = "system.posix_acl_default";
const std::string logFile = "/tmp/quillbarninstaller.log";
const std::string source = "/tmp/source/";
const std::string apps = "/Applications/";
const std::string bundle = apps + "quillbarn.app";
const std::string neighbour = apps + "other.app"; // has the folders of the bundle

enum class Task { install, uninstall };

// The tasks on volumes that do not support some calls; openat: O_TMPFILE; fstatfs: reports FUSE,
// which does not support syncfs.
const std::vector<std::pair<Task, Names>> scenarios { { Task::install, {} },
    { Task::install, { "openat" } },
    { Task::install, { "openat", "copy_file_range", "renameat2", "fstatfs" } },
    { Task::uninstall, { "fstatfs" } } };

void writeInstalled(const std::string& top)
{
    writeFile(top + "/folder/inner/file", "old");
    fs::create_symlink("inner", top + "/folder/link");
    fs::create_symlink("nowhere", top + "/folder/dangling");
    fs::create_symlink(source + "quillbarn.app/file", top + "/file");
}

// Replaces the last folder on the path, if it is in the bundle, by a symlink into the neighbour.
void swapFolder(fs::path folder)
{
    while (!is_directory(symlink_status(folder)))
        folder = folder.parent_path();
    if (!folder.string().starts_with(bundle)) return;
    const fs::path target = neighbour + folder.string().substr(bundle.size());
    fs::rename(folder, apps + "swapped");
    fs::create_symlink(target.lexically_relative(folder.parent_path()), folder);
}

std::vector<Fault> allFaults()
{
    Fault interrupted { "EINTR", {}, EINTR, true };
    Fault killed { "SIGKILL", {}, EIO, false, [](const std::string&) { raise(SIGKILL); } };
    Fault swapped { "swappedFolder", {}, EIO, false, swapFolder };
    std::vector<Fault> faults;
    for (const auto& [name, path, errors, tolerated] : fileCalls) {
        for (const int error : errors)
            faults.push_back({ name + "_" + strerrorname_np(error), { name }, error });
        for (const int error : tolerated)
            faults.push_back({ name + "_" + strerrorname_np(error), { name }, error, true });
        interrupted.calls.insert(name);
        if (name == "openat" || !killed.calls.empty()) killed.calls.insert(name);
        if (path > 0) swapped.calls.insert(name);
    }
    faults.insert(faults.end(), { interrupted, killed, swapped });
    return faults;
}

// Returns what is installed. Temporary items may remain if they cannot be removed.
Tree readCompleteFiles(bool mayRemain)
{
    static const Tree files = readTree(source), neighbours = readTree(neighbour);
    EXPECT_TRUE(readTree(source) == files && readTree(neighbour) == neighbours);
    Tree items = readTree(apps);
    std::erase_if(items, [&](const auto& item) {
        return item.first.starts_with("other.app")
            || (mayRemain && ("/" + item.first).find("/.") != std::string::npos);
    });
    for (const auto& [path, inside] : items)
        EXPECT_TRUE(inside.starts_with("->") || inside == "old"
            || std::ranges::count(files, inside, &Tree::value_type::second) > 0)
            << path;
    return items;
}

// Mode, number of xattrs, owner, time of change.
std::array<std::int64_t, 4> metadataOf(const std::string& path)
{
    struct stat status = {};
    lstat(path.c_str(), &status);
    if (S_ISDIR(status.st_mode)) status.st_mtim.tv_nsec = status.st_uid = 0; // both are new
    return { status.st_mode, llistxattr(path.c_str(), nullptr, 0), status.st_uid,
        status.st_mtim.tv_nsec };
}

void expectSuccess(const Fault& fault, const Tree& items)
{
    int losses = 0;
    const bool isFuse = fault.unsupported.contains("fstatfs");
    EXPECT_NE(fault.flushed.empty(), isFuse);
    for (const auto& [path, inside] : items) {
        const auto copy = metadataOf(apps + path), original = metadataOf(source + path);
        for (std::size_t i = 0; i < copy.size(); ++i)
            losses += copy[i] != original[i];
        EXPECT_TRUE(!isFuse || inside.starts_with("->") || fault.flushed.contains(apps + path));
    }
    EXPECT_LE(losses, fault.isTolerated && fault.error != EINTR);
}

// Runs the task in a process that the fault may kill.
void runUntilKilled(Fault& fault, const std::function<void()>& work)
{
    const pid_t process = fork();
    if (process == 0) {
        work();
        _exit(testing::Test::HasFailure());
    }
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_TRUE(status == 0 || status == SIGKILL);
    readCompleteFiles(true);
    fault = { .unsupported = fault.unsupported, .hasOccurred = status == SIGKILL };
}

// Returns whether the fault occurs.
bool run(Task task, Fault fault)
{
    alarm(30); // ends a task that hangs
    RecordedReport report;
    const auto work = [&] {
        runWithFault(fault, [&] {
            BundleTask bundleTask(report, apps, "quillbarn.app", DryRun::no);
            task == Task::install ? bundleTask.install(source) : bundleTask.uninstall();
        });
    };
    if (fault.name == "SIGKILL") runUntilKilled(fault, work);
    work();
    const Tree items = readCompleteFiles(fault.calls.contains("unlinkat"));
    const std::string& end = report.lines.back();
    SCOPED_TRACE(end);
    const bool isFailure = end.starts_with("task: failure: ");
    EXPECT_EQ(std::ranges::count(report.lines, "task: “completed”"), !isFailure);
    if (fault.interfere) return fault.hasOccurred;
    EXPECT_TRUE(fault.calls.contains("write") || !readFile(logFile).empty());
    if (isFailure) {
        EXPECT_TRUE(fault.hasOccurred && !fault.isTolerated);
        const auto* why = fault.calls.contains("flock") ? "locked" : strerrorname_np(fault.error);
        EXPECT_TRUE(fault.error == nothing || end.find(why) != std::string::npos);
    } else {
        EXPECT_FALSE(fault.hasOccurred && fault.name.ends_with("sync_EIO") && !fault.isTolerated);
        EXPECT_TRUE(items == (task == Task::install ? readTree(source) : Tree()));
        expectSuccess(fault, items);
    }
    return fault.hasOccurred;
}

struct FaultMatrix : testing::TestWithParam<Fault> {
    static void SetUpTestSuite()
    {
        constexpr uid_t someUser = 4711; // has read and write permission
        const std::array<unsigned, 11> list { 2, 0x70001, ~0U, 0x60002, someUser, 4, ~0U, 0x60010,
            ~0U, 0x20, ~0U };
        fs::create_directory(source);
        for (const std::string& folder : { source, apps })
            ASSERT_FALSE(setxattr(folder.c_str(), defaultAcl, &list, sizeof list, 0));
        const std::string top = source + "quillbarn.app/";
        writeFile(top + "file", "new");
        writeFile(top + "folder/large", std::string(140'000, 'x'));
        (std::ofstream(top + "sparse") << "start").seekp(120'000) << "between holes";
        fs::resize_file(top + "sparse", 140'000);
        fs::create_symlink("file", top + "link");
        for (const char* const name : { "file", "link" })
            ASSERT_EQ(lchown((top + name).c_str(), someUser, someUser), 0);
        ASSERT_EQ(setxattr((top + "file").c_str(), "security.note", "", 0, 0), 0);
        ASSERT_EQ(removexattr((top + "sparse").c_str(), "system.posix_acl_access"), 0);
        writeInstalled(neighbour);
        sharedLogger().log("start", Logger::LogLevel::debug); // also reads the time zone
    }
};

}

TEST_P(FaultMatrix, TaskReportsOutcome)
{
    int tries = 0;
    for (const auto& [task, unsupported] : scenarios)
        for (Fault fault = GetParam(); !HasFailure(); ++tries) {
            SCOPED_TRACE("volume without " + testing::PrintToString(unsupported) + ", step "
                + std::to_string(++fault.step));
            for (const auto& item : fs::directory_iterator(apps))
                if (item.path() != neighbour) fs::remove_all(item);
            writeInstalled(bundle);
            writeFile(logFile);
            fault.unsupported = unsupported;
            if (!run(task, fault)) break;
        }
    EXPECT_GE(tries, 1);
}

INSTANTIATE_TEST_SUITE_P(Calls, FaultMatrix, testing::ValuesIn(allFaults()),
    [](const auto& test) { return test.param.name; });
