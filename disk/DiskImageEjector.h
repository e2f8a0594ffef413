#pragma once

#include <DiskArbitration/DADisk.h>

#include <functional>
#include <memory>

// Unmounts one volume and, if that worked, ejects the disk that holds it. Doesn't try again.
class DiskImageEjector : public std::enable_shared_from_this<DiskImageEjector> {
public:
    enum class Result { succeeded, failedUnmount, failedEject };
    using Completion = std::function<void(Result)>;

    // Starts, once, from any thread. `volumeURL` is that of a mount point. `completion` is called
    // once, on the main thread, not before this has returned. The ejector lives until then, whoever
    // else holds it.
    void eject(const NSURL& volumeURL, Completion completion);

private:
    static void unmountCallback(const DADiskRef& disk, const DADissenter* dissenter, void* context);
    static void ejectCallback(const DADiskRef& disk, const DADissenter* dissenter, void* context);

    void unmountCompleted(const DADissenter* dissenter);
    void ejectCompleted(const DADissenter* dissenter);
    void cleanUp();

    Completion m_completion;
    DASessionRef m_session;
    DADiskRef m_disk;
};
