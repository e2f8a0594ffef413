#include "BundleTask.h"
#include "fakes/RecordedReport.h"
#include "support/Tree.h"

#include <algorithm>
#include <cassert>
#include <fuzzer/FuzzedDataProvider.h>

namespace fs = std::filesystem;
using Paths = std::vector<std::string>;

static const std::string apps = "/tmp/trees/apps/", bundle = apps + "bundle";
static const std::string neighbour = "/tmp/trees/neighbour";

// A bundle, with a folder beside its own. Links lead anywhere in these, and to no other place.
static Paths drawTrees(FuzzedDataProvider& draw)
{
    Paths folders { bundle, neighbour };
    Paths all { "..", ".", "nowhere", bundle, neighbour };
    fs::remove_all("/tmp/trees");
    for (const std::string& folder : folders)
        fs::create_directories(folder);
    const auto oneOf = [&](const Paths& paths) {
        return paths[draw.ConsumeIntegralInRange<std::size_t>(0, paths.size() - 1)];
    };
    while (draw.remaining_bytes() > 0 && all.size() < 20) {
        const std::string path = oneOf(folders) + '/' + draw.ConsumeIntegral<char>();
        const int kind = draw.ConsumeIntegralInRange(0, 3);
        if (fs::exists(fs::symlink_status(path))) continue;
        if (kind == 0)
            writeFile(path);
        else if (kind == 1)
            fs::create_directories(folders.emplace_back(path));
        else
            fs::create_symlink(oneOf(all), path);
        all.push_back(path);
    }
    return all;
}

// Whatever there is, all that leads anywhere is listed, each folder before what it holds, and a
// removal stays inside the bundle.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider draw(bytes, size);
    const Paths drawn = drawTrees(draw);
    const auto besides = readTree(neighbour);
    try {
        const auto listed = BundleTree::getFiles(bundle + "/", "");
        Paths expected;
        for (const auto& found : fs::recursive_directory_iterator(
                 bundle, fs::directory_options::follow_directory_symlink))
            if (found.exists()) expected.push_back(found.path().lexically_relative(bundle));
        assert(std::ranges::equal(listed, expected, {}, &BundleTree::File::path));
        RecordedReport report;
        BundleTask(report, apps, "bundle", DryRun::no).removeBundle(TopFolder::include, nullptr);
        assert(fs::is_empty(apps));
    } catch (const NSError&) {
        assert(std::ranges::any_of(drawn, [](const fs::path& path) { return is_symlink(path); }));
    }
    assert(readTree(neighbour) == besides);
    return 0;
}
