#include <Foundation/NSDateFormatter.h>

#include <QDateTime>

void NSDateFormatter::setDateFormat(const std::string& format)
{
    m_format = format;
    m_text.clear();
}

const std::string& NSDateFormatter::stringFromDate(NSDate date)
{
    const auto second = std::chrono::floor<std::chrono::seconds>(date);
    if (m_text.empty() || second != m_second) {
        const auto local = QDateTime::fromSecsSinceEpoch(second.time_since_epoch().count());
        m_text = local.toString(QString::fromStdString(m_format)).toStdString();
        m_second = second;
    }
    return m_text;
}
