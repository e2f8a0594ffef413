#pragma once

#include <string>
#include <string_view>
#include <vector>

// Operations of the platform's strings that std::string lacks. Text is UTF-8; other bytes are
// compared literally. Safe on any thread.
class NSString {
public:
    // Return whether a text begins or ends with another, which is not empty. Canonically equivalent
    // characters are equal; a part of an extended grapheme cluster does not match.
    static bool hasPrefix(std::string_view text, std::string_view prefix);
    static bool hasSuffix(std::string_view text, std::string_view suffix);

    // Bytes that are not UTF-8 become U+FFFD.
    static std::string uppercaseString(const std::string& text);

    // Returns `format` with the arguments, which may be any bytes, in the places %1 to %9.
    static std::string stringWithFormat(
        const std::string& format, const std::vector<std::string>& arguments);
};

// Returns the text with the identifier `key` in the user's language, or `key` if no catalogue
// contains it. Unlike in Foundation, the table comes first. The catalogues are extracted from
// literal arguments; other keys are marked for the extraction. Safe on any thread.
std::string NSLocalizedString(const char* table, const char* key);
