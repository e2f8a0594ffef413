#include "Foundation/NSString.h"

#include "support/Tree.h"

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

TEST(NSString, resolvesLinksAndLeavesWhatIsNotThere)
{
    const TemporaryFolder folder;
    makeFolder(folder / "a/b");
    makeLink(folder / "link", "a");
    EXPECT_EQ(NSString::stringByResolvingSymlinksInPath(folder / "link/b/"), folder / "a/b");
    EXPECT_EQ(NSString::stringByResolvingSymlinksInPath(folder / "link/c"), folder / "link/c");
}
