#pragma once

#include <chrono>
#include <string>

// A moment in time.
using NSDate = std::chrono::system_clock::time_point;

// Writes dates in local time, with ASCII digits. One thread at a time.
class NSDateFormatter {
public:
    // `format` is a Unicode date pattern such as "yyyy/MM/dd-HH:mm:ss"; no field finer than a
    // second.
    void setDateFormat(const std::string& format);

    // Dates of the second that was asked for last cost no new formatting.
    const std::string& stringFromDate(NSDate date);

private:
    std::string m_format;
    std::chrono::sys_seconds m_second;
    std::string m_text;
};
