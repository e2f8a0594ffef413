#pragma once

#include "BundleTree.h"

// What would do harm, or fail half-way, is found before the installed bundle is touched. Paths of
// folders end in "/", entries are listed from there. Throw an NSError that says what is where.
namespace BundleChecks {

using Files = std::vector<BundleTree::File>;

// No folder of the source is one of the installed bundle, which would be emptied first.
void requireApart(const std::string& sourcePath, const Files& source,
    const std::string& applicationDir, const Files& installed);

// No entry has the name of a link that leads nowhere. Such a link is not listed, so that it stays
// in the bundle's own folder when the bundle is emptied. One that a killed install has left there
// before what it leads to is no hindrance.
void requireFreeNames(
    const std::string& sourcePath, const Files& source, const std::string& applicationDir);

}
