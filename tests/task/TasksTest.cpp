#include "BundleTask.h"
#include "UnmountTask.h"
#include "fakes/DiskArbitrationFake.h"
#include "fakes/FoundationFake.h"
#include "fakes/RecordedReport.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

// Whole runs of the tasks, without a window. Every line of a report ends in what is on the disk at
// that moment.
class Tasks : public testing::Test {
protected:
    Tasks()
    {
        clearLog();
        writeFile(folder / "source/quillbarn.app/d/x", "new");
        writeFile(installed + "old/y", "old");
    }

    // On a thread of its own, while the main thread's loop runs.
    template <class Run> void runTask(const Run& run)
    {
        std::thread task(run);
        EXPECT_TRUE(runMainLoopUntil([this] { return report->hasEnded(); }));
        task.join();
    }

    Lines linesWithoutFolders() const
    {
        Lines lines = report->takeLines();
        for (std::string& line : lines)
            for (const std::string& name : { apps.path(), folder.path() })
                while (line.find(name) != std::string::npos)
                    line.replace(line.find(name), name.size(), "/");
        return lines;
    }

    const TemporaryFolder folder;
    const TemporaryFolder apps;
    const std::string installed = apps / "quillbarn.app/";
    const std::shared_ptr<RecordedReport> report = std::make_shared<RecordedReport>([this] {
        std::string note = " |";
        for (const auto& [path, content] : readTree(apps.path()))
            note += " " + path.substr(path.rfind('/') + 1);
        return note;
    });
};

}

namespace {

// What is told, and what the bundle's folder holds by then. A dry run tells the same and leaves it
// as it is.
struct Step {
    const char* told;
    const char* disk; // none: a pause that only a dry run makes
};

const std::vector<Step> installSteps {
    { "“remove /quillbarn.app/old/y”", " quillbarn.app old y" },
    { "“remove /quillbarn.app/old/”", " quillbarn.app old" },
    { "“mkdir /quillbarn.app”", " quillbarn.app" },
    { "0 of 3", " quillbarn.app" },
    { "“mkdir /quillbarn.app/d”", " quillbarn.app" },
    { "1 of 3", " quillbarn.app d" },
    { "“ copy /quillbarn.app/d/x”", " quillbarn.app d" },
    { "pause 0.1", nullptr },
    { "2 of 3", " quillbarn.app d x" },
    { "pause 1", " quillbarn.app d x" },
    { "“completed”", " quillbarn.app d x" },
    { "close window", " quillbarn.app d x" },
};

const std::vector<Step> uninstallSteps {
    { "“remove /quillbarn.app/old/y”", " quillbarn.app old y" },
    { "0 of 3", " quillbarn.app old" },
    { "“remove /quillbarn.app/old/”", " quillbarn.app old" },
    { "1 of 3", " quillbarn.app" },
    { "“remove /quillbarn.app/”", " quillbarn.app" },
    { "2 of 3", "" },
    { "pause 1", "" },
    { "“completed”", "" },
    { "finish", "" },
};

}

TEST_F(Tasks, showEachStepBeforeItIsMadeOrAsIfItWere)
{
    const std::string source = folder / "source/";
    for (const DryRun dryRun : { DryRun::yes, DryRun::no })
        for (const bool installs : { true, false }) {
            std::filesystem::remove_all(installed);
            writeFile(installed + "old/y", "old");
            runTask([&] {
                BundleTask task(*report, apps.path(), "quillbarn.app", dryRun);
                installs ? task.install(source) : task.uninstall();
            });
            Lines expected;
            for (const auto& [told, disk] : installs ? installSteps : uninstallSteps)
                if (disk || dryRun == DryRun::yes)
                    expected.push_back(std::string("task: ") + told + " |"
                        + (dryRun == DryRun::yes ? " quillbarn.app old y" : disk));
            EXPECT_EQ(linesWithoutFolders(), expected);
        }
}

TEST_F(Tasks, whateverIsThrownEndsTheRunWithWords)
{
    const std::map<std::string, std::function<void()>> throwers {
        { "because the memory is used up.", [] { throw std::bad_alloc(); } },
        { "because of: odd", [] { throw std::runtime_error("odd"); } },
    };
    for (const auto& thrower : throwers) {
        bool hasThrown = false;
        RecordedReport failing([&] {
            if (!std::exchange(hasThrown, true))
                thrower.second();
            return "";
        });
        std::thread([&] {
            BundleTask(failing, apps.path(), "quillbarn.app", DryRun::no).uninstall();
        }).join();
        EXPECT_EQ(
            failing.takeLines().back(), "task: failure: The run couldn’t go on " + thrower.first);
    }
}

