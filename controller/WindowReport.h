#pragma once

#include "Modes.h"
#include "TaskReport.h"
#include "ViewController.h"

#include <memory>

// Dispatches what a task reports to the window on the main thread, and shows the state of the run
// in the title. Keeps the controller alive until the task has ended.
class WindowReport : public TaskReport {
public:
    WindowReport(std::shared_ptr<ViewController> controller, Mode mode);

    // Before the task starts, on the main thread.
    void begin() { m_controller->setTitle(m_mode.runningTitle); }

    void showMessage(const std::string& message) override;
    void setProgress(std::int64_t index, std::int64_t count) override;
    void showRetrying() override { m_controller->setTitle(m_mode.retryingTitle); }
    void end(const std::optional<NSError>& failure) override;

private:
    const std::shared_ptr<ViewController> m_controller;
    const ModeInfo& m_mode;
};
