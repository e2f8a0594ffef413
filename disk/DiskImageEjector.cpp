#include "DiskImageEjector.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSRunLoop.h>

namespace {

CFRunLoopRef mainRunLoop()
{
    return NSRunLoop::mainRunLoop().getCFRunLoop();
}

// A request's context: a reference to the ejector, which the request's callback takes back.
using Reference = std::shared_ptr<DiskImageEjector>;

void* retained(Reference ejector)
{
    return new Reference(std::move(ejector));
}

Reference takeRetained(void* context)
{
    const std::unique_ptr<Reference> reference(static_cast<Reference*>(context));
    return *reference;
}

}

void DiskImageEjector::eject(const NSURL& volumeURL, Completion completion)
{
    const auto fail = [&] {
        DispatchQueue::main().async(
            [completion = std::move(completion)] { completion(Result::failedUnmount); });
    };
    auto* const allocator = CFAllocatorGetDefault();
    const DASessionRef session = DASessionCreate(allocator);
    if (!session)
        return fail();
    const DADiskRef disk = DADiskCreateFromVolumePath(allocator, session, volumeURL);
    if (!disk)
        return fail();

    m_completion = std::move(completion);
    m_session = session;
    m_disk = disk;
    DASessionScheduleWithRunLoop(session, mainRunLoop(), kCFRunLoopDefaultMode);
    DADiskUnmount(disk, kDADiskUnmountOptionDefault, unmountCallback, retained(shared_from_this()));
}

void DiskImageEjector::unmountCallback(
    const DADiskRef&, const DADissenter* dissenter, void* context)
{
    if (context)
        takeRetained(context)->unmountCompleted(dissenter);
}

void DiskImageEjector::unmountCompleted(const DADissenter* dissenter)
{
    if (!dissenter) {
        DADiskEject(m_disk, kDADiskEjectOptionDefault, ejectCallback, retained(shared_from_this()));
        return;
    }
    cleanUp();
    m_completion(Result::failedUnmount);
}

void DiskImageEjector::ejectCallback(const DADiskRef&, const DADissenter* dissenter, void* context)
{
    if (context)
        takeRetained(context)->ejectCompleted(dissenter);
}

void DiskImageEjector::ejectCompleted(const DADissenter* dissenter)
{
    cleanUp();
    m_completion(dissenter ? Result::failedEject : Result::succeeded);
}

void DiskImageEjector::cleanUp()
{
    if (m_session)
        DASessionUnscheduleFromRunLoop(m_session, mainRunLoop(), kCFRunLoopDefaultMode);
    m_disk = nullptr;
    m_session = nullptr;
}
