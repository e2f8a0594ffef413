#include "support/MainLoop.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSThread.h>

#include <array>
#include <gtest/gtest.h>
#include <new>
#include <thread>

TEST(MainQueue, runsAllOfEachThreadInItsOrderOnTheMainThread)
{
    std::array<int, 8> counts {};
    int running = int(counts.size());
    for (int& count : counts)
        DispatchQueue::global().async([&] {
            EXPECT_FALSE(NSThread::isMainThread());
            for (int i = 0; i < 1000; i += 2) {
                DispatchQueue::main().async([&, i] { EXPECT_EQ(count++, i); });
                DispatchQueue::main().sync([&, i] {
                    EXPECT_TRUE(NSThread::isMainThread());
                    EXPECT_EQ(count++, i + 1);
                });
                EXPECT_EQ(count, i + 2);
                if (i % 200 == 0) // long enough for the main thread to fall asleep
                    std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            EXPECT_THROW(
                DispatchQueue::main().sync([] { throw std::bad_alloc(); }), std::bad_alloc);
            DispatchQueue::main().async([&] { --running; });
        });
    while (!runMainLoopUntil([&] { return running == 0; })) {} // they write to what is here
}

TEST(MainQueue, runsNothingWhileItsWorkPauses)
{
    std::string order;
    const auto submit = [&] { DispatchQueue::main().async([&] { order += " next"; }); };
    DispatchQueue::main().async([&] {
        submit();
        std::thread(submit).join();
        NSThread::sleepForTimeInterval(0.05);
        order += "over";
    });
    EXPECT_TRUE(runMainLoopUntil([&] { return order == "over next next"; })) << order;
}
