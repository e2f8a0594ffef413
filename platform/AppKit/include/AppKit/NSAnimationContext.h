#pragma once

#include <functional>

// How the changes that are made through an animator happen, from beginGrouping to endGrouping.
// Groups nest. Each thread has its own.
class NSAnimationContext {
public:
    static void beginGrouping();
    static void endGrouping();

    // That of the innermost group.
    static NSAnimationContext& currentContext();

    // Seconds.
    double duration() const { return m_duration; }
    void setDuration(double duration) { m_duration = duration; }

    // What is called at the end of each animation that the group starts from now on.
    const std::function<void()>& completionHandler() const { return m_completionHandler; }
    void setCompletionHandler(std::function<void()> handler)
    {
        m_completionHandler = std::move(handler);
    }

private:
    double m_duration = 0.25;
    std::function<void()> m_completionHandler = [] {};
};
