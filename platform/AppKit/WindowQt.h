#pragma once

#include "ViewQt.h"

#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSWindow.h>

#include <QDialog>

class QPushButton;

// The window, its content view and the height constraint of its pane. Screen readers present it as
// a dialog. It owns its widgets, which are the views.
class WindowQt : public ViewQt<QDialog, NSView, NSWindow, NSLayoutConstraint>,
                 public std::enable_shared_from_this<WindowQt> {
public:
    // `pane` is the lowest part of the window. The window's close control always presses
    // `defaultButton`.
    void setPane(QWidget& pane, QPushButton& defaultButton);

    // Returns a reference, for an outlet, that keeps the window alive.
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

    CGFloat constant() const override { return m_constant; }
    void setConstant(CGFloat constant) override;

private:
    void animateConstant(CGFloat constant) override;
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;
    void resizeEvent(QResizeEvent* event) override;

    // Moves the window by the least distance at which it fits the screen with that size and its
    // frame. Returns `size`, reduced to the screen's.
    QSize makeRoom(QSize size);
    void fitScreen() { resize(makeRoom(size())); }

    std::shared_ptr<NSViewController> m_contentViewController;
    QPushButton* m_defaultButton = nullptr;
    QWidget* m_pane = nullptr;
    CGFloat m_constant = 0;
};
