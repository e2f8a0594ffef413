#include "Logger.h"

#include <Foundation/NSFileManager.h>
#include <Foundation/NSProcessInfo.h>

namespace {

// In the order of LogLevel.
char letterOf(Logger::LogLevel level) { return "inwedt"[std::size_t(level)]; }

void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}
}

Logger::Logger(const std::string& path)
{
    m_formatter.setDateFormat("yyyy/MM/dd-HH:mm:ss");
    if (NSFileManager::defaultManager().createFileAtPath(path))
        m_file = NSFileHandle::fileHandleForWritingAtPath(path);
}

void Logger::log(const std::string& message, LogLevel level)
{
    const std::lock_guard lock(m_mutex);
    if (!m_file) return;
    const std::string line = (m_isInEntry ? "\n" : "")
        + m_formatter.stringFromDate(NSDate::clock::now()) + ' '
        + std::to_string(NSProcessInfo::processInfo().processIdentifier()) + ' ' + letterOf(level)
        + ' ' + escaped(message) + '\n';
    if (const std::size_t written = m_file->writeData(line))
        m_isInEntry = line[written - 1] != '\n';
    m_file->synchronizeFile();
}

// A carriage return alone does not end a line and stays.
std::string Logger::escaped(std::string message)
{
    replaceAll(message, "\r\n", "\\r\\n");
    replaceAll(message, "\n", "\\n");
    return message;
}

void Logger::close()
{
    const std::lock_guard lock(m_mutex);
    if (m_file) m_file->closeFile();
    m_file = nullptr;
}

Logger& sharedLogger()
{
    static auto* const logger = new Logger("/tmp/quillbarninstaller.log");
    return *logger;
}
