#include "AppKit/NSScrollView.h"

#include "AppKit/NSTextField.h"
#include "AppKit/WidgetQt.h"

#include <QFrame>
#include <QLayout>

NSScrollView::NSScrollView(QWidget* widget)
    : NSView(widget)
    , m_frame(widgetAs<QFrame>(widget))
{
}

void NSScrollView::setDocumentView(const std::shared_ptr<NSTextField>& view)
{
    m_documentView = view;
    view->moveInto(*m_frame);
}

NSSize NSScrollView::contentSize() const
{
    const QSize size = m_frame->contentsRect().size();
    return { CGFloat(size.width()), CGFloat(size.height()) };
}
