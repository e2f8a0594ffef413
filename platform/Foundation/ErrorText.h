#pragma once

#include <Foundation/NSError.h>

#include <string>
#include <system_error>
#include <vector>

// Returns the description of a failed system call: the translated sentence with the arguments in
// its places, followed by the reason with the errno symbol.
NSError failure(const std::system_error& reason, const std::vector<std::string>& arguments,
    const std::string& sentence);

// The same for a failed change of the last argument, a path. If permission is denied, adds who can
// write to the folder.
NSError failureToChange(const std::system_error& reason, const std::vector<std::string>& arguments,
    const std::string& sentence);
