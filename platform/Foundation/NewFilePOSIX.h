#pragma once

#include <string>

// A file that is written out of sight and appears under its name whole, or not at all: where the
// file system can, it has no name until then, so that nothing of it outlives the process.
// Errors are errno values, 0 for none.
class NewFile {
public:
    explicit NewFile(const std::string& path);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Whether it could be created at all.
    int error() const { return m_error; }

    // Open for writing, with access for the owner alone; closed by the destructor.
    int descriptor() const { return m_descriptor; }

    // Gives the file its name. EEXIST where the name is taken.
    int publish();

private:
    int linkNameless() const;
    int renameTemporary();

    std::string m_path;
    std::string m_temporaryPath; // empty: the file has no name yet
    int m_descriptor = -1;
    int m_error = 0;
};
