#pragma once

#include "WindowQt.h"

#include <AppKit/NSCoder.h>

class NSButton;
class NSLayoutConstraint;
class NSProgressIndicator;
class NSScrollView;
class NSTextField;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

// An interface file that was opened into the toolkit's widgets, and the views and constraints that
// speak for them, for whoever connects the file to the program. The window keeps all of them.
class InterfaceQt : public NSCoder {
public:
    InterfaceQt();

    // What the file is opened into.
    QDialog& dialog() const { return theWindow().dialog(); }

    std::shared_ptr<NSView> viewOf(QWidget* widget) const;
    std::shared_ptr<NSProgressIndicator> viewOf(QProgressBar* bar) const;
    std::shared_ptr<NSButton> viewOf(QPushButton* button) const;

    // Keeps the widget at the least height that the file gives it.
    std::shared_ptr<NSLayoutConstraint> heightConstraintOf(QWidget* widget) const;

    // The toolkit has one widget for both.
    struct Text {
        std::shared_ptr<NSTextField> field;
        std::shared_ptr<NSScrollView> scrollView;
    };
    Text textOf(QPlainTextEdit* edit) const;

private:
    WindowQt& theWindow() const { return static_cast<WindowQt&>(*window()); }
    template <class Part> std::shared_ptr<Part> keep(std::shared_ptr<Part> part) const
    {
        return theWindow().keep(std::move(part));
    }
};
