#pragma once

#include <functional>

// The properties of the animations started between beginGrouping() and endGrouping(). Unlike in
// AppKit, groups do not nest. Main thread only.
class NSAnimationContext {
public:
    static void beginGrouping() { currentContext() = {}; }
    static void endGrouping() { currentContext() = {}; }
    static NSAnimationContext& currentContext()
    {
        static NSAnimationContext context;
        return context;
    }

    // Seconds.
    double duration() const { return m_duration; }
    void setDuration(double duration) { m_duration = duration; }

    // Called at the end of each animation that the group starts after this call.
    const std::function<void()>& completionHandler() const { return m_completionHandler; }
    void setCompletionHandler(std::function<void()> handler)
    {
        m_completionHandler = std::move(handler);
    }

private:
    double m_duration = 0.25;
    std::function<void()> m_completionHandler = [] {};
};
