#include "support/Tree.h"

#include <Foundation/NSString.h>

#include <gtest/gtest.h>

TEST(NSString, aCharacterIsWhatAPersonSees)
{
    struct Case {
        const char* text;
        const char* first;
        const char* last;
    };
    for (const Case& c : {
             Case { "'", "'", "'" },
             Case { "'a'\u0301", "'", "'\u0301" },
             Case { "e\u0301x\r\n", "e\u0301", "\r\n" },
             Case { "\U0001F468\u200D\U0001F469x", "\U0001F468\u200D\U0001F469", "x" },
             Case { "\u0600'", "\u0600'", "\u0600'" },
             Case { "\xFF'", "\xFF", "'" },
             Case { "'\xE2\x80", "'", "\x80" },
             Case { "\uFFFD\xFF\uFFFD", "\uFFFD", "\uFFFD" },
         }) {
        EXPECT_EQ(NSString::firstCharacter(c.text), c.first) << c.text;
        EXPECT_EQ(NSString::lastCharacter(c.text), c.last) << c.text;
    }
}

TEST(NSString, findsCanonicallyEquivalentTextAndNoPartOfACharacter)
{
    struct Case {
        const char* text;
        const char* searched;
        int location; // -1: none
    };
    for (const Case& c : {
             Case { "/a/b", "/a/", 0 },
             Case { "/tmp/a/b", "/a/", 4 },
             Case { "\u00E9/\U0001F4BF/a/a", "/a", 7 },
             Case { "/a", "/a/", -1 },
             Case { "/A/b", "/a/", -1 },
             Case { "", "/", -1 },
             Case { "/", "", -1 },
             Case { "/e\u0301/b", "/\u00E9/", 0 },
             Case { "/\u00E9/b", "/e\u0301/", 0 },
             Case { "e\u0301/a/", "/a/", 3 },
             Case { "/\u1100\u1161/", "/\uAC00/", 0 },
             Case { "/a/\u0301b", "/a/", -1 },
             Case { "/a/\u0301/a/b", "/a/", 5 },
             Case { "e\u0301", "e", -1 },
             Case { "a\r\n", "\r", -1 },
             Case { "/\xFF/b", "/\xFF/", 0 },
             Case { "/\xFF/b", "/\xFE/", -1 },
             Case { "/\xFF/b", "/\uFFFD/", -1 },
             Case { "\xFF\xC3/a/", "/a/", 2 },
             Case { "/\xC3/b", "/\xC3\xA9/", -1 },
         }) {
        const auto location = NSString::rangeOfString(c.text, c.searched);
        EXPECT_EQ(location ? int(*location) : -1, c.location) << c.text << " " << c.searched;
    }
}

TEST(NSString, resolvesLinksAndLeavesWhatIsNotThere)
{
    const TemporaryFolder folder;
    makeFolder(folder / "a/b");
    makeLink(folder / "link", "a");
    EXPECT_EQ(NSString::stringByResolvingSymlinksInPath(folder / "link/b/"), folder / "a/b");
    EXPECT_EQ(NSString::stringByResolvingSymlinksInPath(folder / "link/c"), folder / "link/c");
}
