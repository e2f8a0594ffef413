#include "controller/ViewController.h"

#include "AppKit/NSApplication.h"
#include "AppKit/NSButton.h"
#include "AppKit/NSLayoutConstraint.h"
#include "AppKit/NSProgressIndicator.h"
#include "AppKit/NSScrollView.h"
#include "AppKit/NSTextField.h"
#include "Dispatch/DispatchQueue.h"
#include "log/Logger.h"

void ViewController::viewDidLoad()
{
    NSViewController::viewDidLoad();
    sharedLogger().log("installer start", Logger::LogLevel::normal);
    prepareWindow();
    NSApplication::sharedApplication().activateIgnoringOtherApps();

    const std::optional<CommandLineOption> option = parseCommandLine();
    if (!option) {
        showMessage("invalid options");
        showResult();
        return;
    }
    startTask(*option);
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
