#pragma once

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <system_error>
#include <unistd.h>
#include <utility>

// An open file of this process, closed when its owner goes: of a file, a folder, an event. Moves.
class FileDescriptor {
public:
    FileDescriptor() = default;

    // Takes over what open() or its like returned; a negative number is none.
    explicit FileDescriptor(int number) : m_number(number) {}
    ~FileDescriptor()
    {
        if (isOpen()) ::close(m_number);
    }
    FileDescriptor(FileDescriptor&& other) noexcept : m_number(other.release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

    // Leaves the closing to someone else.
    int release() { return std::exchange(m_number, -1); }

private:
    int m_number = -1;
};

// What the system call that has just failed says, to be thrown.
inline std::system_error lastError() { return { errno, std::generic_category() }; }

// The same for a reason that no call has given.
inline std::system_error errorOf(std::errc reason) { return { make_error_code(reason) }; }

// Calls the system, again whenever a signal interrupts it, and answers what it answers. Not for
// close(), which is over even then.
template <class Call> auto uninterrupted(const Call& call)
{
    for (;;) {
        const auto answer = call();
        if (answer >= 0 || errno != EINTR) return answer;
    }
}

// The same, and throws its error, unless that is one of those `expected`.
template <class Call> auto check(const Call& call, std::initializer_list<int> expected = {})
{
    const auto answer = uninterrupted(call);
    if (answer < 0 && std::ranges::find(expected, errno) == expected.end()) throw lastError();
    return answer;
}
