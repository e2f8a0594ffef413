#include "DiskImageEjector.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSRunLoop.h>

namespace {

CFRunLoopRef mainRunLoop() { return NSRunLoop::mainRunLoop().getCFRunLoop(); }

}

void DiskImageEjector::eject(const NSURL& volumeURL, Completion completion)
{
    const auto fail = [&] {
        DispatchQueue::main().async(
            [completion = std::move(completion)] { completion(Result::failedUnmount); });
    };
    auto* const allocator = CFAllocatorGetDefault();
    const DASessionRef session = DASessionCreate(allocator);
    if (!session) return fail();
    const DADiskRef disk = DADiskCreateFromVolumePath(allocator, session, volumeURL);
    if (!disk) return fail();

    m_completion = std::move(completion);
    m_session = session;
    m_disk = disk;
    m_self = shared_from_this();
    DASessionScheduleWithRunLoop(session, mainRunLoop(), kCFRunLoopDefaultMode);
    DADiskUnmount(disk, kDADiskUnmountOptionDefault, unmountCallback, this);
}

void DiskImageEjector::unmountCallback(
    const DADiskRef&, const DADissenter* dissenter, void* context)
{
    if (context) static_cast<DiskImageEjector*>(context)->unmountCompleted(dissenter);
}

void DiskImageEjector::unmountCompleted(const DADissenter* dissenter)
{
    if (dissenter)
        complete(Result::failedUnmount);
    else
        DADiskEject(m_disk, kDADiskEjectOptionDefault, ejectCallback, this);
}

void DiskImageEjector::ejectCallback(const DADiskRef&, const DADissenter* dissenter, void* context)
{
    if (context) static_cast<DiskImageEjector*>(context)->ejectCompleted(dissenter);
}

void DiskImageEjector::ejectCompleted(const DADissenter* dissenter)
{
    complete(dissenter ? Result::failedEject : Result::succeeded);
}

void DiskImageEjector::complete(Result result)
{
    const auto self = std::move(m_self); // until the completion has returned
    cleanUp();
    m_completion(result);
}

void DiskImageEjector::cleanUp()
{
    if (m_session) DASessionUnscheduleFromRunLoop(m_session, mainRunLoop(), kCFRunLoopDefaultMode);
    m_disk = nullptr;
    m_session = nullptr;
}
