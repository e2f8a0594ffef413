#include "fakes/RecordedReport.h"

#include "fakes/NSThreadFake.h"

#include <Foundation/NSThread.h>

#include <sstream>
#include <utility>

RecordedReport::RecordedReport(std::function<std::string()> note)
    : m_note(std::move(note))
{
    onPause([this](double seconds) {
        std::ostringstream pause;
        pause << "pause " << seconds;
        add(pause.str());
    });
}

RecordedReport::~RecordedReport()
{
    onPause([](double) {});
}

void RecordedReport::setProgress(std::int64_t index, std::int64_t count)
{
    add(std::to_string(index) + " of " + std::to_string(count));
}

void RecordedReport::showFailure(const NSError& error)
{
    end("failure: " + error.localizedDescription());
}

bool RecordedReport::hasEnded() const
{
    const std::lock_guard lock(m_mutex);
    return m_hasEnded;
}

std::vector<std::string> RecordedReport::takeLines()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_lines, {});
}

void RecordedReport::add(const std::string& what)
{
    const std::string thread = NSThread::isMainThread() ? "main: " : "task: ";
    const std::lock_guard lock(m_mutex);
    m_lines.push_back(thread + what + m_note());
}

void RecordedReport::end(const std::string& how)
{
    add(how);
    const std::lock_guard lock(m_mutex);
    m_hasEnded = true;
}
