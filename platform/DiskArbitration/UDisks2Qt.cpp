#include "DiskArbitration/UDisks2Qt.h"

#include "DiskArbitration/DADissenter.h"

#include <QDBusArgument>
#include <QDBusMessage>

#include <limits>

namespace {

constexpr const char* service = "org.freedesktop.UDisks2";
constexpr int busDefault = -1;
constexpr int noTimeout = std::numeric_limits<int>::max();

DAReturn statusOf(const QString& error)
{
    const QString name = error.section('.', -1);
    if (name == "DeviceBusy")
        return kDAReturnBusy;
    if (name == "NotMounted")
        return kDAReturnNotMounted;
    if (name.startsWith("NotAuthorized"))
        return kDAReturnNotPermitted;
    if (name == "NotSupported")
        return kDAReturnUnsupported;
    return kDAReturnError;
}

QDBusMessage answer(const QDBusConnection& bus, const QDBusMessage& question, int timeout)
{
    QDBusMessage reply = bus.call(question, QDBus::Block, timeout);
    if (reply.type() != QDBusMessage::ReplyMessage)
        throw DADissenter { statusOf(reply.errorName()), reply.errorMessage().toStdString() };
    return reply;
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
    return qdbus_cast<Objects>(answer(m_bus, question, busDefault).arguments().value(0));
}

void UDisks2::call(const QDBusObjectPath& object, const char* interface, const char* method) const
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(service, object.path(), interface, method);
    question.setArguments({ QVariantMap() });
    question.setInteractiveAuthorizationAllowed(true);
    answer(m_bus, question, noTimeout);
}
