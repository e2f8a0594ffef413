#pragma once

#include "AppKit/NSView.h"

#include <memory>

class NSTextField;
class QFrame;

// Shows the part of a text that fits.
class NSScrollView : public NSView {
public:
    explicit NSScrollView(QWidget* widget);

    // What scrolls; nullptr before it is set, and after it has gone. Unlike in AppKit, it is a
    // text.
    std::shared_ptr<NSTextField> documentView() const { return m_documentView.lock(); }
    void setDocumentView(const std::shared_ptr<NSTextField>& view);

    // The size of the part that can be seen.
    NSSize contentSize() const;

private:
    QFrame* const m_frame;
    std::weak_ptr<NSTextField> m_documentView;
};
