#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A text that only grows, cut into rows no wider than a number of columns. Adding a line costs the
// same at any length of the text. Up to 4 GiB.
class TextRows {
public:
    const std::string& text() const { return m_text; }

    void clear();
    void append(std::string_view text);

    // Cuts the whole text anew. At least 2 columns, the width of the widest character.
    std::size_t columns() const { return m_columns; }
    void wrapAt(std::size_t columns);

    std::size_t count() const { return m_starts.size(); }

    // One row, without a line feed at its end.
    std::string_view row(std::size_t index) const;

    // The text of the rows from `first` to `last`, with its own line feeds and no others.
    std::string_view rows(std::size_t first, std::size_t last) const;

private:
    void cut(std::size_t from);
    std::size_t endOfRow(std::size_t start, std::size_t lineEnd) const;

    std::string m_text;
    std::vector<std::uint32_t> m_starts;
    std::size_t m_columns = 80;
};
