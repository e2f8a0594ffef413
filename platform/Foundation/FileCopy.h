#pragma once

#include "OpenFolders.h"

#include <Foundation/NSError.h>

// See NSConfinedFileManager::copyItemAtPath.
bool copyItem(OpenFolders& sources, const std::string& path, OpenFolders& destinations,
    const std::string& toPath, NSError* error);
