#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the platform's strings can do and std::string can't. Text is UTF-8, and what isn't compares
// as bytes. Safe on any thread.
class NSString {
public:
    // Whether a text begins or ends with another, which is not empty. Canonically equivalent
    // characters are the same, and no part of a user-perceived character (extended grapheme
    // cluster) is found.
    static bool hasPrefix(std::string_view text, std::string_view prefix);
    static bool hasSuffix(std::string_view text, std::string_view suffix);

    // `format` with the arguments, which are any bytes, in the places %1 to %9, whatever their
    // order.
    static std::string stringWithFormat(
        const std::string& format, const std::vector<std::string>& arguments);
};

// The text `key`, which is English, in the language of the desktop, if a catalogue has it. Unlike
// in Foundation, the table that it is in comes first. Both are literals: the catalogues are made of
// those. Safe on any thread.
std::string NSLocalizedString(const char* table, const char* key);
