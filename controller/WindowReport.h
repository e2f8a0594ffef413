#pragma once

#include "TaskReport.h"
#include "ViewController.h"

#include <memory>

// What a task tells reaches the window here, and nowhere else: every hop of a task to the main
// thread is one of these. The window's title tells what the run does and how it ended. Keeps the
// controller until the task is over.
class WindowReport : public TaskReport {
public:
    WindowReport(std::shared_ptr<ViewController> controller, ViewController::Mode mode);

    // Before the task starts, on the main thread.
    void begin() { m_controller->setTitle(m_titles.running); }

    void showMessage(const std::string& message) override;
    void setProgress(std::int64_t index, std::int64_t count) override;
    void showWaiting() override;
    void closeWindow() override;
    void finish() override;
    void showFailure(const NSError& error) override;

private:
    struct Titles {
        std::string running;
        std::string waiting;
        std::string failed;
    };
    static Titles titlesOf(ViewController::Mode mode);

    const std::shared_ptr<ViewController> m_controller;
    const Titles m_titles;
};
