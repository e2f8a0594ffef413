#include "WindowReport.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSThread.h>

#include <array>

WindowReport::WindowReport(std::shared_ptr<ViewController> controller, ViewController::Mode mode)
    : m_controller(std::move(controller))
    , m_titles(titlesOf(mode))
{
}

const WindowReport::Titles& WindowReport::titlesOf(ViewController::Mode mode)
{
    static constexpr std::array<Titles, 3> titles { {
        { "Installing quillbarn", "", "quillbarn could not be installed" },
        { "Removing quillbarn", "", "quillbarn could not be removed" },
        { "Ejecting the disk image", "Ejecting the disk image: waiting for the volume to be free",
            "The disk image could not be ejected" },
    } };
    return titles.at(std::size_t(mode));
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
    m_controller->setTitle(m_titles.waiting);
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
    DispatchQueue::main().async([controller = m_controller, title = m_titles.failed, error] {
        controller->setTitle(title);
        controller->showFailure(error.localizedDescription());
    });
}
