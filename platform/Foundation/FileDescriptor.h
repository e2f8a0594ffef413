#pragma once

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <system_error>
#include <unistd.h>
#include <utility>

// Owns a descriptor of any kind and closes it. Movable.
class FileDescriptor {
public:
    FileDescriptor() = default;

    // Takes ownership of what open() or a similar call returned; a negative number means closed.
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

    // Gives up ownership.
    int release() { return std::exchange(m_number, -1); }

private:
    int m_number = -1;
};

// Returns errno as an exception to throw.
inline std::system_error lastError() { return { errno, std::generic_category() }; }

// The same for an error that no system call reported.
inline std::system_error errorOf(std::errc reason) { return { make_error_code(reason) }; }

// Calls the system, again each time the call is interrupted (EINTR), and returns the result. Not
// for close(), which must not be repeated.
template <class Call, class... Arguments> auto uninterrupted(Call* call, Arguments... arguments)
{
    for (;;) {
        const auto result = call(arguments...);
        if (result >= 0 || errno != EINTR) return result;
    }
}

// Like uninterrupted(). Returns a negative result if errno is in `expected`; throws any other error
// as std::system_error.
template <class Call, class... Arguments>
auto checkExcept(std::initializer_list<int> expected, Call* call, Arguments... arguments)
{
    const auto result = uninterrupted(call, arguments...);
    if (result < 0 && std::ranges::find(expected, errno) == expected.end()) throw lastError();
    return result;
}

// Like checkExcept(), but throws every error.
template <class Call, class... Arguments> auto check(Call* call, Arguments... arguments)
{
    return checkExcept({}, call, arguments...);
}
