#pragma once

#include "TaskReport.h"

#include <Foundation/NSThread.h>

#include <functional>
#include <vector>

// Records what a task reports: one line per call, with the thread ("main" or "task") and a note.
struct RecordedReport : TaskReport {
    std::vector<std::string> lines;
    std::function<std::string()> note = [] { return ""; }; // evaluated in each call

    void add(const std::string& line)
    {
        lines.push_back((NSThread::isMainThread() ? "main: " : "task: ") + line + note());
    }

    void showMessage(const std::string& message) override { add("“" + message + "”"); }
    void setProgress(std::int64_t index, std::int64_t count) override
    {
        add(std::to_string(index) + " of " + std::to_string(count));
    }
    void showRetrying() override { add("retrying"); }
    void end(const std::optional<NSError>& failure) override
    {
        add(failure ? "failure: " + failure->localizedDescription() : "end");
    }
};
