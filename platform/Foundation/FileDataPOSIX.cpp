#include "FileCopy.h"

#include <array>
#include <fcntl.h>
#include <limits>

namespace {

constexpr off_t bufferSize = 0x20000; // bytes
constexpr off_t unknown = std::numeric_limits<off_t>::max();

void writeAll(const FileDescriptor& to, off_t offset, const char* data, off_t size)
{
    while (size > 0) {
        const auto written
            = check([&] { return pwrite(to.number(), data, std::size_t(size), offset); });
        if (written == 0) throw errorOf(std::errc::no_space_on_device);
        data += written;
        offset += written;
        size -= written;
    }
}

// Up to the end of the file, where that is `unknown`.
void readAndWrite(const FileDescriptor& from, const FileDescriptor& to, off_t offset, off_t end)
{
    static thread_local std::array<char, bufferSize> buffer;
    while (offset < end) {
        const auto wanted = std::size_t(std::min(bufferSize, end - offset));
        const auto size
            = check([&] { return pread(from.number(), buffer.data(), wanted, offset); });
        if (size == 0 && end != unknown) throw errorOf(std::errc::no_message_available);
        if (size == 0) return;
        writeAll(to, offset, buffer.data(), size);
        offset += size;
    }
}

// What has been written is on its way to the disk while the next is read.
void copyRange(const FileDescriptor& from, const FileDescriptor& to, off_t start, off_t end)
{
    constexpr off_t stretch = 0x800000; // bytes
    for (; start < end; start += stretch) {
        const off_t stop = std::min(end, start + stretch);
        off_t offset = start;
        off_t written = start;
        const auto share = [&] {
            return copy_file_range(
                from.number(), &offset, to.number(), &written, std::size_t(stop - offset), 0);
        };
        while (offset < stop && check(share, { EINVAL, ENOSYS, EOPNOTSUPP, EXDEV }) > 0) {}
        if (offset < stop) // it can't, between these two, or it doesn't say why
            readAndWrite(from, to, offset, stop);
        sync_file_range(to.number(), start, stop - start, SYNC_FILE_RANGE_WRITE); // may fail
    }
}

// The ranges that hold data; then the length, should the file end in a hole.
void copyWithHoles(const FileDescriptor& from, off_t length, const FileDescriptor& to)
{
    off_t hole = 0;
    const auto seek = [&](int whence) {
        return check([&] { return lseek(from.number(), hole, whence); }, { ENXIO });
    };
    for (off_t data = seek(SEEK_DATA); data >= 0; data = seek(SEEK_DATA)) {
        hole = data;
        hole = seek(SEEK_HOLE);
        copyRange(from, to, data, hole);
    }
    check([&] { return ftruncate(to.number(), length); });
}

// A file of the kernel's own tells no length: what it gives is what it holds.
void copyData(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    constexpr off_t blockSize = 512; // the unit of st_blocks, whatever the file system's own
    if (status.st_size < bufferSize) // then it is in memory after one read
        readAndWrite(from, to, 0, status.st_size == 0 ? unknown : status.st_size);
    else if (status.st_blocks * blockSize < status.st_size)
        copyWithHoles(from, status.st_size, to);
    else
        copyRange(from, to, 0, status.st_size);
}

}

void copyFileData(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    copyData(from, status, to);
    struct stat source = {};
    struct stat copy = {};
    check([&] { return fstat(from.number(), &source); });
    check([&] { return fstat(to.number(), &copy); });
    if (source.st_size != 0 && source.st_size != copy.st_size)
        throw errorOf(std::errc::no_message_available);
}
