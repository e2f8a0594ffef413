#include "DiskArbitration/DADisk.h"

#include "DiskArbitration/DASessionUDisks2.h"
#include "Dispatch/DispatchQueue.h"

#include <QDBusArgument>

#include <algorithm>
#include <chrono>
#include <optional>
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

    // Throw a DADissenter.
    void unmount() const { m_session->service().call(m_volume, filesystemInterface, "Unmount"); }
    void eject() const;

    const DASessionRef& session() const { return m_session; }

private:
    bool isImageAttached() const;
    void detachImage() const;
    void ejectDrive() const;

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

void DADisk::eject() const
{
    if (m_image.empty())
        ejectDrive();
    else
        detachImage();
}

void DADisk::detachImage() const
{
    if (!isImageAttached())
        return;
    DADissenter refusal { kDAReturnBusy, "The disk image is in use" };
    try {
        m_session->service().call(m_wholeDisk, loopInterface, "Delete");
    } catch (const DADissenter& dissenter) {
        refusal = dissenter;
    }

    // The answer tells nothing: it is yes for a device that is in use and keeps its image, and no
    // for one that has let go of it by itself after the unmount.
    const auto limit = std::chrono::steady_clock::now() + detachLimit;
    while (isImageAttached()) {
        if (std::chrono::steady_clock::now() > limit)
            throw refusal;
        std::this_thread::sleep_for(detachInterval);
    }
}

// The device may have got another image meanwhile. That of a file which has been deleted meanwhile
// goes by its old name and " (deleted)".
bool DADisk::isImageAttached() const
{
    const auto disk = m_session->service().objects().value(m_wholeDisk);
    return pathProperty(disk, loopInterface, "BackingFile").starts_with(m_image);
}

void DADisk::ejectDrive() const
{
    const auto drive = m_session->service().objects().value(m_drive);
    if (!property<bool>(drive, driveInterface, "Ejectable"))
        throw DADissenter { kDAReturnUnsupported, "The disk can't be ejected" };
    m_session->service().call(m_drive, driveInterface, "Eject");
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, const DASessionRef& session, const NSURL& path)
{
    try {
        const UDisks2::Objects objects = session->service().objects();
        for (auto object = objects.begin(); object != objects.end(); ++object) {
            if (isMountedAt(object.value(), path.path()))
                return std::make_shared<DADisk>(session, objects, object.key());
        }
    } catch (const DADissenter&) {
    }
    return nullptr;
}

namespace {

// On a thread of its own, as the calls to the service wait for their answers.
void request(const DADiskRef& disk, void (DADisk::*work)() const, DADiskUnmountCallback callback,
    void* context)
{
    DispatchQueue::global().async([=] {
        std::optional<DADissenter> dissenter;
        try {
            (disk.get()->*work)();
        } catch (const DADissenter& refusal) {
            dissenter = refusal;
        }
        disk->session()->deliver(
            [=] { callback(disk, dissenter ? &*dissenter : nullptr, context); });
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
