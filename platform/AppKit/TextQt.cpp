#include "TextQt.h"

#include <QFontDatabase>
#include <QResizeEvent>
#include <QScrollBar>

#include <cmath>

namespace {

constexpr int leastHeight = 40; // points

}

TextQt::TextQt(QWidget* parent) : ViewQt(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setMinimumHeight(leastHeight);
    QTextOption option = document()->defaultTextOption();
    option.setAlignment(isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    document()->setDefaultTextOption(option);
}

void TextQt::setStringValue(std::string_view text)
{
    clear();
    m_unpublished.clear();
    appendString(text);
}

void TextQt::appendString(std::string_view text)
{
    m_unpublished += text;
    if (isVisible()) publish();
}

// The line feed that ends the last line waits for the next: in the widget it would begin one.
void TextQt::publish()
{
    const std::size_t end = m_unpublished.size() - (m_unpublished.ends_with('\n') ? 1 : 0);
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QString::fromUtf8(m_unpublished.data(), qsizetype(end)));
    m_unpublished.erase(0, end);
}

NSRect TextQt::visibleRect() const
{
    return { { 0, verticalScrollBar()->value() * rowHeight() }, contentSize() };
}

NSSize TextQt::contentSize() const
{
    return { CGFloat(viewport()->width()), verticalScrollBar()->pageStep() * rowHeight() };
}

void TextQt::scrollPoint(NSPoint point) { goTo(int(std::lround(point.y / rowHeight()))); }

// The rows of a line are known once it is laid out, and by then there may be more of them.
void TextQt::goTo(int row)
{
    QScrollBar& bar = *verticalScrollBar();
    const bool isEnd = row >= bar.maximum();
    bar.setValue(row);
    for (int end = -1; isEnd && end < bar.maximum();) {
        end = bar.maximum();
        bar.setValue(end);
        QResizeEvent unchanged(size(), size());
        QPlainTextEdit::resizeEvent(&unchanged); // counts again
    }
}

void TextQt::showEvent(QShowEvent* event)
{
    ViewQt::showEvent(event);
    publish();
    moveCursor(QTextCursor::End);
    goTo(rows());
    sizeToFit();
}

void TextQt::resizeEvent(QResizeEvent* event)
{
    const bool wasAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    ViewQt::resizeEvent(event);
    if (wasAtEnd) goTo(rows());
    sizeToFit();
}
