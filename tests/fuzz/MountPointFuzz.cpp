#include "Fuzz.h"
#include "MountPoint.h"
#include "fakes/FoundationFake.h"

#include <QString>

static QString decomposed(const std::string& path)
{
    return QString::fromStdString(path).normalized(QString::NormalizationForm_D);
}

// A path lies on a mount point that begins it.
void tryOne(FuzzedDataProvider& draw)
{
    std::vector<std::string> volumes(draw.ConsumeIntegralInRange<std::size_t>(1, 4));
    for (std::string& volume : volumes) {
        volume = "/" + drawText(draw);
        std::erase(volume, '\0');
        volume = NSURL::fileURLWithPath(volume).path();
    }
    const std::string path = volumes.back() + drawText(draw);
    foundation.mountPoints = volumes;
    const auto found = getDMGMountPointURL(path);
    assert(!found || (found->path() != "/" && std::ranges::count(volumes, found->path()) > 0));
    assert(!found || decomposed(path).startsWith(decomposed(found->path() + "/")));
    const bool isOnLast = volumes.back() != "/" && path.starts_with(volumes.back() + "/");
    assert(found || !isOnLast || !isascii(path[volumes.back().size() + 1])); // an accent on the "/"
}
