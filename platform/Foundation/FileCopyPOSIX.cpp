#include "FileCopy.h"

#include "ErrorText.h"

#include <array>
#include <cstdio>
#include <fcntl.h>

namespace {

// Returns a hidden name that no other process uses while this one holds the lock.
std::string temporaryName()
{
    return std::string(".") + program_invocation_short_name + "-" + std::to_string(getpid());
}

// A new file that appears under its name when it is complete. Until then it is an unnamed temporary
// file (O_TMPFILE), which does not outlive the process, or has a hidden name if the file system
// does not support that.
class NewFile {
public:
    explicit NewFile(const Item& item);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Open for writing; the mode is 0600.
    const FileDescriptor& descriptor() const { return m_descriptor; }

    // Closes the file and gives it its name. Does not replace an existing item.
    void publish();

private:
    FileDescriptor create(const std::string& name, int flags, std::initializer_list<int> expected);
    void close();
    void link();
    void rename();

    const Item& m_item;
    std::string m_nameToRemove; // on failure; empty if there is none
    FileDescriptor m_descriptor;
};

NewFile::NewFile(const Item& item)
    : m_item(item), m_descriptor(create(".", O_TMPFILE, { EISDIR, ENOSYS, EOPNOTSUPP }))
{
    if (m_descriptor.isOpen()) return;
    const std::string name = temporaryName();
    unlinkat(m_item.folder, name.c_str(), 0); // left by a killed process with the same identifier
    m_descriptor = create(name, O_CREAT | O_EXCL, {});
    m_nameToRemove = name;
}

NewFile::~NewFile()
{
    if (!m_nameToRemove.empty()) unlinkat(m_item.folder, m_nameToRemove.c_str(), 0);
}

FileDescriptor NewFile::create(
    const std::string& name, int flags, std::initializer_list<int> expected)
{
    constexpr mode_t ownerOnly = 0600;
    return FileDescriptor(checkExcept(
        expected, openat, m_item.folder, name.c_str(), flags | O_WRONLY | O_CLOEXEC, ownerOnly));
}

void NewFile::publish()
{
    if (m_nameToRemove.empty()) {
        link();
        m_nameToRemove = m_item.name; // if the close reports an error, the data may be lost
        close();
    } else {
        close();
        rename();
    }
    m_nameToRemove.clear();
}

// Network file systems report some write errors when the file is closed.
void NewFile::close()
{
    if (::close(m_descriptor.release()) < 0 && errno != EINTR) throw lastError();
}

void NewFile::link()
{
    const int file = m_descriptor.number();
    const char* const name = m_item.name.c_str();
    if (checkExcept({ ENOENT }, linkat, file, "", m_item.folder, name, AT_EMPTY_PATH) == 0) return;
    // Before Linux 6.10, AT_EMPTY_PATH requires CAP_DAC_READ_SEARCH.
    const std::string path = "/proc/self/fd/" + std::to_string(file);
    check(linkat, AT_FDCWD, path.c_str(), m_item.folder, name, AT_SYMLINK_FOLLOW);
}

void NewFile::rename()
{
    const int folder = m_item.folder;
    const char* const from = m_nameToRemove.c_str();
    const char* const to = m_item.name.c_str();
    if (checkExcept({ EINVAL, ENOSYS, EOPNOTSUPP }, renameat2, folder, from, folder, to,
            unsigned(RENAME_NOREPLACE))
        == 0)
        return;
    // Without RENAME_NOREPLACE, an item created after this check is replaced.
    if (faccessat(folder, to, F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        throw errorOf(std::errc::file_exists);
    check(renameat, folder, from, folder, to);
}

void copyFile(const CopySource& source, const Item& to)
{
    NewFile copy(to);
    copyFileData(source.file, source.status, copy.descriptor());
    copyFileAttributes(source.file, source.status, copy.descriptor());
    copy.publish();
}

void copySymlink(const CopySource& source, const Item& to)
{
    const char* const name = to.name.c_str();
    if (checkExcept({ EEXIST, ENOSYS }, symlinkat, source.target.c_str(), to.folder, name) < 0) {
        if (errno == ENOSYS) throw errorOf(std::errc::operation_not_supported); // FUSE
        if (readLink(to) != source.target) throw errorOf(std::errc::file_exists);
    }
    const struct stat& status = source.status;
    uninterrupted(
        fchownat, to.folder, name, status.st_uid, status.st_gid, AT_SYMLINK_NOFOLLOW); // may fail
    const std::array<timespec, 2> times { status.st_atim, status.st_mtim };
    tryToKeep(utimensat, to.folder, name, times.data(), AT_SYMLINK_NOFOLLOW);
}

}

CopySource::CopySource(OpenFolders& folders, const std::string& path)
try {
    const Item item = *folders.find(path);
    const char* const name = item.name.c_str();
    check(fstatat, item.folder, name, &status, AT_SYMLINK_NOFOLLOW);
    // O_NONBLOCK: does not wait for a writer if the file has been replaced by a FIFO.
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    if (S_ISREG(status.st_mode))
        file = FileDescriptor(check(openat, item.folder, name, flags));
    else if (S_ISLNK(status.st_mode))
        target = readLink(item).value_or("");
    else if (!S_ISDIR(status.st_mode))
        throw NSError(NSLocalizedString("Errors", "item is special"), { path });
} catch (const std::system_error& reason) {
    throw failure(reason, { path }, NSLocalizedString("Errors", "item not read"));
}

void copyItem(const CopySource& source, const Item& to)
{
    if (S_ISDIR(source.status.st_mode)) throw errorOf(std::errc::is_a_directory);
    if (source.file.isOpen())
        copyFile(source, to);
    else
        copySymlink(source, to);
}
