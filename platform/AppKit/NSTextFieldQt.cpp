#include "AppKit/NSTextField.h"

#include "AppKit/TextListModelQt.h"
#include "AppKit/WidgetQt.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QListView>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

// Hears of what the layout does to the list, and is the context of its connections.
class NSTextField::Events : public QObject {
public:
    explicit Events(NSTextField& field)
        : m_field(field)
    {
        field.m_list->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
            m_field.followLayout();
        return QObject::eventFilter(watched, event);
    }

private:
    NSTextField& m_field;
};

NSTextField::NSTextField(QWidget* widget)
    : NSView(widget)
    , m_list(widgetAs<QListView>(widget))
    , m_model(std::make_unique<TextListModel>(m_list->fontMetrics().lineSpacing()))
    , m_events(std::make_unique<Events>(*this))
{
    m_list->setUniformItemSizes(true);
    m_list->setModel(m_model.get());
    followLayout();
    QObject::connect(
        m_list->verticalScrollBar(), &QScrollBar::valueChanged, m_events.get(), [this](int value) {
            if (!m_isDisplaying)
                setOffset(value);
        });
    addEditMenu();
}

NSTextField::~NSTextField() = default;

const std::string& NSTextField::stringValue() const
{
    return m_model->rows().text();
}

void NSTextField::setStringValue(std::string_view text)
{
    m_model->clear();
    appendString(text);
}

void NSTextField::appendString(std::string_view text)
{
    m_model->append(text);
    setNeedsDisplay();
}

void NSTextField::setFrame(const NSRect& frame)
{
    m_frame = frame;
    fitRows();
}

void NSTextField::sizeToFit()
{
    m_frame.size.height = CGFloat(m_model->rows().count()) * m_model->rowHeight();
}

NSRect NSTextField::visibleRect() const
{
    const QSize size = m_list->parentWidget()->contentsRect().size();
    return { { 0, m_offset }, { CGFloat(size.width()), CGFloat(size.height()) } };
}

void NSTextField::scrollPoint(NSPoint point)
{
    setOffset(std::clamp(point.y, 0.0, endOffset()));
    setNeedsDisplay();
}

void NSTextField::moveInto(QWidget& scrollView)
{
    scrollView.layout()->addWidget(m_list);
}

void NSTextField::display()
{
    if (!m_list->isVisible())
        return;
    m_isDisplaying = true;
    if (m_model->publish())
        m_list->doItemsLayout();
    m_list->verticalScrollBar()->setValue(int(m_offset));
    m_isDisplaying = false;
}

void NSTextField::followLayout()
{
    m_frame.size.width = m_list->width();
    fitRows();
    setNeedsDisplay();
}

// The scroll bar has its place whether it is there or not: it shall not come and go with the rows
// that its coming and going makes.
void NSTextField::fitRows()
{
    const QStyle& style = *m_list->style();
    const int scrollBar = style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_list);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_list) + 1;
    const int width = std::min(int(m_frame.size.width), m_list->width()) - scrollBar - 2 * margin;
    const int columns = std::max(2, width / m_list->fontMetrics().horizontalAdvance('0'));
    if (!m_model->wrapAt(std::size_t(columns)))
        return;
    sizeToFit();
    if (m_isAtEnd)
        setOffset(endOffset());
}

void NSTextField::setOffset(CGFloat offset)
{
    m_offset = offset;
    m_isAtEnd = offset > endOffset() - 1;
}

CGFloat NSTextField::endOffset() const
{
    return std::max(0.0, m_frame.size.height - visibleRect().size.height);
}

void NSTextField::addEditMenu()
{
    auto* const copy = new QAction("&Copy", m_list);
    copy->setShortcut(QKeySequence::Copy);
    QObject::connect(copy, &QAction::triggered, m_events.get(), [this] { copySelection(); });
    auto* const selectAll = new QAction("Select &All", m_list);
    selectAll->setShortcut(QKeySequence::SelectAll);
    QObject::connect(selectAll, &QAction::triggered, m_list, &QListView::selectAll);
    for (QAction* const action : { copy, selectAll }) {
        action->setShortcutContext(Qt::WidgetShortcut);
        m_list->addAction(action);
    }
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void NSTextField::copySelection() const
{
    QItemSelection ranges = m_list->selectionModel()->selection();
    std::ranges::sort(ranges, {}, &QItemSelectionRange::top);
    std::string text;
    for (const QItemSelectionRange& range : ranges)
        text += m_model->textOf(range);
    if (text.ends_with('\n'))
        text.pop_back();
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}
