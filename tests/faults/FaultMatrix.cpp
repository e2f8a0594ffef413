// Every file call of an install, a replacement and an uninstall fails in turn, in each of the ways
// it may. The run ends in order all the same, tells the truth, and leaves no half of anything.

#include "BundleTask.h"
#include "Logger.h"
#include "faults/FaultySystem.h"
#include "support/Tree.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const std::string others = "/tmp/others/"; // what a run has no business to change
const std::string source = others + "source/";
const std::string bundle = "quillbarn.app/";
const std::string installed = "/Applications/" + bundle;
const std::string logFile = "/tmp/quillbarninstaller.log";
constexpr uid_t someUser = 4711;
constexpr const char* attributeName = "security.note"; // a volume in memory keeps it, too

struct Scenario {
    const char* name;
    bool isInstalled;
    bool installs;
    Volume volume;
};

constexpr std::array scenarios {
    Scenario { "install", false, true, Volume::complete },
    Scenario { "install on a plain volume", false, true, Volume::plain },
    Scenario { "install on a simple volume", false, true, Volume::simple },
    Scenario { "replacement", true, true, Volume::complete },
    Scenario { "uninstall", true, false, Volume::complete },
};

// The lines reach the log as they do beside a window.
class LoggedReport : public TaskReport {
public:
    void showMessage(const std::string& message) override
    {
        sharedLogger().log(message, Logger::LogLevel::debug);
    }
    void setProgress(std::int64_t, std::int64_t) override {}
    void showWaiting() override {}
    void closeWindow() override {}
    void finish() override {}
    void showFailure(const NSError&) override {}
};

