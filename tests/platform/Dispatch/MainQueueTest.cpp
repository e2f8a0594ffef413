#include "support/MainLoop.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSThread.h>

#include <QTimer>

#include <gtest/gtest.h>
#include <thread>

TEST(MainQueue, PreservesOrderOfEachThread)
{
    std::vector<int> counts(8);
    std::size_t running = counts.size();
    for (int& count : counts)
        DispatchQueue::global().async([&] {
            EXPECT_FALSE(NSThread::isMainThread());
            for (int i = 0; i < 1000; i += 2) {
                DispatchQueue::main().async([&, i] { EXPECT_EQ(count++, i); });
                DispatchQueue::main().sync([&, i] { EXPECT_EQ(count++, i + 1); });
                EXPECT_EQ(count, i + 2);
                if (i % 200 == 0) // long enough for the main thread to sleep
                    std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            EXPECT_THROW(DispatchQueue::main().sync([] { throw NSThread::isMainThread(); }), bool);
            DispatchQueue::main().async([&] { --running; });
        });
    while (!runMainLoopUntil([&] { return running == 0; })) {} // the threads use local variables
}

TEST(MainQueue, DefersWorkDuringPause)
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

TEST(MainQueue, KeepsMainLoopResponsive)
{
    int works = 0, frames = 0;
    QTimer timer;
    timer.callOnTimeout([&] { ++frames; });
    timer.start(1);
    const std::function<void()> work = [&] { // without a pause, longer than some frames
        std::this_thread::sleep_for(std::chrono::microseconds(100));
        if (++works < 1000) DispatchQueue::main().async(work);
    };
    DispatchQueue::main().async(work);
    EXPECT_TRUE(runMainLoopUntil([&] { return works == 1000; }));
    EXPECT_GE(frames, 5);
}
