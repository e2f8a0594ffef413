#include "MountTable.h"
#include "support/Tree.h"

#include <gtest/gtest.h>

TEST(MountTable, ListsVisibleVolumesInOrder)
{
    writeFile("/tmp/table",
        R"(22 28 0:21 / /proc rw - proc proc rw
28 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw
32 28 7:0 / /Volumes/quillbarn\040installer ro,relatime shared:3 master:4 propagate_from:2 - iso9660 /dev/loop0 ro
37 28 8:1 / /media/hidden rw - ext4 /dev/sda1 rw,x-gvfs-hide
38 28 0:41 /default /Volumes/default rw - btrfs /dev/loop1 rw,subvolid=256,subvol=/default
40 28 0:42 /folder /bind rw - btrfs /dev/loop2 rw,subvolid=5,subvol=/
)");
    EXPECT_EQ(visibleMountPoints("/tmp/table"),
        (std::vector<std::string> { "/", "/Volumes/quillbarn installer", "/Volumes/default" }));
}
