#pragma once

#include <string>
#include <utility>

// Why an operation failed, in words for the person at the window. A value; what the product throws.
class NSError {
public:
    NSError() = default;
    explicit NSError(std::string localizedDescription)
        : m_localizedDescription(std::move(localizedDescription))
    {
    }

    // One sentence that tells what, where and why. Names in it are the file system's own bytes.
    const std::string& localizedDescription() const { return m_localizedDescription; }

private:
    std::string m_localizedDescription;
};
