#pragma once

#include <Foundation/NSDateFormatter.h>
#include <Foundation/NSFileHandle.h>

#include <memory>
#include <mutex>
#include <string>

// Appends one line per entry to a file. Drops entries without an error if the file could not be
// created or opened, or is closed. Safe on any thread.
class Logger {
public:
    enum class LogLevel { information, normal, warning, error, debug, trace };

    explicit Logger(const std::string& path);

    // Escapes the line feeds in the message. Returns when the entry is flushed to the disk.
    void log(const std::string& message, LogLevel level);

    // Later entries are dropped.
    void close();

    // Returns the message with "\n" and "\r\n" as escape sequences. Escaping twice changes nothing.
    static std::string escaped(std::string message);

private:
    std::mutex m_mutex; // a task may still log when the main thread closes the file
    NSDateFormatter m_formatter;
    std::shared_ptr<NSFileHandle> m_file;
    bool m_isInEntry = false; // the last entry was cut short by a full disk
};

// Returns the logger of the process, which is created on first use and never destroyed.
Logger& sharedLogger();
