#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QMap>
#include <QVariant>

#include <optional>

// The disk service, over a connection to the system bus of its own: a bus that has gone away once
// spoils no later attempt. Every call waits for its answer, on any thread.
class UDisks2 {
public:
    using Interfaces = QMap<QString, QVariantMap>; // the properties by their interface
    using Objects = QMap<QDBusObjectPath, Interfaces>;

    UDisks2();
    ~UDisks2();
    UDisks2(const UDisks2&) = delete;
    UDisks2& operator=(const UDisks2&) = delete;

    bool isConnected() const { return m_bus.isConnected(); }

    // All that the service knows at that moment; none where the service or the bus is gone.
    std::optional<Objects> objects() const;

    // Calls a method that takes options, with none. There is no limit to the time it takes: data is
    // written to a disk, a person is asked for a password. Whether it was granted.
    bool call(const QDBusObjectPath& object, const char* interface, const char* method) const;

private:
    const QString m_name;
    QDBusConnection m_bus;
};
