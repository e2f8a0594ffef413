#include "TextQt.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

TextQt::TextQt(QPlainTextEdit& edit)
    : m_edit(edit)
{
    m_edit.installEventFilter(this);
    const QScrollBar* const bar = m_edit.verticalScrollBar();
    QObject::connect(bar, &QScrollBar::rangeChanged, this, [this] { settle(); });
    QObject::connect(bar, &QScrollBar::valueChanged, this,
        [this, bar](int value) { m_isAtEnd = value == bar->maximum(); });
}

void TextQt::setValue(std::string_view text)
{
    m_value.clear();
    m_lines = 0;
    m_published = 0;
    m_edit.clear();
    append(text);
}

void TextQt::append(std::string_view text)
{
    m_value += text;
    m_lines += int(std::ranges::count(text, '\n'));
    if (isSeen())
        publish();
}

// The line feed that ends the last line begins no new one in the widget.
void TextQt::publish()
{
    const std::size_t end = m_value.size() - (m_value.ends_with('\n') ? 1 : 0);
    if (end <= m_published)
        return;
    const auto added = std::string_view(m_value).substr(m_published, end - m_published);
    m_published = end;
    QTextCursor cursor(m_edit.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QString::fromUtf8(added.data(), qsizetype(added.size())));
}

int TextQt::rows() const
{
    return isSeen() ? m_edit.document()->lineCount() : m_lines;
}

int TextQt::rowHeight() const
{
    return m_edit.fontMetrics().lineSpacing();
}

int TextQt::visibleRows() const
{
    return isSeen() ? m_edit.verticalScrollBar()->pageStep() : 0;
}

int TextQt::firstVisibleRow() const
{
    return isSeen() ? m_edit.verticalScrollBar()->value() : m_firstRow;
}

void TextQt::scrollTo(int row)
{
    m_firstRow = row;
    m_isAtEnd = row >= rows() - visibleRows();
    settle();
}

void TextQt::settle()
{
    if (!isSeen())
        return;
    QScrollBar& bar = *m_edit.verticalScrollBar();
    bar.setValue(m_isAtEnd ? bar.maximum() : m_firstRow);
}

bool TextQt::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        publish();
        m_edit.moveCursor(QTextCursor::End);
        settle();
    }
    return QObject::eventFilter(watched, event);
}
