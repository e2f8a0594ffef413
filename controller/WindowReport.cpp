#include "WindowReport.h"

#include "Logger.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSThread.h>

WindowReport::WindowReport(std::shared_ptr<ViewController> controller, Mode mode)
    : m_controller(std::move(controller)), m_mode(infoOf(mode))
{
}

// A line feed in the name of a file must not look like the end of the message.
void WindowReport::showMessage(const std::string& message)
{
    const auto show = [&] { m_controller->showMessage(Logger::escaped(message)); };
    if (NSThread::isMainThread())
        show();
    else
        DispatchQueue::main().sync(show);
}

void WindowReport::setProgress(std::int64_t index, std::int64_t count)
{
    DispatchQueue::main().sync([&] { m_controller->setProgress(index, count); });
}

void WindowReport::end(const std::optional<NSError>& failure)
{
    if (failure) {
        showMessage("");
        showMessage(failure->localizedDescription());
    }
    DispatchQueue::main().async([controller = m_controller, &mode = m_mode, failure] {
        if (failure)
            controller->showFailure(mode.failedTitle, failure->localizedDescription());
        else if (mode.mode == Mode::install)
            controller->closeWindow();
        else
            controller->finish();
    });
}
