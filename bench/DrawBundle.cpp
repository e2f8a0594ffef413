// Draws a bundle to install, the same at every run.
//
//     drawbundle FOLDER files|deep|wide COUNT
//
// Small files in folders of sixteen, or folders within or beside each other.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace {

constexpr int perFolder = 16;
constexpr std::size_t smallest = 64; // bytes
constexpr std::size_t largest = 32UL * 1024;
constexpr std::size_t magnitudes = 9; // from the one to the other

fs::path folderOf(int file)
{
    static constexpr std::array areas { "Resources", "Frameworks", "PlugIns", "SharedSupport" };
    const int folder = file / perFolder;
    const int group = folder / perFolder;
    return fs::path("Contents") / areas[std::size_t(group) % areas.size()]
        / ("group-" + std::to_string(group)) / ("part-" + std::to_string(folder % perFolder));
}

void drawFiles(const fs::path& bundle, int count)
{
    std::mt19937 random; // NOLINT: it is to begin alike
    std::string noise;
    std::generate_n(std::back_inserter(noise), largest, [&] { return char(random()); });
    for (int i = 0; i < count; ++i) {
        const fs::path folder = bundle / folderOf(i);
        if (i % perFolder == 0)
            fs::create_directories(folder);
        const std::size_t magnitude = smallest << (random() % magnitudes);
        std::ofstream file(folder / ("file-" + std::to_string(i) + ".dat"), std::ios::binary);
        file << std::string_view(noise).substr(0, magnitude + random() % magnitude);
    }
}

void drawDeep(fs::path bundle, int count)
{
    for (int i = 0; i < count; ++i)
        fs::create_directory(bundle /= "d");
}

void drawWide(const fs::path& bundle, int count)
{
    for (int i = 0; i < count; ++i)
        fs::create_directory(bundle / ("folder-" + std::to_string(i)));
}

}

int main(int argc, char* argv[])
{
    if (argc != 4)
        return EXIT_FAILURE;
    const fs::path bundle = fs::path(argv[1]) / "quillbarn.app";
    const std::string_view kind = argv[2];
    const int count = std::atoi(argv[3]);
    fs::create_directories(bundle);
    if (kind == "files")
        drawFiles(bundle, count);
    else if (kind == "deep")
        drawDeep(bundle, count);
    else
        drawWide(bundle, count);
    return EXIT_SUCCESS;
}
