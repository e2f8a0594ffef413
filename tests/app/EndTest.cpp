#include "app/Installer.h"

#include <algorithm>
#include <csignal>
#include <filesystem>

namespace fs = std::filesystem;

// How a run can end before it is over, or be kept from it.
class InstallerEnd : public Installer {
protected:
    InstallerEnd()
    {
        for (int i = 0; i < files; ++i)
            writeFile(source / "quillbarn.app/" + std::to_string(i), content);
    }

    static std::size_t installedFiles()
    {
        const fs::path bundle("/Applications/quillbarn.app");
        return fs::exists(bundle) ? std::size_t(std::distance(fs::directory_iterator(bundle), {}))
                                  : 0;
    }

    static constexpr int files = 3000;
    const std::string content = std::string(5000, 'x');
    const TemporaryFolder source;
};

TEST_F(InstallerEnd, aSignalLeavesWholeFilesAndWholeLines)
{
    for (const int signal : { SIGTERM, SIGKILL }) {
        removeTree("/Applications/quillbarn.app");
        clearLog();
        Program program(command({ "-install", source.path() }));
        while (installedFiles() < 100)
            ASSERT_FALSE(program.waitForExit(0.001));
        program.sendSignal(signal);
        ASSERT_TRUE(program.waitForExit(10));
        EXPECT_EQ(program.exitStatus(), 128 + signal);

        EXPECT_LT(installedFiles(), std::size_t(files));
        for (const auto& [name, text] : readTree("/Applications/quillbarn.app"))
            EXPECT_EQ(text, content) << name;
        for (const std::string& line : readLog())
            EXPECT_FALSE(line.starts_with('?')) << line;
    }
}

TEST_F(InstallerEnd, nothingAPersonDoesClosesTheWindowWhileTheTaskRuns)
{
    Program program(command({ "-install", source.path() }));
    while (!program.waitForExit(0)) {
        for (const char* const key : { "Return", "Escape", "space" })
            screen().press(key);
        screen().closeWindow();
    }
    expectOrderlyEnd(program);
    EXPECT_EQ(readLog().end()[-2], "d completed");
    EXPECT_EQ(installedFiles(), std::size_t(files));
}

TEST_F(InstallerEnd, theCloseControlWorksOnceTheWindowWaits)
{
    Program program(command({ "-install" }));
    while (!program.waitForExit(0.1))
        screen().closeWindow();
    expectOrderlyEnd(program);
    EXPECT_EQ(readLog(), (Lines { "n installer start", "d invalid options", "n installer exit" }));
}

TEST_F(InstallerEnd, installersStartedTogetherKeepEveryLineOfEachOther)
{
    removeTree("/tmp/quillbarninstaller.log");
    constexpr int count = 6;
    std::vector<std::unique_ptr<Program>> programs;
    for (int i = 0; i < count; ++i)
        programs.push_back(std::make_unique<Program>(command({ "-uninstall" })));
    for (const auto& program : programs) {
        EXPECT_TRUE(program->waitForExit(60));
        EXPECT_EQ(program->exitStatus(), 0);
    }
    const Lines log = readLog();
    for (const char* const line : { "n installer start", "d uninstall ", "n uninstall bundle",
             "d completed", "n installer exit" })
        EXPECT_EQ(std::ranges::count(log, line), count) << line;
    EXPECT_EQ(log.size(), std::size_t(5 * count));
}

TEST_F(InstallerEnd, aFolderInTheLogsPlaceIsNoReasonNotToInstall)
{
    removeTree("/tmp/quillbarninstaller.log");
    makeFolder("/tmp/quillbarninstaller.log");
    Program program(command({ "-install", source.path() }));
    EXPECT_TRUE(program.waitForExit(60));
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(installedFiles(), std::size_t(files));
    removeTree("/tmp/quillbarninstaller.log");
}
