#include "support/Screen.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QWidget>

#include <algorithm>

bool isWindowOnScreen()
{
    return std::ranges::any_of(QApplication::topLevelWidgets(), &QWidget::isVisible);
}

std::string copyAllText()
{
    for (const QWidget* const widget : QApplication::allWidgets()) {
        if (widget->objectName() != "resultText")
            continue;
        for (const QKeySequence::StandardKey key : { QKeySequence::SelectAll, QKeySequence::Copy })
            for (QAction* const action : widget->actions())
                if (action->shortcut() == key)
                    action->trigger();
    }
    return QApplication::clipboard()->text().toStdString();
}
