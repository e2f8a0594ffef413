#pragma once

#include "support/Program.h"

#include <memory>
#include <string>

// A real X server without a screen, with a window manager, and nobody but the test at it.
class XServer {
public:
    XServer();

    // What a program needs in its environment to show its windows there.
    std::vector<std::string> environment() const;

    // Presses and releases a key, named as X names it.
    void press(const std::string& key) const;

    // What the close control in the window's frame does.
    void closeWindow() const { press("alt+F4"); }

private:
    Program m_server;
    std::string m_display;
    std::unique_ptr<Program> m_windowManager;
};
