#pragma once

#include <Foundation/NSError.h>

#include <string>
#include <system_error>

// A path as it stands in an error's text: in quotation marks.
std::string quoted(const std::string& path);

// "`what` because ...", with the reason that the system gave. `what` is a clause such as
// "“/a” couldn’t be removed".
std::string describe(const std::string& what, std::error_code reason);

// Fill in `error`, where the caller wants one, and answer false.
bool fail(NSError* error, const std::string& description);
bool failBecause(NSError* error, const std::string& what, std::error_code reason);

// The same for an item at `path` that is not to be read but changed: where the caller may not, it
// says who may.
bool failToChange(
    NSError* error, const std::string& path, const std::string& what, std::error_code reason);
