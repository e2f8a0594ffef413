#include "FileCopy.h"
#include "support/Tree.h"

#include <Foundation/ConfinedFolder.h>
#include <Foundation/NSError.h>

#include <fcntl.h>
#include <gtest/gtest.h>

namespace {

const std::string folder = "/tmp/folder/";

constexpr auto copy = &ConfinedFolder::copyItemAtPath;
constexpr auto create = &ConfinedFolder::createDirectoryAtPath;
constexpr auto intermediates = ConfinedFolder::WithIntermediateDirectories::yes;

// Expects that a change fails with an error that contains the reason.
void expectFailure(const std::string& reason, auto change, auto... arguments)
try {
    (ConfinedFolder(folder).*change)(arguments...);
    ADD_FAILURE() << "no failure: " << reason;
} catch (const NSError& error) {
    EXPECT_NE(error.localizedDescription().find(reason), std::string::npos)
        << error.localizedDescription();
}

}

TEST(ConfinedFolder, FailureLeavesExistingItems)
{
    writeFile(folder + "file", "content");
    writeFile(folder + "folder/file");
    std::filesystem::create_symlink("folder", folder + "link");
    const auto before = readTree(folder);
    expectFailure("EEXIST", create, folder + "file", intermediates);
    expectFailure("EEXIST", create, folder + "link", intermediates);
    expectFailure("ELOOP", copy, folder + "file", folder + "link/a");
    expectFailure("EXDEV", copy, folder + "file", folder + "../a");
    expectFailure("EISDIR", copy, folder + "folder", folder + "a");
    EXPECT_EQ(readTree(folder), before);
}

TEST(ConfinedFolder, ErrorStatesWhoCanWrite)
{
    constexpr uid_t owner = 4711;
    writeFile(folder + "place/file");
    EXPECT_EQ(chown((folder + "place").c_str(), owner, 27), 0);
    for (const auto& [mode, writers] : std::map<mode_t, std::string> {
             { 0555, "Only “root” can write" }, { 0755, "Only “root” and “4711” can write" },
             { 0575, "Only “root” and members of the group “sudo” can write" },
             { 0775, "Only “root”, “4711” and members of the group “sudo” can write" },
             { 01777, "The system does not permit the operation (EPERM)" } }) {
        EXPECT_EQ(chmod((folder + "place").c_str(), mode), 0);
        EXPECT_EQ(seteuid(owner + 1), 0);
        expectFailure(writers, &ConfinedFolder::removeItemAtPath, folder + "place/file");
        EXPECT_EQ(seteuid(0), 0);
    }
}

TEST(FileData, CopyIsCompleteOrFails)
{
    writeFile(folder + "large", std::string(0x800000 + 3, 'x')); // more than one stretch
    ConfinedFolder(folder).copyItemAtPath(folder + "large", folder + "copy");
    EXPECT_TRUE(readFile(folder + "copy") == readFile(folder + "large"));

    writeFile(folder + "file", "content");
    const FileDescriptor from(open((folder + "file").c_str(), O_RDONLY));
    const FileDescriptor to(open(folder.c_str(), O_TMPFILE | O_WRONLY, 0600));
    struct stat before = {};
    for (const off_t size : { 3, 1'000'000 }) { // the file grows, or is truncated at a hole
        before.st_size = size;
        EXPECT_THROW(copyFileData(from, before, to), std::system_error);
        std::filesystem::resize_file(folder + "file", 0);
    }
}
