#pragma once

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

private:
    double m_duration = 0.25;
};
