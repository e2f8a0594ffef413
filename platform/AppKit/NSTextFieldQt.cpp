#include <AppKit/NSTextField.h>

#include "InterfaceQt.h"
#include "TextQt.h"
#include "ViewQt.h"

#include <AppKit/NSScrollView.h>

#include <cmath>

namespace {

class TextFieldQt : public ViewQt<NSTextField, QPlainTextEdit> {
public:
    TextFieldQt(QPlainTextEdit* edit, std::shared_ptr<TextQt> text)
        : ViewQt(edit)
        , m_text(std::move(text))
    {
    }

    const std::string& stringValue() const override { return m_text->value(); }
    void setStringValue(std::string_view text) override { m_text->setValue(text); }
    void appendString(std::string_view text) override { m_text->append(text); }

    NSRect frame() const override { return { {}, { bounds().size.width, m_height } }; }
    void setFrame(const NSRect& frame) override { m_height = frame.size.height; }
    void sizeToFit() override { m_height = CGFloat(m_text->rows()) * m_text->rowHeight(); }

    NSRect visibleRect() const override
    {
        const CGFloat height = m_text->rowHeight();
        return { { 0, m_text->firstVisibleRow() * height },
            { bounds().size.width, m_text->visibleRows() * height } };
    }

    void scrollPoint(NSPoint point) override
    {
        m_text->scrollTo(int(std::lround(point.y / m_text->rowHeight())));
    }

private:
    const std::shared_ptr<TextQt> m_text;
    CGFloat m_height = 0;
};

class ScrollViewQt : public ViewQt<NSScrollView, QPlainTextEdit> {
public:
    ScrollViewQt(QPlainTextEdit* edit, std::shared_ptr<TextQt> text)
        : ViewQt(edit)
        , m_text(std::move(text))
    {
    }

    std::shared_ptr<NSTextField> documentView() const override { return m_documentView.lock(); }
    void setDocumentView(const std::shared_ptr<NSTextField>& view) override
    {
        m_documentView = view;
    }

    NSSize contentSize() const override
    {
        return { CGFloat(widget().viewport()->width()),
            CGFloat(m_text->visibleRows()) * m_text->rowHeight() };
    }

private:
    const std::shared_ptr<TextQt> m_text;
    std::weak_ptr<NSTextField> m_documentView;
};

}

InterfaceQt::Text InterfaceQt::textOf(QPlainTextEdit* edit) const
{
    const auto text = std::make_shared<TextQt>(*edit);
    return { keep(std::make_shared<TextFieldQt>(edit, text)),
        keep(std::make_shared<ScrollViewQt>(edit, text)) };
}
