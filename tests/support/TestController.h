#pragma once

#include "controller/ViewController.h"
#include "resources/MainInterface.h"

// The controller with its inside turned out.
class TestController : public ViewController {
public:
    using NSViewController::initWithCoder;
    using ViewController::finish;
    using ViewController::m_resultPainViewHeight;
    using ViewController::m_test;
    using ViewController::Mode;
    using ViewController::parseCommandLine;
    using ViewController::setProgress;
    using ViewController::showMessage;
    using ViewController::showResult;
};

// The window of the real interface file on the screen, with a controller that has started.
struct TestWindow {
    TestWindow()
    {
        const NSCoder coder = openMainInterface();
        controller->initWithCoder(coder);
        connectMainInterface(coder, controller);
        window = coder.window();
        window->makeKeyAndOrderFront();
    }

    std::shared_ptr<NSWindow> window;
    std::shared_ptr<TestController> controller = std::make_shared<TestController>();
};
