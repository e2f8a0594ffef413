#include "WindowReport.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSString.h>
#include <Foundation/NSThread.h>

#include <array>

WindowReport::WindowReport(std::shared_ptr<ViewController> controller, ViewController::Mode mode)
    : m_controller(std::move(controller)), m_titles(titlesOf(mode))
{
}

WindowReport::Titles WindowReport::titlesOf(ViewController::Mode mode)
{
    const std::array<Titles, 3> titles { {
        { NSLocalizedString("Titles", "Installing quillbarn"), "",
            NSLocalizedString("Titles", "quillbarn could not be installed") },
        { NSLocalizedString("Titles", "Removing quillbarn"), "",
            NSLocalizedString("Titles", "quillbarn could not be removed") },
        { NSLocalizedString("Titles", "Ejecting the disk image"),
            NSLocalizedString(
                "Titles", "Ejecting the disk image: waiting for the volume to be free"),
            NSLocalizedString("Titles", "The disk image could not be ejected") },
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

void WindowReport::showWaiting() { m_controller->setTitle(m_titles.waiting); }

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
