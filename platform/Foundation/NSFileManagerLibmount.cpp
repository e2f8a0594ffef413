#include <Foundation/NSFileManager.h>

#include "MountTable.h"

std::vector<NSURL> NSFileManager::mountedVolumeURLsIncludingResourceValuesForKeys(
    const std::vector<NSURLResourceKey>&, NSVolumeEnumerationOptions) const
{
    std::vector<NSURL> volumes;
    for (const std::string& mountPoint : visibleMountPoints())
        volumes.push_back(NSURL::fileURLWithPath(mountPoint));
    return volumes;
}
