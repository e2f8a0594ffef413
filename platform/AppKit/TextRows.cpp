#include "AppKit/TextRows.h"

#include <algorithm>

namespace {

bool beginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

// How many columns the character takes that begins with this byte of UTF-8: two where East Asian
// writing and pictures begin, one elsewhere.
std::size_t columnsOf(char byte)
{
    const auto lead = static_cast<unsigned char>(byte);
    const bool isWide = lead >= 0xE3 && lead != 0xEF;
    return beginsCharacter(byte) ? (isWide ? 2 : 1) : 0;
}

}

void TextRows::clear()
{
    m_text.clear();
    m_starts.clear();
}

void TextRows::append(std::string_view text)
{
    // A last line without a line feed goes on, and may be cut differently now.
    const std::size_t lineStart = m_text.rfind('\n') + 1;
    while (!m_starts.empty() && m_starts.back() >= lineStart)
        m_starts.pop_back();
    m_text += text;
    cut(lineStart);
}

void TextRows::wrapAt(std::size_t columns)
{
    m_columns = columns;
    m_starts.clear();
    cut(0);
}

std::string_view TextRows::row(std::size_t index) const
{
    std::string_view row = rows(index, index);
    if (row.ends_with('\n'))
        row.remove_suffix(1);
    return row;
}

std::string_view TextRows::rows(std::size_t first, std::size_t last) const
{
    const std::size_t end = last + 1 < count() ? m_starts[last + 1] : m_text.size();
    return std::string_view(m_text).substr(m_starts[first], end - m_starts[first]);
}

void TextRows::cut(std::size_t from)
{
    while (from < m_text.size()) {
        const std::size_t lineEnd = std::min(m_text.find('\n', from), m_text.size());
        while (from <= lineEnd) {
            m_starts.push_back(std::uint32_t(from));
            const std::size_t next = endOfRow(from, lineEnd);
            from = next < lineEnd ? next : lineEnd + 1;
        }
    }
}

// Behind the last blank or slash of a full row, unless that would leave the row half empty.
std::size_t TextRows::endOfRow(std::size_t start, std::size_t lineEnd) const
{
    if (lineEnd - start <= m_columns)
        return lineEnd;
    std::size_t columns = 0;
    std::size_t gap = start;
    for (std::size_t i = start; i < lineEnd; ++i) {
        columns += columnsOf(m_text[i]);
        if (columns > m_columns)
            return gap - start > (i - start) / 2 ? gap : i;
        if (m_text[i] == ' ' || m_text[i] == '/')
            gap = i + 1;
    }
    return lineEnd;
}
