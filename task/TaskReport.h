#pragma once

#include <Foundation/NSError.h>

#include <cstdint>
#include <optional>
#include <string>

// What a task may do to the window. A task starts on a background thread and calls end() once; the
// unmount task continues on the main thread.
class TaskReport {
public:
    virtual ~TaskReport() = default;

    // Returns when the message is in the window and in the log. Safe on any thread.
    virtual void showMessage(const std::string& message) = 0;

    // Shows that the entry at `index` of `count` entries is done. `index` starts at 0. Returns when
    // the bar has the value; the bar is repainted up to one frame later. Background threads only.
    virtual void setProgress(std::int64_t index, std::int64_t count) = 0;

    // Shows that an attempt failed and the task retries. Main thread only.
    virtual void showRetrying() = 0;

    // Ends the run: closes the window, or shows the failure after a blank line and opens the pane.
    // Returns before the window has closed or the pane is open. Safe on any thread.
    virtual void end(const std::optional<NSError>& failure) = 0;
};