namespace {

// Over a volume that is a folder.
struct UnmountCase {
    const char* name;
    DiskArbitrationFake service;
    int freeFrom; // the first attempt at which the volume is not in use
    int attempts;
    Lines lines; // after the first
    enum class Path { goes, stays, isOnNoVolume, isTooLongToBeLookedAt } path = Path::goes;
};

class Unmount : public Tasks, public testing::WithParamInterface<UnmountCase> {};

}

TEST_P(Unmount, triesUntilThePathHasGoneButNotMoreThanSevenTimes)
{
    const UnmountCase& c = GetParam();
    const TemporaryFolder volume;
    const bool isTooLong = c.path == UnmountCase::Path::isTooLongToBeLookedAt;
    const std::string path = volume / (isTooLong ? std::string(300, 'x') : "quillbarn.app");
    if (c.attempts > 0 && !isTooLong)
        writeFile(path);
    const bool isOnVolume = c.path != UnmountCase::Path::isOnNoVolume;
    foundation.mountPoints = isOnVolume ? Lines { volume.path() } : Lines {};
    foundation.mountPointsAsked = 0;
    diskArbitration = c.service;
    diskArbitration.unmount = [&] {
        if (foundation.mountPointsAsked < c.freeFrom)
            return false;
        if (c.path == UnmountCase::Path::goes)
            std::filesystem::remove_all(path);
        return true;
    };

    const auto plain = std::make_shared<RecordedReport>(
        [] { return diskArbitration.isInCallback ? " within the callback" : ""; });
    std::int64_t ejectLoop = 4711;
    std::thread task([&] { UnmountTask(plain, path, ejectLoop).run(); });
    EXPECT_TRUE(runMainLoopUntil([&] { return plain->hasEnded(); }));
    task.join();

    Lines expected { "task: “unmount " + path + "”" };
    expected.insert(expected.end(), c.lines.begin(), c.lines.end());
    EXPECT_EQ(plain->takeLines(), expected);
    EXPECT_EQ(ejectLoop, c.attempts);
    EXPECT_EQ(foundation.mountPointsAsked, c.attempts);
    Lines log { "n unmount " + path };
    if (!isOnVolume)
        log.emplace_back("d getDMGMountPointURL failed");
    EXPECT_EQ(readLog(), log);
}

namespace {

Lines pausesAnd(int pauses, const std::string& outcome, const std::string& thread = "main")
{
    Lines lines;
    for (int i = 0; i < pauses; ++i)
        lines.insert(lines.end(), { "main: waiting", "main: pause 5" });
    lines.insert(lines.end(), { thread + ": “" + outcome + "”", thread + ": finish" });
    return lines;
}

const DiskArbitrationFake granting;
const DiskArbitrationFake refusingToEject { .eject = [] { return false; } };
const DiskArbitrationFake withoutSession { .hasSession = false };
const DiskArbitrationFake withoutDisk { .hasDisk = false };

}

INSTANTIATE_TEST_SUITE_P(Tasks, Unmount,
    testing::Values(
        UnmountCase { "alreadyGone", granting, 1, 0, pausesAnd(0, "unmount succeeded") },
        UnmountCase { "atOnce", granting, 1, 1, pausesAnd(0, "unmount succeeded") },
        UnmountCase { "atTheThird", granting, 3, 3, pausesAnd(2, "unmount succeeded") },
        UnmountCase { "atTheLast", granting, 7, 7, pausesAnd(6, "unmount succeeded") },
        UnmountCase { "never", granting, 8, 7, pausesAnd(7, "failed") },
        UnmountCase { "notEjected", refusingToEject, 1, 1, pausesAnd(1, "unmount succeeded") },
        UnmountCase { "ejectedButStillThere", granting, 1, 1, pausesAnd(0, "failed"),
            UnmountCase::Path::stays },
        UnmountCase { "notToBeLookedAt", granting, 1, 1, pausesAnd(0, "failed"),
            UnmountCase::Path::isTooLongToBeLookedAt },
        UnmountCase { "noSession", withoutSession, 1, 7, pausesAnd(7, "failed") },
        UnmountCase { "noDisk", withoutDisk, 1, 7, pausesAnd(7, "failed") },
        UnmountCase { "noVolume", granting, 1, 1, pausesAnd(0, "failed", "task"),
            UnmountCase::Path::isOnNoVolume }),
    [](const auto& test) { return test.param.name; });
