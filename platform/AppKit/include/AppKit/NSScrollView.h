#pragma once

#include <AppKit/NSView.h>

#include <memory>

class NSTextField;

// Shows the part of a text that fits.
class NSScrollView : public NSView {
public:
    // What scrolls; nullptr before it is set, and after it has gone. Unlike in AppKit, it is a
    // text, and the one that the interface file has put into this view.
    virtual std::shared_ptr<NSTextField> documentView() const = 0;
    virtual void setDocumentView(const std::shared_ptr<NSTextField>& view) = 0;

    // The size of the part that can be seen, in height as many whole rows of the text.
    virtual NSSize contentSize() const = 0;
};
