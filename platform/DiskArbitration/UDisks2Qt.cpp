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
constexpr const char* objectsSignature = "a{oa{sa{sv}}}";

QString fullName(const char* interface)
{
    return QString(service) + '.' + interface;
}

bool isGranted(const QDBusMessage& answer, const char* signature)
{
    return answer.type() == QDBusMessage::ReplyMessage && answer.signature() == signature;
}

QString signatureOf(const QVariant& value)
{
    const bool isUnread = value.metaType() == QMetaType::fromType<QDBusArgument>();
    return isUnread ? value.value<QDBusArgument>().currentSignature()
                    : QDBusMetaType::typeToSignature(value.metaType());
}

// Leaves the value alone where there is no such property. False where that is of another type,
// which must not be read.
template <class Value>
bool read(const Interfaces& object, const char* interface, const char* name, const char* signature,
    Value& value)
{
    const QVariant property = object.value(fullName(interface)).value(name);
    if (!property.isValid())
        return true;
    if (signatureOf(property) != signature)
        return false;
    value = qdbus_cast<Value>(property);
    return true;
}

bool read(const Interfaces& interfaces, UDisks2::Object& object)
{
    return read(interfaces, "Filesystem", "MountPoints", "aay", object.mountPoints)
        && read(interfaces, "Partition", "Table", "o", object.table)
        && read(interfaces, "Block", "Drive", "o", object.drive)
        && read(interfaces, "Loop", "BackingFile", "ay", object.backingFile)
        && read(interfaces, "Drive", "Ejectable", "b", object.isEjectable);
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

std::optional<UDisks2::Objects> UDisks2::objects() const
{
    const QDBusMessage question = QDBusMessage::createMethodCall(service,
        "/org/freedesktop/UDisks2", "org.freedesktop.DBus.ObjectManager", "GetManagedObjects");
    const QDBusMessage answer = m_bus.call(question, QDBus::Block, busDefault);
    if (!isGranted(answer, objectsSignature))
        return std::nullopt;

    Objects objects;
    const auto found = qdbus_cast<QMap<QDBusObjectPath, Interfaces>>(answer.arguments().first());
    for (auto object = found.begin(); object != found.end(); ++object) {
        if (!read(object.value(), objects[object.key()]))
            return std::nullopt;
    }
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
