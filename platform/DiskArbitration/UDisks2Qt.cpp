#include "UDisks2.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>

#include <limits>

namespace {

constexpr const char* service = "org.freedesktop.UDisks2";
constexpr int noTimeout = std::numeric_limits<int>::max();

using Interfaces = QMap<QString, QVariantMap>; // properties by interface

QString busAddress()
{
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/run/dbus/system_bus_socket");
}

QString fullName(const char* interface) { return QString(service) + '.' + interface; }

bool isSuccess(const QDBusMessage& reply, const char* signature)
{
    return reply.type() == QDBusMessage::ReplyMessage && reply.signature() == signature;
}

// Returns an empty value if the property does not exist or has another type, because reading a
// QDBusArgument as another type is undefined.
template <class Value>
Value read(const Interfaces& object, const char* interface, const char* name, const char* signature)
{
    const QVariant property = object.value(fullName(interface)).value(name);
    const bool isUnread = property.metaType() == QMetaType::fromType<QDBusArgument>();
    const QString found = isUnread ? property.value<QDBusArgument>().currentSignature()
                                   : QDBusMetaType::typeToSignature(property.metaType());
    return found == signature ? qdbus_cast<Value>(property) : Value();
}

}

// QtDBus serves all connections on one thread. connectToBus() blocks that thread and holds its lock
// until the bus has authenticated the client and replied to "Hello". connectToPeer() authenticates
// asynchronously.
UDisks2::UDisks2()
    : m_bus(QDBusConnection::connectToPeer(busAddress(), QString::number(quintptr(this), 16)))
{
    const char* const bus = "org.freedesktop.DBus";
    m_bus.call(QDBusMessage::createMethodCall(bus, "/org/freedesktop/DBus", bus, "Hello"));
}

UDisks2::~UDisks2() { QDBusConnection::disconnectFromPeer(m_bus.name()); }

std::optional<UDisks2::Objects> UDisks2::objects() const
{
    const QDBusMessage request = QDBusMessage::createMethodCall(service, "/org/freedesktop/UDisks2",
        "org.freedesktop.DBus.ObjectManager", "GetManagedObjects");
    const QDBusMessage reply = m_bus.call(request);
    if (!isSuccess(reply, "a{oa{sa{sv}}}")) return std::nullopt;
    Objects objects;
    const auto found = qdbus_cast<QMap<QDBusObjectPath, Interfaces>>(reply.arguments().first());
    for (auto object = found.begin(); object != found.end(); ++object)
        objects[object.key()] = { read<QByteArrayList>(*object, "Filesystem", "MountPoints", "aay"),
            read<QDBusObjectPath>(*object, "Partition", "Table", "o"),
            read<QDBusObjectPath>(*object, "Block", "Drive", "o"),
            read<QByteArray>(*object, "Loop", "BackingFile", "ay"),
            read<bool>(*object, "Loop", "Autoclear", "b"),
            read<bool>(*object, "Drive", "Ejectable", "b") };
    return objects;
}

bool UDisks2::call(const QDBusObjectPath& object, const char* interface, const char* method) const
{
    QDBusMessage request
        = QDBusMessage::createMethodCall(service, object.path(), fullName(interface), method);
    request.setArguments({ QVariantMap() });
    request.setInteractiveAuthorizationAllowed(true);
    return isSuccess(m_bus.call(request, QDBus::Block, noTimeout), "");
}
