#include "InstallTask.h"
#include "UninstallTask.h"
#include "UnmountTask.h"
#include "fakes/DiskArbitrationFake.h"
#include "fakes/MountedVolumesFake.h"
#include "fakes/RecordedReport.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"
#include "support/Tree.h"

#include <gtest/gtest.h>
#include <thread>

using Lines = std::vector<std::string>;

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

    Lines install(DryRun dryRun, const std::string& source)
    {
        runTask([&] { InstallTask(*report, apps.path(), "quillbarn.app", dryRun).run(source); });
        return linesWithoutFolders();
    }

    Lines uninstall(DryRun dryRun)
    {
        runTask([&] { UninstallTask(*report, apps.path(), "quillbarn.app", dryRun).run(); });
        return linesWithoutFolders();
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

TEST_F(Tasks, installShowsEachStepBeforeItIsMade)
{
    EXPECT_EQ(install(DryRun::no, folder / "source/"),
        (Lines { "task: “remove /quillbarn.app/old/y” | quillbarn.app old y",
            "task: “remove /quillbarn.app/old/” | quillbarn.app old",
            "task: “mkdir /quillbarn.app” | quillbarn.app", //
            "task: 0 of 3 | quillbarn.app", //
            "task: “mkdir /quillbarn.app/d” | quillbarn.app", "task: 1 of 3 | quillbarn.app d",
            "task: “ copy /quillbarn.app/d/x” | quillbarn.app d",
            "task: 2 of 3 | quillbarn.app d x", //
            "task: pause 1 | quillbarn.app d x", //
            "task: “completed” | quillbarn.app d x", "task: close window | quillbarn.app d x" }));
    EXPECT_EQ(readFile(installed + "d/x"), "new");
    EXPECT_EQ(readLog(), Lines { "n install bundle" });
}

TEST_F(Tasks, aDryInstallShowsTheSameAndLeavesTheDiskAlone)
{
    const std::string disk = " | quillbarn.app old y";
    EXPECT_EQ(install(DryRun::yes, folder / "source/"),
        (Lines { "task: “remove /quillbarn.app/old/y”" + disk,
            "task: “remove /quillbarn.app/old/”" + disk, //
            "task: “mkdir /quillbarn.app”" + disk, //
            "task: 0 of 3" + disk, //
            "task: “mkdir /quillbarn.app/d”" + disk, //
            "task: 1 of 3" + disk, //
            "task: “ copy /quillbarn.app/d/x”" + disk, //
            "task: pause 0.1" + disk, //
            "task: 2 of 3" + disk, //
            "task: pause 1" + disk, //
            "task: “completed”" + disk, //
            "task: close window" + disk }));
}

TEST_F(Tasks, uninstallRemovesTheDeepestFirst)
{
    EXPECT_EQ(uninstall(DryRun::no),
        (Lines { "task: “remove /quillbarn.app/old/y” | quillbarn.app old y",
            "task: 0 of 3 | quillbarn.app old", //
            "task: “remove /quillbarn.app/old/” | quillbarn.app old",
            "task: 1 of 3 | quillbarn.app", //
            "task: “remove /quillbarn.app/” | quillbarn.app", //
            "task: 2 of 3 |", //
            "task: pause 1 |", //
            "task: “completed” |", //
            "task: finish |" }));
    EXPECT_EQ(readLog(), Lines { "n uninstall bundle" });

    EXPECT_EQ(uninstall(DryRun::no),
        (Lines { "task: pause 1 |", "task: “completed” |", "task: finish |" }));
}

TEST_F(Tasks, aDryUninstallShowsTheSameAndLeavesTheDiskAlone)
{
    const std::string disk = " | quillbarn.app old y";
    EXPECT_EQ(uninstall(DryRun::yes),
        (Lines { "task: “remove /quillbarn.app/old/y”" + disk, //
            "task: 0 of 3" + disk, //
            "task: “remove /quillbarn.app/old/”" + disk, //
            "task: 1 of 3" + disk, //
            "task: “remove /quillbarn.app/”" + disk, //
            "task: 2 of 3" + disk, //
            "task: pause 1" + disk, //
            "task: “completed”" + disk, //
            "task: finish" + disk }));
}

TEST_F(Tasks, aFailureEndsTheRunAtOnceWithABlankLineAndItsDescription)
{
    const std::string disk = " | quillbarn.app old y";
    const std::string why = "The folder “/sourcequillbarn.app/” couldn’t be opened because it "
                            "doesn’t exist (No such file or directory).";
    EXPECT_EQ(install(DryRun::no, folder / "source"),
        (Lines {
            "task: “”" + disk, "task: “" + why + "”" + disk, "task: failure: " + why + disk }));
}

TEST_F(Tasks, removingForAnInstallKeepsTheTopFolderAndStepsNoBar)
{
    const UninstallTask task(*report, apps.path(), "quillbarn.app", DryRun::no);
    task.removeBundle(BundleTree::TopFolder::exclude, nullptr);
    EXPECT_EQ(linesWithoutFolders(),
        (Lines { "main: “remove /quillbarn.app/old/y” | quillbarn.app old y",
            "main: “remove /quillbarn.app/old/” | quillbarn.app old" }));
    EXPECT_EQ(readTree(apps.path()).size(), 1u);
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
    setMountedVolumes(isOnVolume ? Lines { volume.path() } : Lines {});
    diskArbitration() = c.service;
    diskArbitration().unmount = [&] {
        if (mountedVolumesAsked() < c.freeFrom)
            return false;
        if (c.path == UnmountCase::Path::goes)
            removeTree(path);
        return true;
    };

    const auto plain = std::make_shared<RecordedReport>([] { return ""; });
    std::int64_t ejectLoop = 4711;
    std::thread task([&] { UnmountTask(plain, path, ejectLoop).run(); });
    EXPECT_TRUE(runMainLoopUntil([&] { return plain->hasEnded(); }));
    task.join();

    Lines expected { "task: “unmount " + path + "”" };
    expected.insert(expected.end(), c.lines.begin(), c.lines.end());
    EXPECT_EQ(plain->takeLines(), expected);
    EXPECT_EQ(ejectLoop, c.attempts);
    EXPECT_EQ(mountedVolumesAsked(), c.attempts);
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
