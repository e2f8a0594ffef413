#include <Foundation/NSFileManager.h>

#include "MountTable.h"

#include <libmount/libmount.h>
#include <memory>
#include <string_view>

namespace {

using Table = std::unique_ptr<libmnt_table, decltype(&mnt_unref_table)>;
using Iterator = std::unique_ptr<libmnt_iter, decltype(&mnt_free_iter)>;

bool isHidden(libmnt_fs* volume)
{
    const char* const root = mnt_fs_get_root(volume);
    const bool isPartOfAnother = root && std::string_view(root) != "/";
    return isPartOfAnother || mnt_fs_is_pseudofs(volume)
        || mnt_fs_match_options(volume, "x-gvfs-hide");
}

}

std::vector<std::string> visibleMountPoints(const char* table)
{
    const Table volumes(mnt_new_table(), mnt_unref_table);
    const Iterator iterator(mnt_new_iter(MNT_ITER_FORWARD), mnt_free_iter);
    if (mnt_table_parse_mtab(volumes.get(), table) != 0)
        return {};

    std::vector<std::string> mountPoints;
    libmnt_fs* volume = nullptr;
    while (mnt_table_next_fs(volumes.get(), iterator.get(), &volume) == 0) {
        if (!isHidden(volume))
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
