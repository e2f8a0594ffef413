#pragma once

#include <QObject>
#include <QPlainTextEdit>

#include <string>
#include <string_view>

// A text in the toolkit's text widget. As long as the widget can't be seen it gets nothing, so that
// a line costs the same at any length of the text. Positions are rows: lines that are cut to the
// widget's width; what can't be seen isn't cut.
class TextQt : public QObject {
public:
    explicit TextQt(QPlainTextEdit& edit);

    const std::string& value() const { return m_value; }
    void setValue(std::string_view text);
    void append(std::string_view text);

    int rows() const;
    int rowHeight() const; // in points
    int visibleRows() const;

    // A view at the end stays there when the text is laid out anew.
    int firstVisibleRow() const;
    void scrollTo(int row);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool isSeen() const { return m_edit.isVisible(); }
    void publish();
    void stayAtEnd();
    void awaitLayout();

    QPlainTextEdit& m_edit;
    std::string m_value;
    int m_lines = 0;
    std::size_t m_published = 0; // how many bytes of the value the widget holds
    int m_firstRow = 0; // as long as it can't be seen
    bool m_isAtEnd = true;
    bool m_isLayingOut = false;
};
