#include "resources/MainInterface.h"

#include "AppKit/NSApplication.h"
#include "AppKit/NSButton.h"
#include "AppKit/NSLayoutConstraint.h"
#include "AppKit/NSProgressIndicator.h"
#include "AppKit/NSScrollView.h"
#include "AppKit/NSTextField.h"
#include "app/AppDelegate.h"
#include "controller/ViewController.h"
#include "resources/Icon.h"

#include "ui_MainInterface.h"

#include <QFontDatabase>

NSCoder openMainInterface()
{
    auto* const window = new QWidget;
    Ui::MainInterface interface;
    interface.setupUi(window);
    interface.resultText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    window->setWindowIcon(installerIcon());
    return NSCoder(window);
}

void connectMainInterface(const NSCoder& coder, const std::shared_ptr<ViewController>& controller)
{
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

    coder.window()->setDefaultButton(button);
    coder.window()->setContentViewController(controller);
}

std::shared_ptr<NSWindow> loadMainInterface(NSApplication& application)
{
    application.setDelegate(std::make_shared<AppDelegate>());
    const NSCoder coder = openMainInterface();
    connectMainInterface(coder, ViewController::initWithCoder(coder));
    return coder.window();
}
