#pragma once

#include <memory>
#include <vector>

class NSButton;
class NSView;
class NSViewController;
class QWidget;

// The window. It owns its widget, its views with their constraints, and its controller.
class NSWindow {
public:
    // Takes `widget` over.
    explicit NSWindow(QWidget* widget);
    ~NSWindow();
    NSWindow(const NSWindow&) = delete;
    NSWindow& operator=(const NSWindow&) = delete;

    // The window `widget` belongs to, or nullptr.
    static NSWindow* ofWidget(const QWidget* widget);

    // The view that fills the window.
    const std::shared_ptr<NSView>& contentView() const { return m_contentView; }

    // Keeps a view or constraint for as long as there is a window.
    void own(std::shared_ptr<void> part);

    // Makes the controller the window's own, and tells it that its view is loaded.
    void setContentViewController(std::shared_ptr<NSViewController> controller);

    // The button that Return, Escape and Space press. Unlike AppKit, the window's own close control
    // presses it, too: while the button is disabled, nothing a person does closes the window.
    void setDefaultButton(const std::shared_ptr<NSButton>& button);

    void makeKeyAndOrderFront();

    // Takes the window off the screen, whatever its button says. The application may end with it.
    void close();

private:
    std::unique_ptr<QWidget> m_widget;
    std::shared_ptr<NSView> m_contentView;
    std::vector<std::shared_ptr<void>> m_parts;
    std::shared_ptr<NSViewController> m_contentViewController;
};
