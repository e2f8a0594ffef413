#include "support/Mount.h"

#include <cerrno>
#include <filesystem>
#include <sys/mount.h>
#include <system_error>

namespace {

void mountMemory(const std::string& folder, unsigned long flags, const std::string& options)
{
    if (mount("none", folder.c_str(), "tmpfs", flags, options.c_str()) < 0)
        throw std::system_error(errno, std::generic_category(), folder);
}

}

MemoryVolume::MemoryVolume(const std::string& folder, const std::string& options)
    : m_folder(folder)
{
    std::filesystem::create_directories(folder);
    mountMemory(folder, 0, options);
}

MemoryVolume::~MemoryVolume()
{
    umount2(m_folder.c_str(), MNT_DETACH);
}

void MemoryVolume::makeReadOnly() const
{
    mountMemory(m_folder, MS_REMOUNT | MS_RDONLY, "");
}
