#pragma once

#include "FileDescriptor.h"
#include "Place.h"

// A file that is written out of sight and appears under its name whole, or not at all: where the
// file system can, it has no name until then, so that nothing of it outlives the process.
class NewFile {
public:
    // For the place it is to have.
    explicit NewFile(Place place);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Why it couldn't be created, if so.
    std::error_code error() const { return m_error; }

    // Open for writing, with access for the owner alone.
    const FileDescriptor& descriptor() const { return m_descriptor; }

    // Gives the file its name, unless that is taken.
    std::error_code publish();

private:
    std::error_code nameAndClose();
    std::error_code closeAndRename();

    const Place m_place;
    std::string m_temporaryName; // empty: the file has no name yet
    FileDescriptor m_descriptor;
    std::error_code m_error;
};
