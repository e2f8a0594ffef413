#include "support/MainLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

bool runMainLoopUntil(const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}
