#include "ViewController.h"

#include "Logger.h"
#include "Modes.h"
#include "UnmountTask.h"
#include "WindowReport.h"

#include <AppKit/NSAnimationContext.h>
#include <AppKit/NSApplication.h>
#include <AppKit/NSButton.h>
#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSProgressIndicator.h>
#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>
#include <Dispatch/DispatchQueue.h>
#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSThread.h>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace {

constexpr CGFloat nearTheEnd = 20; // points; closer to the end, the view scrolls with new text
constexpr double openingDuration = 0.5; // seconds

}

std::shared_ptr<ViewController> ViewController::initWithCoder(const NSCoder& coder)
{
    const std::shared_ptr<ViewController> controller(new ViewController);
    return controller->NSViewController::initWithCoder(coder) ? controller : nullptr;
}

std::shared_ptr<ViewController> ViewController::initWithNibName(
    const std::string& nibName, const NSBundle* bundle)
{
    const std::shared_ptr<ViewController> controller(new ViewController);
    return NSViewController::initWithNibName(nibName, bundle) ? controller : nullptr;
}

void ViewController::viewDidLoad()
{
    NSViewController::viewDidLoad();
    sharedLogger().log("installer start", Logger::LogLevel::normal);
    prepareWindow();
    NSApplication::sharedApplication().activateIgnoringOtherApps();

    if (const std::optional<CommandLineOption> option = parseCommandLine())
        return startTask(*option);
    const std::string title = NSLocalizedString("Titles", "quillbarn installer: invalid options");
    showMessage("invalid options");
    showFailure(title, title);
}

void ViewController::prepareWindow()
{
    m_resultPainViewHeight = resultPainViewHeightConstraint->constant();
    progressIndicator->setMinValue(0.0);
    progressIndicator->setMaxValue(1.0);
    resultText->setStringValue("");
    resultTextScrollView->setDocumentView(resultText.lock());
    resultButton->setEnabled(false);
    if (!m_test) resultPainViewHeightConstraint->setConstant(0.0);
}

std::optional<CommandLineOption> ViewController::parseCommandLine() const
{
    auto option = ::parseCommandLine(NSProcessInfo::processInfo().arguments());
    if (m_test) option = { Mode::unmount, "/Volumes/quillbarn installer/quillbarn.app" };
    if (option)
        sharedLogger().log(infoOf(option->mode).name + " " + option->path, Logger::LogLevel::debug);
    return option;
}

void ViewController::startTask(const CommandLineOption& option)
{
    WindowReport report(self(), option.mode);
    report.begin();
    if (option.mode == Mode::unmount) progressIndicator->setDoubleValue(1.0); // nothing to count
    try {
        DispatchQueue::global().async([controller = self(), option] {
            infoOf(option.mode).runTask(*controller, option.path);
        });
    } catch (const NSError& error) {
        report.end(error);
    }
}

void ViewController::installBundle(const std::string& sourcePath)
{
    WindowReport report(self(), Mode::install);
    bundleTask(report).install(sourcePath);
}

void ViewController::uninstallBundle()
{
    WindowReport report(self(), Mode::uninstall);
    bundleTask(report).uninstall();
}

void ViewController::unmountDiskImage(const std::string& path)
{
    UnmountTask(std::make_shared<WindowReport>(self(), Mode::unmount), path, m_ejectLoop).run();
}

std::vector<ViewController::File> ViewController::getFiles(
    const std::string& folder, const std::string& prefix)
{
    return BundleTree::getFiles(folder, prefix);
}

void ViewController::removeBundle(TopFolder topFolder, const BundleTask::Progress& progress)
{
    WindowReport report(self(), Mode::uninstall);
    bundleTask(report).removeBundle(topFolder, progress);
}

BundleTask ViewController::bundleTask(TaskReport& report) const
{
    return { report, applicationDir, bundleDir, m_test ? DryRun::yes : DryRun::no };
}

void ViewController::showMessage(const std::string& message)
{
    assert(NSThread::isMainThread());
    const auto text = resultText.lock();
    const auto scrollView = resultTextScrollView.lock();
    const auto endPosition
        = [&] { return text->frame().size.height - scrollView->contentSize().height; };

    const NSPoint position = scrollView->documentView()->visibleRect().origin;
    const CGFloat oldEnd = std::max(0.0, endPosition());
    text->appendString(message + '\n');
    text->sizeToFit();
    if (std::abs(position.y - oldEnd) < nearTheEnd)
        scrollView->documentView()->scrollPoint({ position.x, endPosition() });

    sharedLogger().log(message, Logger::LogLevel::debug);
}

void ViewController::setProgress(std::int64_t index, std::int64_t count)
{
    assert(NSThread::isMainThread());
    progressIndicator->setDoubleValue(double(index + 1) / double(count));
}

void ViewController::setTitle(const std::string& title)
{
    assert(NSThread::isMainThread());
    view()->window()->setTitle(title);
}

void ViewController::showResult()
{
    assert(NSThread::isMainThread());
    const auto scrollView = resultTextScrollView.lock();
    resultText->setFrame(
        { {}, { scrollView->bounds().size.width, resultText->frame().size.height } });
    resultText->sizeToFit();
    const CGFloat end = resultText->frame().size.height - scrollView->contentSize().height;
    scrollView->documentView()->scrollPoint({ 0, end });

    NSAnimationContext::beginGrouping();
    NSAnimationContext::currentContext().setDuration(openingDuration);
    NSAnimationContext::currentContext().setCompletionHandler(
        [controller = self()] { controller->enableKeyboard(); });
    resultPainViewHeightConstraint->animator().setConstant(m_resultPainViewHeight);
    NSAnimationContext::endGrouping();

    resultButton->setEnabled(true);
}

void ViewController::showFailure(const std::string& title, const std::string& description)
{
    setTitle(title);
    resultButton->setAccessibilityHelp(description);
    showResult();
}

// Only after the pane has opened: otherwise a key typed for another window would close this one
// before the user has read it.
void ViewController::enableKeyboard() { view()->window()->enableKeyEquivalentForDefaultButton(); }

void ViewController::finish()
{
    assert(NSThread::isMainThread());
    if (!m_test) return closeWindow();
    resultButton->setEnabled(true);
    enableKeyboard();
}

void ViewController::closeWindow()
{
    assert(NSThread::isMainThread());
    view()->window()->close();
}

void ViewController::resultButtonClicked(const NSView*) { closeWindow(); }

std::shared_ptr<ViewController> ViewController::self()
{
    return std::static_pointer_cast<ViewController>(shared_from_this());
}
