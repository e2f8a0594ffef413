#pragma once

#include "controller/ViewController.h"
#include "resources/MainInterface.h"

// The controller with its inside turned out.
class TestController : public ViewController {
public:
    using NSViewController::initWithCoder;
    using ViewController::applicationDir;
    using ViewController::bundleDir;
    using ViewController::closeWindow;
    using ViewController::CommandLineOption;
    using ViewController::File;
    using ViewController::finish;
    using ViewController::getFiles;
    using ViewController::installBundle;
    using ViewController::m_ejectLoop;
    using ViewController::m_resultPainViewHeight;
    using ViewController::m_test;
    using ViewController::Mode;
    using ViewController::parseCommandLine;
    using ViewController::removeBundle;
    using ViewController::setProgress;
    using ViewController::showMessage;
    using ViewController::showResult;
    using ViewController::TopDirectory;
    using ViewController::uninstallBundle;
};

// The window of the real interface file on the screen, with a controller that has started.
struct TestWindow {
    explicit TestWindow(bool test = false)
        : TestWindow(openMainInterface(), test)
    {
    }

    TestWindow(const NSCoder& coder, bool test)
        : window(coder.window())
    {
        controller->m_test = test;
        controller->initWithCoder(coder);
        connectMainInterface(coder, controller);
        window->makeKeyAndOrderFront();
    }

    const std::shared_ptr<NSWindow> window;
    const std::shared_ptr<TestController> controller = std::make_shared<TestController>();
};
