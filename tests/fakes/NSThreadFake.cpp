#include "fakes/NSThreadFake.h"

#include <Foundation/NSThread.h>

#include <unistd.h>
#include <utility>

namespace {

std::function<void(double)>& pauseCall()
{
    static std::function<void(double)> call = [](double) {};
    return call;
}

}

void onPause(std::function<void(double)> call)
{
    pauseCall() = std::move(call);
}

bool NSThread::isMainThread()
{
    return gettid() == getpid();
}

void NSThread::sleepForTimeInterval(double seconds)
{
    pauseCall()(seconds);
}
