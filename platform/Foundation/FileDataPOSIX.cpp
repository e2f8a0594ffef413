#include "Foundation/FileDataPOSIX.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr off_t bufferSize = 0x20000; // bytes
constexpr off_t toTheEnd = 0;

bool clone(int from, const struct stat& status, int to)
{
    // One refusal speaks for the volume: a run copies from one folder into one other.
    static thread_local dev_t refusingVolume = 0;
    if (status.st_dev == refusingVolume)
        return false;
    if (ioctl(to, FICLONE, from) == 0)
        return true;
    refusingVolume = status.st_dev;
    return false;
}

int writeAll(int to, off_t offset, const char* data, off_t size)
{
    while (size > 0) {
        const ssize_t written = pwrite(to, data, std::size_t(size), offset);
        if (written < 0)
            return errno;
        data += written;
        offset += written;
        size -= written;
    }
    return 0;
}

int readAndWrite(int from, int to, off_t offset, off_t length)
{
    static thread_local std::array<char, bufferSize> buffer;
    const off_t end = offset + length;
    while (length == toTheEnd || offset < end) {
        const off_t wanted = length == toTheEnd ? bufferSize : std::min(bufferSize, end - offset);
        const ssize_t size = pread(from, buffer.data(), std::size_t(wanted), offset);
        if (size <= 0)
            return size < 0 ? errno : 0;
        if (const int number = writeAll(to, offset, buffer.data(), size))
            return number;
        offset += size;
    }
    return 0;
}

int copyRange(int from, int to, off_t offset, off_t length)
{
    off_t written = offset;
    const off_t end = offset + length;
    while (offset < end) {
        const ssize_t size
            = copy_file_range(from, &offset, to, &written, std::size_t(end - offset), 0);
        if (size == 0)
            return 0;
        if (size < 0
            && (errno == EXDEV || errno == EOPNOTSUPP || errno == EINVAL || errno == ENOSYS))
            return readAndWrite(from, to, offset, end - offset);
        if (size < 0)
            return errno;
    }
    return 0;
}

// The ranges that hold data; then the length, should the file end in a hole.
int copyWithHoles(int from, off_t length, int to)
{
    off_t hole = 0;
    for (;;) {
        const off_t data = lseek(from, hole, SEEK_DATA);
        if (data < 0)
            return errno == ENXIO && ftruncate(to, length) == 0 ? 0 : errno;
        hole = lseek(from, data, SEEK_HOLE);
        if (hole < 0)
            return errno;
        if (const int number = copyRange(from, to, data, hole - data))
            return number;
    }
}

}

int copyFileData(int from, const struct stat& status, int to)
{
    // A small file is in memory after one read; a file of the kernel's own gives no length.
    if (status.st_size < bufferSize)
        return readAndWrite(from, to, 0, status.st_size);
    if (clone(from, status, to))
        return 0;
    constexpr off_t blockSize = 512; // the unit of st_blocks, whatever the file system's own
    if (status.st_blocks * blockSize < status.st_size)
        return copyWithHoles(from, status.st_size, to);
    return copyRange(from, to, 0, status.st_size);
}
