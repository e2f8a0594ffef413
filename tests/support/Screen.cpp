#include "support/Screen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>

#include <algorithm>

namespace {

QWidget& window()
{
    return *QApplication::topLevelWidgets().first();
}

const QPlainTextEdit& text()
{
    return *window().findChild<QPlainTextEdit*>();
}

std::string rowAt(int y)
{
    QTextCursor cursor = text().cursorForPosition({ 0, y });
    cursor.movePosition(QTextCursor::StartOfLine);
    cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
    return cursor.selectedText().toStdString();
}

}

bool isWindowOnScreen()
{
    return std::ranges::any_of(QApplication::topLevelWidgets(), &QWidget::isVisible);
}

bool isPaneShown()
{
    return text().isVisible();
}

std::string buttonDescription()
{
    return window().findChild<QPushButton*>()->accessibleDescription().toStdString();
}

std::string windowTitle()
{
    return window().windowTitle().toStdString();
}

std::string shownText()
{
    return text().toPlainText().toStdString();
}

std::string firstShownRow()
{
    return rowAt(0);
}

std::string lastShownRow()
{
    return rowAt(text().viewport()->height() - 1);
}

void press(int key)
{
    QWidget* const focus = window().focusWidget();
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(focus ? focus : &window(), &event);
    }
}

void pressInText(int key)
{
    window().findChild<QPlainTextEdit*>()->setFocus();
    press(key);
}

void resizeWindow(int width, int height)
{
    window().resize(width, height);
}
