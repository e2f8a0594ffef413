#include "ViewController.h"

#include "Logger.h"

#include <AppKit/NSApplication.h>
#include <AppKit/NSButton.h>
#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSProgressIndicator.h>
#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>
#include <AppKit/NSWindow.h>
#include <Dispatch/DispatchQueue.h>

void ViewController::viewDidLoad()
{
    NSViewController::viewDidLoad();
    sharedLogger().log("installer start", Logger::LogLevel::normal);
    requireOutlets();
    prepareWindow();
    NSApplication::sharedApplication().activateIgnoringOtherApps();

    if (const std::optional<CommandLineOption> option = parseCommandLine()) {
        startTask(*option);
        return;
    }
    showMessage("invalid options");
    resultButton->setAccessibilityHelp("invalid options");
    showResult();
}

void ViewController::requireOutlets() const
{
    const auto require = [](const auto& outlet, const char* name) {
        if (outlet.get())
            return;
        sharedLogger().log(std::string("outlet not connected: ") + name, Logger::LogLevel::error);
        NSApplication::sharedApplication().terminate();
    };
    require(progressIndicator, "progressIndicator");
    require(resultPainView, "resultPainView");
    require(resultPainViewHeightConstraint, "resultPainViewHeightConstraint");
    require(resultTextScrollView, "resultTextScrollView");
    require(resultText, "resultText");
    require(resultButton, "resultButton");
}

void ViewController::prepareWindow()
{
    m_resultPainViewHeight = resultPainViewHeightConstraint->constant();
    progressIndicator->setMinValue(0.0);
    progressIndicator->setMaxValue(1.0);
    resultText->setStringValue("");
    resultTextScrollView->setDocumentView(resultText.get());
    resultButton->setEnabled(false);
    if (!m_test)
        resultPainViewHeightConstraint->setConstant(0.0);
}

void ViewController::startTask(const CommandLineOption& option)
{
    view()->window()->setTitle(textsOf(option.mode).title);
    // The task keeps the controller until it has run.
    const auto controller = self();
    switch (option.mode) {
    case Mode::install:
        DispatchQueue::global().async(
            [controller, path = option.path] { controller->installBundle(path); });
        break;
    case Mode::uninstall:
        DispatchQueue::global().async([controller] { controller->uninstallBundle(); });
        break;
    case Mode::unmount:
        progressIndicator->setDoubleValue(1.0);
        DispatchQueue::global().async(
            [controller, path = option.path] { controller->unmountDiskImage(path); });
        break;
    }
}
