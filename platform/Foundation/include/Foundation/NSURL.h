#pragma once

#include <string>
#include <string_view>

// Where something is. Unlike in Foundation, always a place in the file system.
class NSURL {
public:
    // `path` is absolute.
    static NSURL fileURLWithPath(std::string_view path);

    std::string_view scheme() const { return "file"; }

    // The path as the file system has it, byte for byte; no "/" at its end, save the root's own.
    const std::string& path() const { return m_path; }

private:
    explicit NSURL(std::string_view path) : m_path(path) {}

    std::string m_path;
};
