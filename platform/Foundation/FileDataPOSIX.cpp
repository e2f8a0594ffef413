#include "FileData.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr off_t bufferSize = 0x20000; // bytes
constexpr off_t unknown = std::numeric_limits<off_t>::max();
const std::error_code endedEarly = make_error_code(std::errc::no_message_available);
using Buffer = std::array<char, bufferSize>;

Buffer& sharedBuffer()
{
    static thread_local Buffer buffer;
    return buffer;
}

bool clone(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    // One refusal speaks for the volume: a run copies from one folder into one other.
    static thread_local dev_t refusingVolume = 0;
    if (status.st_dev == refusingVolume)
        return false;
    if (ioctl(to.number(), FICLONE, from.number()) == 0)
        return true;
    refusingVolume = status.st_dev;
    return false;
}

std::error_code writeAll(const FileDescriptor& to, off_t offset, const char* data, off_t size)
{
    while (size > 0) {
        const ssize_t written = pwrite(to.number(), data, std::size_t(size), offset);
        if (written <= 0)
            return written < 0 ? lastError() : make_error_code(std::errc::no_space_on_device);
        data += written;
        offset += written;
        size -= written;
    }
    return {};
}

// One piece of at most `limit` bytes. Moves `offset` past it, not at all at the end of the file.
std::error_code copyPiece(
    const FileDescriptor& from, const FileDescriptor& to, off_t& offset, off_t limit)
{
    Buffer& buffer = sharedBuffer();
    const auto wanted = std::size_t(std::min(bufferSize, limit));
    const ssize_t size = pread(from.number(), buffer.data(), wanted, offset);
    if (size < 0)
        return lastError();
    const auto error = writeAll(to, offset, buffer.data(), size);
    offset += size;
    return error;
}

std::error_code readAndWrite(
    const FileDescriptor& from, const FileDescriptor& to, off_t offset, off_t end)
{
    for (off_t start = offset; offset < end; start = offset) {
        const auto error = copyPiece(from, to, offset, end - offset);
        if (error)
            return error;
        if (offset == start)
            return end == unknown ? std::error_code() : endedEarly;
    }
    return {};
}

bool isUnknownHere(std::error_code error)
{
    const int number = error.value();
    return number == EXDEV || number == EOPNOTSUPP || number == EINVAL || number == ENOSYS;
}

std::error_code copyRange(
    const FileDescriptor& from, const FileDescriptor& to, off_t offset, off_t end)
{
    off_t written = offset;
    while (offset < end) {
        const ssize_t size = copy_file_range(
            from.number(), &offset, to.number(), &written, std::size_t(end - offset), 0);
        const auto error = errorOf(size);
        if (isUnknownHere(error) || size == 0)
            return readAndWrite(from, to, offset, end);
        if (error)
            return error;
    }
    return {};
}

// The ranges that hold data; then the length, should the file end in a hole.
std::error_code copyWithHoles(const FileDescriptor& from, off_t length, const FileDescriptor& to)
{
    off_t hole = 0;
    for (;;) {
        const off_t data = lseek(from.number(), hole, SEEK_DATA);
        if (data < 0)
            return errno == ENXIO ? errorOf(ftruncate(to.number(), length)) : lastError();
        hole = lseek(from.number(), data, SEEK_HOLE);
        if (hole < 0)
            return lastError();
        if (const auto error = copyRange(from, to, data, hole))
            return error;
    }
}

std::error_code copyData(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    // A file of the kernel's own tells no length: what it gives is what it holds.
    if (status.st_size == 0)
        return readAndWrite(from, to, 0, unknown);
    // A small file is in memory after one read.
    if (status.st_size < bufferSize)
        return readAndWrite(from, to, 0, status.st_size);
    if (clone(from, status, to))
        return {};
    constexpr off_t blockSize = 512; // the unit of st_blocks, whatever the file system's own
    if (status.st_blocks * blockSize < status.st_size)
        return copyWithHoles(from, status.st_size, to);
    return copyRange(from, to, 0, status.st_size);
}

// Whether the copy is as long as the file is now.
std::error_code compareLengths(const FileDescriptor& from, const FileDescriptor& to)
{
    struct stat source = {};
    struct stat copy = {};
    if (fstat(from.number(), &source) < 0 || fstat(to.number(), &copy) < 0)
        return lastError();
    return source.st_size == 0 || source.st_size == copy.st_size ? std::error_code() : endedEarly;
}

}

std::error_code copyFileData(
    const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    const auto error = copyData(from, status, to);
    return error ? error : compareLengths(from, to);
}
