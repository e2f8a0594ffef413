#include "Foundation/NSFileManager.h"

#include "support/Tree.h"

#include <gtest/gtest.h>

TEST(NSFileManager, smoke)
{
    TemporaryFolder folder;
    NSError error;
    EXPECT_TRUE(NSFileManager::defaultManager().createDirectoryAtPath(folder / "a/b", &error));
    EXPECT_EQ(readTree(folder.path()).size(), 2u);
}
