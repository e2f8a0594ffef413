#include "TextQt.h"

#include <QFontDatabase>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace {

// Characters of a file name that could forge lines or reorder the text of a message. LRI and PDI
// are not among them: some catalogues isolate names with them.
bool isUnsafe(QChar character)
{
    const uint code = character.unicode();
    return (code < 0x20 && code != '\n') || (code >= 0x7F && code < 0xA0)
        || (code >= 0x2028 && code <= 0x202E) || code == 0x2067 || code == 0x2068;
}

std::string escaped(std::string_view bytes)
{
    const QString text = QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
    QString result;
    for (const QChar* start = text.begin();;) {
        const QChar* const unsafe = std::find_if(start, text.end(), isUnsafe);
        result.append(start, unsafe - start);
        if (unsafe == text.end()) return result.toStdString();
        result += QStringLiteral("\\u%1").arg(unsafe->unicode(), 4, 16, QLatin1Char('0'));
        start = unsafe + 1;
    }
}

}

TextQt::TextQt(QWidget* parent) : ViewQt(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
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
    m_unpublished += escaped(text);
    if (isVisible()) publish();
}

// Withholds the last line feed until the next message: in the widget it would begin an empty line.
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

// The widget counts the rows of a long line when it lays the line out, so the end may move.
void TextQt::goTo(int row)
{
    QScrollBar& bar = *verticalScrollBar();
    const bool isEnd = row >= bar.maximum();
    bar.setValue(row);
    for (int end = -1; isEnd && end < bar.maximum();) {
        end = bar.maximum();
        bar.setValue(end);
        QResizeEvent unchanged(size(), size());
        QPlainTextEdit::resizeEvent(&unchanged); // counts the rows again
    }
}

void TextQt::showEvent(QShowEvent* event)
{
    ViewQt::showEvent(event);
    publish();
    moveCursor(QTextCursor::End);
    goTo(rows());
}

void TextQt::resizeEvent(QResizeEvent* event)
{
    const bool wasAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    ViewQt::resizeEvent(event);
    if (wasAtEnd) goTo(rows());
}
