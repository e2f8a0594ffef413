#include "BundleTask.h"
#include "Fuzz.h"
#include "fakes/RecordedReport.h"

#include <filesystem>
#include <set>

namespace fs = std::filesystem;
using Paths = std::vector<std::string>;

static const std::string apps = "/tmp/trees/apps/", neighbour = "/tmp/trees/neighbour";

// A bundle, with a folder beside its own. Links lead anywhere in these, and to no other place.
static Paths drawTrees(FuzzedDataProvider& draw)
{
    Paths targets { "..", ".", "nowhere", apps + "bundle", neighbour };
    Paths folders(targets.begin() + 3, targets.end());
    std::ranges::for_each(folders, [](const fs::path& path) { fs::remove_all(path); });
    std::ranges::for_each(folders, [](const fs::path& path) { fs::create_directories(path); });
    const auto oneOf = [&](const Paths& paths) {
        return paths[draw.ConsumeIntegralInRange<std::size_t>(0, paths.size() - 1)];
    };
    while (draw.remaining_bytes() > 0 && targets.size() < 20) {
        const std::string path = oneOf(folders) + '/' + draw.ConsumeIntegral<char>();
        const int kind = draw.ConsumeIntegralInRange(0, 3);
        if (fs::exists(fs::symlink_status(path)))
            continue;
        if (kind == 0)
            writeFile(path);
        else if (kind == 1)
            fs::create_directories(folders.emplace_back(path));
        else
            makeLink(path, oneOf(targets));
        targets.push_back(path);
    }
    return targets;
}

// What leads anywhere is listed, once, each folder before what it holds.
static void check(const std::vector<BundleTree::File>& files, const Paths& drawn)
{
    std::set<std::string> listed { "bundle" };
    for (const auto& [isDirectory, path] : files) {
        assert(listed.contains(path.substr(0, path.rfind('/'))) && listed.insert(path).second);
        assert(fs::exists(apps + path) && fs::is_directory(apps + path) == isDirectory);
        assert(std::size_t(std::ranges::count(path, '/')) < drawn.size()); // or it goes in a circle
    }
    std::error_code ignored;
    for (const std::string& path : drawn)
        assert(!path.starts_with(apps + "bundle/")
            || listed.contains(path.substr(apps.size())) == fs::exists(path, ignored));
}

// Whatever there is, the listing is right, and a removal stays inside the bundle.
void tryOne(FuzzedDataProvider& draw)
{
    const Paths drawn = drawTrees(draw);
    const auto besides = readTree(neighbour);
    const bool hasLinks
        = std::ranges::any_of(drawn, [](const fs::path& p) { return is_symlink(p); });
    try {
        check(BundleTree::getFiles(apps + "bundle/", "bundle/"), drawn);
        RecordedReport report([] { return ""; });
        BundleTask(report, apps, "bundle", DryRun::no).removeBundle(TopFolder::include, nullptr);
        assert(fs::is_empty(apps));
    } catch (const NSError& error) {
        assert(hasLinks && !error.localizedDescription().empty());
    }
    assert(readTree(neighbour) == besides);
}
