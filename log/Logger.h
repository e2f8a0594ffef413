#pragma once

#include <Foundation/NSDateFormatter.h>
#include <Foundation/NSFileHandle.h>

#include <memory>
#include <mutex>
#include <string>

// Appends one line per event to a file that keeps growing from run to run. Without a file, because
// it couldn't be created or opened or has been closed, entries are dropped and nobody is told.
// Safe on any thread.
class Logger {
public:
    enum class LogLevel { information, normal, warning, error, debug, trace };

    explicit Logger(const std::string& path);

    // Returns when the entry is on the disk. `message` may hold line feeds: they are escaped.
    void log(const std::string& message, LogLevel level);

    // Entries that come later are dropped.
    void close();

private:
    std::mutex m_mutex; // the end of the run closes the file while a task may still be logging
    NSDateFormatter m_formatter;
    std::shared_ptr<NSFileHandle> m_file;
    bool m_isInEntry = false; // one that the full disk has cut short
};

// The logger of this process, made at its first use and there until the process ends.
Logger& sharedLogger();
