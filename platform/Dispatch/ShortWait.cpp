#include "ShortWait.h"

#include <algorithm>
#include <chrono>
#include <thread>

bool ShortWait::spinUntil(const std::atomic<bool>& isOver)
{
    using namespace std::chrono_literals;
    constexpr int mostShortSpins = 255;
    constexpr auto now = std::chrono::steady_clock::now;
    static const bool hasOtherCore = std::thread::hardware_concurrency() > 1;
    const bool isShort = m_shortSpinsLeft > 0;
    const auto longest = isShort ? 50us : 1000us;
    const auto end = now() + (hasOtherCore ? longest : 0us);
    bool succeeded = false;
    // Reading the clock is also the pause between two reads of the other core's cache line.
    while (!(succeeded = isOver.load(std::memory_order_acquire)) && now() < end) {}
    if (succeeded)
        m_shortSpins /= 2;
    else if (isShort)
        --m_shortSpinsLeft;
    else
        m_shortSpinsLeft = m_shortSpins = std::min(2 * m_shortSpins + 1, mostShortSpins);
    return succeeded;
}
