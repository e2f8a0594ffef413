#include <Dispatch/DispatchQueue.h>

#include "ErrorText.h"
#include "FileDescriptor.h"
#include "MainQueue.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <latch>
#include <sys/eventfd.h>
#include <thread>
#include <vector>

namespace {

// Descriptors that the toolkit and two caches of open folders require.
constexpr std::size_t requiredDescriptors = 40;

// Of each thread, in bytes. The default follows RLIMIT_STACK and may be too small for a deep tree,
// which is listed recursively.
constexpr std::size_t stackSize = 0x800000;

// Readable while the main thread is requested to run its queue.
int wakeUpEvent()
{
    static const FileDescriptor event(check(eventfd, 0U, EFD_CLOEXEC | EFD_NONBLOCK));
    return event.number();
}

MainQueue& mainQueue()
{
    // Never destroyed: a background thread may still submit when the process ends.
    static auto* const queue = new MainQueue([event = wakeUpEvent()] { eventfd_write(event, 1); });
    return *queue;
}

// Makes the main loop run the queue.
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

NSError failureToStart(const std::system_error& reason)
{
    return failure(reason, {}, NSLocalizedString("Errors", "operation not started"));
}

class GlobalQueue : public DispatchQueue {
public:
    void async(std::function<void()> work) override
    try {
        std::thread([work = std::move(work)] {
            activation().wait();
            work();
        }).detach();
    } catch (const std::system_error& error) {
        throw failureToStart(error);
    }
};

}

DispatchMainQueue& DispatchQueue::main() { return mainQueue(); }

DispatchQueue& DispatchQueue::global()
{
    static GlobalQueue queue;
    return queue;
}

void prepareDispatchQueues()
try {
    mainQueue();
    pthread_attr_t attributes;
    pthread_getattr_default_np(&attributes);
    pthread_attr_setstacksize(&attributes, stackSize);
    pthread_setattr_default_np(&attributes);
    // Checks the descriptor limit by opening that many.
    std::vector<FileDescriptor> unused;
    while (unused.size() < requiredDescriptors)
        unused.emplace_back(check(fcntl, wakeUpEvent(), F_DUPFD_CLOEXEC, 0));
} catch (const std::system_error& reason) {
    throw failureToStart(reason);
}

void activateDispatchQueues()
{
    attachToMainLoop();
    activation().count_down();
}
