#pragma once

#include <memory>
#include <utility>

class NSWindow;

// An opened interface file.
class NSCoder {
public:
    explicit NSCoder(std::shared_ptr<NSWindow> window)
        : m_window(std::move(window))
    {
    }

    // The window it describes; nullptr where the file holds none.
    const std::shared_ptr<NSWindow>& window() const { return m_window; }

private:
    const std::shared_ptr<NSWindow> m_window;
};
