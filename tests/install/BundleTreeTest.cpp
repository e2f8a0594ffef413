#include "support/TestController.h"
#include "support/Tree.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

// "path" for a file, "path/" for a directory, in the order of the listing.
std::vector<std::string> list(const std::string& directory)
{
    std::vector<std::string> entries;
    for (const TestController::File& file : TestController::getFiles(directory, "p/"))
        entries.push_back(file.path + (file.isDirectory ? "/" : ""));
    return entries;
}

std::string failureOf(const std::string& directory)
{
    try {
        list(directory);
        return "";
    } catch (const NSError& error) {
        return error.localizedDescription();
    }
}

}

TEST(BundleTree, listsEachFolderBeforeWhatItHoldsAndSiblingsInTheOrderOfTheFileSystem)
{
    const TemporaryFolder folder;
    for (const char* const path : { "z/1", "z/2/3", "a", "m/.hidden" })
        writeFile(folder / path);
    makeFolder(folder / "empty");

    std::vector<std::string> expected;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
        expected.push_back("p/" + entry.path().string().substr(folder.path().size())
            + (entry.is_directory() ? "/" : ""));
    EXPECT_EQ(list(folder.path()), expected);
    EXPECT_TRUE(list(folder / "empty/").empty());
}

TEST(BundleTree, followsLinksToFoldersAndLeavesDanglingOnesOut)
{
    const TemporaryFolder folder;
    writeFile(folder / "outside/file");
    makeLink(folder / "inside/folder", "../outside");
    EXPECT_EQ(
        list(folder / "inside/"), (std::vector<std::string> { "p/folder/", "p/folder/file" }));

    removeTree(folder / "inside/folder");
    makeLink(folder / "inside/file", "../outside/file");
    makeLink(folder / "inside/dangling", "nowhere");
    EXPECT_EQ(list(folder / "inside/"), (std::vector<std::string> { "p/file" }));
}

TEST(BundleTree, failsWhereAFolderCantBeReadOrALinkLeadsBack)
{
    const TemporaryFolder folder;
    writeFile(folder / "a/b/file");
    EXPECT_NE(failureOf(folder / "missing/").find(folder / "missing/"), std::string::npos);
    EXPECT_NE(failureOf(folder / "a/b/file/").find("not a folder"), std::string::npos);

    makeLink(folder / "a/b/loop", "..");
    EXPECT_EQ(failureOf(folder / "a/"),
        "The link “" + folder / "a/b/loop" + "” couldn’t be followed because it leads back to “"
            + folder / "a/" + "”, a folder that holds it.");
}
