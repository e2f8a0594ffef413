#include "UDisks2.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>

#include <limits>

namespace {

constexpr const char* service = "org.freedesktop.UDisks2";
constexpr int busDefault = -1;
constexpr int noTimeout = std::numeric_limits<int>::max();

using Interfaces = QMap<QString, QVariantMap>; // the properties by their interface

QString fullName(const char* interface)
{
    return QString(service) + '.' + interface;
}

bool isGranted(const QDBusMessage& answer, const char* signature)
{
    return answer.type() == QDBusMessage::ReplyMessage && answer.signature() == signature;
}

// As empty where there is no such property, or one of another type, which must not be read.
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

UDisks2::UDisks2()
    : m_name(QString::number(quintptr(this), 16))
    , m_bus(QDBusConnection::connectToBus(QDBusConnection::SystemBus, m_name))
{
}

UDisks2::~UDisks2()
{
    QDBusConnection::disconnectFromBus(m_name);
}

UDisks2::Objects UDisks2::objects() const
{
    const QDBusMessage question = QDBusMessage::createMethodCall(service,
        "/org/freedesktop/UDisks2", "org.freedesktop.DBus.ObjectManager", "GetManagedObjects");
    const QDBusMessage answer = m_bus.call(question, QDBus::Block, busDefault);
    Objects objects;
    if (!isGranted(answer, "a{oa{sa{sv}}}"))
        return objects;
    const auto found = qdbus_cast<QMap<QDBusObjectPath, Interfaces>>(answer.arguments().first());
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
    QDBusMessage question
        = QDBusMessage::createMethodCall(service, object.path(), fullName(interface), method);
    question.setArguments({ QVariantMap() });
    question.setInteractiveAuthorizationAllowed(true);
    return isGranted(m_bus.call(question, QDBus::Block, noTimeout), "");
}
