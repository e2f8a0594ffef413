#pragma once

#include "MainInterface.h"
#include "ViewController.h"
#include "WindowQt.h"
#include "fakes/FoundationFake.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVariantAnimation>

#include <gtest/gtest.h>

// The window of the real interface file on the screen, with a controller that has started, and a
// log that begins with it.
struct TestWindow {
    explicit TestWindow(Lines arguments = { "me" }, bool test = false)
    {
        foundation.arguments = std::move(arguments);
        clearLog();
        controller->m_test = test;
        window->setContentViewController(controller);
        window->makeKeyAndOrderFront();
    }

    // The pane is open, and its button has the keyboard.
    bool awaitPane() const
    {
        return runMainLoopUntil([this] { return button.isDefault(); });
    }
    bool awaitEnd() const
    {
        return runMainLoopUntil([this] { return window->isHidden(); });
    }

    std::string title() const { return window->windowTitle().toStdString(); }
    std::string help() const { return button.accessibleDescription().toStdString(); }
    double progress() const { return double(bar.value()) / (bar.maximum() - bar.minimum()); }

    std::string rowAt(int y) const
    {
        QTextCursor cursor = text.cursorForPosition({ 0, y });
        cursor.movePosition(QTextCursor::StartOfLine);
        cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
        return cursor.selectedText().toStdString();
    }
    std::string firstRow() const { return rowAt(0); }
    std::string lastRow() const { return rowAt(text.viewport()->height() - 1); }

    const std::shared_ptr<WindowQt> window = std::make_shared<WindowQt>();
    const std::shared_ptr<ViewController> controller = openMainInterface(*window);
    QPlainTextEdit& text = *window->findChild<QPlainTextEdit*>();
    QProgressBar& bar = *window->findChild<QProgressBar*>();
    QVariantAnimation& animation = *window->findChild<QVariantAnimation*>();
    QPushButton& button = *window->findChild<QPushButton*>();
};
