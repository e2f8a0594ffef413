#include "app/Installer.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

// What a listing of the bundle in `parent` holds: its entries in their order, links followed.
std::vector<fs::directory_entry> entriesOf(const std::string& parent)
{
    std::vector<fs::directory_entry> entries { fs::directory_entry(parent + "quillbarn.app") };
    for (const auto& entry : fs::recursive_directory_iterator(
             entries[0], fs::directory_options::follow_directory_symlink))
        if (entry.exists())
            entries.push_back(entry);
    return entries;
}

std::string logged(std::string text)
{
    for (auto at = text.find('\n'); at != std::string::npos; at = text.find('\n'))
        text.replace(at, 1, "\\n");
    return "d " + text;
}

Lines createLines(const std::string& source)
{
    Lines lines;
    for (const auto& entry : entriesOf(source))
        lines.push_back(logged((entry.is_directory() ? "mkdir " : " copy ")
            + std::string("/Applications/") + entry.path().string().substr(source.size())));
    return lines;
}

enum class TopDirectory { exclude, include };

Lines removeLines(TopDirectory topDirectory)
{
    Lines lines;
    for (const auto& entry : entriesOf("/Applications/"))
        lines.push_back(
            logged("remove " + entry.path().string() + (entry.is_directory() ? "/" : "")));
    if (topDirectory == TopDirectory::exclude)
        lines.erase(lines.begin());
    std::ranges::reverse(lines);
    return lines;
}

Lines join(const std::vector<Lines>& parts)
{
    Lines all;
    for (const Lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}

TEST_F(Installer, installsReplacesAndRemovesABundle)
{
    const TemporaryFolder source;
    writeFile(source / "quillbarn.app/Contents/MacOS/quillbarn", "first");
    writeFile(source / "quillbarn.app/Contents/old/only", "");
    const Lines start { "n installer start", "d install " + source.path(), "n install bundle" };
    const Lines end { "d completed", "n installer exit" };

    EXPECT_EQ(run({ "-install", source.path() }), join({ start, createLines(source.path()), end }));
    EXPECT_EQ(readTree("/Applications/quillbarn.app"), readTree(source / "quillbarn.app"));

    removeTree(source / "quillbarn.app/Contents/old");
    writeFile(source / "quillbarn.app/Contents/MacOS/quillbarn", "second");
    const Lines emptied = removeLines(TopDirectory::exclude);
    EXPECT_EQ(run({ "'-install'", "'" + source.path() + "'" }),
        join({ start, emptied, createLines(source.path()), end }));
    EXPECT_EQ(readTree("/Applications/quillbarn.app"), readTree(source / "quillbarn.app"));

    const Lines uninstall { "n installer start", "d uninstall ", "n uninstall bundle" };
    const Lines removed = removeLines(TopDirectory::include);
    EXPECT_EQ(run({ "-uninstall" }), join({ uninstall, removed, end }));
    EXPECT_TRUE(fs::is_empty("/Applications"));
    EXPECT_EQ(run({ "-uninstall" }), join({ uninstall, end }));
}

TEST_F(Installer, carriesOverWhateverABundleHolds)
{
    const TemporaryFolder source;
    const std::string bundle = source / "quillbarn.app/";
    for (const char* const name :
        { ".hidden/.file", "line\nfeed", "not \xFF UTF-8/\xFE", " ", "練習" })
        writeFile(bundle + name, name);
    makeFolder(bundle + "empty");
    fs::permissions(bundle + "練習", fs::perms(0751));
    makeLink(bundle + "link", " ");
    makeLink(bundle + "folder link", ".hidden");
    const Lines created = createLines(source.path());
    makeLink(bundle + "dangling", "nowhere");

    const Lines log = run({ "-install", source.path() });
    EXPECT_TRUE(std::ranges::is_permutation(Lines(log.begin() + 3, log.end() - 2), created));

    auto expected = readTree(bundle);
    expected.erase("dangling");
    expected["folder link"] = "folder";
    expected["folder link/.file"] = ".hidden/.file";
    EXPECT_EQ(readTree("/Applications/quillbarn.app"), expected);
    EXPECT_EQ(fs::status("/Applications/quillbarn.app/練習").permissions(), fs::perms(0751));
    EXPECT_EQ(fs::last_write_time("/Applications/quillbarn.app/練習"),
        fs::last_write_time(bundle + "練習"));
}

TEST_F(Installer, anEmptyPathMeansTheWorkingFolder)
{
    const TemporaryFolder source;
    makeFolder(source / "quillbarn.app");
    Command here = command({ "-install", "" });
    here.workingFolder = source.path();
    Program program(here);
    EXPECT_TRUE(program.waitForExit(60));
    expectOrderlyEnd(program);
    EXPECT_EQ(readLog(),
        (Lines { "n installer start", "d install ", "n install bundle",
            "d mkdir /Applications/quillbarn.app", "d completed", "n installer exit" }));
}
