#include "ViewController.h"

#include "Logger.h"

#include <AppKit/NSAnimationContext.h>
#include <AppKit/NSButton.h>
#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSProgressIndicator.h>
#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>
#include <AppKit/NSWindow.h>
#include <Foundation/NSThread.h>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace {

// Within so many points of the end, a view of the text follows it.
constexpr CGFloat nearTheEnd = 20;
constexpr double openingDuration = 0.5; // seconds

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
        [controller = self()] { controller->giveKeyboardToButton(); });
    resultPainViewHeightConstraint->animator().setConstant(m_resultPainViewHeight);
    NSAnimationContext::endGrouping();

    resultButton->setEnabled(true);
}

void ViewController::showFailure(const std::string& description)
{
    resultButton->setAccessibilityHelp(description);
    showResult();
}

// Not before the pane is open: a key that was meant for something else would close it unread.
void ViewController::giveKeyboardToButton()
{
    view()->window()->enableKeyEquivalentForDefaultButton();
}

void ViewController::finish()
{
    assert(NSThread::isMainThread());
    if (!m_test) return closeWindow();
    resultButton->setEnabled(true);
    giveKeyboardToButton();
}

void ViewController::closeWindow()
{
    assert(NSThread::isMainThread());
    view()->window()->close();
}

void ViewController::resultButtonClicked(const NSView*) { closeWindow(); }
