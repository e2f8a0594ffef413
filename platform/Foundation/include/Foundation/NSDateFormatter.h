#pragma once

#include <chrono>
#include <string>

// A moment in time.
using NSDate = std::chrono::system_clock::time_point;

// Formats dates in local time with ASCII digits. One thread at a time.
class NSDateFormatter {
public:
    // `format` is a date pattern with the fields yyyy, MM, dd, HH, mm and ss.
    void setDateFormat(const std::string& format);

    // The text is valid until the next call. It is cached for dates in the same second.
    const std::string& stringFromDate(NSDate date);

private:
    std::string m_format;
    std::chrono::sys_seconds m_second;
    std::string m_text;
};
