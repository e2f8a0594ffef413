#pragma once

#include "support/LogFile.h"
#include "support/Tree.h"
#include "support/XServer.h"

#include <gtest/gtest.h>

// Runs of the real program on a real X server, on an empty machine.
class Installer : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    Installer()
    {
        removeTree("/Applications/quillbarn.app");
        clearLog();
    }

    static XServer& screen()
    {
        static XServer server;
        return server;
    }

    static Command command(const Lines& arguments)
    {
        return { .arguments = arguments, .environment = screen().environment() };
    }

    // Runs to the end without a person. The log of that run.
    static Lines run(const Lines& arguments)
    {
        clearLog();
        Program program(command(arguments));
        EXPECT_TRUE(program.waitForExit(60));
        expectOrderlyEnd(program);
        return readLog();
    }

    // Runs until the window waits, and presses its button. The log of that run.
    static Lines runAndPress(const Lines& arguments, const std::string& key = "Return")
    {
        clearLog();
        Program program(command(arguments));
        while (!program.waitForExit(0.1))
            screen().press(key);
        expectOrderlyEnd(program);
        return readLog();
    }

    static void expectOrderlyEnd(const Program& program)
    {
        EXPECT_EQ(program.exitStatus(), 0);
        EXPECT_EQ(program.standardOutput(), "");
        EXPECT_EQ(readLog().back(), "n installer exit");
    }
};
