#include "MountPoint.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSString.h>

std::optional<NSURL> getDMGMountPointURL(const std::string& path)
{
    const std::vector<NSURLResourceKey> keys { NSURLVolumeNameKey, NSURLVolumeIsRemovableKey,
        NSURLVolumeIsEjectableKey, NSURLVolumeIsReadOnlyKey };
    const auto volumes
        = NSFileManager::defaultManager().mountedVolumeURLsIncludingResourceValuesForKeys(
            keys, NSVolumeEnumerationSkipHiddenVolumes);
    for (const NSURL& volume : volumes) {
        if (volume.scheme() != "file" || volume.path() == "/") continue;
        if (NSString::hasPrefix(path, volume.path() + "/")) return volume;
    }
    return std::nullopt;
}
