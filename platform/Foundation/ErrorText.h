#pragma once

#include <Foundation/NSError.h>

#include <string>
#include <system_error>
#include <vector>

// A translated sentence such as "“%1” couldn’t be removed because %2 (%3).", with the arguments,
// then the reason that the system gave, then the system's words for it.
NSError failure(const std::system_error& reason, std::vector<std::string> arguments,
    const std::string& sentence);

// The same, where the last of the arguments is the path of what was to be changed: then it says who
// may, if the caller may not.
NSError failureToChange(const std::system_error& reason, const std::vector<std::string>& arguments,
    const std::string& sentence);
