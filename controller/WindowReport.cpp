#include "WindowReport.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSThread.h>

WindowReport::WindowReport(std::shared_ptr<ViewController> controller, ViewController::Mode mode)
    : m_controller(std::move(controller))
    , m_mode(mode)
{
}

void WindowReport::showMessage(const std::string& message)
{
    if (NSThread::isMainThread())
        m_controller->showMessage(message);
    else
        DispatchQueue::main().sync([&] { m_controller->showMessage(message); });
}

void WindowReport::setProgress(std::int64_t index, std::int64_t count)
{
    DispatchQueue::main().sync([&] { m_controller->setProgress(index, count); });
}

void WindowReport::showWaiting()
{
    m_controller->showWaiting(m_mode);
}

void WindowReport::closeWindow()
{
    DispatchQueue::main().async([controller = m_controller] { controller->closeWindow(); });
}

void WindowReport::finish()
{
    DispatchQueue::main().async([controller = m_controller] { controller->finish(); });
}

void WindowReport::showFailure(const NSError& error)
{
    DispatchQueue::main().async([controller = m_controller, mode = m_mode, error] {
        controller->showFailure(mode, error.localizedDescription());
    });
}
