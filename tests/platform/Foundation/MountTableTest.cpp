#include "MountTable.h"
#include "support/Tree.h"

#include <gtest/gtest.h>

TEST(MountTable, tellsTheVolumesOfAPersonInItsOrder)
{
    const TemporaryFolder folder;
    const std::string table = folder / "mountinfo";
    writeFile(table,
        R"(22 28 0:21 / /proc rw - proc proc rw
23 28 0:22 / /sys rw - sysfs sysfs rw
24 23 0:30 / /sys/fs/cgroup rw - cgroup2 cgroup2 rw
25 28 0:6 / /dev rw - devtmpfs udev rw
26 25 0:23 / /dev/pts rw - devpts devpts rw
27 28 0:25 / /run rw - tmpfs tmpfs rw
28 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw
29 28 0:31 / /net rw - autofs systemd-1 rw
30 28 0:32 / /var/lib/containers/1 rw - overlay overlay rw
31 28 7:1 / /Volumes/z ro - squashfs /dev/loop1 ro
32 28 7:0 / /Volumes/quillbarn\040installer ro,relatime shared:3 master:4 propagate_from:2 - iso9660 /dev/loop0 ro
33 28 7:2 / /Volumes/tab\011line\012back\134slash\040\134040 ro - squashfs /dev/loop2 ro
34 28 7:3 / /Volumes/)"
        "\xFF\xC3\xA9"
        R"( ro - squashfs /dev/loop3 ro
35 28 254:0 /home /srv/bound rw - ext4 /dev/vda rw
36 28 0:40 /@snapshots /snapshots rw - btrfs /dev/vdb rw
37 28 8:1 / /media/hidden rw - ext4 /dev/sda1 rw,x-gvfs-hide
38 28 0:41 / /mnt/network rw - nfs4 host:/ rw
39 28 7:0 / /Volumes/quillbarn\040installer ro - iso9660 /dev/loop0 ro
)");
    EXPECT_EQ(visibleMountPoints(table.c_str()),
        (std::vector<std::string> { "/", "/Volumes/z", "/Volumes/quillbarn installer",
            "/Volumes/tab\tline\nback\\slash \\040", "/Volumes/\xFF\xC3\xA9", "/mnt/network",
            "/Volumes/quillbarn installer" }));
}
