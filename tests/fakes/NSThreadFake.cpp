#include "fakes/NSThreadFake.h"

#include "Foundation/NSThread.h"

#include <mutex>
#include <unistd.h>
#include <utility>

namespace {

std::mutex mutex;
std::vector<double> pauses;

}

std::vector<double> takePauses()
{
    const std::lock_guard lock(mutex);
    return std::exchange(pauses, {});
}

bool NSThread::isMainThread()
{
    return gettid() == getpid();
}

void NSThread::sleepForTimeInterval(double seconds)
{
    const std::lock_guard lock(mutex);
    pauses.push_back(seconds);
}
