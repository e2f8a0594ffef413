#include "AppKit/NSApplication.h"
#include "fakes/DiskArbitrationFake.h"
#include "fakes/MountedVolumesFake.h"
#include "fakes/NSProcessInfoFake.h"
#include "fakes/NSThreadFake.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"
#include "support/Screen.h"
#include "support/Tree.h"

#include <gtest/gtest.h>

namespace {

// A run from the command line to the closed window, over a volume that is a folder.
class UnmountTask : public testing::Test {
protected:
    using Lines = std::vector<std::string>;
    using Pauses = std::vector<double>;

    UnmountTask()
    {
        diskArbitration() = {};
        diskArbitration().unmount = [this] { return unmountAtAttempt(mountedVolumesAsked()); };
        setMountedVolumes({ folder.path() });
        setArguments({ "me", "-install2", path });
        writeFile(path);
        takePauses();
        clearLog();
    }

    bool unmountAtAttempt(int attempt) const
    {
        if (attempt < freeFrom)
            return false;
        removeTree(path);
        return true;
    }

    // The log of a run.
    static Lines run()
    {
        const auto window = loadMainInterface(NSApplication::sharedApplication());
        window->makeKeyAndOrderFront();
        EXPECT_TRUE(runMainLoopUntil([] { return !isWindowOnScreen(); }));
        return readLog();
    }

    Lines logWithEnd(const Lines& end) const
    {
        Lines log { "n installer start", "d unmount " + path, "n unmount " + path,
            "d unmount " + path };
        log.insert(log.end(), end.begin(), end.end());
        return log;
    }

    const TemporaryFolder folder;
    const std::string path = folder / "quillbarn.app";
    int freeFrom = 1; // the first attempt at which the volume is not in use
};

}

TEST_F(UnmountTask, triesUntilTheVolumeIsFreeButNotMoreThanSevenTimes)
{
    struct Case {
        int freeFrom;
        int attempts;
        Pauses pauses;
        const char* outcome;
    };
    for (const Case& c : {
             Case { 1, 1, {}, "d unmount succeeded" },
             Case { 3, 3, { 5, 5 }, "d unmount succeeded" },
             Case { 7, 7, { 5, 5, 5, 5, 5, 5 }, "d unmount succeeded" },
             Case { 8, 7, { 5, 5, 5, 5, 5, 5, 5 }, "d failed" },
         }) {
        SCOPED_TRACE(c.freeFrom);
        setMountedVolumes({ folder.path() });
        writeFile(path);
        clearLog();
        freeFrom = c.freeFrom;
        EXPECT_EQ(run(), logWithEnd({ c.outcome }));
        EXPECT_EQ(mountedVolumesAsked(), c.attempts);
        EXPECT_EQ(takePauses(), c.pauses);
    }
}

TEST_F(UnmountTask, takesAVolumeThatIsNotEjectedForUnmounted)
{
    diskArbitration().eject = [] { return false; };
    EXPECT_EQ(run(), logWithEnd({ "d unmount succeeded" }));
    EXPECT_EQ(mountedVolumesAsked(), 1);
    EXPECT_EQ(takePauses(), Pauses { 5 });
}

TEST_F(UnmountTask, failsInTheEndWithoutADiskOrAService)
{
    for (bool DiskArbitrationFake::*missing :
        { &DiskArbitrationFake::hasDisk, &DiskArbitrationFake::hasSession }) {
        diskArbitration() = {};
        diskArbitration().*missing = false;
        setMountedVolumes({ folder.path() });
        clearLog();
        EXPECT_EQ(run(), logWithEnd({ "d failed" }));
        EXPECT_EQ(mountedVolumesAsked(), 7);
        EXPECT_EQ(takePauses(), Pauses(7, 5));
    }
}
