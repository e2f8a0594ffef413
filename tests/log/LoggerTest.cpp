#include "Logger.h"
#include "support/Tree.h"

#include <gtest/gtest.h>
#include <regex>
#include <sys/resource.h>
#include <thread>

using Level = Logger::LogLevel;

TEST(Logger, WritesOneLinePerEntry)
{
    const std::string path = "/tmp/lines";
    writeFile(path, "existing");
    Logger logger(path);
    std::string lines = "existing";
    for (int level = 0; level < 6; ++level) {
        logger.log("a\r\nb\n\nc\rd\\", Level(level));
        lines += R"(\d{4}/\d\d/\d\d-\d\d:\d\d:\d\d )" + std::to_string(getpid()) + ' '
            + "inwedt"[level] + R"( a\\r\\nb\\n\\nc\rd\\\n)";
    }
    signal(SIGXFSZ, SIG_IGN);
    const rlimit full { std::filesystem::file_size(path) + 10, RLIM_INFINITY };
    rlimit usual {};
    prlimit(0, RLIMIT_FSIZE, &full, &usual);
    logger.log("cut short", Level::normal);
    setrlimit(RLIMIT_FSIZE, &usual);
    logger.log("next", Level::normal);
    const std::regex expected(lines + R"(\d{4}/\d\d/\d\d\n.* n next\n)");
    EXPECT_TRUE(std::regex_match(readFile(path), expected)) << readFile(path);
}

TEST(Logger, KeepsEntriesOfThreads)
{
    const std::string path = "/tmp/entries";
    Logger logger(path);
    const auto logOften = [](Logger& log) {
        for (int i = 0; i < 500; ++i)
            log.log("entry", Level::debug);
    };
    Logger second(path); // like that of another process
    std::thread first(logOften, std::ref(logger));
    logOften(logger);
    logOften(second);
    first.join();
    std::istringstream lines(readFile(path));
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        EXPECT_TRUE(line.ends_with(" d entry") && line.size() < 50) << line;
    EXPECT_EQ(count, 1500);

    std::thread late(logOften, std::ref(logger));
    logger.close();
    const std::string content = readFile(path);
    late.join();
    logOften(logger);
    EXPECT_EQ(readFile(path), content);
}
