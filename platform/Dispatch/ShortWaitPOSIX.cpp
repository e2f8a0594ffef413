#include "ShortWait.h"

#include <sched.h>

bool ShortWait::hasOtherCore()
{
    static const bool hasOther = [] {
        cpu_set_t cores;
        return sched_getaffinity(0, sizeof cores, &cores) == 0 && CPU_COUNT(&cores) > 1;
    }();
    return hasOther;
}

void ShortWait::relax()
{
#if defined(__x86_64__)
    __builtin_ia32_pause();
#endif
}
