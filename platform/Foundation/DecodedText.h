#pragma once

#include <QString>

#include <cstddef>
#include <string_view>

// Between the bytes of a path and Qt's text. A byte that is not part of valid UTF-8 becomes a lone
// low surrogate (0xFF: U+DCFF), which no valid text holds and which Qt keeps as it is, so that
// distinct bytes stay distinct.
QString decodedText(std::string_view bytes);

// The number of bytes from which a piece of decoded text was made.
std::size_t encodedSize(QStringView decoded);
