#pragma once

#include <optional>
#include <string>
#include <string_view>

// What the platform's strings can do and std::string can't. Text is UTF-8; bytes that are not
// UTF-8 stand for themselves. Safe on any thread.
class NSString {
public:
    // The user-perceived character (extended grapheme cluster) with which a non-empty text begins,
    // and the one with which it ends.
    static std::string_view firstCharacter(std::string_view text);
    static std::string_view lastCharacter(std::string_view text);

    // Where in `text` the first occurrence of `searched` begins, in bytes. Canonically equivalent
    // characters are the same, and no part of a character is found; an empty text isn't, either.
    // Unlike in Foundation, the end of the occurrence is not told.
    static std::optional<std::size_t> rangeOfString(
        std::string_view text, std::string_view searched);

    // `path` with all links in it followed, or as it stands where nothing is there.
    static std::string stringByResolvingSymlinksInPath(const std::string& path);
};
