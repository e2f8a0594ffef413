#include "Foundation/NSFileHandle.h"

#include <fcntl.h>
#include <unistd.h>

std::shared_ptr<NSFileHandle> NSFileHandle::fileHandleForWritingAtPath(const std::string& path)
{
    // O_NONBLOCK: a pipe in the file's place that nobody reads is refused, not waited for.
    const int descriptor = open(path.c_str(), O_WRONLY | O_APPEND | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    return std::shared_ptr<NSFileHandle>(new NSFileHandle(descriptor));
}

NSFileHandle::~NSFileHandle()
{
    closeFile();
}

void NSFileHandle::writeData(std::string_view data)
{
    while (!data.empty()) {
        const ssize_t written = write(m_descriptor, data.data(), data.size());
        if (written <= 0)
            return;
        data.remove_prefix(std::size_t(written));
    }
}

void NSFileHandle::synchronizeFile()
{
    fdatasync(m_descriptor);
}

void NSFileHandle::closeFile()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
}
