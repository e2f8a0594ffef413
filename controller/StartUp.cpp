#include "ViewController.h"

#include "Logger.h"
#include "WindowReport.h"

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
    if (option.mode == Mode::unmount)
        progressIndicator->setDoubleValue(1.0);
    try {
        DispatchQueue::global().async(taskOf(option));
    } catch (const NSError& error) {
        WindowReport(self(), option.mode).fail(error);
    }
}

// The task keeps the controller until it has run.
std::function<void()> ViewController::taskOf(const CommandLineOption& option)
{
    switch (option.mode) {
    case Mode::install:
        return [controller = self(), path = option.path] { controller->installBundle(path); };
    case Mode::uninstall:
        return [controller = self()] { controller->uninstallBundle(); };
    case Mode::unmount:
        return [controller = self(), path = option.path] { controller->unmountDiskImage(path); };
    }
    return nullptr;
}
