#pragma once

#include <AppKit/NSWindow.h>

#include <QDialog>

#include <memory>
#include <vector>

class WindowQt : public NSWindow {
public:
    WindowQt();
    ~WindowQt() override;

    QDialog& dialog() const { return *m_dialog; }

    // The window a widget belongs to, or nullptr.
    static NSWindow* ofWidget(const QWidget& widget);

    // Keeps a view or constraint for as long as there is a window.
    template <class Part> std::shared_ptr<Part> keep(std::shared_ptr<Part> part)
    {
        m_parts.push_back(part);
        return part;
    }

    std::shared_ptr<NSView> contentView() const override { return m_contentView; }
    void setTitle(const std::string& title) override;
    void setContentViewController(std::shared_ptr<NSViewController> controller) override;
    void setDefaultButton(const std::shared_ptr<NSButton>& button) override;
    void enableKeyEquivalentForDefaultButton() override;
    void makeKeyAndOrderFront() override;
    void close() override;

private:
    class DefaultButton;

    const std::unique_ptr<QDialog> m_dialog;
    const std::shared_ptr<NSView> m_contentView;
    std::vector<std::shared_ptr<void>> m_parts;
    std::shared_ptr<NSViewController> m_contentViewController;
    DefaultButton* m_defaultButton = nullptr; // the dialog's
};
