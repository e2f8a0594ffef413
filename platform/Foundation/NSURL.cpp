#include <Foundation/NSURL.h>

NSURL NSURL::fileURLWithPath(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return NSURL(path);
}
