#include <Foundation/NSString.h>

#include <gtest/gtest.h>
#include <tuple>
#include <vector>

TEST(NSString, findsCanonicallyEquivalentTextAndNoPartOfACharacter)
{
    using Case = std::tuple<const char*, const char*, bool, bool>;
    for (const auto& [text, part, isPrefix, isSuffix] : std::vector<Case> {
             { "'", "'", true, true },
             { "'\u0301a\u0600'", "'", false, false },
             { "\xFF'", "'", false, true },
             { "'\xE2\x80", "'", true, false },
             { "/e\u0301/b", "/\u00E9/", true, false },
             { "/b\u00E9", "e\u0301", false, true },
             { "/\u1100\u1161/", "/\uAC00/", true, true },
             { "\xFF", "\uFFFD", false, false },
         }) {
        EXPECT_EQ(NSString::hasPrefix(text, part), isPrefix) << text << " " << part;
        EXPECT_EQ(NSString::hasSuffix(text, part), isSuffix) << text << " " << part;
    }
}
