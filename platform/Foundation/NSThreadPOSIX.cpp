#include <Foundation/NSThread.h>

#include <chrono>
#include <thread>
#include <unistd.h>

bool NSThread::isMainThread()
{
    static thread_local const bool isMain = gettid() == getpid();
    return isMain;
}

void NSThread::sleepForTimeInterval(double seconds)
{
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}
