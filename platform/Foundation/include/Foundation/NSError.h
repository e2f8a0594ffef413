#pragma once

#include <Foundation/NSString.h>

// Why an operation failed, in words for the person at the window. A value; what the product throws.
class NSError {
public:
    // The description with the arguments in its places, as NSString has them.
    explicit NSError(const std::string& format, const std::vector<std::string>& arguments = {})
        : m_localizedDescription(NSString::stringWithFormat(format, arguments))
    {
    }

    // One sentence that tells what, where and why. Names in it are the file system's own bytes.
    const std::string& localizedDescription() const { return m_localizedDescription; }

private:
    std::string m_localizedDescription;
};
