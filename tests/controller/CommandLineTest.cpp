#include "CommandLine.h"

#include <gtest/gtest.h>

using Arguments = std::vector<std::string>;

TEST(CommandLine, FirstOptionDecides)
{
    const std::vector<std::tuple<Arguments, Mode, std::string>> options {
        { { "me", "-install2", "/p" }, Mode::unmount, "/p" },
        { { "'-uninstall'" }, Mode::uninstall, "" },
        { { "me", "-install", "-uninstall" }, Mode::install, "-uninstall" },
        { { "me", "-uninstall", "-install", "/p/" }, Mode::uninstall, "" },
        { { "me", "unknown", "", "-install", "/a", "/b" }, Mode::install, "/a" },
        { { "-install", "''/it's \xFF/''" }, Mode::install, "'/it's \xFF/'" },
        { { "-install", "'" }, Mode::install, "'" },
        { { "-install", "'/p/" }, Mode::install, "'/p/" },
        { { "-install", "/p/'" }, Mode::install, "/p/'" },
        { { "-install", "'\u0301/p/'" }, Mode::install, "'\u0301/p/'" },
        { { "-install", "'/p/\u0600'" }, Mode::install, "'/p/\u0600'" },
    };
    for (const auto& [arguments, mode, path] : options) {
        const auto option = parseCommandLine(arguments);
        ASSERT_TRUE(option) << testing::PrintToString(arguments);
        EXPECT_EQ(std::pair(option->mode, option->path), std::pair(mode, path));
    }
    for (const Arguments& arguments :
        { Arguments {}, { "me", "-install" }, { "-Install", "/p/" }, { "-installer", "/p/" } })
        EXPECT_FALSE(parseCommandLine(arguments)) << testing::PrintToString(arguments);
}
