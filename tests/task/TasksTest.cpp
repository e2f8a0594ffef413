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

// Whole runs of the tasks, without a window.
class Tasks : public testing::Test {
protected:
    Tasks()
    {
        foundation.onPause = [report = report](double seconds) {
            report->add("pause " + testing::PrintToString(seconds));
        };
        std::filesystem::remove_all("/Applications/quillbarn.app");
        writeFile("/Applications/quillbarn.app/x", "old");
        writeFile("/tmp/source/quillbarn.app/x", "new");
    }

    const std::shared_ptr<RecordedReport> report = std::make_shared<RecordedReport>();
};

constexpr int onlyInDryRun = -1;

// What is told, and how many entries there are on the disk by then. A dry run tells the same and
// leaves them as they are.
const std::vector<std::pair<std::string, int>> steps {
    { "“remove /Applications/quillbarn.app/x”", 2 },
    { "“mkdir /Applications/quillbarn.app”", 1 },
    { "0 of 2", 1 },
    { "“ copy /Applications/quillbarn.app/x”", 1 },
    { "pause 0.1", onlyInDryRun },
    { "1 of 2", 2 },
    { "pause 1", 2 },
    { "“completed”", 2 },
    { "close window", 2 },
    { "“remove /Applications/quillbarn.app/x”", 2 },
    { "0 of 2", 1 },
    { "“remove /Applications/quillbarn.app/”", 1 },
    { "1 of 2", 0 },
    { "pause 1", 0 },
    { "“completed”", 0 },
    { "finish", 0 },
};

}

TEST_F(Tasks, showEachStepBeforeItIsMadeOrAsIfItWere)
{
    report->note = [] { return " | " + std::to_string(readTree("/Applications").size()); };
    for (const DryRun dryRun : { DryRun::yes, DryRun::no }) {
        std::thread([&] {
            BundleTask(*report, "/Applications/", "quillbarn.app", dryRun).install("/tmp/source/");
            BundleTask(*report, "/Applications/", "quillbarn.app", dryRun).uninstall();
        }).join();
        const bool isDry = dryRun == DryRun::yes;
        Lines expected;
        for (const auto& [told, entries] : steps)
            if (isDry || entries != onlyInDryRun)
                expected.push_back("task: " + told + " | " + std::to_string(isDry ? 2 : entries));
        EXPECT_EQ(std::exchange(report->lines, {}), expected);
    }
}

TEST_F(Tasks, whateverIsThrownEndsTheRunWithWords)
{
    for (auto [thrown, reason] : {
             std::pair(std::make_exception_ptr(std::bad_alloc()), "the memory is used up."),
             std::pair(std::make_exception_ptr(std::runtime_error("odd")), "of: odd"),
         }) {
        report->note = [&next = thrown] {
            if (next) std::rethrow_exception(std::exchange(next, nullptr));
            return "";
        };
        std::thread([this] {
            BundleTask(*report, "/Applications/", "quillbarn.app", DryRun::no).uninstall();
        }).join();
        EXPECT_EQ(report->lines.back(),
            std::string("task: failure: The run couldn’t go on because ") + reason);
    }
}

TEST_F(Tasks, tryToUnmountUntilThePathHasGoneButNotMoreThanSevenTimes)
{
    struct Case {
        const char* name;
        std::string path = "/Applications/quillbarn.app";
        Lines volumes = { "/Applications" };
        DiskArbitrationFake service = {};
        int pauses = 0;
        Lines end = { "main: “unmount succeeded”", "main: finish" };
    };
    const std::string tooLong = "/Applications/" + std::string(300, 'x');
    const Lines failed { "main: “failed”", "main: finish" };
    for (const Case& c : std::vector<Case> {
             { .name = "already gone", .path = "/Applications/gone" },
             { .name = "at once" },
             { .name = "at the last attempt", .service = { .refusals = 6 }, .pauses = 6 },
             { .name = "never", .service = { .refusals = 7 }, .pauses = 7, .end = failed },
             { .name = "not ejected", .service = { .isEjected = false }, .pauses = 1 },
             { .name = "still there", .service = { .holdsBundle = false }, .end = failed },
             { .name = "can't be looked at", .path = tooLong, .end = failed },
             { .name = "no volume", .volumes = {}, .end = { "task: “failed”", "task: finish" } },
         }) {
        SCOPED_TRACE(c.name);
        clearLog();
        writeFile("/Applications/quillbarn.app/x");
        foundation.mountPoints = c.volumes;
        diskArbitration = c.service;
        report->note = [] { return diskArbitration.isInCallback ? " within the callback" : ""; };
        std::int64_t ejectLoop = 4711;
        std::thread([&] { UnmountTask(report, c.path, ejectLoop).run(); }).join();
        EXPECT_TRUE(runMainLoopUntil([&] { return report->lines.back().ends_with("finish"); }));

        Lines expected { "task: “unmount " + c.path + "”" };
        for (int i = 0; i < c.pauses; ++i)
            expected.insert(expected.end(), { "main: waiting", "main: pause 5" });
        expected.insert(expected.end(), c.end.begin(), c.end.end());
        EXPECT_EQ(std::exchange(report->lines, {}), expected);
        EXPECT_EQ(std::ranges::count(readLog(), "d getDMGMountPointURL failed"), c.volumes.empty());
    }
}
