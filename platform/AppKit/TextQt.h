#pragma once

#include "ViewQt.h"

#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>

#include <QPlainTextEdit>

#include <string>

// The toolkit's text widget, which scrolls by itself, in rows. As long as it can't be seen it gets
// nothing, so that a line costs the same at any length of the text.
class TextQt : public ViewQt<QPlainTextEdit, NSTextField, NSScrollView> {
public:
    explicit TextQt(QWidget* parent);

    void setStringValue(std::string_view text) override;
    void appendString(std::string_view text) override;
    NSRect frame() const override { return { {}, { bounds().size.width, m_height } }; }
    void setFrame(const NSRect& frame) override { m_height = frame.size.height; }
    void sizeToFit() override { m_height = rows() * rowHeight(); }
    NSRect visibleRect() const override;
    void scrollPoint(NSPoint point) override;

    std::shared_ptr<NSTextField> documentView() const override { return m_documentView.lock(); }
    void setDocumentView(const std::shared_ptr<NSTextField>& view) override
    {
        m_documentView = view;
    }
    NSSize contentSize() const override;

private:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    void publish();
    void goTo(int row);
    int rows() const { return document()->lineCount(); }
    CGFloat rowHeight() const { return fontMetrics().lineSpacing(); }

    std::weak_ptr<NSTextField> m_documentView;
    std::string m_unpublished;
    CGFloat m_height = 0;
};
