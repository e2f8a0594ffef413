#pragma once

#include "TaskReport.h"
#include "ViewController.h"

#include <memory>

// What a task tells reaches the window here, and nowhere else: every hop of a task to the main
// thread is one of these. Keeps the controller until the task is over.
class WindowReport : public TaskReport {
public:
    WindowReport(std::shared_ptr<ViewController> controller, ViewController::Mode mode);

    void showMessage(const std::string& message) override;
    void setProgress(std::int64_t index, std::int64_t count) override;
    void showWaiting() override;
    void closeWindow() override;
    void finish() override;
    void showFailure(const NSError& error) override;

private:
    const std::shared_ptr<ViewController> m_controller;
    const ViewController::Mode m_mode;
};
