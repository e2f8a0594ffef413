#pragma once

#include "TaskReport.h"

#include <Foundation/NSThread.h>

#include <functional>
#include <vector>

// Writes down what a task tells, with the thread it tells it on and what the test notes at that
// moment.
class RecordedReport : public TaskReport {
public:
    std::vector<std::string> lines;
    std::function<std::string()> note = [] { return ""; };

    void add(const std::string& told)
    {
        lines.push_back((NSThread::isMainThread() ? "main: " : "task: ") + told + note());
    }

    void showMessage(const std::string& message) override { add("“" + message + "”"); }
    void setProgress(std::int64_t index, std::int64_t count) override
    {
        add(std::to_string(index) + " of " + std::to_string(count));
    }
    void showWaiting() override { add("waiting"); }
    void closeWindow() override { add("close window"); }
    void finish() override { add("finish"); }
    void showFailure(const NSError& error) override
    {
        add("failure: " + error.localizedDescription());
    }
};
