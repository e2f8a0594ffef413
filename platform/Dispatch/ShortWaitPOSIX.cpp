#include "ShortWait.h"

#include <algorithm>
#include <chrono>
#include <sched.h>

namespace {

bool hasOtherCore()
{
    static const bool hasOther = [] {
        cpu_set_t cores;
        return sched_getaffinity(0, sizeof cores, &cores) == 0 && CPU_COUNT(&cores) > 1;
    }();
    return hasOther;
}

}

bool ShortWait::spinUntil(const std::atomic<bool>& isOver)
{
    using namespace std::chrono_literals;
    constexpr int mostRests = 255;
    constexpr auto now = std::chrono::steady_clock::now;
    const bool rests = m_rests > 0;
    const auto longest = rests ? 50us : 1000us;
    const auto end = now() + (hasOtherCore() ? longest : 0us);
    bool succeeded = false;
    // Reading the clock is also the pause between two reads of the other core's cache line.
    while (!(succeeded = isOver.load(std::memory_order_acquire)) && now() < end) {}
    if (succeeded)
        m_failures /= 2;
    else if (rests)
        --m_rests;
    else
        m_rests = m_failures = std::min(2 * m_failures + 1, mostRests);
    return succeeded;
}
