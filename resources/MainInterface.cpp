#include "AppKit/NSApplication.h"
#include "AppKit/NSButton.h"
#include "AppKit/NSCoder.h"
#include "AppKit/NSLayoutConstraint.h"
#include "AppKit/NSProgressIndicator.h"
#include "AppKit/NSScrollView.h"
#include "AppKit/NSTextField.h"
#include "app/AppDelegate.h"
#include "controller/ViewController.h"
#include "resources/Icon.h"

#include "ui_MainInterface.h"

#include <QFontDatabase>

namespace {

QWidget* buildWindow()
{
    auto* const window = new QWidget;
    Ui::MainInterface interface;
    interface.setupUi(window);
    interface.resultText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    window->setWindowIcon(installerIcon());
    return window;
}

}

// The connections between the interface file and the program, all of them.
std::shared_ptr<NSWindow> loadMainInterface(NSApplication& application)
{
    application.setDelegate(std::make_shared<AppDelegate>());

    const NSCoder coder(buildWindow());
    const auto controller = ViewController::initWithCoder(coder);
    controller->progressIndicator = coder.decode<NSProgressIndicator>("progressIndicator");
    controller->resultPainView = coder.decode<NSView>("resultPainView");
    controller->resultPainViewHeightConstraint = coder.decode<NSLayoutConstraint>("resultPainView");
    controller->resultTextScrollView = coder.decode<NSScrollView>("resultTextScrollView");
    controller->resultText = coder.decode<NSTextField>("resultText");

    const auto button = coder.decode<NSButton>("resultButton");
    controller->resultButton = button;
    button->setAction([weak = std::weak_ptr(controller)](NSView* sender) {
        if (const auto target = weak.lock())
            target->resultButtonClicked(sender);
    });

    const auto window = coder.window();
    window->setDefaultButton(button);
    window->setContentViewController(controller);
    return window;
}
