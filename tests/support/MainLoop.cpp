#include "support/MainLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

bool runMainLoopUntil(const std::function<bool()>& condition, int limit)
{
    const QDeadlineTimer deadline(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}
