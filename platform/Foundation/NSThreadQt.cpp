#include <Foundation/NSThread.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

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
    const std::chrono::duration<double, std::milli> interval(seconds * 1000);
    if (!isMainThread() || !QCoreApplication::instance()) {
        std::this_thread::sleep_for(interval);
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(int(interval.count()), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}
