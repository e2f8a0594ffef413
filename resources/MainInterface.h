#pragma once

#include "InterfaceQt.h"

#include <memory>

class ViewController;

namespace Ui {
class MainInterface;
}

// The interface file: the window, its parts, and all that connects them to the program.
class MainInterface : public InterfaceQt {
public:
    // Nothing is connected yet.
    MainInterface();
    ~MainInterface();
    MainInterface(const MainInterface&) = delete;
    MainInterface& operator=(const MainInterface&) = delete;

    // The controller becomes the window's own and starts.
    void connect(const std::shared_ptr<ViewController>& controller) const;

private:
    const std::unique_ptr<Ui::MainInterface> m_ui;
};
