#include "controller/ViewController.h"

#include "Dispatch/DispatchQueue.h"
#include "Foundation/NSThread.h"

namespace {

constexpr double pauseAtEnd = 1.0; // seconds in which the bar stands full

}

void ViewController::report(const std::string& message)
{
    if (NSThread::isMainThread())
        showMessage(message);
    else
        DispatchQueue::main().sync([&] { showMessage(message); });
}

void ViewController::reportProgress(std::int64_t index, std::int64_t count)
{
    DispatchQueue::main().sync([&] { setProgress(index, count); });
}

void ViewController::reportSuccess(void (ViewController::*lastStep)())
{
    NSThread::sleepForTimeInterval(pauseAtEnd);
    report("completed");
    DispatchQueue::main().async(
        [controller = self(), lastStep] { (controller.get()->*lastStep)(); });
}

void ViewController::reportFailure(const NSError& error)
{
    report("");
    report(error.localizedDescription());
    DispatchQueue::main().async([controller = self()] { controller->showResult(); });
}
