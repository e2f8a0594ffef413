#pragma once

#include <Foundation/NSError.h>

#include <string>
#include <system_error>

// A path as it stands in an error's text: in quotation marks.
std::string quoted(const std::string& path);

// "`what` because ...", with the reason that the system gave. `what` is a clause such as
// "“/a” couldn’t be removed". Where an item was to be changed, and not only read, its path is
// `changed`: then it says who may, if the caller may not.
std::string describe(
    const std::string& what, std::error_code reason, const std::string& changed = "");