void drawSource()
{
    const std::string top = source + bundle;
    writeFile(top + "file", "new");
    writeFile(top + "folder/within/large", std::string(140'000, 'x'));
    writeFile(top + "sparse");
    fs::resize_file(top + "sparse", 120'000);
    std::ofstream(top + "sparse", std::ios::app) << "after a hole";
    fs::resize_file(top + "sparse", 140'000);
    makeLink(top + "link", "file");
    makeLink(top + "folder/link", "within");
    makeLink(top + "dangling", "nowhere");
    fs::permissions(top + "file", fs::perms(0751));
    for (const char* const name : { "file", "link" })
        if (lchown((top + name).c_str(), someUser, someUser) != 0)
            throw std::system_error(errno, std::generic_category(), "lchown");
    if (setxattr((top + "file").c_str(), attributeName, "kept", 4, 0) != 0)
        throw std::system_error(errno, std::generic_category(), "setxattr");
    const std::string list = accessControlList(someUser); // for what is made in it
    if (setxattr("/Applications", "system.posix_acl_default", list.data(), list.size(), 0) != 0)
        throw std::system_error(errno, std::generic_category(), "setxattr");
    writeFile(others + "letter", "dear");
}

void drawInstalled()
{
    writeFile(installed + "file", "old");
    writeFile(installed + "old/folder/file", "old");
    fs::create_directories(installed + "empty");
    makeLink(installed + "link", "empty");
    makeLink(installed + "letter", others + "letter");
    makeLink(installed + "old/dangling", "nowhere");
}

using Entry = std::array<std::string, 5>; // by part
using Entries = std::map<std::string, Entry>;

Entry describe(const fs::directory_entry& found)
{
    const std::string path = found.path();
    struct stat status = {};
    std::array<char, 9> value {};
    lstat(path.c_str(), &status);
    lgetxattr(path.c_str(), attributeName, value.data(), value.size() - 1);
    const std::string inside
        = found.is_symlink() ? "-> " + fs::read_symlink(path).string() : readFile(path);
    const auto [seconds, nanoseconds] = status.st_mtim;
    return { inside, std::to_string(status.st_mode), std::to_string(status.st_uid),
        std::to_string(seconds) + "." + std::to_string(nanoseconds), value.data() };
}

enum class Links { kept, followed };

// What is below a folder. With links to folders followed: what an install makes of it.
Entries entriesOf(const std::string& folder, Links links = Links::kept)
{
    const bool follows = links == Links::followed;
    Entries entries;
    std::error_code isMissing;
    for (const auto& found :
        fs::recursive_directory_iterator(folder,
            follows ? fs::directory_options::follow_directory_symlink : fs::directory_options::none,
            isMissing)) {
        const bool isFolder = found.is_directory() && (follows || !found.is_symlink());
        if (!follows || found.exists())
            entries[found.path().lexically_relative(folder)]
                = isFolder ? Entry { "folder" } : describe(found);
    }
    return entries;
}

// What a run finds, and what it is to leave.
struct Disk {
    Entries before = entriesOf(installed);
    Entries wanted = entriesOf(source + bundle, Links::followed);
    Entries others = entriesOf(::others);
};

bool holds(const Entries& entries, const std::string& path, const Entry& entry)
{
    const auto found = entries.find(path);
    return found != entries.end() && found->second[content] == entry[content];
}

// Without the part that may be left out, where it was refused.
Entries withoutRefused(Entries entries, const Fault& fault)
{
    static const std::set refusals { EACCES, ENODATA, ENOSPC, ENOSYS, EOPNOTSUPP, EPERM };
    if (fault.call.part != content && refusals.contains(fault.error))
        for (auto& [path, entry] : entries)
            entry[fault.call.part].clear();
    return entries;
}

// What a failure is to say.
std::string reasonOf(const Fault& fault)
{
    const std::string_view call = fault.call.name;
    if (fault.error == EWOULDBLOCK && call == "flock")
        return "another program holds it locked";
    return fault.error == nothing ? "" : strerrordesc_np(fault.error);
}

std::vector<std::string> linesOf(const std::string& path)
{
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

// What is wrong after a run, or nothing.
std::string findProblem(const Scenario& scenario, const Fault& fault, const Disk& disk)
{
    const Entries now = entriesOf(installed);
    for (const auto& [path, entry] : now)
        if (!holds(disk.before, path, entry) && !holds(disk.wanted, path, entry))
            return path + " is not whole, or should not be";
    if (entriesOf(others) != disk.others || entriesOf("/Applications/").size() > now.size() + 1)
        return "what is not the bundle's has changed";

    const std::vector<std::string> log = linesOf(logFile);
    const bool isOfLog = fault.path.starts_with(logFile);
    const std::size_t end = log.size();
    if (!isOfLog && (end < 3 || !log[end - 1].ends_with(" n installer exit")))
        return "the log tells no end";
    if (end > 3 && log[end - 3].ends_with(" d ")) {
        const std::string& told = log[end - 2];
        return isOfLog                                        ? "failed for the log"
            : fault.path.empty()                              ? "failed without a fault: " + told
            : fault.error == EINTR                            ? "failed when interrupted"
            : told.find(" because ") == std::string::npos     ? "told no reason: " + told
            : told.find(reasonOf(fault)) == std::string::npos ? "told another reason: " + told
                                                              : "";
    }
    if (!isOfLog && !log[end - 2].ends_with(" d completed"))
        return "neither failed nor completed";
    if (fault.hasLostData && !isOfLog)
        return "completed, with data lost";
    const bool isDone = scenario.installs
        ? withoutRefused(now, fault) == withoutRefused(disk.wanted, fault)
        : !fs::exists(installed);
    return isDone ? "" : "completed, but not done";
}

enum Result { hasHeld = 1, wasMade = 2 }; // may be both

// In a process of its own.
int runAndJudge(const Scenario& scenario, Fault fault)
{
    alarm(30); // ends a run that hangs
    const Disk disk;
    runWithFault(fault, [&] {
        LoggedReport report;
        BundleTask task(report, "/Applications/", "quillbarn.app", DryRun::no);
        if (scenario.installs)
            task.install(source);
        else
            task.uninstall();
    });
    sharedLogger().log("installer exit", Logger::LogLevel::normal);
    const std::string problem = findProblem(scenario, fault, disk);
    if (!problem.empty())
        std::cerr << fault.path << ": " << problem << '\n';
    return (problem.empty() ? hasHeld : 0) | (fault.path.empty() ? 0 : wasMade);
}

int resultOf(const Scenario& scenario, const Fault& fault)
{
    fs::remove_all(installed);
    fs::remove(logFile);
    if (scenario.isInstalled)
        drawInstalled();
    const pid_t process = fork();
    if (process == 0)
        _exit(runAndJudge(scenario, fault));
    int status = 0;
    waitpid(process, &status, 0);
    const int result = WIFEXITED(status) ? WEXITSTATUS(status) : wasMade;
    if (!(result & hasHeld))
        std::cerr << "  with "
                  << (fault.error == nothing ? "nothing" : strerrorname_np(fault.error)) << " at "
                  << fault.call.name << " " << fault.step << " of " << scenario.name
                  << (WIFEXITED(status) ? "" : ", killed") << '\n';
    return result;
}

struct Count {
    int tried = 0;
    int held = 0;
};

Count tryCall(const FileCall& call)
{
    Count count;
    for (const Scenario& scenario : scenarios)
        for (const int error : call.errors)
            for (int step = 1, result = wasMade; result & wasMade; ++step) {
                result = resultOf(scenario, { call, error, step, scenario.volume });
                count.tried += result != hasHeld;
                count.held += result == (hasHeld | wasMade);
            }
    return count;
}

// A file that somebody has put in the place of a copy meanwhile stays.
bool keepsWhatIsThere(Volume volume)
{
    writeFile(installed + "file", "somebody's");
    Fault none { fileCalls().front(), EIO, 0, volume };
    std::string told;
    runWithFault(none, [&] {
        try {
            ConfinedFolder("/Applications/")
                .copyItemAtPath(source + bundle + "file", installed + "file");
        } catch (const NSError& error) {
            told = error.localizedDescription();
        }
    });
    return told.ends_with("(File exists).") && readFile(installed + "file") == "somebody's";
}

}

int main()
try {
    drawSource();
    for (const Scenario& scenario : scenarios)
        if (resultOf(scenario, { fileCalls().front(), EIO, 0, scenario.volume }) != hasHeld)
            return EXIT_FAILURE; // without a fault
    bool hasAllHeld = true;
    for (const FileCall& call : fileCalls()) {
        const auto [tried, held] = tryCall(call);
        std::cout << call.name << ": " << tried << " tried, " << held << " held" << std::endl;
        hasAllHeld &= tried > 0 && held == tried;
    }
    // At the end: what this process has open is nothing to the processes of the others.
    for (const Volume volume : { Volume::complete, Volume::plain, Volume::simple })
        if (!keepsWhatIsThere(volume))
            throw std::runtime_error(
                "a file was replaced on volume " + std::to_string(int(volume)));
    return hasAllHeld ? EXIT_SUCCESS : EXIT_FAILURE;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
