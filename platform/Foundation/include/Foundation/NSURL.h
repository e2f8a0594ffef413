#pragma once

#include <string>
#include <string_view>

// The location of a file. Unlike in Foundation, always a file URL.
class NSURL {
public:
    // `path` is absolute.
    static NSURL fileURLWithPath(std::string_view path);

    std::string_view scheme() const { return "file"; }

    // The path, byte for byte, without "/" at its end unless it is the root.
    const std::string& path() const { return m_path; }

private:
    explicit NSURL(std::string_view path) : m_path(path) {}

    std::string m_path;
};
