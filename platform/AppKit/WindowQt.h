#pragma once

#include "ViewQt.h"

#include <AppKit/NSWindow.h>

#include <QDialog>

class QPushButton;

// The window and the view that fills it: a dialog to a screen reader, with the controls of a
// window. Its widgets are its views, and go with it.
class WindowQt : public ViewQt<QDialog, NSView, NSWindow>,
                 public std::enable_shared_from_this<WindowQt> {
public:
    // `button` is what Escape, once it is told to, and the window's own close control press.
    WindowQt() : ViewQt(nullptr, Qt::Window) {}
    void setDefaultButton(QPushButton& button) { m_defaultButton = &button; }

    // A view or constraint of this window, for an outlet.
    template <class Part> std::shared_ptr<Part> outlet(Part* part)
    {
        return { shared_from_this(), part };
    }

    std::shared_ptr<NSView> contentView() override { return shared_from_this(); }
    void setTitle(const std::string& title) override;
    void setContentViewController(std::shared_ptr<NSViewController> controller) override;
    void enableKeyEquivalentForDefaultButton() override;
    void makeKeyAndOrderFront() override;
    void orderFrontRegardless() override { activateWindow(); }
    void close() override { QDialog::reject(); }

private:
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

    std::shared_ptr<NSViewController> m_contentViewController;
    QPushButton* m_defaultButton = nullptr;
};
