#include "BundleTask.h"
#include "MountPoint.h"
#include "UnmountTask.h"
#include "fakes/FoundationFake.h"
#include "fakes/RecordedReport.h"
#include "support/MainLoop.h"
#include "support/Tree.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

const std::string apps = "/tmp/apps/", bundle = apps + "b", logFile = "/tmp/quillbarninstaller.log";

struct Tasks : testing::Test {
    Tasks()
    {
        foundation.onPause = [this](double seconds) {
            report->add("pause " + testing::PrintToString(seconds));
            if (--pausesToUnmount == 0) std::filesystem::remove_all(bundle);
        };
        writeFile(bundle + "/x", "old");
        writeFile("/tmp/source/b/x", "new");
    }
    ~Tasks() override { foundation = {}; }

    const std::shared_ptr<RecordedReport> report = std::make_shared<RecordedReport>();
    int pausesToUnmount = 0;
};

}

TEST_F(Tasks, ReportEachStepInOrder)
{
    report->note = [] { return " " + std::to_string(readTree(apps).size()); }; // entries
    std::thread([&] {
        BundleTask(*report, apps, "b", DryRun::no).install("/tmp/source/");
        BundleTask(*report, apps, "b", DryRun::yes).install("/tmp/source/");
        BundleTask(*report, apps, "b", DryRun::no).uninstall();
    }).join();
    std::string steps;
    for (const std::string& line : report->lines)
        steps += line.substr(line.find(' ')) + ",";
    EXPECT_EQ(steps,
        " “remove /tmp/apps/b/x” 2, “mkdir /tmp/apps/b” 1, 0 of 2 1, “ copy /tmp/apps/b/x” 1,"
        " 1 of 2 2, pause 1 2, “completed” 2, end 2, “remove /tmp/apps/b/x” 2,"
        " “mkdir /tmp/apps/b” 2, 0 of 2 2, “ copy /tmp/apps/b/x” 2, pause 0.1 2, 1 of 2 2,"
        " pause 1 2, “completed” 2, end 2, “remove /tmp/apps/b/x” 2, 0 of 2 1,"
        " “remove /tmp/apps/b/” 1, 1 of 2 0, pause 1 0, “completed” 0, end 0,");
}

TEST_F(Tasks, ReportEveryException)
{
    for (auto [exception, reason] : {
             std::pair(std::make_exception_ptr(std::bad_alloc()), "There is not enough memory."),
             std::pair(std::make_exception_ptr(std::runtime_error("odd")), "Internal error: odd"),
         }) {
        report->note = [&next = exception] {
            return next ? std::rethrow_exception(std::exchange(next, nullptr)), "" : "";
        };
        std::thread([this] { BundleTask(*report, apps, "b", DryRun::no).uninstall(); }).join();
        EXPECT_EQ(report->lines.back(),
            std::string("task: failure: The operation could not continue. ") + reason);
    }
}

// Without a bus, each request to the disk service is refused.
TEST_F(Tasks, RetryUnmountUpToLimit)
{
    using Row = std::tuple<std::string, std::string, int, int, std::string>;
    for (const auto& [path, volume, pauseOfUnmount, pauses, outcome] : std::initializer_list<Row> {
             { apps + "gone", "/tmp", 0, 0, "“unmount succeeded”" },
             { bundle, "/tmp", 7, 7, "“unmount succeeded”" },
             { bundle, "/tmp", 8, 7, "“failed”" },
             { apps + std::string(300, 'x'), "/tmp", 0, 7, "“failed”" },
             { bundle, "/Volumes", 0, 0, "“failed”" },
         }) {
        writeFile(logFile);
        writeFile(bundle + "/x");
        foundation.mountPoints = { volume };
        pausesToUnmount = pauseOfUnmount;
        std::int64_t ejectLoop = 4711;
        std::thread([&, path = path] { UnmountTask(report, path, ejectLoop).run(); }).join();
        EXPECT_TRUE(runMainLoopUntil([&] { return report->lines.back().ends_with(": end"); }));

        std::vector<std::string> expected { "task: “unmount " + path + "”" };
        for (int i = 0; i < pauses; ++i)
            expected.insert(expected.end(), { "main: retrying", "main: pause 5" });
        if (pauses == 7) expected.erase(expected.end() - 2); // no attempt follows
        const std::string thread = volume == "/tmp" ? "main: " : "task: ";
        expected.insert(expected.end(), { thread + outcome, thread + "end" });
        EXPECT_EQ(std::exchange(report->lines, {}), expected);
        EXPECT_EQ(readFile(logFile).ends_with("getDMGMountPointURL failed\n"), volume != "/tmp");
    }
}

TEST(MountPoint, IsFirstMatchingVolume)
{
    const auto mountPointOf = [](const char* path, const std::vector<std::string>& volumes) {
        foundation.mountPoints = volumes;
        return getDMGMountPointURL(path).value_or(NSURL::fileURLWithPath("/none")).path();
    };
    EXPECT_EQ(mountPointOf("/V/a b/c/x", { "/", "/V/a", "/V/a b", "/V", "/V/a b/c" }), "/V/a b");
    EXPECT_EQ(mountPointOf("//V/x", { "/", "/V" }), "/none");
    EXPECT_EQ(mountPointOf("/e\u0301/x", { "/\u00E9" }), "/\u00E9");
    EXPECT_EQ(mountPointOf("/V/\u0301x", { "/V" }), "/none"); // a "/" with a combining accent
    EXPECT_EQ(mountPointOf("/\xFF/x", { "/\uFFFD", "/\xFF" }), "/\xFF");
}
