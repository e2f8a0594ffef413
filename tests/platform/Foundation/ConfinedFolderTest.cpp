#include "FileCopy.h"
#include "support/Tree.h"

#include <Foundation/ConfinedFolder.h>
#include <Foundation/NSError.h>

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>

namespace {

const std::string folder = "/tmp/folder/";

constexpr auto create = &ConfinedFolder::createDirectoryAtPath;
constexpr auto copy = &ConfinedFolder::copyItemAtPath;
constexpr auto removal = &ConfinedFolder::removeItemAtPath;

// The description of the failure, if it is one. Paths begin in the folder.
std::string failureOf(auto change, const auto&... paths)
try {
    (ConfinedFolder(folder).*change)(folder + paths...);
    return "";
} catch (const NSError& error) {
    return error.localizedDescription();
}

}

TEST(ConfinedFolder, whatFailsSaysWhyAndLeavesWhatWasThere)
{
    writeFile(folder + "file", "content");
    writeFile(folder + "folder/file");
    std::filesystem::create_symlink("folder", folder + "link");
    const auto before = readTree(folder);
    const std::string taken = "an item with the same name already exists (File exists).";
    EXPECT_EQ(failureOf(create, "file"),
        "The folder “/tmp/folder/file” couldn’t be created because " + taken);
    EXPECT_EQ(failureOf(create, "link"),
        "The folder “/tmp/folder/link” couldn’t be created because " + taken);
    EXPECT_EQ(failureOf(create, "file/a"),
        "The folder “/tmp/folder/file/a” couldn’t be created because a part of its path is not a "
        "folder (Not a directory).");
    EXPECT_EQ(failureOf(copy, "file", "link/a"),
        "“/tmp/folder/file” couldn’t be copied to “/tmp/folder/link/a” because a link is on its "
        "path (Too many levels of symbolic links).");
    EXPECT_EQ(failureOf(copy, "folder", "a"),
        "“/tmp/folder/folder” couldn’t be copied to “/tmp/folder/a” because it is a folder (Is a "
        "directory).");
    EXPECT_EQ(failureOf(copy, "../../dev/null", "a"),
        "“/tmp/folder/../../dev/null” couldn’t be copied to “/tmp/folder/a” because it is a "
        "device, a pipe or a socket.");
    for (const char* const path : { "link/file", "file/a", "no/a" }) // none is there
        EXPECT_EQ(failureOf(removal, path), "");
    EXPECT_EQ(readTree(folder), before);
}

TEST(ConfinedFolder, saysWhoMayWriteWhereTheCallerMayNot)
{
    constexpr uid_t owner = 4711;
    const std::string place = "/tmp/folder/place";
    writeFile(place + "/file");
    EXPECT_EQ(chown(place.c_str(), owner, 27), 0);
    const auto failures = [&](mode_t mode) {
        EXPECT_EQ(chmod(place.c_str(), mode), 0);
        EXPECT_EQ(seteuid(owner + 1), 0);
        std::array all { failureOf(create, "place/a"), failureOf(copy, "place/file", "place/a"),
            failureOf(removal, "place/file") };
        EXPECT_EQ(seteuid(0), 0);
        return all;
    };
    for (const auto& [mode, who] : std::map<mode_t, std::string> { { 0555, "“root”" },
             { 0755, "“root” and “4711”" }, { 0775, "“root” and “4711” and the group “sudo”" } })
        for (const std::string& failure : failures(mode))
            EXPECT_TRUE(failure.ends_with(" because you don’t have permission to access it "
                                          "(Permission denied). Only "
                + who + " may write in “/tmp/folder/place”: start the installer as one who may."))
                << failure;
    EXPECT_EQ(failures(01777)[2],
        "“/tmp/folder/place/file” couldn’t be removed because it or its folder is protected: "
        "immutable, append-only or sticky (Operation not permitted).");
}

TEST(FileData, ofAFileThatGrowsMeanwhileFails)
{
    writeFile(folder + "file", "content");
    const FileDescriptor from(open((folder + "file").c_str(), O_RDONLY));
    const FileDescriptor to(open(folder.c_str(), O_TMPFILE | O_WRONLY, 0600));
    struct stat before = {};
    before.st_size = 3;
    EXPECT_THROW(copyFileData(from, before, to), std::system_error);
}
