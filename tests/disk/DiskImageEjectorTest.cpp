#include "DiskImageEjector.h"
#include "fakes/DiskArbitrationFake.h"
#include "support/MainLoop.h"

#include <Foundation/NSThread.h>

#include <functional>
#include <gtest/gtest.h>
#include <thread>

using Result = DiskImageEjector::Result;
using Calls = std::vector<std::string>;

namespace {

// One attempt of an ejector that nobody keeps.
struct Attempt {
    void start()
    {
        const auto ejector = std::make_shared<DiskImageEjector>();
        weak = ejector;
        ejector->eject(NSURL::fileURLWithPath("/Volumes/x/"), [this](Result result) {
            EXPECT_TRUE(NSThread::isMainThread());
            callsBefore = diskArbitration().calls;
            results.push_back(result);
        });
    }

    void runToEnd() const
    {
        EXPECT_TRUE(results.empty()) << "before eject() returned";
        EXPECT_TRUE(runMainLoopUntil([this] { return !results.empty() && weak.expired(); }));
    }

    std::weak_ptr<DiskImageEjector> weak;
    std::vector<Result> results;
    Calls callsBefore; // the completion
};

struct Outcome {
    DiskArbitrationFake service;
    Result result;
    Calls calls;

    void expectFrom(const std::function<void(Attempt&)>& start) const
    {
        diskArbitration() = service;
        Attempt attempt;
        start(attempt);
        attempt.runToEnd();
        EXPECT_EQ(attempt.callsBefore, calls);
        EXPECT_EQ(attempt.results, std::vector { result });
    }
};

}

TEST(DiskImageEjector, reportsEachOutcomeOnceOnTheMainThreadAfterCleaningUp)
{
    const auto granted = [] { return true; };
    const auto refused = [] { return false; };
    const Calls unmounted { "session", "disk /Volumes/x", "schedule", "unmount", "unschedule",
        "release disk", "release session" };
    const Calls ejected { "session", "disk /Volumes/x", "schedule", "unmount", "eject",
        "unschedule", "release disk", "release session" };
    for (const Outcome& outcome : {
             Outcome { { .hasSession = false }, Result::failedUnmount, { "session" } },
             Outcome { { .hasDisk = false }, Result::failedUnmount,
                 { "session", "disk /Volumes/x", "release session" } },
             Outcome { { .unmount = refused }, Result::failedUnmount, unmounted },
             Outcome { { .unmount = granted, .eject = refused }, Result::failedEject, ejected },
             Outcome { { .unmount = granted, .eject = granted }, Result::succeeded, ejected },
         }) {
        SCOPED_TRACE(testing::PrintToString(outcome.calls));
        outcome.expectFrom([](Attempt& attempt) { attempt.start(); });
        outcome.expectFrom([](Attempt& attempt) { std::thread([&] { attempt.start(); }).join(); });
    }
}

TEST(DiskImageEjector, ignoresACallbackWithoutContext)
{
    diskArbitration() = {};
    Attempt attempt;
    attempt.start();
    const DADiskUnmountCallback unmountCallback = diskArbitration().lastCallback;
    const Calls calls = diskArbitration().calls;
    unmountCallback(nullptr, nullptr, nullptr);
    EXPECT_EQ(diskArbitration().calls, calls);

    diskArbitration().eject = [] {
        diskArbitration().lastCallback(nullptr, nullptr, nullptr);
        return true;
    };
    attempt.runToEnd();
    EXPECT_NE(diskArbitration().lastCallback, unmountCallback);
    EXPECT_EQ(attempt.results, std::vector { Result::succeeded });
}
