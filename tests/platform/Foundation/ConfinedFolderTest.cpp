#include "FileCopy.h"
#include "support/Tree.h"

#include <Foundation/ConfinedFolder.h>
#include <Foundation/NSError.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
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

// The description of the failure, if it is one.
std::string failureOf(const std::function<void()>& work)
try {
    work();
    return "";
} catch (const NSError& error) {
    return error.localizedDescription();
}

class ConfinedFolderTest : public testing::Test {
protected:
    std::string copy(const std::string& from, const std::string& to)
    {
        return failureOf([&] { files.copyItemAtPath(folder / from, folder / to); });
    }
    std::string create(const std::string& path)
    {
        return failureOf([&] { files.createDirectoryAtPath(folder / path); });
    }
    std::string remove(const std::string& path)
    {
        return failureOf([&] { files.removeItemAtPath(folder / path); });
    }

    const TemporaryFolder folder;
    ConfinedFolder files { folder / "" };
};

}

TEST_F(ConfinedFolderTest, createsFoldersAndNamesWhatIsInTheWay)
{
    for (const char* const path : { "a", "a/b", "a/b" })
        EXPECT_EQ(create(path), "");
    writeFile(folder / "file");
    makeLink(folder / "link", "a");
    for (const auto& [path, reason] : std::map<std::string, std::string> {
             { "file", "an item with the same name already exists (File exists)." },
             { "link", "an item with the same name already exists (File exists)." },
             { "file/a", "a part of its path is not a folder (Not a directory)." },
             { "no/a", "it doesn’t exist (No such file or directory)." },
             { "link/a", "a link is on its path (Too many levels of symbolic links)." },
         })
        EXPECT_EQ(create(path),
            "The folder “" + folder / path + "” couldn’t be created because " + reason);
    EXPECT_EQ(readTree(folder / "a"), (Tree { { "b", "folder" } }));
}

TEST_F(ConfinedFolderTest, saysWhoMayWriteWhereTheCallerMayNot)
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

TEST_F(ConfinedFolderTest, removesALinkNotItsTargetAndAFolderWithAllItHolds)
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

TEST_F(ConfinedFolderTest, goesDownAndUpADeepTree)
{
    writeFile(folder / "file");
    std::vector<std::string> paths;
    for (std::string path = "d"; paths.size() < 1100; path += "/d") {
        paths.push_back(path);
        EXPECT_EQ(create(path), "") << paths.size();
        EXPECT_EQ(copy("file", path + "/file"), "") << paths.size();
    }
    for (std::size_t i = paths.size(); i-- > 0;) {
        EXPECT_EQ(copy(paths[i] + "/file", paths[i] + "/copy"), "") << i;
        EXPECT_EQ(remove(paths[i]), "") << i;
    }
    EXPECT_EQ(readTree(folder.path()), (Tree { { "file", "" } }));
}

TEST_F(ConfinedFolderTest, isTheOnlyOneInItsFolder)
{
    const auto openAnother
        = [](const std::string& path) { return failureOf([&] { ConfinedFolder other(path); }); };
    EXPECT_EQ(openAnother(folder / ""),
        "The folder “" + folder / ""
            + "” couldn’t be opened because another program holds it locked.");
    ConfinedFolder missing(folder / "not/there/");
    missing.createDirectoryAtPath(folder / "not/there/a");
    EXPECT_NE(openAnother(folder / "not/there/"), "");
}

TEST_F(ConfinedFolderTest, whatIsProtectedFromRootIsCalledSo)
{
    std::filesystem::create_directories(folder / "a");
    const FileDescriptor a(open((folder / "a").c_str(), O_RDONLY));
    const auto protect = [&](int flags) { return ioctl(a.number(), FS_IOC_SETFLAGS, &flags); };
    ASSERT_EQ(protect(FS_IMMUTABLE_FL), 0);
    const std::string failure = create("a/b");
    ASSERT_EQ(protect(0), 0);
    EXPECT_EQ(failure,
        "The folder “" + folder / "a/b"
            + "” couldn’t be created because it or its folder is protected: immutable, append-only "
              "or sticky (Operation not permitted).");
}

namespace {

constexpr uid_t someUser = 4711;

std::string attributeOf(const std::string& path, const char* name)
{
    std::array<char, 100> value {};
    const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
    return size < 0 ? "none" : std::string(value.data(), std::size_t(size));
}

void setAttribute(const std::string& path, const char* name, const std::string& value)
{
    EXPECT_EQ(setxattr(path.c_str(), name, value.data(), value.size(), 0), 0) << name;
}

}

