#include <Foundation/NSFileHandle.h>

#include "FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

std::shared_ptr<NSFileHandle> NSFileHandle::fileHandleForWritingAtPath(const std::string& path)
{
    // O_NONBLOCK: a pipe in the file's place that nobody reads is refused, not waited for.
    FileDescriptor file(open(path.c_str(), O_WRONLY | O_APPEND | O_NONBLOCK | O_CLOEXEC));
    return file.isOpen() ? std::make_shared<NSFileHandle>(std::move(file)) : nullptr;
}

NSFileHandle::NSFileHandle(FileDescriptor file)
    : m_file(std::make_unique<FileDescriptor>(std::move(file)))
{
}

NSFileHandle::~NSFileHandle() = default;

void NSFileHandle::writeData(std::string_view data)
{
    while (!data.empty()) {
        const ssize_t written = write(m_file->number(), data.data(), data.size());
        if (written <= 0)
            return;
        data.remove_prefix(std::size_t(written));
    }
}

void NSFileHandle::synchronizeFile()
{
    fdatasync(m_file->number());
}

void NSFileHandle::closeFile()
{
    m_file->close();
}
