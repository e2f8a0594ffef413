#pragma once

#include <Foundation/NSError.h>

#include <string>

// See NSFileManager::copyItemAtPath.
bool copyItem(const std::string& source, const std::string& destination, NSError* error);
