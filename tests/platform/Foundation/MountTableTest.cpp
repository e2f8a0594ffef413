#include "MountTable.h"
#include "support/Tree.h"

#include <gtest/gtest.h>

TEST(MountTable, tellsTheVolumesOfAPersonInItsOrder)
{
    writeFile("/tmp/table",
        R"(22 28 0:21 / /proc rw - proc proc rw
28 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw
32 28 7:0 / /Volumes/quillbarn\040installer ro,relatime shared:3 master:4 propagate_from:2 - iso9660 /dev/loop0 ro
36 28 0:40 /@snapshots /snapshots rw - btrfs /dev/vdb rw
37 28 8:1 / /media/hidden rw - ext4 /dev/sda1 rw,x-gvfs-hide
)");
    EXPECT_EQ(visibleMountPoints("/tmp/table"),
        (std::vector<std::string> { "/", "/Volumes/quillbarn installer" }));
}
