#include "ViewController.h"
#include "fakes/FoundationFake.h"
#include "support/LogFile.h"

#include <gtest/gtest.h>

TEST(CommandLine, theFirstOptionDecidesWithoutItsPairOfSingleQuotes)
{
    // With what is told of it in the log: nothing, if the arguments are invalid.
    const std::vector<std::pair<Lines, Lines>> cases {
        { { "me", "-install2", "/p" }, { "d unmount /p" } },
        { { "'-uninstall'" }, { "d uninstall " } },
        { { "me", "-install", "-uninstall" }, { "d install -uninstall" } },
        { { "me", "-uninstall", "-install", "/p/" }, { "d uninstall " } },
        { { "me", "unknown", "", "-install", "/a", "/b" }, { "d install /a" } },
        { { "me", "-install", "''/it's \xFF/''" }, { "d install '/it's \xFF/'" } },
        { { "me", "-install", "'" }, { "d install '" } },
        { { "me", "-install", "''" }, { "d install " } },
        { { "me", "-install", "'/p/" }, { "d install '/p/" } },
        { { "me", "-install", "/p/'" }, { "d install /p/'" } },
        { { "me", "-install", "'\u0301/p/'" }, { "d install '\u0301/p/'" } },
        { { "me", "-install", "'/p/\u0600'" }, { "d install '/p/\u0600'" } },
        { {}, {} },
        { { "me", "-install" }, {} },
        { { "me", "-Install", "/p/" }, {} },
        { { "me", "-installer", "/p/" }, {} },
    };
    for (const auto& [arguments, log] : cases) {
        clearLog();
        foundation.arguments = arguments;
        ViewController::initWithNibName("MainInterface", nullptr)->parseCommandLine();
        EXPECT_EQ(readLog(), log) << testing::PrintToString(arguments);
    }
}
