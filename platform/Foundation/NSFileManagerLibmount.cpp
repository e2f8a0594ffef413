#include <Foundation/NSFileManager.h>

#include "MountTable.h"

#include <libmount/libmount.h>
#include <memory>

namespace {

using Table = std::unique_ptr<libmnt_table, decltype(&mnt_unref_table)>;
using Iterator = std::unique_ptr<libmnt_iter, decltype(&mnt_free_iter)>;

// Returns whether the mount shows only a part of a volume: a bind mount of a folder, or a further
// btrfs subvolume. The first mount of a btrfs counts as the volume even if its root is a subvolume,
// because a default subvolume is mounted by default.
bool isPartOfAnother(libmnt_table* volumes, libmnt_fs* volume)
{
    const char* const folder = mnt_fs_get_root(volume);
    const std::string root = folder ? folder : "/";
    const bool isFirst
        = volume == mnt_table_find_devno(volumes, mnt_fs_get_devno(volume), MNT_ITER_FORWARD);
    return root != "/" && !(isFirst && mnt_fs_match_options(volume, ("subvol=" + root).c_str()));
}

}

std::vector<std::string> visibleMountPoints(const char* table)
{
    const Table volumes(mnt_new_table(), mnt_unref_table);
    const Iterator iterator(mnt_new_iter(MNT_ITER_FORWARD), mnt_free_iter);
    if (mnt_table_parse_mtab(volumes.get(), table) != 0) return {};

    std::vector<std::string> mountPoints;
    libmnt_fs* volume = nullptr;
    while (mnt_table_next_fs(volumes.get(), iterator.get(), &volume) == 0) {
        if (!isPartOfAnother(volumes.get(), volume) && !mnt_fs_is_pseudofs(volume)
            && !mnt_fs_match_options(volume, "x-gvfs-hide"))
            mountPoints.emplace_back(mnt_fs_get_target(volume));
    }
    return mountPoints;
}

std::vector<NSURL> NSFileManager::mountedVolumeURLsIncludingResourceValuesForKeys(
    const std::vector<NSURLResourceKey>&, NSVolumeEnumerationOptions) const
{
    std::vector<NSURL> volumes;
    for (const std::string& mountPoint : visibleMountPoints())
        volumes.push_back(NSURL::fileURLWithPath(mountPoint));
    return volumes;
}
