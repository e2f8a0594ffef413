#pragma once

#include <AppKit/NSView.h>

#include <memory>

class NSTextField;

// Shows a part of a text that may be larger than the view.
class NSScrollView : public NSView {
public:
    // The view that scrolls; nullptr before it is set and after it is destroyed. Unlike in AppKit,
    // always the text that the interface file contains in this view.
    virtual std::shared_ptr<NSTextField> documentView() const = 0;
    virtual void setDocumentView(const std::shared_ptr<NSTextField>& view) = 0;

    // The size of the visible part. Its height is a multiple of the row height.
    virtual NSSize contentSize() const = 0;
};
