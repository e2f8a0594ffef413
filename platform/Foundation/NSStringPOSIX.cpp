#include <Foundation/NSString.h>

#include "FileDescriptor.h"

#include <fcntl.h>
#include <filesystem>

// The kernel names what it has opened in one step; asking for each part of the path in turn, as
// realpath() does, takes minutes on a path of a thousand folders.
std::string NSString::stringByResolvingSymlinksInPath(const std::string& path)
{
    const FileDescriptor item(open(path.c_str(), O_PATH | O_CLOEXEC));
    if (!item.isOpen())
        return path;
    std::error_code code;
    const auto resolved
        = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(item.number()), code);
    return code ? path : resolved.string();
}
