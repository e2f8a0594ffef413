#pragma once

#include <DiskArbitration/DADisk.h>

#include <functional>
#include <memory>

// Unmounts one volume and then ejects the disk that contains it. Does not retry.
class DiskImageEjector : public std::enable_shared_from_this<DiskImageEjector> {
public:
    enum class Result { succeeded, failedUnmount, failedEject };
    using Completion = std::function<void(Result)>;

    // Starts the detach and returns. To be called once per ejector, from any thread. `volumeURL` is
    // the URL of a mount point. `completion` runs exactly once, asynchronously on the main thread.
    // The ejector holds a reference to itself until then.
    void eject(const NSURL& volumeURL, Completion completion);

private:
    static void unmountCallback(const DADiskRef& disk, const DADissenter* dissenter, void* context);
    static void ejectCallback(const DADiskRef& disk, const DADissenter* dissenter, void* context);

    void unmountCompleted(const DADissenter* dissenter);
    void ejectCompleted(const DADissenter* dissenter);
    void complete(Result result);
    void cleanUp();

    Completion m_completion;
    DASessionRef m_session;
    DADiskRef m_disk;
    std::shared_ptr<DiskImageEjector> m_self; // while a request is pending
};
