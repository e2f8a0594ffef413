#include "support/MainLoop.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSThread.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <thread>
#include <vector>

TEST(MainQueue, runsAllOfEachThreadInItsOrderOnTheMainThread)
{
    const auto mainThread = std::this_thread::get_id();
    std::array<std::vector<int>, 8> orders;
    int running = int(orders.size());
    for (std::vector<int>& order : orders)
        DispatchQueue::global().async([&] {
            for (int i = 0; i < 1000; i += 2) {
                DispatchQueue::main().async([&, i] { order.push_back(i); });
                DispatchQueue::main().sync([&, i] {
                    EXPECT_EQ(std::this_thread::get_id(), mainThread);
                    order.push_back(i + 1);
                });
                EXPECT_EQ(order.size(), std::size_t(i + 2));
                if (i % 200 == 0) // long enough for the main thread to fall asleep
                    std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            EXPECT_NE(std::this_thread::get_id(), mainThread);
            EXPECT_THROW(
                DispatchQueue::main().sync([] { throw std::bad_alloc(); }), std::bad_alloc);
            DispatchQueue::main().async([&] {
                if (--running == 0)
                    QCoreApplication::exit();
            });
        });
    QCoreApplication::exec();
    for (const std::vector<int>& order : orders)
        EXPECT_TRUE(order.size() == 1000 && std::ranges::is_sorted(order));
}

TEST(MainQueue, runsNothingWhileItsWorkPauses)
{
    std::vector<std::string> order;
    const auto submit = [&] { DispatchQueue::main().async([&] { order.emplace_back("next"); }); };
    DispatchQueue::main().async([&] {
        std::atomic<bool> isSubmitted = false;
        submit();
        DispatchQueue::global().async([&] {
            submit();
            isSubmitted = true;
        });
        while (!isSubmitted)
            NSThread::sleepForTimeInterval(0.001);
        NSThread::sleepForTimeInterval(0.05);
        order.emplace_back("over");
    });
    EXPECT_TRUE(runMainLoopUntil([&] { return order.size() == 3; }));
    EXPECT_EQ(order, (std::vector<std::string> { "over", "next", "next" }));
}
