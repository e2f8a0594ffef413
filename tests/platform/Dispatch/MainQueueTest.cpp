#include "support/MainLoop.h"

#include <Dispatch/DispatchQueue.h>

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

void submitInBothWays(std::vector<int>& order, std::thread::id mainThread)
{
    for (int i = 0; i < 1000; i += 2) {
        DispatchQueue::main().async([&, i] { order.push_back(i); });
        DispatchQueue::main().sync([&, i] {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            order.push_back(i + 1);
        });
        EXPECT_EQ(order.size(), std::size_t(i + 2));
    }
}

}

TEST(MainQueue, runsOnTheMainThreadInTheOrderOfSubmission)
{
    const auto mainThread = std::this_thread::get_id();
    std::vector<int> order;
    std::atomic<bool> isOver = false;
    DispatchQueue::global().async([&] {
        EXPECT_NE(std::this_thread::get_id(), mainThread);
        submitInBothWays(order, mainThread);
        isOver = true;
    });
    EXPECT_TRUE(runMainLoopUntil([&] { return isOver.load(); }));
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

TEST(MainQueue, losesNothingOfSeveralThreadsThatComeAndGo)
{
    constexpr int threads = 8;
    constexpr int rounds = 500;
    int count = 0;
    std::atomic<int> finished = 0;
    for (int i = 0; i < threads; ++i) {
        DispatchQueue::global().async([&] {
            for (int round = 0; round < rounds; ++round) {
                DispatchQueue::main().sync([&] { ++count; });
                if (round % 100 == 0) // long enough for the main thread to fall asleep
                    std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            ++finished;
        });
    }
    EXPECT_TRUE(runMainLoopUntil([&] { return finished == threads; }));
    EXPECT_EQ(count, threads * rounds);
}
