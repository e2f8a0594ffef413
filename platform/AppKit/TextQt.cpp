#include "TextQt.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>
#include <utility>

TextQt::TextQt(QPlainTextEdit& edit)
    : m_edit(edit)
{
    m_edit.installEventFilter(this);
    m_edit.viewport()->installEventFilter(this);
    const QScrollBar* const bar = m_edit.verticalScrollBar();
    QObject::connect(bar, &QScrollBar::rangeChanged, this, [this] { stayAtEnd(); });
    QObject::connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) {
        if (!m_isLayingOut)
            m_isAtEnd = value == bar->maximum();
    });
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
    if (!isSeen())
        return;
    m_edit.verticalScrollBar()->setValue(row);
    stayAtEnd();
}

void TextQt::stayAtEnd()
{
    if (isSeen() && m_isAtEnd)
        m_edit.verticalScrollBar()->setValue(m_edit.verticalScrollBar()->maximum());
}

// On the way to a new size the widget scrolls to and fro, which nobody asked it to.
void TextQt::awaitLayout()
{
    if (!std::exchange(m_isLayingOut, true))
        QTimer::singleShot(0, this, [this] {
            m_isLayingOut = false;
            // The rows of a line are known once it is laid out, and the widget counts them before.
            auto& layout = *m_edit.document()->documentLayout();
            Q_EMIT layout.documentSizeChanged(layout.documentSize());
            stayAtEnd();
        });
}

bool TextQt::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        awaitLayout();
    if (watched == &m_edit && event->type() == QEvent::Show) {
        publish();
        m_edit.moveCursor(QTextCursor::End);
        scrollTo(m_isAtEnd ? rows() : m_firstRow);
    }
    return QObject::eventFilter(watched, event);
}
