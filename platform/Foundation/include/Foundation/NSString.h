#pragma once

#include <string_view>

// What the platform's strings can do and std::string can't. Text is UTF-8, and what isn't compares
// as bytes. Safe on any thread.
class NSString {
public:
    // Whether a text begins or ends with another, which is not empty. Canonically equivalent
    // characters are the same, and no part of a user-perceived character (extended grapheme
    // cluster) is found.
    static bool hasPrefix(std::string_view text, std::string_view prefix);
    static bool hasSuffix(std::string_view text, std::string_view suffix);
};
