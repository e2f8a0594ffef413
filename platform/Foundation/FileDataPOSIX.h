#pragma once

#include <sys/stat.h>

// Copies the content of an open regular file, whose status is given, into an empty one: as a clone
// where the file system can, with its holes as holes. 0, or an errno value.
int copyFileData(int from, const struct stat& status, int to);
