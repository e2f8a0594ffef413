#include "MountPoint.h"
#include "fakes/FoundationFake.h"

#include <gtest/gtest.h>

TEST(MountPoint, isThatOfTheFirstVolumeWhosePathBeginsThePath)
{
    struct Case {
        std::vector<std::string> volumes;
        const char* path;
        const char* mountPoint; // "": none
    };
    const std::string installer = "/Volumes/quillbarn installer";
    for (const Case& c :
        {
            Case { { "/", installer }, "/Volumes/quillbarn installer/quillbarn.app",
                "/Volumes/quillbarn installer" },
            Case { { installer }, "/Volumes/quillbarn installer/", "/Volumes/quillbarn installer" },
            Case { { installer }, "/Volumes/quillbarn installer", "" },
            Case { { "/Volumes/quillbarn", installer }, "/Volumes/quillbarn installer/x",
                "/Volumes/quillbarn installer" },
            Case { { "/Volumes/quillbarn" }, "/Volumes/quillbarn installer/quillbarn.app", "" },
            Case { { installer }, "/tmp/Volumes/quillbarn installer/x", "" },
            Case { { installer }, "/tmp//Volumes/quillbarn installer/x", "" },
            Case { { installer }, "/volumes/quillbarn installer/x", "" },
            Case { { "/", installer }, "/Applications/quillbarn.app", "" },
            Case { { "/", installer }, "//Volumes/quillbarn installer/x", "" },
            Case { { "/", "/Applications" }, "/Applications/quillbarn.app", "/Applications" },
            Case { { "/a", "/a/b" }, "/a/b/c", "/a" },
            Case { { "/a/b", "/a" }, "/a/b/c", "/a/b" },
            Case { { "/", installer }, "", "" },
            Case { { "/", installer }, "Volumes/quillbarn installer/x", "" },
            Case { {}, "/a/b", "" },
            Case { { "/\u00E9" }, "/e\u0301/x", "/\u00E9" },
            Case { { "/\xFF" }, "/\xFF/x", "/\xFF" },
            Case { { "/\xFF" }, "/\xFE/x", "" },
        }) {
        foundation.mountPoints = c.volumes;
        const auto mountPoint = getDMGMountPointURL(c.path);
        EXPECT_EQ(mountPoint ? mountPoint->path() : "", c.mountPoint) << c.path;
    }
}
