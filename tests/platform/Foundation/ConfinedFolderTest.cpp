#include "FileCopy.h"
#include "support/Tree.h"

#include <Foundation/ConfinedFolder.h>
#include <Foundation/NSError.h>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <regex>
#include <sys/resource.h>
#include <sys/xattr.h>

namespace {

constexpr const char* accessList = "system.posix_acl_access";

using Tree = std::map<std::string, std::string>;

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

class ConfinedFolderTest : public testing::Test {
protected:
    std::string create(const std::string& path)
    {
        return failureOf([&] { files.createDirectoryAtPath(folder / path); });
    }
    std::string copy(const std::string& from, const std::string& to)
    {
        return failureOf([&] { files.copyItemAtPath(folder / from, folder / to); });
    }
    std::string remove(const std::string& path)
    {
        return failureOf([&] { files.removeItemAtPath(folder / path); });
    }

    // The description of the failure, if it is one, with paths from the folder.
    std::string failureOf(const std::function<void()>& work)
    try {
        work();
        return "";
    } catch (const NSError& error) {
        return std::regex_replace(error.localizedDescription(), std::regex(folder.path()), "");
    }

    const TemporaryFolder folder;
    ConfinedFolder files { folder.path() };
};

}

TEST_F(ConfinedFolderTest, whatFailsSaysWhyAndLeavesWhatWasThere)
{
    writeFile(folder / "file", "content");
    writeFile(folder / "folder/file");
    makeLink(folder / "link", "folder");
    const Tree before = readTree(folder.path());
    const std::string taken = "an item with the same name already exists (File exists).";
    EXPECT_EQ(create("file"), "The folder “file” couldn’t be created because " + taken);
    EXPECT_EQ(create("link"), "The folder “link” couldn’t be created because " + taken);
    EXPECT_EQ(create("file/a"),
        "The folder “file/a” couldn’t be created because a part of its path is not a folder (Not a "
        "directory).");
    EXPECT_EQ(copy("file", "link/a"),
        "“file” couldn’t be copied to “link/a” because a link is on its path (Too many levels of "
        "symbolic links).");
    EXPECT_EQ(copy("folder", "a"),
        "“folder” couldn’t be copied to “a” because it is a folder (Is a directory).");
    EXPECT_EQ(copy("../../dev/null", "a"),
        "“../../dev/null” couldn’t be copied to “a” because it is a device, a pipe or a socket.");
    for (const char* const path : { "link/file", "file/a", "no/a" }) // none is there
        EXPECT_EQ(remove(path), "");
    EXPECT_EQ(readTree(folder.path()), before);
}

TEST_F(ConfinedFolderTest, saysWhoMayWriteWhereTheCallerMayNot)
{
    constexpr uid_t owner = 4711;
    writeFile(folder / "a/file");
    EXPECT_EQ(chown((folder / "a").c_str(), owner, 27), 0);
    const auto failures = [&](mode_t mode) {
        EXPECT_EQ(chmod((folder / "a").c_str(), mode), 0);
        EXPECT_EQ(seteuid(owner + 1), 0);
        std::array all { create("a/b"), copy("a/file", "a/b"), remove("a/file") };
        EXPECT_EQ(seteuid(0), 0);
        return all;
    };
    for (const auto& [mode, who] : std::map<mode_t, std::string> { { 0555, "“root”" },
             { 0755, "“root” and “4711”" }, { 0775, "“root” and “4711” and the group “sudo”" } })
        for (const std::string& failure : failures(mode))
            EXPECT_TRUE(failure.ends_with(" because you don’t have permission to access it "
                                          "(Permission denied). Only "
                + who + " may write in “a”: start the installer as one who may."))
                << failure;
    EXPECT_EQ(failures(01777)[2],
        "“a/file” couldn’t be removed because it or its folder is protected: immutable, "
        "append-only or sticky (Operation not permitted).");
}

TEST_F(ConfinedFolderTest, goesDownAndUpATreeDeeperThanAProcessMayHaveFiles)
{
    const rlimit usual { 1024, 1024 };
    EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);
    writeFile(folder / "file");
    std::vector<std::string> paths { "d" };
    while (paths.size() < 1100)
        paths.push_back(paths.back() + "/d");
    for (const std::string& path : paths) {
        EXPECT_EQ(create(path), "");
        EXPECT_EQ(copy("file", path + "/file"), "");
    }
    std::ranges::reverse(paths);
    for (const std::string& path : paths) {
        EXPECT_EQ(copy(path + "/file", path + "/copy"), "");
        EXPECT_EQ(remove(path), "");
    }
    EXPECT_EQ(readTree(folder.path()), (Tree { { "file", "" } }));
}

TEST_F(ConfinedFolderTest, aFolderThatIsMissingIsMadeWithTheFirstInIt)
{
    ConfinedFolder missing(folder / "not/there/");
    missing.removeItemAtPath(folder / "not/there/a");
    missing.createDirectoryAtPath(folder / "not/there/a");
    EXPECT_EQ(readTree(folder / "not"), (Tree { { "there", "folder" }, { "there/a", "folder" } }));
}

TEST_F(ConfinedFolderTest, aCopyCarriesWhatAFileHasButNoRightsOfItsOwn)
{
    const std::string from = folder / "file";
    writeFile(from, "x");
    std::filesystem::resize_file(from, 40'000'000);
    setAttribute(
        from, "security.capability", std::string("\1\0\0\2\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20));
    EXPECT_EQ(chmod(from.c_str(), 06451), 0);
    const std::array<timespec, 2> times { timespec { 1'000'000'000, 123 }, { 1'100'000'000, 456 } };
    EXPECT_EQ(utimensat(AT_FDCWD, from.c_str(), times.data(), 0), 0);
    writeFile(folder / "shared");
    setAttribute(folder / "shared", accessList, accessControlList(1));
    EXPECT_EQ(create("into"), "");
    setAttribute(folder / "into", "system.posix_acl_default", accessControlList(2));
    for (const char* const name : { "file", "shared" })
        EXPECT_EQ(copy(name, std::string("into/") + name), "");

    const std::string to = folder / "into/file";
    struct stat status = {};
    EXPECT_EQ(stat(to.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode_t(0451));
    EXPECT_EQ(status.st_atim.tv_nsec, 123);
    EXPECT_EQ(status.st_size, 40'000'000);
    EXPECT_LT(status.st_blocks * 512, 4'000'000) << "a hole stays a hole";
    EXPECT_EQ(attributeOf(to, "security.capability"), "none");
    EXPECT_EQ(attributeOf(to, accessList), "none");
    EXPECT_EQ(attributeOf(folder / "into/shared", accessList), accessControlList(1));
}

TEST_F(ConfinedFolderTest, aFileThatGrowsWhileItIsCopiedFails)
{
    writeFile(folder / "file", "content");
    const FileDescriptor from(open((folder / "file").c_str(), O_RDONLY));
    const FileDescriptor to(open(folder.path().c_str(), O_TMPFILE | O_WRONLY, 0600));
    struct stat before = {};
    before.st_size = 3;
    EXPECT_THROW(copyFileData(from, before, to), std::system_error);
}
