#pragma once

#include <sys/stat.h>

// Gives the open file `to` what the file `from` carries beside its data: owner, extended
// attributes, mode less set-ID bits, access control list, times. `status` is that of `from` before
// its data was read. What the file system or the caller's rights don't allow is left out.
// 0, or an errno value.
int copyFileAttributes(int from, const struct stat& status, int to);
