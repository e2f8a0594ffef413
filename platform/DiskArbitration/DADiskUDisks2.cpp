#include <DiskArbitration/DADisk.h>

#include "DASessionUDisks2.h"

#include <Dispatch/DispatchQueue.h>

#include <QDBusArgument>

#include <algorithm>
#include <chrono>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr const char* blockInterface = "org.freedesktop.UDisks2.Block";
constexpr const char* driveInterface = "org.freedesktop.UDisks2.Drive";
constexpr const char* filesystemInterface = "org.freedesktop.UDisks2.Filesystem";
constexpr const char* loopInterface = "org.freedesktop.UDisks2.Loop";
constexpr const char* partitionInterface = "org.freedesktop.UDisks2.Partition";

// How long a device whose image was detached may take to let go of it.
constexpr auto detachLimit = 2s;
constexpr auto detachInterval = 20ms;

template <class Value>
Value property(const UDisks2::Interfaces& object, const char* interface, const char* name)
{
    return qdbus_cast<Value>(object.value(interface).value(name));
}

// Paths come as bytes up to a NUL.
std::string pathProperty(const UDisks2::Interfaces& object, const char* interface, const char* name)
{
    return property<QByteArray>(object, interface, name).constData();
}

bool isMountedAt(const UDisks2::Interfaces& object, const std::string& path)
{
    const auto mountPoints = property<QByteArrayList>(object, filesystemInterface, "MountPoints");
    return std::ranges::any_of(
        mountPoints, [&](const QByteArray& place) { return path == place.constData(); });
}

}

class DADisk {
public:
    // `volume` is the block device with the file system.
    DADisk(DASessionRef session, const UDisks2::Objects& objects, const QDBusObjectPath& volume);

    // Whether it was granted.
    bool unmount() const { return service().call(m_volume, filesystemInterface, "Unmount"); }
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
    const bool isPartition = object.contains(partitionInterface);
    m_wholeDisk
        = isPartition ? property<QDBusObjectPath>(object, partitionInterface, "Table") : volume;
    m_drive = property<QDBusObjectPath>(object, blockInterface, "Drive");
    m_image = pathProperty(objects.value(m_wholeDisk), loopInterface, "BackingFile");
}

// The device may have got another image meanwhile. That of a file which has been deleted meanwhile
// goes by its old name and " (deleted)".
bool DADisk::isImageAttached(const UDisks2::Objects& objects) const
{
    return pathProperty(objects.value(m_wholeDisk), loopInterface, "BackingFile")
        .starts_with(m_image);
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
            service().call(m_wholeDisk, loopInterface, "Delete");
        std::this_thread::sleep_for(detachInterval);
    }
}

bool DADisk::ejectDrive() const
{
    const auto objects = service().objects();
    return objects && property<bool>(objects->value(m_drive), driveInterface, "Ejectable")
        && service().call(m_drive, driveInterface, "Eject");
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

// On a thread of its own, as the calls to the service wait for their answers.
void request(const DADiskRef& disk, bool (DADisk::*work)() const, DADiskUnmountCallback callback,
    void* context)
{
    DispatchQueue::global().async([=] {
        const bool isGranted = (disk.get()->*work)();
        disk->session()->deliver([=] {
            const DADissenter dissenter;
            callback(disk, isGranted ? nullptr : &dissenter, context);
        });
    });
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
