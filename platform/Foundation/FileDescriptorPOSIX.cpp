#include "FileDescriptor.h"

#include <cerrno>
#include <unistd.h>
#include <utility>

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : m_number(std::exchange(other.m_number, -1))
{
}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept
{
    std::swap(m_number, other.m_number);
    return *this;
}

std::error_code FileDescriptor::close()
{
    const int number = std::exchange(m_number, -1);
    return number >= 0 ? errorOf(::close(number)) : std::error_code();
}

std::error_code lastError()
{
    return { errno, std::generic_category() };
}

std::error_code errorOf(long result)
{
    return result < 0 ? lastError() : std::error_code();
}
