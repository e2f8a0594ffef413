#include "FileData.h"
#include "support/Tree.h"

#include <Foundation/NSConfinedFileManager.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

using Tree = std::map<std::string, std::string>;

struct stat statusOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return status;
}

class NSConfinedFileManagerTest : public testing::Test {
protected:
    NSConfinedFileManagerTest() { EXPECT_TRUE(files.lock(&error)); }

    // The description of the failure, if it is one.
    std::string copy(const std::string& from, const std::string& to)
    {
        return describe(files.copyItemAtPath(folder / from, folder / to, &error));
    }
    std::string create(const std::string& path)
    {
        return describe(files.createDirectoryAtPath(folder / path, &error));
    }
    std::string remove(const std::string& path)
    {
        return describe(files.removeItemAtPath(folder / path, &error));
    }
    std::string describe(bool isDone) const { return isDone ? "" : error.localizedDescription(); }

    const TemporaryFolder folder;
    NSConfinedFileManager files { folder / "" };
    NSError error;
};

}

TEST_F(NSConfinedFileManagerTest, createsFoldersWithThoseOnTheWayAndNamesWhatIsInTheWay)
{
    EXPECT_EQ(create("a/b/c"), "");
    EXPECT_EQ(create("a/b/c"), "");
    writeFile(folder / "file");
    makeLink(folder / "link", "a");
    for (const auto& [path, reason] : std::map<std::string, std::string> {
             { "file", "an item with the same name already exists (File exists)." },
             { "link", "an item with the same name already exists (File exists)." },
             { "file/a", "a part of its path is not a folder (Not a directory)." },
             { "link/a", "a link is on its path (Too many levels of symbolic links)." },
         })
        EXPECT_EQ(create(path),
            "The folder “" + folder / path + "” couldn’t be created because " + reason);
    EXPECT_EQ(readTree(folder / "a"), (Tree { { "b", "folder" }, { "b/c", "folder" } }));
}

TEST_F(NSConfinedFileManagerTest, saysWhoMayWriteWhereTheCallerMayNot)
{
    constexpr uid_t owner = 4711;
    constexpr gid_t administrators = 27;
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    writeFile(folder / "a/file");
    EXPECT_EQ(chown((folder / "a").c_str(), owner, administrators), 0);
    for (const auto& [mode, who] : std::map<mode_t, std::string> { { 0555, "“root”" },
             { 0755, "“root” and “4711”" }, { 0775, "“root” and “4711” and the group “sudo”" } }) {
        EXPECT_EQ(chmod((folder / "a").c_str(), mode), 0);
        EXPECT_EQ(seteuid(owner + 1), 0);
        const std::vector<std::string> failures { create("a/b"), copy("a/file", "a/b"),
            remove("a/file") };
        EXPECT_EQ(seteuid(0), 0);
        for (const std::string& failure : failures)
            EXPECT_TRUE(failure.ends_with(" because you don’t have permission to access it "
                                          "(Permission denied). Only "
                + who + " may write in “" + folder / "a”: start the installer as one who may."))
                << failure;
    }
}

TEST_F(NSConfinedFileManagerTest, removesALinkNotItsTargetAndAFolderWithAllItHolds)
{
    writeFile(folder / "kept/file");
    makeLink(folder / "link", "kept");
    makeLink(folder / "full/folder/dangling", "nowhere");
    makeLink(folder / "full/link", "../kept");

    // Through a link nothing is removed, and what isn't there needs no removal.
    for (const char* const path : { "link/file", "link", "full", "full", "full/link", "no/folder" })
        EXPECT_EQ(remove(path), "");
    EXPECT_EQ(readTree(folder.path()), (Tree { { "kept", "folder" }, { "kept/file", "" } }));
}

TEST_F(NSConfinedFileManagerTest, isTheOnlyOneInItsFolder)
{
    NSConfinedFileManager other(folder / "");
    EXPECT_FALSE(other.lock(&error));
    EXPECT_EQ(error.localizedDescription(),
        "The folder “" + folder / ""
            + "” couldn’t be opened because another installer is at work there.");
    NSConfinedFileManager missing(folder / "missing/");
    EXPECT_TRUE(
        missing.lock(&error) && missing.createDirectoryAtPath(folder / "missing/a", &error));
    EXPECT_FALSE(NSConfinedFileManager(folder / "missing/").lock(&error));
}

