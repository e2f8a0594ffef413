#pragma once

#include "ViewQt.h"

#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>

#include <QPlainTextEdit>

#include <string>

// The toolkit's text widget, which scrolls by itself, in rows. It gets the text when it becomes
// visible; until then the time to append does not depend on the length of the text.
class TextQt : public ViewQt<QPlainTextEdit, NSTextField, NSScrollView> {
public:
    explicit TextQt(QWidget* parent);
    void setRows(int rows) { m_rows = rows; } // preferred height in rows; one is for the margins
    QSize sizeHint() const override { return { 400, int(m_rows * rowHeight()) }; }
    QSize minimumSizeHint() const override { return sizeHint() / 4; }

    void setStringValue(std::string_view text) override;
    void appendString(std::string_view text) override;
    NSRect frame() const override { return { {}, { bounds().size.width, rows() * rowHeight() } }; }
    void setFrame(const NSRect&) override {} // the widget fits the text by itself
    void sizeToFit() override {}
    NSRect visibleRect() const override;
    void scrollPoint(NSPoint point) override;

    std::shared_ptr<NSTextField> documentView() const override { return m_document.lock(); }
    void setDocumentView(const std::shared_ptr<NSTextField>& view) override { m_document = view; }
    NSSize contentSize() const override;

private:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    void publish();
    void goTo(int row);
    int rows() const { return document()->lineCount(); }
    CGFloat rowHeight() const { return fontMetrics().lineSpacing(); }

    std::weak_ptr<NSTextField> m_document;
    std::string m_unpublished;
    int m_rows = 0;
};
