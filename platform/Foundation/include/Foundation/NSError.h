#pragma once

#include <Foundation/NSString.h>

// Describes a failed operation to the user. A value; the exception type of the product.
class NSError {
public:
    // The description is `format` with the arguments in its places; see NSString.
    explicit NSError(const std::string& format, const std::vector<std::string>& arguments = {})
        : m_localizedDescription(NSString::stringWithFormat(format, arguments))
    {
    }

    // One line of whole sentences: what failed, why, what to do. Names are bytes of the file
    // system.
    const std::string& localizedDescription() const { return m_localizedDescription; }

    // Not in Foundation: returns the error with a sentence added to its description.
    NSError followedBy(const std::string& sentence) const
    {
        return NSError(
            NSLocalizedString("Errors", "two sentences"), { m_localizedDescription, sentence });
    }

private:
    std::string m_localizedDescription;
};
