#include "support/Tree.h"

#include <Foundation/NSError.h>
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
    std::filesystem::create_directories(folder / "folder");
    writeFile(folder / "file");
    makeLink(folder / "dangling", "nowhere");
    makeLink(folder / "circle", "circle");
    const NSFileManager& files = NSFileManager::defaultManager();
    bool isDirectory = false;
    const auto folderItself = files.fileExistsAtPath(folder / "folder", isDirectory);
    EXPECT_TRUE(folderItself && isDirectory);
    EXPECT_EQ(files.fileExistsAtPath(folder / "folder/.", isDirectory), folderItself);
    EXPECT_NE(files.fileExistsAtPath(folder / "folder/../file", isDirectory), folderItself);
    EXPECT_FALSE(isDirectory);
    for (const char* const path : { "missing", "missing/file", "file/in it", "dangling", "circle" })
        EXPECT_FALSE(files.fileExistsAtPath(folder / path)) << path;

    const std::string path = folder / "folder/" + std::string(300, 'x');
    try {
        FAIL() << files.fileExistsAtPath(path);
    } catch (const NSError& error) {
        EXPECT_EQ(error.localizedDescription(),
            "“" + path
                + "” couldn’t be looked at because its name or path is too long (File name too "
                  "long).");
    }
}

TEST(NSFileManager, resolvesLinksAndLeavesWhatIsNotThere)
{
    const NSFileManager& files = NSFileManager::defaultManager();
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder / "a/b");
    makeLink(folder / "link", "a");
    EXPECT_EQ(files.stringByResolvingSymlinksInPath(folder / "link/b/"), folder / "a/b");
    EXPECT_EQ(files.stringByResolvingSymlinksInPath(folder / "link/c"), folder / "link/c");
}
