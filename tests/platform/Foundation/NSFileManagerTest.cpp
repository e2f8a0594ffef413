#include "support/Tree.h"

#include <Foundation/NSError.h>
#include <Foundation/NSFileManager.h>

#include <gtest/gtest.h>

TEST(NSFileManager, whatCannotBeLookedAtIsNotAbsent)
{
    const TemporaryFolder folder;
    writeFile(folder / "file");
    makeLink(folder / "circle", "circle");
    const NSFileManager& files = NSFileManager::defaultManager();
    for (const char* const path : { "missing/file", "file/in it", "circle" })
        EXPECT_FALSE(files.fileExistsAtPath(folder / path)) << path;
    EXPECT_EQ(files.stringByResolvingSymlinksInPath(folder / "circle"), folder / "circle");

    const std::string path = folder / std::string(300, 'x');
    try {
        FAIL() << files.fileExistsAtPath(path);
    } catch (const NSError& error) {
        EXPECT_EQ(error.localizedDescription(),
            "“" + path
                + "” couldn’t be looked at because its name or path is too long (File name too "
                  "long).");
    }
}
