#include "support/XServer.h"

#include <stdexcept>

XServer::XServer()
    : m_server({ "Xvfb", { "-displayfd", "1", "-screen", "0", "800x600x24", "-nolisten", "tcp" } })
{
    // The server writes the number of its display when it is ready.
    while (!m_server.standardOutput().ends_with('\n')) {
        if (m_server.waitForExit(0.01))
            throw std::runtime_error("no X server");
    }
    const std::string number = m_server.standardOutput();
    m_display = "DISPLAY=:" + number.substr(0, number.size() - 1);
    m_windowManager = std::make_unique<Program>(Command { "openbox", {}, "/", { m_display } });
}

std::vector<std::string> XServer::environment() const
{
    return { m_display, "QT_QPA_PLATFORM=xcb" };
}

void XServer::press(const std::string& key) const
{
    Program xdotool({ "xdotool", { "key", key }, "/", { m_display } });
    if (!xdotool.waitForExit(20) || xdotool.exitStatus() != 0)
        throw std::runtime_error("xdotool failed");
}