TEST_F(ConfinedFolderTest, aCopyCarriesWhatAFileHasButNoRightsOfItsOwn)
{
    const char* const access = "system.posix_acl_access";
    const std::string from = folder / "from \xFF";
    writeFile(from, "content");
    EXPECT_EQ(chown(from.c_str(), someUser, someUser), 0);
    setAttribute(from, "user.note", "kept");
    setAttribute(
        from, "security.capability", std::string("\1\0\0\2\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20));
    chmod(from.c_str(), 06451);
    const std::array<timespec, 2> times { timespec { 1'000'000'000, 123 }, { 1'100'000'000, 456 } };
    utimensat(AT_FDCWD, from.c_str(), times.data(), 0);
    makeLink(folder / "link", "not/there");
    EXPECT_EQ(lchown((folder / "link").c_str(), someUser, someUser), 0);
    writeFile(folder / "shared");
    setAttribute(folder / "shared", access, accessControlList(someUser));
    std::filesystem::create_directories(folder / "into");
    setAttribute(folder / "into", "system.posix_acl_default", accessControlList(someUser + 1));

    const std::string to = folder / "into/to \xFF";
    for (const auto& [name, copied] :
        std::map<std::string, std::string> {
            { "from \xFF", "into/to \xFF" }, { "link", "into/link" }, { "shared", "into/shared" } })
        EXPECT_EQ(copy(name, copied), "");
    const struct stat status = statusOf(to);
    EXPECT_EQ(status.st_mode & 07777, mode_t(0451));
    EXPECT_EQ(status.st_uid, someUser);
    EXPECT_EQ(status.st_atim.tv_nsec, 123);
    EXPECT_EQ(status.st_mtim.tv_sec, 1'100'000'000);
    EXPECT_EQ(status.st_mtim.tv_nsec, 456);
    EXPECT_EQ(readFile(to), "content");
    EXPECT_EQ(attributeOf(to, "user.note"), "kept");
    EXPECT_EQ(attributeOf(to, "security.capability"), "none");
    EXPECT_EQ(attributeOf(to, access), "none");
    EXPECT_EQ(attributeOf(folder / "into/shared", access), accessControlList(someUser));
    EXPECT_EQ(std::filesystem::read_symlink(folder / "into/link"), "not/there");
    EXPECT_EQ(statusOf(folder / "into/link").st_uid, someUser);
}

TEST_F(ConfinedFolderTest, holesStayHoles)
{
    const std::string block(3'000'000, 'x');
    writeFile(folder / "sparse", block);
    truncate((folder / "sparse").c_str(), 40'000'000);
    EXPECT_EQ(copy("sparse", "sparse2"), "");
    EXPECT_EQ(statusOf(folder / "sparse2").st_size, 40'000'000);
    EXPECT_LT(statusOf(folder / "sparse2").st_blocks * 512, 4'000'000);
    EXPECT_TRUE(readFile(folder / "sparse2").starts_with(block));
}

TEST_F(ConfinedFolderTest, aFileThatGrowsWhileItIsCopiedFails)
{
    writeFile(folder / "file", "content");
    const FileDescriptor from(open((folder / "file").c_str(), O_RDONLY));
    const FileDescriptor to(open(folder.path().c_str(), O_TMPFILE | O_WRONLY, 0600));
    struct stat before = statusOf(folder / "file");
    EXPECT_NO_THROW(copyFileData(from, before, to));
    before.st_size = 3;
    EXPECT_EQ(ftruncate(to.number(), 0), 0);
    EXPECT_THROW(copyFileData(from, before, to), std::system_error);
}

TEST_F(ConfinedFolderTest, aCopyThatFailsSaysWhyAndLeavesWhatWasThere)
{
    writeFile(folder / "file", "content");
    writeFile(folder / "taken", "mine");
    std::filesystem::create_directories(folder / "folder");
    makeLink(folder / "link", "folder");
    const Tree before = readTree(folder.path());
    mkfifo((folder / "pipe").c_str(), 0600);

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
             Case { "../../dev/null", "new", "it is a device, a pipe or a socket." },
             Case { "pipe", "new", "it is a device, a pipe or a socket." },
         }) {
        const std::string description = copy(c.from, c.to);
        EXPECT_TRUE(description.ends_with(" because " + c.reason)) << description;
        EXPECT_NE(description.find("“" + folder / c.from + "”"), std::string::npos) << description;
    }
    unlink((folder / "pipe").c_str());
    EXPECT_EQ(readTree(folder.path()), before);
}
