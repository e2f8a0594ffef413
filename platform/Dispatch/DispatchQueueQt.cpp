#include <Dispatch/DispatchQueue.h>

#include "ErrorText.h"
#include "FileDescriptor.h"
#include "MainQueue.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <latch>
#include <sys/eventfd.h>
#include <thread>

namespace {

// Readable while the main thread is asked to run its queue.
int wakeUpEvent()
{
    static const FileDescriptor event(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    return event.number();
}

MainQueue& mainQueue()
{
    // Never destroyed: a background thread may still submit when the process ends.
    static auto* const queue = new MainQueue([] { eventfd_write(wakeUpEvent(), 1); });
    return *queue;
}

// Makes the loop of the main thread run the queue.
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

std::latch& activation()
{
    static auto* const latch = new std::latch(1);
    return *latch;
}

class GlobalQueue : public DispatchQueue {
public:
    void async(std::function<void()> work) override
    {
        try {
            std::thread([work = std::move(work)] {
                activation().wait();
                work();
            }).detach();
        } catch (const std::system_error& error) {
            throw failure(error, {},
                NSLocalizedString("Errors", "The work couldn’t be started because %1 (%2)."));
        }
    }
};

}

DispatchMainQueue& DispatchQueue::main() { return mainQueue(); }

DispatchQueue& DispatchQueue::global()
{
    static GlobalQueue queue;
    return queue;
}

void activateDispatchQueues()
{
    attachToMainLoop();
    activation().count_down();
}
