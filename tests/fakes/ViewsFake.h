#pragma once

#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>

#include <optional>

// A text and its scroll view of any size, that write down what is done to them.

template <class View> class ViewFake : public View {
public:
    NSRect bounds() const override { return { {}, { 77, 0 } }; }
    NSWindow* window() const override { return nullptr; }
    void setAccessibilityHelp(const std::string&) override {}
};

class TextFieldFake : public ViewFake<NSTextField> {
public:
    CGFloat heightWhenFitted = 0;
    NSRect visible;
    std::vector<std::string> calls;
    std::optional<NSPoint> scrolledTo;

    const std::string& stringValue() const override { return m_text; }
    void setStringValue(std::string_view text) override { m_text = text; }
    void appendString(std::string_view text) override
    {
        m_text += text;
        calls.emplace_back("append");
    }
    NSRect frame() const override { return m_frame; }
    void setFrame(const NSRect& frame) override
    {
        m_frame = frame;
        calls.emplace_back("frame");
    }
    void sizeToFit() override
    {
        m_frame.size.height = heightWhenFitted;
        calls.emplace_back("fit");
    }
    NSRect visibleRect() const override { return visible; }
    void scrollPoint(NSPoint point) override
    {
        scrolledTo = point;
        calls.emplace_back("scroll");
    }

private:
    std::string m_text;
    NSRect m_frame;
};

class ScrollViewFake : public ViewFake<NSScrollView> {
public:
    NSSize content;

    std::shared_ptr<NSTextField> documentView() const override { return m_view; }
    void setDocumentView(const std::shared_ptr<NSTextField>& view) override { m_view = view; }
    NSSize contentSize() const override { return content; }

private:
    std::shared_ptr<NSTextField> m_view;
};
