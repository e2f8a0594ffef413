#include "Logger.h"
#include "support/LogFile.h"
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
    void TearDown() override { std::filesystem::remove_all(path); }

    const std::string path = "/tmp/quillbarninstaller.log";
};

}

TEST_F(LoggerTest, writesOneLineAnEntryAndEscapesLineFeeds)
{
    Logger logger(path);
    EXPECT_EQ(readFile(path), "");
    logger.log("a\r\nb\nc\rd\\", Level::normal);
    EXPECT_TRUE(std::regex_match(readFile(path),
        std::regex(R"(\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d )" + std::to_string(getpid())
            + R"( n a\\r\\nb\\nc\rd\\\n)")))
        << readFile(path);

    for (const Level level :
        { Level::information, Level::warning, Level::error, Level::debug, Level::trace })
        logger.log("", level);
    const auto entries = readLog();
    EXPECT_EQ(std::vector(entries.begin() + 1, entries.end()),
        (std::vector<std::string> { "i ", "w ", "e ", "d ", "t " }));
}

TEST_F(LoggerTest, endsAnEntryThatWasCutShortBeforeTheNext)
{
    std::signal(SIGXFSZ, SIG_IGN);
    Logger logger(path);
    logger.log("whole", Level::normal);
    rlimit usual {};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit full { readFile(path).size() + 10, usual.rlim_max };
    setrlimit(RLIMIT_FSIZE, &full);
    logger.log("cut short", Level::normal);
    logger.log("dropped", Level::normal);
    setrlimit(RLIMIT_FSIZE, &usual);
    logger.log("next", Level::normal);
    EXPECT_TRUE(std::regex_match(
        readFile(path), std::regex(R"([^\n]* n whole\n\d{4}/\d\d/\d\d\n[^\n]* n next\n)")))
        << readFile(path);
}

TEST_F(LoggerTest, dropsWhatComesAfterTheClose)
{
    Logger logger(path);
    std::thread task([&] {
        for (int i = 0; i < 1000; ++i)
            logger.log("entry", Level::debug);
    });
    logger.log("last", Level::normal);
    logger.close();
    const std::string content = readFile(path);
    task.join();
    logger.log("late", Level::normal);
    logger.close();
    EXPECT_EQ(readFile(path), content);
    EXPECT_NE(content.find(" n last\n"), std::string::npos);
}
