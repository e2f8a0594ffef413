#include "AppKit/NSView.h"

#include "AppKit/NSWindow.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

// The views that have changed since the screen last showed a frame. A task steps the bar thousands
// of times a second; no screen shows more than some sixty of them.
class Frames {
public:
    static Frames& shared()
    {
        static Frames frames;
        return frames;
    }

    void add(NSView& view)
    {
        if (m_views.empty())
            QTimer::singleShot(untilNext(), QCoreApplication::instance(), [this] { show(); });
        m_views.push_back(&view);
    }

    void remove(const NSView& view) { std::erase(m_views, &view); }

private:
    static constexpr int period = 16; // milliseconds

    int untilNext() const
    {
        return m_last.isValid() ? int(std::max<qint64>(0, period - m_last.elapsed())) : 0;
    }

    void show()
    {
        m_last.start();
        for (NSView* const view : std::exchange(m_views, {})) {
            view->m_needsDisplay = false;
            view->display();
        }
    }

    std::vector<NSView*> m_views;
    QElapsedTimer m_last;
};

NSView::NSView(QWidget* widget)
    : m_widget(widget)
{
}

NSView::~NSView()
{
    if (m_needsDisplay)
        Frames::shared().remove(*this);
}

NSRect NSView::bounds() const
{
    return { {}, { CGFloat(m_widget->width()), CGFloat(m_widget->height()) } };
}

NSWindow* NSView::window() const
{
    return NSWindow::ofWidget(m_widget);
}

void NSView::setNeedsDisplay()
{
    if (!std::exchange(m_needsDisplay, true))
        Frames::shared().add(*this);
}
