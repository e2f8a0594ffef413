#include "ViewController.h"
#include "fakes/FoundationFake.h"
#include "support/LogFile.h"

#include <gtest/gtest.h>

TEST(CommandLine, theFirstOptionDecidesWithoutItsPairOfSingleQuotes)
{
    const std::string image = "/Volumes/quillbarn installer/quillbarn.app";
    struct Case {
        std::vector<std::string> arguments;
        std::string told; // mode and path; none: the options are invalid
        bool test = false;
    };
    for (const Case& c : {
             Case { { "me", "-install", "/p/" }, "install /p/" },
             Case { { "me", "-install2", "/p" }, "unmount /p" },
             Case { { "me", "-uninstall" }, "uninstall " },
             Case { { "me", "-install", "-uninstall" }, "install -uninstall" },
             Case { { "me", "-uninstall", "-install", "/p/" }, "uninstall " },
             Case { { "me", "-install", "-install", "/p/" }, "install -install" },
             Case { { "me", "unknown", "", "-install", "/p/" }, "install /p/" },
             Case { { "me", "-install", "" }, "install " },
             Case { { "me", "-install", "/not \xFF UTF-8/" }, "install /not \xFF UTF-8/" },
             Case { { "me", "\uFEFF", "-install", "\uFEFF/p/" }, "install \uFEFF/p/" },
             Case { { "'-uninstall'" }, "uninstall " },
             Case { { "me", "'-install'", "'/a b/'" }, "install /a b/" },
             Case { { "me", "-install", "''/it's/''" }, "install '/it's/'" },
             Case { { "me", "-install", "'" }, "install '" },
             Case { { "me", "-install", "''" }, "install " },
             Case { { "me", "-install", "'/p/" }, "install '/p/" },
             Case { { "me", "-install", "/p/'" }, "install /p/'" },
             Case { { "me", "-install", "'\u0301/p/'" }, "install '\u0301/p/'" },
             Case { {}, "" },
             Case { { "me", "-install" }, "" },
             Case { { "me", "-install2" }, "" },
             Case { { "me", "-Install", "/p/" }, "" },
             Case { { "me", "--install", "/p/" }, "" },
             Case { { "me", "-install=/p/" }, "" },
             Case { { "me", "-installer", "/p/" }, "" },
             Case { { "me", "'-install", "/p/" }, "" },
             Case { { "me", "-uninstall\u0301" }, "" },
             Case { { "me", "-uninstall" }, "unmount " + image, true },
             Case { {}, "unmount " + image, true },
         }) {
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        clearLog();
        foundation.arguments = c.arguments;
        const auto controller = ViewController::initWithNibName("MainInterface", nullptr);
        controller->m_test = c.test;
        std::string told;
        if (const auto option = controller->parseCommandLine()) {
            static const char* const names[] { "install ", "uninstall ", "unmount " };
            told = names[std::size_t(option->mode)] + option->path;
        }
        EXPECT_EQ(told, c.told);
        EXPECT_EQ(readLog(), c.told.empty() ? Lines {} : Lines { "d " + c.told });
    }
}
