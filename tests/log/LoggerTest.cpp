#include "Logger.h"
#include "support/Tree.h"

#include <csignal>
#include <gtest/gtest.h>
#include <regex>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

using Level = Logger::LogLevel;

class LoggerTest : public testing::Test {
protected:
    void expectContent(const std::string& pattern) const
    {
        const std::string content = readFile(path);
        EXPECT_TRUE(std::regex_match(content, std::regex(pattern))) << content;
    }

    const std::string path
        = std::string("/tmp/") + testing::UnitTest::GetInstance()->current_test_info()->name();
    Logger logger { path };
};

}

TEST_F(LoggerTest, writesOneLineAnEntryAndEscapesLineFeeds)
{
    expectContent("");
    std::string lines;
    for (const auto& [level, letter] :
        { std::pair { Level::information, 'i' }, { Level::normal, 'n' }, { Level::warning, 'w' },
            { Level::error, 'e' }, { Level::debug, 'd' }, { Level::trace, 't' } }) {
        logger.log("a\r\nb\n\nc\rd\\", level);
        lines += R"(\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d )" + std::to_string(getpid()) + ' ' + letter
            + R"( a\\r\\nb\\n\\nc\rd\\\n)";
    }
    expectContent(lines);
}

TEST_F(LoggerTest, endsAnEntryThatWasCutShortBeforeTheNext)
{
    std::signal(SIGXFSZ, SIG_IGN);
    logger.log("whole", Level::normal);
    const rlimit full { std::filesystem::file_size(path) + 10, RLIM_INFINITY };
    rlimit usual {};
    prlimit(0, RLIMIT_FSIZE, &full, &usual);
    logger.log("cut short", Level::normal);
    logger.log("dropped", Level::normal);
    setrlimit(RLIMIT_FSIZE, &usual);
    logger.log("next", Level::normal);
    expectContent(R"(.* n whole\n\d{4}/\d\d/\d\d\n.* n next\n)");
}

TEST_F(LoggerTest, dropsWhatComesAfterTheClose)
{
    std::thread task([&] {
        for (int i = 0; i < 1000; ++i)
            logger.log("entry", Level::debug);
    });
    logger.close();
    const std::string content = readFile(path);
    task.join();
    logger.log("late", Level::normal);
    EXPECT_EQ(readFile(path), content);
}
