#pragma once

#include <memory>
#include <string>
#include <string_view>

class FileDescriptor;

// A file opened for writing. One thread at a time. A write or flush that fails is dropped.
class NSFileHandle {
public:
    // The file at `path`, which must exist; nullptr where it can't be opened. Unlike in Foundation,
    // a link is not followed, and only a file of data with no other name is opened: what is written
    // lands in no place that someone else has chosen.
    // Unlike Foundation, every write goes to the end the file has at that moment, so that several
    // programs can write to one file and lose nothing of each other.
    static std::shared_ptr<NSFileHandle> fileHandleForWritingAtPath(const std::string& path);

    explicit NSFileHandle(FileDescriptor file);
    ~NSFileHandle();
    NSFileHandle(const NSFileHandle&) = delete;
    NSFileHandle& operator=(const NSFileHandle&) = delete;

    // Hands all of `data` to the system in one piece. Unlike in Foundation, answers how many bytes
    // of it the file has got.
    std::size_t writeData(std::string_view data);

    // Returns when what was written is on the disk.
    void synchronizeFile();

    // What is called afterwards does nothing.
    void closeFile();

private:
    const std::unique_ptr<FileDescriptor> m_file;
};
