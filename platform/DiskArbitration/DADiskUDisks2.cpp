#include <DiskArbitration/DADisk.h>

#include "DASessionUDisks2.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSError.h>

#include <algorithm>
#include <chrono>
#include <string_view>
#include <thread>

using namespace std::chrono_literals;

namespace {

// How long a device whose image was detached may take to let go of it.
constexpr auto detachLimit = 2s;
constexpr auto detachInterval = 20ms;

bool isMountedAt(const UDisks2::Object& object, const std::string& path)
{
    return std::ranges::any_of(
        object.mountPoints, [&](const QByteArray& place) { return path == place.constData(); });
}

}

class DADisk {
public:
    // `volume` is the block device with the file system.
    DADisk(DASessionRef session, const UDisks2::Objects& objects, const QDBusObjectPath& volume);

    // Whether it was granted.
    bool unmount() const { return service().call(m_volume, "Filesystem", "Unmount"); }
    bool eject() const { return m_image.empty() ? ejectDrive() : detachImage(); }

    const DASessionRef& session() const { return m_session; }

private:
    const UDisks2& service() const { return m_session->service(); }
    bool isImageAttached(const UDisks2::Objects& objects) const;
    bool detachImage() const;
    bool ejectDrive() const;

    const DASessionRef m_session;
    const QDBusObjectPath m_volume;
    QDBusObjectPath m_wholeDisk;
    QDBusObjectPath m_drive;
    std::string m_image; // the file behind a loop device, or empty
};

DADisk::DADisk(DASessionRef session, const UDisks2::Objects& objects, const QDBusObjectPath& volume)
    : m_session(std::move(session))
    , m_volume(volume)
{
    const auto object = objects.value(volume);
    m_wholeDisk = object.table.path().isEmpty() ? volume : object.table;
    m_drive = object.drive;
    m_image = objects.value(m_wholeDisk).backingFile.constData();
}

// The device may have got another image meanwhile. That of a file which has been deleted meanwhile
// goes by its old name and " (deleted)".
bool DADisk::isImageAttached(const UDisks2::Objects& objects) const
{
    const QByteArray file = objects.value(m_wholeDisk).backingFile;
    return std::string_view(file.constData()).starts_with(m_image);
}

bool DADisk::detachImage() const
{
    const auto limit = std::chrono::steady_clock::now() + detachLimit;
    for (bool isAsked = false;; isAsked = true) {
        const auto objects = service().objects();
        if (!objects)
            return false;
        if (!isImageAttached(*objects))
            return true;
        if (std::chrono::steady_clock::now() > limit)
            return false;
        // The answer tells nothing: it is yes for a device that is in use and keeps its image, and
        // no for one that has let go of it by itself after the unmount.
        if (!isAsked)
            service().call(m_wholeDisk, "Loop", "Delete");
        std::this_thread::sleep_for(detachInterval);
    }
}

bool DADisk::ejectDrive() const
{
    const auto objects = service().objects();
    return objects && objects->value(m_drive).isEjectable
        && service().call(m_drive, "Drive", "Eject");
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, const DASessionRef& session, const NSURL& path)
{
    const auto objects = session->service().objects();
    if (!objects)
        return nullptr;
    for (auto object = objects->begin(); object != objects->end(); ++object) {
        if (isMountedAt(object.value(), path.path()))
            return std::make_shared<DADisk>(session, *objects, object.key());
    }
    return nullptr;
}

namespace {

// On a thread of its own, as the calls to the service wait for their answers. Where there is none,
// that is a refusal.
void request(const DADiskRef& disk, bool (DADisk::*work)() const, DADiskUnmountCallback callback,
    void* context)
{
    const auto answer = [=](bool isGranted) {
        disk->session()->deliver([=] {
            const DADissenter dissenter;
            callback(disk, isGranted ? nullptr : &dissenter, context);
        });
    };
    try {
        DispatchQueue::global().async([=] { answer((disk.get()->*work)()); });
    } catch (const NSError&) {
        answer(false);
    }
}

}

void DADiskUnmount(
    const DADiskRef& disk, DADiskUnmountOptions, DADiskUnmountCallback callback, void* context)
{
    request(disk, &DADisk::unmount, callback, context);
}

void DADiskEject(
    const DADiskRef& disk, DADiskEjectOptions, DADiskEjectCallback callback, void* context)
{
    request(disk, &DADisk::eject, callback, context);
}
