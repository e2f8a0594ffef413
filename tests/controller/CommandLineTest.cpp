#include "ViewController.h"
#include "fakes/NSProcessInfoFake.h"
#include "support/LogFile.h"

#include <gtest/gtest.h>

namespace {

using Mode = ViewController::Mode;

struct Case {
    std::vector<std::string> arguments;
    std::optional<Mode> mode; // none: the options are invalid
    std::string path;
};

void expectOption(const Case& c, bool test = false)
{
    const std::string shown = testing::PrintToString(c.arguments);
    clearLog();
    setArguments(c.arguments);
    const auto controller = ViewController::initWithNibName("MainInterface", nullptr);
    controller->m_test = test;
    const auto option = controller->parseCommandLine();

    ASSERT_EQ(option.has_value(), c.mode.has_value()) << shown;
    if (!option) {
        EXPECT_TRUE(readLog().empty()) << shown;
        return;
    }
    EXPECT_EQ(option->mode, *c.mode) << shown;
    EXPECT_EQ(option->path, c.path) << shown;
    const std::map<Mode, std::string> names { { Mode::install, "install" },
        { Mode::uninstall, "uninstall" }, { Mode::unmount, "unmount" } };
    EXPECT_EQ(readLog(), std::vector { "d " + names.at(*c.mode) + " " + c.path }) << shown;
}

}

TEST(CommandLine, theFirstOptionDecides)
{
    for (const Case& c : {
             Case { { "me", "-install", "/p/" }, Mode::install, "/p/" },
             Case { { "me", "-install2", "/p" }, Mode::unmount, "/p" },
             Case { { "me", "-uninstall" }, Mode::uninstall, "" },
             Case { { "me", "-install", "-uninstall" }, Mode::install, "-uninstall" },
             Case { { "me", "-uninstall", "-install", "/p/" }, Mode::uninstall, "" },
             Case { { "me", "-install", "-install", "/p/" }, Mode::install, "-install" },
             Case { { "me", "unknown", "", "-install", "/p/" }, Mode::install, "/p/" },
             Case { { "me", "-install", "" }, Mode::install, "" },
             Case { { "me", "-install", "/not \xFF UTF-8/" }, Mode::install, "/not \xFF UTF-8/" },
             Case { { "me", "\uFEFF", "-install", "\uFEFF/p/" }, Mode::install, "\uFEFF/p/" },
             Case { { "'-uninstall'" }, Mode::uninstall, "" },
         })
        expectOption(c);
}

TEST(CommandLine, onePairOfSingleQuotesComesOff)
{
    for (const Case& c : {
             Case { { "me", "'-install'", "'/a b/'" }, Mode::install, "/a b/" },
             Case { { "me", "-install", "''/it's/''" }, Mode::install, "'/it's/'" },
             Case { { "me", "-install", "'" }, Mode::install, "'" },
             Case { { "me", "-install", "''" }, Mode::install, "" },
             Case { { "me", "-install", "'/p/" }, Mode::install, "'/p/" },
             Case { { "me", "-install", "/p/'" }, Mode::install, "/p/'" },
             Case { { "me", "-install", "'/p/'\u0301" }, Mode::install, "'/p/'\u0301" },
             Case { { "me", "-install", "'\u0301/p/'" }, Mode::install, "'\u0301/p/'" },
             Case { { "me", "-install", "'\xFF'" }, Mode::install, "\xFF" },
         })
        expectOption(c);
}

TEST(CommandLine, anythingElseIsNoOption)
{
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>> { {},
             { "me" }, { "me", "-install" }, { "me", "-install2" }, { "me", "-Install", "/p/" },
             { "me", "--install", "/p/" }, { "me", "-install=/p/" }, { "me", "-installer", "/p/" },
             { "me", "'-install", "/p/" }, { "me", "-uninstall\u0301" } })
        expectOption({ arguments, {}, {} });
}

TEST(CommandLine, theTestSwitchOverridesIt)
{
    const std::string path = "/Volumes/quillbarn installer/quillbarn.app";
    expectOption({ { "me", "-uninstall" }, Mode::unmount, path }, true);
    expectOption({ {}, Mode::unmount, path }, true);
}
