#include "ShortWait.h"

#include <algorithm>
#include <sched.h>

using namespace std::chrono_literals;

bool ShortWait::spinUntil(const std::atomic<bool>& isOver)
{
    constexpr int mostRests = 255;
    const bool rests = m_rests > 0;
    const auto longest = rests ? 50us : 1000us;
    const bool wasWorthIt = spin(hasOtherCore() ? longest : 0us, isOver);
    if (wasWorthIt)
        m_failures /= 2;
    else if (rests)
        --m_rests;
    else
        m_rests = m_failures = std::min(2 * m_failures + 1, mostRests);
    return wasWorthIt;
}

bool ShortWait::hasOtherCore()
{
    static const bool hasOther = [] {
        cpu_set_t cores;
        return sched_getaffinity(0, sizeof cores, &cores) == 0 && CPU_COUNT(&cores) > 1;
    }();
    return hasOther;
}

// To read the clock takes as long as another core should be left alone.
bool ShortWait::spin(std::chrono::microseconds limit, const std::atomic<bool>& isOver)
{
    constexpr auto now = std::chrono::steady_clock::now;
    const auto end = now() + limit;
    while (!isOver.load(std::memory_order_acquire)) {
        if (now() >= end) return false;
    }
    return true;
}