TEST_F(NSConfinedFileManagerTest, aCopyCarriesModeTimesAndAttributesButNoRights)
{
    const std::string from = folder / "from \xFF";
    writeFile(from, "content");
    setxattr(from.c_str(), "user.note", "kept", 4, 0);
    constexpr std::string_view capability("\1\0\0\2\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
    EXPECT_EQ(
        setxattr(from.c_str(), "security.capability", capability.data(), capability.size(), 0), 0);
    chmod(from.c_str(), 06451);
    const std::array<timespec, 2> times { timespec { 1'000'000'000, 123 }, { 1'100'000'000, 456 } };
    utimensat(AT_FDCWD, from.c_str(), times.data(), 0);

    const std::string to = folder / "to \xFF";
    EXPECT_EQ(copy("from \xFF", "to \xFF"), "");
    const struct stat status = statusOf(to);
    EXPECT_EQ(status.st_mode & 07777, mode_t(0451));
    EXPECT_EQ(status.st_atim.tv_nsec, 123);
    EXPECT_EQ(status.st_mtim.tv_sec, 1'100'000'000);
    EXPECT_EQ(status.st_mtim.tv_nsec, 456);
    EXPECT_EQ(readFile(to), "content");
    std::array<char, 8> note {};
    EXPECT_EQ(getxattr(to.c_str(), "user.note", note.data(), note.size()), 4);
    EXPECT_STREQ(note.data(), "kept");
    EXPECT_LT(getxattr(to.c_str(), "security.capability", nullptr, 0), 0);
}

TEST_F(NSConfinedFileManagerTest, aLinkIsCopiedAsALinkAndAPipeIsNotOpened)
{
    makeLink(folder / "link", "not/there");
    mkfifo((folder / "pipe").c_str(), 0640);
    EXPECT_EQ(copy("link", "link2"), "");
    EXPECT_EQ(copy("pipe", "pipe2"), "");
    EXPECT_EQ(std::filesystem::read_symlink(folder / "link2"), "not/there");
    EXPECT_EQ(statusOf(folder / "pipe2").st_mode, mode_t(S_IFIFO | 0640));
}

TEST_F(NSConfinedFileManagerTest, holesStayHolesAndLargeFilesArriveWhole)
{
    const std::string block(3'000'000, 'x');
    writeFile(folder / "sparse", block);
    truncate((folder / "sparse").c_str(), 40'000'000);
    writeFile(folder / "full", block);

    EXPECT_EQ(copy("sparse", "sparse2"), "");
    EXPECT_EQ(copy("full", "full2"), "");
    EXPECT_EQ(statusOf(folder / "sparse2").st_size, 40'000'000);
    EXPECT_LT(statusOf(folder / "sparse2").st_blocks * 512, 4'000'000);
    EXPECT_EQ(readFile(folder / "sparse2").compare(0, block.size(), block), 0);
    EXPECT_EQ(readFile(folder / "full2"), block);
}

TEST_F(NSConfinedFileManagerTest, aFileThatGrowsWhileItIsCopiedFails)
{
    writeFile(folder / "file", "content");
    const FileDescriptor from(open((folder / "file").c_str(), O_RDONLY));
    const FileDescriptor to(open(folder.path().c_str(), O_TMPFILE | O_WRONLY, 0600));
    struct stat before = statusOf(folder / "file");
    EXPECT_FALSE(copyFileData(from, before, to));
    before.st_size = 3;
    EXPECT_EQ(ftruncate(to.number(), 0), 0);
    EXPECT_EQ(copyFileData(from, before, to), std::errc::no_message_available);
}

TEST_F(NSConfinedFileManagerTest, aCopyThatFailsSaysWhyAndLeavesWhatWasThere)
{
    writeFile(folder / "file", "content");
    writeFile(folder / "taken", "mine");
    makeFolder(folder / "folder");
    makeLink(folder / "link", "folder");
    const Tree before = readTree(folder.path());

    struct Case {
        std::string from;
        std::string to;
        std::string reason;
    };
    for (const Case& c : {
             Case { "file", "taken", "an item with the same name already exists (File exists)." },
             Case { "file", "missing/new", "it doesn’t exist (No such file or directory)." },
             Case {
                 "file", "link/new", "a link is on its path (Too many levels of symbolic links)." },
             Case { "missing", "new", "it doesn’t exist (No such file or directory)." },
             Case { "folder", "new", "it is a folder (Is a directory)." },
             Case { "../../dev/null", "new", "it is a device." },
         }) {
        const std::string description = copy(c.from, c.to);
        EXPECT_TRUE(description.ends_with(" because " + c.reason)) << description;
        EXPECT_NE(description.find("“" + folder / c.from + "”"), std::string::npos) << description;
    }
    EXPECT_EQ(readTree(folder.path()), before);
}
