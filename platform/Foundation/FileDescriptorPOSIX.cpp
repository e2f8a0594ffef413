#include "FileDescriptor.h"

#include <cerrno>
#include <unistd.h>
#include <utility>

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : m_number(other.release())
{
}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept
{
    std::swap(m_number, other.m_number);
    return *this;
}

std::error_code FileDescriptor::close()
{
    const int number = release();
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

bool isUnsupported(std::error_code error)
{
    return error == std::errc::operation_not_permitted
        || error == std::errc::operation_not_supported
        || error == std::errc::function_not_supported;
}
