#include <Foundation/NSFileHandle.h>

#include "FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isFileWithOneLink(const FileDescriptor& file)
{
    struct stat status = {};
    return file.isOpen() && uninterrupted(fstat, file.number(), &status) == 0
        && S_ISREG(status.st_mode) && status.st_nlink == 1;
}

}

std::shared_ptr<NSFileHandle> NSFileHandle::fileHandleForWritingAtPath(const std::string& path)
{
    // O_NONBLOCK: fails for a FIFO without a reader instead of waiting for one.
    constexpr int flags = O_WRONLY | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    FileDescriptor file(uninterrupted(open, path.c_str(), flags));
    return isFileWithOneLink(file) ? std::make_shared<NSFileHandle>(std::move(file)) : nullptr;
}

NSFileHandle::NSFileHandle(FileDescriptor file)
    : m_file(std::make_unique<FileDescriptor>(std::move(file)))
{
}

NSFileHandle::~NSFileHandle() = default;

std::size_t NSFileHandle::writeData(std::string_view data)
{
    std::size_t done = 0;
    while (done < data.size()) {
        const auto written
            = uninterrupted(write, m_file->number(), data.data() + done, data.size() - done);
        if (written <= 0) break;
        done += std::size_t(written);
    }
    return done;
}

void NSFileHandle::synchronizeFile() { uninterrupted(fdatasync, m_file->number()); }

void NSFileHandle::closeFile() { *m_file = FileDescriptor(); }
