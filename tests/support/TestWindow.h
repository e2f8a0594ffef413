#pragma once

#include "MainInterface.h"
#include "ViewController.h"
#include "support/Screen.h"

#include <AppKit/NSWindow.h>

enum class Start { normal, test };

// The window of the real interface file on the screen, with a controller that has started.
struct TestWindow {
    explicit TestWindow(Start start = Start::normal)
    {
        controller->m_test = start == Start::test;
        interface.connect(controller);
        interface.window()->makeKeyAndOrderFront();
    }

    const MainInterface interface;
    const std::shared_ptr<ViewController> controller = ViewController::initWithCoder(interface);
};

inline bool isPaneOpen(const ViewController& controller)
{
    return isPaneShown()
        && controller.resultPainView->bounds().size.height == controller.m_resultPainViewHeight;
}
