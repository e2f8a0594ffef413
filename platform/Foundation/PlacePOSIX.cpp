#include "Place.h"

#include "FileDescriptor.h"

#include <array>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <linux/limits.h>
#include <memory>
#include <string_view>
#include <unistd.h>

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

using Reading = std::unique_ptr<DIR, CloseFolder>;

Reading startReading(const Place& place)
{
    FileDescriptor folder(
        openat(place.folder, place.name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Reading reading(folder.isOpen() ? fdopendir(folder.number()) : nullptr);
    if (reading)
        folder.release();
    return reading;
}

// The next entry, or nullptr: at the end, or with errno set.
const dirent* nextEntry(DIR* folder)
{
    errno = 0;
    return readdir(folder);
}

}

std::error_code readStatus(const Place& place, struct stat& status)
{
    return errorOf(fstatat(place.folder, place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW));
}

std::error_code readLink(const Place& place, std::string& destination)
{
    std::array<char, PATH_MAX> buffer {};
    const ssize_t size = readlinkat(place.folder, place.name.c_str(), buffer.data(), buffer.size());
    if (size >= 0)
        destination.assign(buffer.data(), std::size_t(size));
    return errorOf(size);
}

std::error_code readNames(const Place& place, std::vector<std::string>& names)
{
    const Reading reading = startReading(place);
    if (!reading)
        return lastError();
    while (const dirent* const entry = nextEntry(reading.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    return errno ? lastError() : std::error_code();
}

bool isAbsence(std::error_code error)
{
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory
        || error == std::errc::too_many_symbolic_link_levels;
}
