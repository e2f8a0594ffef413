#include "app/Installer.h"
#include "support/Mount.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

using Tree = std::map<std::string, std::string>;

// The last lines before the exit: what was being done, a blank line, and why it failed.
void expectEnd(const std::vector<std::string>& log, const std::string& lastStep,
    const std::string& description)
{
    ASSERT_GE(log.size(), 4u);
    EXPECT_EQ(log.end()[-4], lastStep);
    EXPECT_EQ(log.end()[-3], "d ");
    EXPECT_EQ(log.end()[-2], "d " + description);
}

Tree installed()
{
    return readTree("/Applications/quillbarn.app");
}

}

class InstallerFailure : public Installer {
protected:
    InstallerFailure()
    {
        writeFile(source / "quillbarn.app/Contents/file", std::string(2'000'000, 'x'));
        writeFile(bundle + "/kept", "installed");
    }

    const TemporaryFolder source;
    const std::string bundle = "/Applications/quillbarn.app";
};

TEST_F(InstallerFailure, aSourceThatIsNotThereTouchesNothing)
{
    const std::string glued = source.path().substr(0, source.path().size() - 1);
    expectEnd(runAndPress({ "-install", glued }), "n install bundle",
        "The folder “" + glued
            + "quillbarn.app/” couldn’t be opened because it doesn’t exist (No such file or "
              "directory).");
    expectEnd(runAndPress({ "-install", "/Applications/" }), "n install bundle",
        "“" + bundle + "” couldn’t be installed as “" + bundle
            + "” because these are one folder, or one holds the other.");
    EXPECT_EQ(installed(), (Tree { { "kept", "installed" } }));
}

TEST_F(InstallerFailure, aFullVolumeLeavesWholeFilesOnly)
{
    const MemoryVolume full("/Applications", "size=1m");
    expectEnd(runAndPress({ "-install", source.path() }, "space"),
        "d  copy " + bundle + "/Contents/file",
        "“" + source / "quillbarn.app/Contents/file" + "” couldn’t be copied to “" + bundle
            + "/Contents/file” because the volume is out of space (No space left on device).");
    EXPECT_EQ(installed(), (Tree { { "Contents", "folder" } }));
}

TEST_F(InstallerFailure, aReadOnlyVolumeKeepsWhatItHas)
{
    const MemoryVolume volume("/Applications", "size=1m");
    writeFile(bundle + "/kept", "installed");
    volume.makeReadOnly();
    const std::string readOnly
        = "” couldn’t be removed because the volume is read only (Read-only file system).";
    expectEnd(runAndPress({ "-install", source.path() }, "Escape"), "d remove " + bundle + "/kept",
        "“" + bundle + "/kept" + readOnly);
    expectEnd(runAndPress({ "-uninstall" }), "d remove " + bundle + "/kept",
        "“" + bundle + "/kept" + readOnly);
    EXPECT_EQ(installed(), (Tree { { "kept", "installed" } }));
}

TEST_F(InstallerFailure, aMountPointInTheBundleStopsTheRemoval)
{
    const MemoryVolume volume(bundle + "/mount", "size=1m");
    const auto log = runAndPress({ "-uninstall" });
    expectEnd(log, "d remove " + bundle + "/mount/",
        "“" + bundle
            + "/mount” couldn’t be removed because it is in use, or another volume is mounted "
              "there (Device or resource busy).");
    EXPECT_EQ(installed().count("mount"), 1u);
}

TEST_F(InstallerFailure, aLinkThatLeadsOutOfTheBundleStopsTheRemoval)
{
    writeFile("/tmp/desktop/letter", "dear");
    makeLink(bundle + "/link", "/tmp/desktop");
    expectEnd(runAndPress({ "-uninstall" }), "d remove " + bundle + "/link/letter",
        "“" + bundle + "/link/letter” couldn’t be removed because it is not in the bundle: “"
            + bundle + "/link” leads to “/tmp/desktop”.");
    EXPECT_EQ(readTree("/tmp/desktop"), (Tree { { "letter", "dear" } }));

    removeTree(bundle);
    makeLink(bundle, "/tmp/desktop");
    runAndPress({ "-install", source.path() });
    EXPECT_EQ(readTree("/tmp/desktop"), (Tree { { "letter", "dear" } }));
}

TEST_F(InstallerFailure, aFileInTheBundlesPlaceStaysThere)
{
    removeTree(bundle);
    writeFile(bundle, "a file");
    const std::string description = "The folder “" + bundle
        + "/” couldn’t be opened because a part of its path is not a folder (Not a directory).";
    expectEnd(runAndPress({ "-install", source.path() }), "n install bundle", description);
    expectEnd(runAndPress({ "-uninstall" }), "n uninstall bundle", description);
    EXPECT_EQ(readFile(bundle), "a file");
}

TEST_F(InstallerFailure, aFolderThatMayNotBeReadFailsTheListing)
{
    Command nobody = command({ "--reuid=65534", "--clear-groups", PROGRAM, "-uninstall" });
    nobody.executable = "setpriv";
    fs::permissions(bundle, fs::perms::owner_all);
    clearLog();
    Program program(nobody);
    while (!program.waitForExit(0.1))
        screen().press("Return");
    // Without permission for the log, which is root's, the run goes on without one.
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_TRUE(readLog().empty());
    EXPECT_EQ(installed(), (Tree { { "kept", "installed" } }));
}
