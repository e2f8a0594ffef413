#pragma once

#include "TaskReport.h"

#include <functional>
#include <mutex>
#include <vector>

// Writes down what a task tells, with the thread it tells it on and what the test notes at that
// moment; and the pauses that the task makes, none of which takes any time.
class RecordedReport : public TaskReport {
public:
    // `note` is called on the task's thread.
    explicit RecordedReport(std::function<std::string()> note);
    ~RecordedReport() override;

    void showMessage(const std::string& message) override { add("“" + message + "”"); }
    void setProgress(std::int64_t index, std::int64_t count) override;
    void showWaiting() override { add("waiting"); }
    void closeWindow() override { end("close window"); }
    void finish() override { end("finish"); }
    void showFailure(const NSError& error) override;

    bool hasEnded() const;
    std::vector<std::string> takeLines();

private:
    void add(const std::string& what);
    void end(const std::string& how);

    const std::function<std::string()> m_note;
    mutable std::mutex m_mutex;
    std::vector<std::string> m_lines;
    bool m_hasEnded = false;
};
