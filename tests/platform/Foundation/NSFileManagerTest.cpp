#include "support/Tree.h"

#include <Foundation/NSFileManager.h>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

const NSFileManager& files = NSFileManager::defaultManager();

struct stat statusOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return status;
}

std::string copy(const std::string& from, const std::string& to)
{
    NSError error;
    return files.copyItemAtPath(from, to, &error) ? "" : error.localizedDescription();
}

}

TEST(NSFileManager, creatingAFileThatIsThereKeepsIt)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "content");
    EXPECT_TRUE(files.createFileAtPath(folder / "file"));
    EXPECT_EQ(readFile(folder / "file"), "content");
    EXPECT_FALSE(files.createFileAtPath(folder / "missing/file"));
}

TEST(NSFileManager, createsFoldersWithThoseOnTheWayAndNamesWhatIsInTheWay)
{
    const TemporaryFolder folder;
    NSError error;
    EXPECT_TRUE(files.createDirectoryAtPath(folder / "a/b/c", &error));
    EXPECT_TRUE(files.createDirectoryAtPath(folder / "a/b/c", &error));

    writeFile(folder / "file");
    for (const char* const path : { "file", "file/a", "file/a/b" }) {
        EXPECT_FALSE(files.createDirectoryAtPath(folder / path, &error)) << path;
        EXPECT_EQ(error.localizedDescription(),
            "The folder “" + folder / "file"
                + "” couldn’t be created because an item with the same name already exists (File "
                  "exists).");
    }
}

TEST(NSFileManager, removesALinkNotItsTargetAndAFolderWithAllItHolds)
{
    const TemporaryFolder folder;
    writeFile(folder / "kept/file");
    makeLink(folder / "link", "kept");
    makeLink(folder / "full/dangling", "nowhere");
    makeLink(folder / "full/link", "../kept");

    NSError error;
    EXPECT_TRUE(files.removeItemAtPath(folder / "link", &error));
    EXPECT_TRUE(files.removeItemAtPath(folder / "full", &error));
    EXPECT_EQ(readTree(folder.path()),
        (std::map<std::string, std::string> { { "kept", "folder" }, { "kept/file", "" } }));
    EXPECT_FALSE(files.removeItemAtPath(folder / "link", &error));
    EXPECT_EQ(error.localizedDescription(),
        "“" + folder / "link"
            + "” couldn’t be removed because it doesn’t exist (No such file or directory).");
}

TEST(NSFileManager, aCopyCarriesModeTimesAndAttributesButNoSetIDs)
{
    const TemporaryFolder folder;
    const std::string from = folder / "from \xFF";
    writeFile(from, "content");
    setxattr(from.c_str(), "user.note", "kept", 4, 0);
    chmod(from.c_str(), 06451);
    const std::array<timespec, 2> times { timespec { 1'000'000'000, 123 }, { 1'100'000'000, 456 } };
    utimensat(AT_FDCWD, from.c_str(), times.data(), 0);

    const std::string to = folder / "to \xFF";
    EXPECT_EQ(copy(from, to), "");
    const struct stat status = statusOf(to);
    EXPECT_EQ(status.st_mode & 07777, mode_t(0451));
    EXPECT_EQ(status.st_atim.tv_nsec, 123);
    EXPECT_EQ(status.st_mtim.tv_sec, 1'100'000'000);
    EXPECT_EQ(status.st_mtim.tv_nsec, 456);
    EXPECT_EQ(readFile(to), "content");
    std::array<char, 8> note {};
    EXPECT_EQ(getxattr(to.c_str(), "user.note", note.data(), note.size()), 4);
    EXPECT_STREQ(note.data(), "kept");
}

TEST(NSFileManager, aLinkIsCopiedAsALinkAndAPipeIsNotOpened)
{
    const TemporaryFolder folder;
    makeLink(folder / "link", "not/there");
    mkfifo((folder / "pipe").c_str(), 0640);
    EXPECT_EQ(copy(folder / "link", folder / "link2"), "");
    EXPECT_EQ(copy(folder / "pipe", folder / "pipe2"), "");
    EXPECT_EQ(readlink((folder / "link2").c_str(), std::array<char, 16>().data(), 16), 9);
    EXPECT_EQ(statusOf(folder / "pipe2").st_mode, mode_t(S_IFIFO | 0640));
}

TEST(NSFileManager, holesStayHolesAndLargeFilesArriveWhole)
{
    const TemporaryFolder folder;
    const std::string block(3'000'000, 'x');
    writeFile(folder / "sparse", block);
    truncate((folder / "sparse").c_str(), 40'000'000);
    writeFile(folder / "full", block);

    EXPECT_EQ(copy(folder / "sparse", folder / "sparse2"), "");
    EXPECT_EQ(copy(folder / "full", folder / "full2"), "");
    EXPECT_EQ(statusOf(folder / "sparse2").st_size, 40'000'000);
    EXPECT_LT(statusOf(folder / "sparse2").st_blocks * 512, 4'000'000);
    EXPECT_EQ(readFile(folder / "sparse2").compare(0, block.size(), block), 0);
    EXPECT_EQ(readFile(folder / "full2"), block);
}

TEST(NSFileManager, aCopyThatFailsSaysWhyAndLeavesWhatWasThere)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "content");
    writeFile(folder / "taken", "mine");
    makeFolder(folder / "folder");

    struct Case {
        std::string from;
        std::string to;
        std::string reason;
    };
    for (const Case& c : {
             Case { "file", "taken", "an item with the same name already exists (File exists)." },
             Case { "file", "missing/new", "it doesn’t exist (No such file or directory)." },
             Case { "missing", "new", "it doesn’t exist (No such file or directory)." },
             Case { "folder", "new", "it is a folder (Is a directory)." },
         }) {
        const std::string description = copy(folder / c.from, folder / c.to);
        EXPECT_TRUE(description.ends_with(" because " + c.reason)) << description;
        EXPECT_NE(description.find("“" + folder / c.from + "”"), std::string::npos) << description;
    }
    EXPECT_EQ(readTree(folder.path()),
        (std::map<std::string, std::string> {
            { "file", "content" }, { "folder", "folder" }, { "taken", "mine" } }));
}
