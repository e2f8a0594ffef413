#pragma once

#include <QByteArrayList>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QMap>

#include <optional>

// The disk service UDisks2, over a system bus connection of its own, so that a lost connection does
// not affect later ones. Every call blocks until the reply arrives. Any thread except the main
// thread. A reply of an undocumented type counts as an error.
class UDisks2 {
public:
    // A block device or a drive. A property that the object does not have is empty.
    struct Object {
        QByteArrayList mountPoints; // each ends at its first NUL
        QDBusObjectPath table; // of a partition: the whole disk
        QDBusObjectPath drive;
        QByteArray backingFile; // of a loop device; ends at its first NUL
        bool hasAutoclear = false; // a loop device; the kernel detaches it after the unmount
        bool isEjectable = false;
    };
    using Objects = QMap<QDBusObjectPath, Object>;

    // Connects. Blocks until the bus has replied, for ever if it does not accept the connection. If
    // the bus cannot be reached, every call fails.
    UDisks2();
    ~UDisks2();
    UDisks2(const UDisks2&) = delete;
    UDisks2& operator=(const UDisks2&) = delete;

    // Returns the current objects of the service; nothing on an error or after 25 seconds.
    std::optional<Objects> objects() const;

    // Calls a method whose only argument is a dictionary of options (here empty) and that returns
    // nothing. `interface` is the last part of its name. Returns whether the call succeeded. Has no
    // timeout, because the service may flush data or ask the user for a password.
    bool call(const QDBusObjectPath& object, const char* interface, const char* method) const;

private:
    QDBusConnection m_bus;
};
