#include "Dispatch/ShortWait.h"

#include <thread>

bool ShortWait::hasOtherCore()
{
    static const bool hasOther = std::thread::hardware_concurrency() > 1;
    return hasOther;
}

void ShortWait::relax()
{
#if defined(__x86_64__)
    __builtin_ia32_pause();
#endif
}
