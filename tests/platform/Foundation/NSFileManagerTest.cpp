#include "support/Tree.h"

#include <Foundation/NSFileManager.h>

#include <gtest/gtest.h>

TEST(NSFileManager, creatingAFileThatIsThereKeepsIt)
{
    const NSFileManager& files = NSFileManager::defaultManager();
    const TemporaryFolder folder;
    writeFile(folder / "file", "content");
    EXPECT_TRUE(files.createFileAtPath(folder / "file"));
    EXPECT_EQ(readFile(folder / "file"), "content");
    EXPECT_FALSE(files.createFileAtPath(folder / "missing/file"));

    makeLink(folder / "dangling", "missing/file");
    EXPECT_TRUE(files.createFileAtPath(folder / "dangling"));
    EXPECT_EQ(readTree(folder.path()).at("dangling"), "");
}

TEST(NSFileManager, whatCannotBeLookedAtIsNotAbsent)
{
    const TemporaryFolder folder;
    makeFolder(folder / "folder");
    writeFile(folder / "file");
    makeLink(folder / "dangling", "nowhere");
    makeLink(folder / "circle", "circle");
    const NSFileManager own;
    for (const NSFileManager* const files : { &NSFileManager::defaultManager(), &own }) {
        bool isDirectory = false;
        NSError error;
        EXPECT_EQ(files->fileExistsAtPath(folder / "folder", isDirectory, &error), true);
        EXPECT_TRUE(isDirectory);
        EXPECT_EQ(files->fileExistsAtPath(folder / "folder/../file", isDirectory, &error), true);
        EXPECT_FALSE(isDirectory);
        for (const char* const path :
            { "missing", "missing/file", "file/in it", "dangling", "circle" })
            EXPECT_EQ(files->fileExistsAtPath(folder / path, &error), false) << path;
        EXPECT_EQ(error.localizedDescription(), "");

        const std::string path = folder / "folder/" + std::string(300, 'x');
        EXPECT_EQ(files->fileExistsAtPath(path, &error), std::nullopt);
        EXPECT_EQ(error.localizedDescription(),
            "“" + path
                + "” couldn’t be looked at because its name or path is too long (File name too "
                  "long).");
    }
}

TEST(NSFileManager, aManagerOfOnesOwnGoesDownAndUpADeepTree)
{
    const TemporaryFolder folder;
    std::string path = folder / "";
    const NSFileManager files;
    std::vector<std::string> paths;
    for (int depth = 0; depth < 400; ++depth) {
        path += "d/";
        paths.push_back(path);
        makeFolder(path);
        writeFile(path + std::to_string(depth));
    }
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = 0; i < paths.size(); ++i)
            EXPECT_EQ(files.fileExistsAtPath(paths[i] + std::to_string(i), nullptr), true) << i;
        for (std::size_t i = paths.size(); i-- > 0;)
            EXPECT_EQ(files.fileExistsAtPath(paths[i] + std::to_string(i), nullptr), true) << i;
    }
    EXPECT_EQ(files.contentsOfDirectoryAtPath(paths.back(), nullptr)->size(), 1u);
}
