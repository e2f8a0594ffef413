#include "BundleTask.h"
#include "fakes/RecordedReport.h"
#include "support/Tree.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace fs = std::filesystem;

namespace {

const fs::path trees = "/tmp/trees", tree = trees / "bundle", neighbour = trees / "bundle2";

// Writes a tree and a neighbour. Symlinks lead anywhere in these, or dangle.
void writeTrees(std::mt19937& random)
{
    std::vector<fs::path> folders { tree, neighbour };
    std::vector<fs::path> targets { "..", ".", "nowhere", tree, neighbour };
    const auto oneOf = [&](auto& paths) { return paths[random() % paths.size()]; };
    fs::remove_all(trees);
    for (const fs::path& folder : folders)
        fs::create_directories(folder);
    for (auto count = random() % 20; count > 0; --count) {
        const fs::path path = oneOf(folders) / std::to_string(count);
        const auto kind = random() % 4;
        if (kind == 0)
            writeFile(path);
        else if (kind == 1)
            fs::create_directory(folders.emplace_back(path));
        else
            fs::create_symlink(oneOf(targets), path);
        targets.push_back(path);
    }
}

bool leadsOutside(const fs::directory_entry& item)
{
    return item.is_symlink() && item.is_directory()
        && !(canonical(item.path()).string() + '/').starts_with(tree.string() + '/');
}

}

// The tree is removed completely, or nothing changes.
TEST(BundleTask, RemovesRandomTreesOrNothing)
{
    int removed = 0;
    for (unsigned seed = 1; seed <= 1000 && !HasFailure(); ++seed) {
        std::mt19937 random(seed);
        writeTrees(random);
        const bool mustFail
            = std::ranges::any_of(fs::recursive_directory_iterator(tree), leadsOutside);
        auto expected = readTree(trees);
        RecordedReport report;
        try {
            BundleTask task(report, trees.string() + '/', "bundle", DryRun::no);
            task.removeBundle(TopFolder::include, nullptr);
            EXPECT_FALSE(mustFail) << "seed " << seed;
            std::erase_if(
                expected, [](const auto& item) { return !item.first.starts_with("bundle2"); });
            ++removed;
        } catch (const NSError&) { // also for a symlink loop
        }
        EXPECT_EQ(readTree(trees), expected) << "seed " << seed;
    }
    EXPECT_GT(removed, 100);
}
