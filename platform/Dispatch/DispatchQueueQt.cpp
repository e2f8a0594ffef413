#include "Dispatch/DispatchQueue.h"

#include "Dispatch/MainQueue.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>

namespace {

// Readable while the main thread is asked to run its queue.
int wakeUpEvent()
{
    static const int descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return descriptor;
}

MainQueue& mainQueue()
{
    // Never destroyed: a background thread may still submit when the process ends.
    static auto* const queue = new MainQueue([] { eventfd_write(wakeUpEvent(), 1); });
    return *queue;
}

// Makes the loop of the main thread run the queue, as soon as there is a loop.
void attachToMainLoop()
{
    auto* const notifier
        = new QSocketNotifier(wakeUpEvent(), QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, [] {
        eventfd_t count = 0;
        eventfd_read(wakeUpEvent(), &count);
        mainQueue().run();
    });
}

Q_COREAPP_STARTUP_FUNCTION(attachToMainLoop)

class GlobalQueue : public DispatchQueue {
public:
    void async(std::function<void()> work) override { std::thread(std::move(work)).detach(); }
};

}

DispatchMainQueue& DispatchQueue::main()
{
    return mainQueue();
}

DispatchQueue& DispatchQueue::global()
{
    static GlobalQueue queue;
    return queue;
}
