#pragma once

#include "Foundation/NSError.h"

#include <string>

// A path as it stands in an error's text: in quotation marks.
std::string quoted(const std::string& path);

// "`what` because ...", with the reason that an errno value gives. `what` is a clause such as
// "“/a” couldn’t be removed".
NSError errorBecause(const std::string& what, int number);

// Fills in the error, where the caller wants one, and answers false.
bool failBecause(NSError* error, const std::string& what, int number);
