#include "DiskImageEjector.h"
#include "fakes/DiskArbitrationFake.h"
#include "support/MainLoop.h"

#include <Foundation/NSThread.h>

#include <gtest/gtest.h>

TEST(DiskImageEjector, ReportsOutcomeOnceAfterCleanUp)
{
    using Result = DiskImageEjector::Result;
    for (const auto& [service, outcome] : std::vector<std::pair<DiskArbitrationFake, Result>> {
             { { .hasSession = false }, Result::failedUnmount },
             { { .hasDisk = false }, Result::failedUnmount },
             { { .refusals = 1 }, Result::failedUnmount },
             { { .isEjected = false }, Result::failedEject },
             { {}, Result::succeeded },
         }) {
        diskArbitration = service;
        std::vector<Result> results;
        auto ejector = std::make_shared<DiskImageEjector>();
        const std::weak_ptr<DiskImageEjector> weak = ejector;
        ejector->eject(NSURL::fileURLWithPath("/Volumes/x/"), [&](Result result) {
            EXPECT_TRUE(NSThread::isMainThread());
            EXPECT_TRUE(diskArbitration.session.expired());
            results.push_back(result);
        });
        EXPECT_TRUE(results.empty()) << "before eject() returned";
        ejector = nullptr;
        EXPECT_TRUE(runMainLoopUntil([&] { return !results.empty() && weak.expired(); }));
        EXPECT_EQ(results, std::vector { outcome });
    }
}
