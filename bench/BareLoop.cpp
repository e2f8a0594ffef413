// The yardstick: what a run has to do and nothing else. The installer's own system calls in their
// order, and for each entry two hand-overs to a second thread, the first of which writes the log
// and flushes it. No window, no text, no care for links, attributes or other kinds of file.
//
//     bareloop asleep|awake install SOURCE/
//     bareloop asleep|awake uninstall

#include "HandOver.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

const std::string applications = "/Applications/";
const std::string bundle = "quillbarn.app";

void require(bool success, const std::string& what)
{
    if (!success) {
        perror(what.c_str());
        _exit(EXIT_FAILURE);
    }
}

struct Entry {
    bool isFolder;
    std::string path;
};

void list(const std::string& folder, const std::string& prefix, std::vector<Entry>& entries)
{
    struct stat status = {};
    require(stat(folder.c_str(), &status) == 0, folder);
    DIR* const directory = opendir(folder.c_str());
    if (!directory) return require(false, folder);
    std::vector<std::string> names;
    while (const dirent* item = readdir(directory))
        if (const std::string name = item->d_name; name != "." && name != "..")
            names.push_back(name);
    closedir(directory);
    for (const std::string& name : names) {
        require(stat((folder + name).c_str(), &status) == 0, folder + name);
        entries.push_back({ S_ISDIR(status.st_mode), prefix + name });
        if (S_ISDIR(status.st_mode)) list(folder + name + "/", prefix + name + "/", entries);
    }
}

void copyFile(const std::string& source, const std::string& destination)
{
    static std::array<char, 128UL * 1024> buffer;
    struct stat status = {};
    require(lstat(source.c_str(), &status) == 0, source);
    const int from = open(source.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    require(from >= 0, source);
    const std::string folder = destination.substr(0, destination.rfind('/') + 1);
    const int to = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    require(to >= 0, folder);
    for (off_t done = 0; done < status.st_size;) {
        const ssize_t size = pread(from, buffer.data(), buffer.size(), done);
        require(size > 0 && pwrite(to, buffer.data(), std::size_t(size), done) == size, source);
        done += size;
    }
    require(flistxattr(from, nullptr, 0) >= 0, source);
    require(fchown(to, status.st_uid, status.st_gid) == 0, destination);
    require(fchmod(to, status.st_mode & 0777) == 0, destination);
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    require(futimens(to, times.data()) == 0, destination);
    require(linkat(to, "", AT_FDCWD, destination.c_str(), AT_EMPTY_PATH) == 0, destination);
    close(to);
    close(from);
}

class Log {
public:
    Log() { require(m_file >= 0, "log"); }

    void write(const std::string& message)
    {
        if (const time_t now = time(nullptr); now != m_second) {
            m_second = now;
            tm local = {};
            strftime(m_stamp.data(), m_stamp.size(), "%Y/%m/%d-%T ", localtime_r(&now, &local));
        }
        const std::string line = m_stamp.data() + std::to_string(getpid()) + " d " + message + '\n';
        require(::write(m_file, line.data(), line.size()) == ssize_t(line.size()), "log");
        fdatasync(m_file);
    }

private:
    const int m_file
        = open("/tmp/quillbarninstaller.log", O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    time_t m_second = 0;
    std::array<char, 32> m_stamp {};
};

template <class Signal> class BareLoop {
public:
    // On the main thread, which serves the other until that has finished.
    void run(const std::string& source)
    {
        std::thread other([&] {
            perform(source);
            m_work = nullptr;
            m_request.raise();
        });
        for (m_request.await(); m_work; m_request.await()) {
            (*m_work)();
            m_reply.raise();
        }
        other.join();
    }

private:
    // These on the other thread. Without a source it uninstalls.
    void handOver(const std::function<void()>& work)
    {
        m_work = &work;
        m_request.raise();
        m_reply.await();
    }
    void report(const std::string& message)
    {
        handOver([&] { m_log.write(message); });
    }
    void perform(const std::string& source);

    Log m_log;
    Signal m_request;
    Signal m_reply;
    const std::function<void()>* m_work = nullptr; // none: the task has finished
    volatile double m_progress = 0;
};

template <class Signal> void BareLoop<Signal>::perform(const std::string& source)
{
    const bool removes = source.empty();
    std::vector<Entry> entries { { true, bundle } };
    list((removes ? applications : source) + bundle + "/", bundle + "/", entries);
    if (removes) std::reverse(entries.begin(), entries.end());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& [isFolder, name] = entries[i];
        const std::string path = applications + name;
        if (removes) {
            report("remove " + path + (isFolder ? "/" : ""));
            require(remove(path.c_str()) == 0, path);
        } else if (isFolder) {
            report("mkdir " + path);
            require(mkdir(path.c_str(), 0777) == 0, path);
        } else {
            report(" copy " + path);
            copyFile(source + name, path);
        }
        handOver([&] { m_progress = double(i + 1) / double(entries.size()); });
    }
}

}

int main(int argc, char* argv[])
{
    const std::string source = argc > 3 ? argv[3] : "";
    if (argc > 1 && std::string(argv[1]) == "asleep")
        BareLoop<SleepingSignal>().run(source);
    else
        BareLoop<SpinningSignal>().run(source);
    return EXIT_SUCCESS;
}
