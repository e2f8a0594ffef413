#include "support/InstallerRun.h"
#include "support/LogFile.h"
#include "support/Mount.h"
#include "support/Tree.h"

#include <filesystem>
#include <gtest/gtest.h>

...
