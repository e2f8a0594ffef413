#include "UDisks2.h"

#include <QDBusArgument>
#include <QDBusMessage>

#include <limits>

namespace {

constexpr const char* service = "org.freedesktop.UDisks2";
constexpr int busDefault = -1;
constexpr int noTimeout = std::numeric_limits<int>::max();

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
    if (answer.type() != QDBusMessage::ReplyMessage)
        return std::nullopt;
    return qdbus_cast<Objects>(answer.arguments().value(0));
}

bool UDisks2::call(const QDBusObjectPath& object, const char* interface, const char* method) const
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(service, object.path(), interface, method);
    question.setArguments({ QVariantMap() });
    question.setInteractiveAuthorizationAllowed(true);
    return m_bus.call(question, QDBus::Block, noTimeout).type() == QDBusMessage::ReplyMessage;
}
