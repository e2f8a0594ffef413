#pragma once

#include <memory>
#include <string>
#include <string_view>

class FileDescriptor;

// A file opened for writing. One thread at a time. Unlike Foundation, ignores failed writes and
// flushes.
class NSFileHandle {
public:
    // Returns nullptr if the file does not exist, cannot be opened, is a symlink, is not a regular
    // file or has several hard links. Unlike in Foundation, the last three are refused, so that a
    // user who can write to its folder cannot redirect the output, and every write appends
    // (O_APPEND), so that processes do not overwrite each other's output.
    static std::shared_ptr<NSFileHandle> fileHandleForWritingAtPath(const std::string& path);

    // For the layer: takes ownership of an open file.
    explicit NSFileHandle(FileDescriptor file);
    ~NSFileHandle();
    NSFileHandle(const NSFileHandle&) = delete;
    NSFileHandle& operator=(const NSFileHandle&) = delete;

    // Writes `data` with one system call unless the system accepts only a part. Unlike Foundation,
    // returns the number of bytes written.
    std::size_t writeData(std::string_view data);

    // Flushes the data to the disk (fdatasync).
    void synchronizeFile();

    // Later calls have no effect.
    void closeFile();

private:
    const std::unique_ptr<FileDescriptor> m_file;
};
