#include <Foundation/NSString.h>

#include <gtest/gtest.h>

TEST(NSString, findsCanonicallyEquivalentTextAndNoPartOfACharacter)
{
    struct Case {
        const char* text;
        const char* part;
        bool isPrefix;
        bool isSuffix = false;
    };
    for (const Case& c : {
             Case { "'", "'", true, true },
             Case { "'a'\u0301", "'", true, false },
             Case { "\u0301'a'", "'", false, true },
             Case { "\u0600'", "'", false, false },
             Case { "\xFF'", "'", false, true },
             Case { "'\xE2\x80", "'", true, false },
             Case { "/a/b", "/a/", true },
             Case { "/tmp/a/", "/a/", false, true },
             Case { "/a", "/a/", false },
             Case { "/A/b", "/a/", false },
             Case { "", "/", false },
             Case { "/e\u0301/b", "/\u00E9/", true },
             Case { "/\u00E9/b", "/e\u0301/", true },
             Case { "/\u1100\u1161/", "/\uAC00/", true, true },
             Case { "/a/\u0301b", "/a/", false },
             Case { "a\r\n", "\n", false, false },
             Case { "/\xFF/b", "/\xFF/", true },
             Case { "/\xFF/b", "/\xFE/", false },
             Case { "/\xFF/b", "/\uFFFD/", false },
             Case { "/\xC3/b", "/\xC3\xA9/", false },
         }) {
        EXPECT_EQ(NSString::hasPrefix(c.text, c.part), c.isPrefix) << c.text << " " << c.part;
        EXPECT_EQ(NSString::hasSuffix(c.text, c.part), c.isSuffix) << c.text << " " << c.part;
    }
}
