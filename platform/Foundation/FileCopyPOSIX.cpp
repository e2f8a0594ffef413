#include "FileCopy.h"

#include "ErrorText.h"

#include <array>
#include <cstdio>
#include <fcntl.h>

namespace {

// A file that is written out of sight and appears under its name whole, or not at all: where the
// file system can, it has no name until then, so that nothing of it outlives the process.
class NewFile {
public:
    explicit NewFile(const Item& item);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Open for writing, with access for the owner alone.
    const FileDescriptor& descriptor() const { return m_descriptor; }

    // Gives the file its name, unless that is taken.
    void publish();

private:
    void close();
    void rename();

    const Item& m_item;
    std::string m_temporaryName; // empty: the file has no name that is to go
    FileDescriptor m_descriptor;
};

NewFile::NewFile(const Item& item) : m_item(item)
{
    const auto create = [&](const char* name, int flags, std::initializer_list<int> expected) {
        constexpr mode_t ownerAlone = 0600;
        return FileDescriptor(check(
            [&] { return openat(item.folder, name, flags | O_WRONLY | O_CLOEXEC, ownerAlone); },
            expected));
    };
    m_descriptor = create(".", O_TMPFILE, { EISDIR, ENOSYS, EOPNOTSUPP });
    if (m_descriptor.isOpen()) return;
    const std::string name = ".quillbarn-" + std::to_string(getpid());
    m_descriptor = create(name.c_str(), O_CREAT | O_EXCL, {});
    m_temporaryName = name;
}

NewFile::~NewFile()
{
    if (!m_temporaryName.empty()) unlinkat(m_item.folder, m_temporaryName.c_str(), 0);
}

void NewFile::publish()
{
    if (!m_temporaryName.empty()) {
        close();
        rename();
        m_temporaryName.clear();
        return;
    }
    const int file = m_descriptor.number();
    const char* const name = m_item.name.c_str();
    const auto link = [&] { return linkat(file, "", m_item.folder, name, AT_EMPTY_PATH); };
    if (check(link, { ENOENT }) < 0) { // that takes a privilege, before Linux 6.10
        const std::string self = "/proc/self/fd/" + std::to_string(file);
        check(
            [&] { return linkat(AT_FDCWD, self.c_str(), m_item.folder, name, AT_SYMLINK_FOLLOW); });
    }
    m_temporaryName = m_item.name;
    close();
    m_temporaryName.clear();
}

// On a network some errors of writing come with the close only.
void NewFile::close()
{
    if (::close(m_descriptor.release()) < 0 && errno != EINTR) throw lastError();
}

void NewFile::rename()
{
    const char* const from = m_temporaryName.c_str();
    const char* const to = m_item.name.c_str();
    const auto tryRename = [&](unsigned flags, std::initializer_list<int> expected) {
        return check(
            [&] { return renameat2(m_item.folder, from, m_item.folder, to, flags); }, expected);
    };
    if (tryRename(RENAME_NOREPLACE, { EINVAL, ENOSYS, EOPNOTSUPP }) == 0) return;
    // A file system that can't refuse to replace: look first.
    if (faccessat(m_item.folder, to, F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        throw errorOf(std::errc::file_exists);
    tryRename(0, {});
}

void copyFile(const CopySource& source, const Item& to)
{
    NewFile copy(to);
    copyFileData(source.file, source.status, copy.descriptor());
    copyFileAttributes(source.file, source.status, copy.descriptor());
    copy.publish();
}

void copyLink(const CopySource& source, const Item& to)
{
    const char* const name = to.name.c_str();
    if (check([&] { return symlinkat(source.link.c_str(), to.folder, name); }, { EEXIST }) < 0
        && readLink(to) != source.link)
        throw errorOf(std::errc::file_exists);
    const std::array<timespec, 2> times { source.status.st_atim, source.status.st_mtim };
    uninterrupted([&] { // may fail
        return fchownat(
            to.folder, name, source.status.st_uid, source.status.st_gid, AT_SYMLINK_NOFOLLOW);
    });
    check([&] { return utimensat(to.folder, name, times.data(), AT_SYMLINK_NOFOLLOW); },
        { ENOSYS, EOPNOTSUPP, EPERM });
}

}

CopySource::CopySource(OpenFolders& folders, const std::string& path)
try {
    const Item item = folders.find(path);
    const char* const name = item.name.c_str();
    check([&] { return fstatat(item.folder, name, &status, AT_SYMLINK_NOFOLLOW); });
    // O_NONBLOCK: what has become a pipe since its status was read is not waited for.
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    if (S_ISREG(status.st_mode))
        file = FileDescriptor(check([&] { return openat(item.folder, name, flags); }));
    else if (S_ISLNK(status.st_mode))
        link = readLink(item).value_or("");
} catch (const std::system_error& reason) {
    throw failure(
        reason, { path }, NSLocalizedString("Errors", "“%1” couldn’t be read because %2 (%3)."));
}

void copyItem(const CopySource& source, const Item& to)
{
    if (source.file.isOpen())
        copyFile(source, to);
    else
        copyLink(source, to);
}
