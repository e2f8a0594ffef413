#pragma once

#include <system_error>
#include <utility>

// An open file of this process, closed when its owner goes: of a file, a folder, an event. Moves.
class FileDescriptor {
public:
    FileDescriptor() = default;

    // Takes over what open() or its like returned; a negative number is none.
    explicit FileDescriptor(int number)
        : m_number(number)
    {
    }
    ~FileDescriptor() { [[maybe_unused]] const auto lost = close(); }
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

    // Leaves the closing to someone else.
    int release() { return std::exchange(m_number, -1); }

    // On a network some errors of writing come with the close only.
    std::error_code close();

private:
    int m_number = -1;
};

// What the system call that has just failed says.
std::error_code lastError();

// The error of a system call that returned this: none, unless it is negative.
std::error_code errorOf(long result);

// Whether an error says that this file system, or this caller, doesn't have what was asked for.
bool isUnsupported(std::error_code error);
