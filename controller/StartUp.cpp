#include "ViewController.h"

#include "Logger.h"
#include "WindowReport.h"

#include <AppKit/NSApplication.h>
#include <AppKit/NSButton.h>
#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSProgressIndicator.h>
#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>
#include <Dispatch/DispatchQueue.h>

void ViewController::viewDidLoad()
{
    NSViewController::viewDidLoad();
    sharedLogger().log("installer start", Logger::LogLevel::normal);
    prepareWindow();
    NSApplication::sharedApplication().activateIgnoringOtherApps();

    if (const std::optional<CommandLineOption> option = parseCommandLine())
        return startTask(*option);
    showMessage("invalid options");
    showFailure("invalid options");
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

// The task keeps the controller until it has run.
void ViewController::startTask(const CommandLineOption& option)
{
    WindowReport report(self(), option.mode);
    report.begin();
    if (option.mode == Mode::unmount) progressIndicator->setDoubleValue(1.0);
    try {
        DispatchQueue::global().async([controller = self(), option] {
            switch (option.mode) {
            case Mode::install:
                return controller->installBundle(option.path);
            case Mode::uninstall:
                return controller->uninstallBundle();
            case Mode::unmount:
                return controller->unmountDiskImage(option.path);
            }
        });
    } catch (const NSError& error) {
        report.fail(error);
    }
}
