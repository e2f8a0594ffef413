#pragma once

#include <Foundation/NSError.h>

#include <cstdint>
#include <string>

// All that a task knows of the window. A task begins on a background thread, shows messages and
// steps, and ends with one of the last four, once.
class TaskReport {
public:
    virtual ~TaskReport() = default;

    // Returns when the message is in the window and in the log. Safe on any thread.
    virtual void showMessage(const std::string& message) = 0;

    // The bar shows that of `count` entries the one at `index` is done, at the latest with the next
    // frame of the screen. Returns when the window knows. From any thread but the main thread.
    virtual void setProgress(std::int64_t index, std::int64_t count) = 0;

    // Says that the task waits for the volume to be free, and goes on trying. On the main thread.
    virtual void showWaiting() = 0;

    // The ends. They return at once, and what was shown before is in the window by then. Safe on
    // any thread.
    virtual void closeWindow() = 0;

    // Closes the window, unless the run was a dry one: then it waits for a person.
    virtual void finish() = 0;

    // Opens the pane with the messages, the last of which told the error.
    virtual void showFailure(const NSError& error) = 0;

    // Tells the error after a blank line, and ends with it.
    void fail(const NSError& error)
    {
        showMessage("");
        showMessage(error.localizedDescription());
        showFailure(error);
    }
};
