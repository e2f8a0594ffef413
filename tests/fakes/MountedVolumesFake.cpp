#include "fakes/MountedVolumesFake.h"

#include <Foundation/NSFileManager.h>

namespace {

struct Volumes {
    std::vector<std::string> mountPoints;
    int asked = 0;
};

Volumes& fakeVolumes()
{
    static Volumes volumes;
    return volumes;
}

}

void setMountedVolumes(std::vector<std::string> mountPoints)
{
    fakeVolumes() = { std::move(mountPoints), 0 };
}

int mountedVolumesAsked()
{
    return fakeVolumes().asked;
}

std::vector<NSURL> NSFileManager::mountedVolumeURLsIncludingResourceValuesForKeys(
    const std::vector<NSURLResourceKey>&, NSVolumeEnumerationOptions) const
{
    ++fakeVolumes().asked;
    std::vector<NSURL> volumes;
    for (const std::string& mountPoint : fakeVolumes().mountPoints)
        volumes.push_back(NSURL::fileURLWithPath(mountPoint));
    return volumes;
}
