// Every file call of an install, a replacement and an uninstall fails in turn, in each of the ways
// it may. The run ends in order all the same, tells the truth, and leaves no half of anything.

#include "BundleTask.h"
#include "Logger.h"
#include "fakes/RecordedReport.h"
#include "faults/FaultySystem.h"
#include "support/Tree.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <set>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>

namespace fs = std::filesystem;

namespace {

using Tree = std::map<std::string, std::string>;

const std::string source = "/tmp/source/"; // which a run has no business to change
const std::string bundle = "quillbarn.app/";
const std::string apps = "/Applications/";
const std::string logFile = "/tmp/quillbarninstaller.log";
constexpr uid_t someUser = 4711;
constexpr const char* attributeName = "security.note"; // a volume in memory keeps it, too

constexpr std::string_view endOfRun = "syncfs"; // of each

struct Scenario {
    const char* name;
    bool isInstalled;
    bool installs;
    Volume volume;
};

constexpr std::array scenarios {
    Scenario { "install on a plain volume", false, true, Volume::plain },
    Scenario { "install on a simple volume", false, true, Volume::simple },
    Scenario { "replacement", true, true, Volume::complete },
    Scenario { "uninstall", true, false, Volume::complete },
};

void drawInstalled()
{
    const std::string top = apps + bundle;
    writeFile(top + "file", "old");
    writeFile(top + "old/folder/file", "old");
    fs::create_symlink("nowhere", top + "old/dangling");
    fs::create_symlink("old/folder", top + "link");
    fs::create_symlink(source + bundle + "file", top + "letter");
}

// What a file or a link carries, by part, without the one that was refused.
std::array<std::int64_t, 5> carriedBy(const std::string& path, Part refused)
{
    struct stat status = {};
    lstat(path.c_str(), &status);
    std::array<std::int64_t, 5> parts { status.st_mode, status.st_uid, status.st_mtim.tv_nsec,
        lgetxattr(path.c_str(), attributeName, nullptr, 0) };
    parts[refused] = 0;
    return parts;
}

void runInOrder(const Scenario& scenario, Fault& fault)
{
    const Tree before = readTree(apps);
    const Tree given = readTree(source);
    RecordedReport report;
    report.note = [] {
        sharedLogger().log("told", Logger::LogLevel::debug);
        return "";
    };
    runWithFault(fault, [&] {
        BundleTask task(report, apps, "quillbarn.app", DryRun::no);
        scenario.installs ? task.install(source) : task.uninstall();
    });
    const Tree now = readTree(apps);
    const Tree wanted = scenario.installs ? given : Tree();
    std::set<Tree::value_type> whole(before.begin(), before.end());
    whole.insert(wanted.begin(), wanted.end());
    EXPECT_TRUE(std::ranges::includes(whole, now));
    EXPECT_TRUE(readTree(source) == given);

    const auto& lines = report.lines;
    const bool hasFailed = lines.back().starts_with("task: failure: ");
    const bool isOfLog = fault.path.starts_with(logFile) && fault.error != EINTR;
    EXPECT_EQ(std::ranges::count(lines, "task: “completed”"), hasFailed ? 0 : 1);
    EXPECT_TRUE(isOfLog || std::ranges::count(readFile(logFile), '\n') == std::ssize(lines) + 1);
    const int error = fault.error;
    const Part refused = error == EINTR || error == EIO ? content : fault.call.part;
    if (hasFailed) {
        // There is a way round some, and what is written to the disk is all that was to be done.
        EXPECT_FALSE((std::set { EINTR, EINVAL, ENOENT, ENOLCK, EXDEV }.contains(error)));
        EXPECT_TRUE(now == wanted || fault.call.name != endOfRun);
        EXPECT_TRUE(refused == content && !fault.path.empty() && !isOfLog);
        const auto isOfLastStep = [&](const auto& file) {
            return lines.at(lines.size() - 4) == "task: “ copy " + apps + file.first + "”";
        };
        EXPECT_FALSE(fault.call.number == SYS_close && std::ranges::any_of(now, isOfLastStep));
        const std::string reason = error == EWOULDBLOCK ? "locked" : strerrordesc_np(error);
        EXPECT_TRUE(error == nothing || lines.back().find(reason) != std::string::npos);
        return;
    }
    EXPECT_TRUE(now == wanted);
    EXPECT_TRUE(isOfLog || !fault.hasLostData);
    for (const auto& [path, inside] : wanted)
        EXPECT_TRUE(inside == "folder"
            || carriedBy(apps + path, refused) == carriedBy(source + path, refused));
}

enum Result { hasHeld, hasFailed, wasNotMade };

// In a process of its own, which an exception ends.
Result resultOf(Fault fault, const std::function<void(Fault&)>& run) noexcept
{
    const pid_t process = fork();
    if (process == 0) {
        alarm(30); // ends a run that hangs
        run(fault);
        _exit(testing::Test::HasFailure() ? hasFailed : fault.path.empty() ? wasNotMade : hasHeld);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? Result(WEXITSTATUS(status)) : hasFailed;
}

struct FaultMatrix : testing::TestWithParam<FileCall> {
    static void SetUpTestSuite()
    {
        const std::string top = source + bundle;
        writeFile(top + "file", "new");
        writeFile(top + "folder/large", std::string(140'000, 'x'));
        std::ofstream(top + "sparse").seekp(120'000) << "between holes";
        fs::resize_file(top + "sparse", 140'000);
        fs::create_symlink("file", top + "link");
        for (const char* const name : { "file", "link" })
            ASSERT_EQ(lchown((top + name).c_str(), someUser, someUser), 0);
        ASSERT_EQ(setxattr((top + "file").c_str(), attributeName, "", 0, 0), 0); // may be empty
        const std::array<unsigned, 11> list { 2, // for what is made in it: some user reads all
            0x70001, ~0U, 0x60002, someUser, 4, ~0U, 0x60010, ~0U, 0x20, ~0U };
        ASSERT_EQ(setxattr(apps.c_str(), "system.posix_acl_default", &list, sizeof list, 0), 0);
    }
};

}

TEST_P(FaultMatrix, whicheverCallFailsTheRunEndsInOrder)
{
    const FileCall& call = GetParam();
    std::array<std::size_t, 3> counts {};
    for (const Scenario& scenario : scenarios)
        for (const int error : call.errors) {
            Result result = hasHeld;
            for (int step = 1; result == hasHeld; ++step) {
                fs::remove_all(apps + bundle);
                fs::remove(logFile);
                if (scenario.isInstalled) drawInstalled();
                result = resultOf({ call, scenario.volume, error, step },
                    [&](Fault& fault) { runInOrder(scenario, fault); });
                ++counts[result];
                if (result == hasFailed)
                    std::cerr << "with " << strerrorname_np(error) << " at " << call.name << " "
                              << step << " of " << scenario.name << '\n';
            }
        }
    std::cerr << call.name << ": " << counts[hasHeld] + counts[hasFailed] << " tried, "
              << counts[hasHeld] << " held\n";
    EXPECT_GE(counts[hasHeld], call.name == endOfRun ? scenarios.size() * call.errors.size() : 1);
    EXPECT_EQ(counts[hasFailed], 0);
}

INSTANTIATE_TEST_SUITE_P(Calls, FaultMatrix, testing::ValuesIn(fileCalls),
    [](const auto& test) { return test.param.name; });

TEST(FaultyVolume, keepsAFileThatIsInThePlaceOfACopy)
{
    const std::string path = apps + bundle + "file";
    const auto copy = [&](Fault& none) {
        writeFile(path, "somebody's");
        runWithFault(none, [&] {
            EXPECT_THROW(ConfinedFolder(apps).copyItemAtPath("/etc/passwd", path), NSError);
        });
        EXPECT_EQ(readFile(path), "somebody's");
    };
    for (const Volume volume : { Volume::complete, Volume::plain, Volume::simple })
        EXPECT_EQ(resultOf({ fileCalls.front(), volume }, copy), wasNotMade) << int(volume);
}
