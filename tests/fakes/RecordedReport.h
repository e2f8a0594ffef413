#pragma once

#include "TaskReport.h"
#include "fakes/FoundationFake.h"

#include <Foundation/NSThread.h>

#include <mutex>
#include <sstream>

// Writes down what a task tells, with the thread it tells it on and what the test notes at that
// moment; and the pauses that the task makes, none of which takes any time.
class RecordedReport : public TaskReport {
public:
    // `note` is called on the task's thread.
    explicit RecordedReport(std::function<std::string()> note)
        : m_note(std::move(note))
    {
        foundation.onPause = [this](double seconds) {
            add((std::ostringstream("pause ", std::ios::ate) << seconds).str());
        };
    }
    ~RecordedReport() override
    {
        foundation.onPause = [](double) {};
    }

    void showMessage(const std::string& message) override { add("“" + message + "”"); }
    void setProgress(std::int64_t index, std::int64_t count) override
    {
        add(std::to_string(index) + " of " + std::to_string(count));
    }
    void showWaiting() override { add("waiting"); }
    void closeWindow() override { add("close window", true); }
    void finish() override { add("finish", true); }
    void showFailure(const NSError& error) override
    {
        add("failure: " + error.localizedDescription(), true);
    }

    bool hasEnded() const
    {
        const std::lock_guard lock(m_mutex);
        return m_hasEnded;
    }

    // Of one run, once it has ended.
    std::vector<std::string> takeLines()
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = false;
        return std::exchange(m_lines, {});
    }

private:
    void add(const std::string& what, bool ends = false)
    {
        const std::string thread = NSThread::isMainThread() ? "main: " : "task: ";
        const std::lock_guard lock(m_mutex);
        m_lines.push_back(thread + what + m_note());
        m_hasEnded |= ends;
    }

    const std::function<std::string()> m_note;
    mutable std::mutex m_mutex;
    std::vector<std::string> m_lines;
    bool m_hasEnded = false;
};
