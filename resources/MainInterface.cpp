#include "MainInterface.h"

#include "AppDelegate.h"
#include "ViewController.h"
#include "WindowQt.h"
#include "ui_MainInterface.h"

std::shared_ptr<ViewController> openMainInterface(WindowQt& window)
{
    constexpr double headingScale = 1.2; // relative to the window's font
    Ui::MainInterface ui;
    ui.setupUi(&window);
    window.setWindowIcon(QIcon(QStringLiteral(":/quillbarninstaller.svg")));
    QFont heading = ui.heading->font();
    heading.setPointSizeF(heading.pointSizeF() * headingScale);
    heading.setBold(true);
    ui.heading->setFont(heading);
    // Tiling and Wayland desktops may hide titles.
    QObject::connect(&window, &QWidget::windowTitleChanged, ui.heading, &QLabel::setText);

    auto controller = ViewController::initWithCoder({ window.shared_from_this() });
    controller->progressIndicator = window.outlet(ui.progressIndicator);
    controller->resultPainView = window.outlet(ui.resultPainView);
    controller->resultPainViewHeightConstraint = window.outlet(&window);
    controller->resultTextScrollView = window.outlet(ui.resultText);
    controller->resultText = window.outlet(ui.resultText);
    controller->resultButton = window.outlet(ui.resultButton);
    window.setPane(*ui.resultPainView, *ui.resultButton);
    QObject::connect(ui.resultButton, &QPushButton::clicked,
        [button = ui.resultButton, weak = std::weak_ptr(controller)] {
            if (const auto target = weak.lock()) target->resultButtonClicked(button);
        });
    return controller;
}

std::shared_ptr<NSWindow> loadMainInterface(NSApplication& application)
{
    application.setDelegate(std::make_shared<AppDelegate>());
    const auto window = std::make_shared<WindowQt>();
    window->setContentViewController(openMainInterface(*window));
    return window;
}
