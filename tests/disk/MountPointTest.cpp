#include "MountPoint.h"
#include "fakes/FoundationFake.h"

#include <gtest/gtest.h>

TEST(MountPoint, IsFirstMatchingVolume)
{
    const auto mountPointOf = [](const char* path, const std::vector<std::string>& volumes) {
        foundation.mountPoints = volumes;
        const auto mountPoint = getDMGMountPointURL(path);
        return mountPoint ? mountPoint->path() : "none";
    };
    EXPECT_EQ(mountPointOf("/V/a b/c/x", { "/", "/V/a", "/V/a b", "/V", "/V/a b/c" }), "/V/a b");
    EXPECT_EQ(mountPointOf("//V/x", { "/", "/V" }), "none");
    EXPECT_EQ(mountPointOf("/tmp/V/x", { "/V" }), "none");
    EXPECT_EQ(mountPointOf("/e\u0301/x", { "/\u00E9" }), "/\u00E9");
    EXPECT_EQ(mountPointOf("/\u1100\u1161/x", { "/\uAC00" }), "/\uAC00");
    EXPECT_EQ(mountPointOf("/V/\u0301x", { "/V" }), "none"); // a "/" with an accent
    EXPECT_EQ(mountPointOf("/\xFF/x", { "/\uFFFD", "/\xFF" }), "/\xFF");
}
