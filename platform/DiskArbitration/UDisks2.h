#pragma once

#include <QByteArrayList>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QMap>

// The disk service, over a connection to the system bus of its own: a bus that has gone away once
// spoils no later attempt. Every call waits for its answer, on any thread. An answer of another
// type than documented is as good as none.
class UDisks2 {
public:
    // A device or a drive. What it doesn't have is empty.
    struct Object {
        QByteArrayList mountPoints; // bytes up to a NUL, each
        QDBusObjectPath table; // of a partition: the whole disk
        QDBusObjectPath drive;
        QByteArray backingFile; // of a loop device, bytes up to a NUL
        bool isSelfDetaching = false; // one that lets go of its file with its last user
        bool isEjectable = false;
    };
    using Objects = QMap<QDBusObjectPath, Object>;

    UDisks2();
    ~UDisks2();
    UDisks2(const UDisks2&) = delete;
    UDisks2& operator=(const UDisks2&) = delete;

    bool isConnected() const { return m_bus.isConnected(); }

    // All that the service knows at that moment: nothing where the service or the bus is gone.
    Objects objects() const;

    // Calls a method that takes options, with none, and answers nothing. There is no limit to the
    // time it takes: data is written to a disk, a person is asked for a password. `interface` is
    // the name's last part. Whether it was granted.
    bool call(const QDBusObjectPath& object, const char* interface, const char* method) const;

private:
    const QString m_name;
    QDBusConnection m_bus;
};
