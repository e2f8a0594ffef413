#include "DecodedText.h"
#include "Fuzz.h"
#include "MountPoint.h"
#include "MountTable.h"
#include "fakes/MountedVolumesFake.h"

// Its line in the kernel's table.
static std::string lineOf(const std::string& mountPoint)
{
    std::string text;
    for (const char c : mountPoint)
        text += !isascii(c) || (isgraph(c) && c != '\\')
            ? std::string(1, c)
            : std::string { '\\', char('0' + c / 64), char('0' + c / 8 % 8), char('0' + c % 8) };
    return "28 1 8:1 / " + text + " rw - ext4 /dev/sda1 rw\n";
}

static QString decomposed(const std::string& path)
{
    return QString::fromStdString(path).normalized(QString::NormalizationForm_D);
}

// The table tells every mount point as it is, and a path lies on one that begins it.
void tryOne(FuzzedDataProvider& draw)
{
    std::vector<std::string> volumes(draw.ConsumeIntegralInRange<std::size_t>(1, 4));
    std::string table;
    for (std::string& volume : volumes) {
        volume = "/" + drawText(draw);
        std::erase(volume, '\0');
        volume = NSURL::fileURLWithPath(volume).path();
        table += lineOf(volume);
    }
    writeFile("/tmp/table", table);
    assert(visibleMountPoints("/tmp/table") == volumes);
    writeFile("/tmp/table", table + drawText(draw));
    visibleMountPoints("/tmp/table");

    const std::string path = volumes.back() + drawText(draw);
    setMountedVolumes(volumes);
    const auto found = getDMGMountPointURL(path);
    assert(!found || (found->path() != "/" && std::ranges::count(volumes, found->path()) > 0));
    assert(!found || decomposed(path).startsWith(decomposed(found->path() + "/")));
    const bool isOnLast = volumes.back() != "/" && path.starts_with(volumes.back() + "/");
    assert(found || !isOnLast || !isascii(path[volumes.back().size() + 1])); // an accent on the "/"

    const std::string text = drawText(draw);
    std::string other = text;
    if (!other.empty())
        other[draw.ConsumeIntegralInRange<std::size_t>(0, other.size() - 1)]
            = draw.ConsumeIntegral<char>();
    assert(encodedSize(decodedText(text)) == text.size());
    assert((decodedText(other) == decodedText(text)) == (other == text));
}
