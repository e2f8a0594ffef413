#include "FileCopy.h"

#include <fcntl.h>
#include <limits>

namespace {

constexpr off_t bufferSize = 0x20000; // bytes
constexpr off_t untilEndOfFile = std::numeric_limits<off_t>::max();

void writeAll(const FileDescriptor& to, off_t offset, const char* data, off_t size)
{
    while (size > 0) {
        const auto written = check(pwrite, to.number(), data, std::size_t(size), offset);
        if (written == 0) throw errorOf(std::errc::no_space_on_device);
        data += written;
        offset += written;
        size -= written;
    }
}

void readAndWrite(const FileDescriptor& from, const FileDescriptor& to, off_t offset, off_t end)
{
    // On the heap: a thread-local array would reduce the stack of every thread.
    static thread_local std::vector<char> buffer(bufferSize);
    while (offset < end) {
        const auto wanted = std::size_t(std::min(bufferSize, end - offset));
        const auto size = check(pread, from.number(), buffer.data(), wanted, offset);
        if (size == 0 && end != untilEndOfFile) throw errorOf(std::errc::no_message_available);
        if (size == 0) return;
        writeAll(to, offset, buffer.data(), size);
        offset += size;
    }
}

// Starts writing each stretch to the disk while the next one is read.
void copyRange(const FileDescriptor& from, const FileDescriptor& to, off_t start, off_t end)
{
    constexpr off_t stretch = 0x800000; // bytes
    for (; start < end; start += stretch) {
        const off_t stop = std::min(end, start + stretch);
        off_t offset = start;
        off_t written = start;
        const auto share = [&] {
            return checkExcept({ EINVAL, ENOSYS, EOPNOTSUPP, EXDEV }, copy_file_range,
                from.number(), &offset, to.number(), &written, std::size_t(stop - offset), 0U);
        };
        while (offset < stop && share() > 0) {}
        if (offset < stop) // unsupported between these two files
            readAndWrite(from, to, offset, stop);
        sync_file_range(to.number(), start, stop - start, SYNC_FILE_RANGE_WRITE); // may fail
    }
}

// Copies the ranges with data, then sets the size: the file may end in a hole.
void copyWithHoles(const FileDescriptor& from, off_t length, const FileDescriptor& to)
{
    off_t hole = 0;
    const auto seek
        = [&](int whence) { return checkExcept({ ENXIO }, lseek, from.number(), hole, whence); };
    for (off_t data = seek(SEEK_DATA); data >= 0; data = seek(SEEK_DATA)) {
        hole = data;
        hole = seek(SEEK_HOLE);
        copyRange(from, to, data, hole);
    }
    check(ftruncate, to.number(), length);
}

// procfs and sysfs report size 0: such a file is read to its end.
void copyData(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    if (status.st_size < bufferSize) // one read is faster than copy_file_range
        readAndWrite(from, to, 0, status.st_size == 0 ? untilEndOfFile : status.st_size);
    else if (status.st_blocks * S_BLKSIZE < status.st_size)
        copyWithHoles(from, status.st_size, to);
    else
        copyRange(from, to, 0, status.st_size);
}

}

void copyFileData(const FileDescriptor& from, const struct stat& status, const FileDescriptor& to)
{
    copyData(from, status, to);
    struct stat after = {};
    check(fstat, from.number(), &after);
    if (after.st_size != status.st_size) throw errorOf(std::errc::no_message_available);
}
