#pragma once

#include "AppKit/NSView.h"

#include <memory>
#include <string>
#include <string_view>

class QListView;
class TextListModel;

// A text that can be selected and copied, in lines that are cut into rows of the field's width.
// Bytes that are not UTF-8 show as U+FFFD.
class NSTextField : public NSView {
public:
    explicit NSTextField(QWidget* widget);
    ~NSTextField() override;

    const std::string& stringValue() const;
    void setStringValue(std::string_view text);

    // Unlike AppKit's, a field can be added to: what setting the value followed by `text` would do,
    // in a time that does not grow with the value.
    void appendString(std::string_view text);

    // The area of the whole text, seen or not. A new width cuts the lines anew.
    NSRect frame() const { return m_frame; }
    void setFrame(const NSRect& frame);

    // Gives the frame the height of the text. Unlike AppKit's, it keeps its width.
    void sizeToFit();

    // The part of the text that the scroll view shows.
    NSRect visibleRect() const;

    // Makes the point the origin of that part, or the next one from which the text fills the view.
    // At the end of the text the view stays at the end when its size changes.
    void scrollPoint(NSPoint point);

    // Puts what shows the text into the widget of a scroll view.
    void moveInto(QWidget& scrollView);

private:
    class Events;

    void display() override;
    void followLayout();
    void fitRows();
    void setOffset(CGFloat offset);
    CGFloat endOffset() const;
    void addEditMenu();
    void copySelection() const;

    QListView* const m_list;
    const std::unique_ptr<TextListModel> m_model;
    NSRect m_frame;
    CGFloat m_offset = 0; // from the top of the text to the top of its visible part
    bool m_isAtEnd = true; // the visible part is the last
    bool m_isDisplaying = false; // the scroll bar is moved from here, not by the person
    const std::unique_ptr<Events> m_events; // last: it ends what calls back before all else goes
};
