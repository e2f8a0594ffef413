#include "MainInterface.h"

#include "AppDelegate.h"
#include "HeightConstraintQt.h"
#include "ViewController.h"
#include "WindowQt.h"
#include "ui_MainInterface.h"

namespace {

constexpr double headingScale = 1.3; // of the font of the rest

}

std::shared_ptr<ViewController> openMainInterface(WindowQt& window)
{
    Ui::MainInterface ui;
    ui.setupUi(&window);
    window.setWindowIcon(QIcon(QStringLiteral(":/quillbarninstaller.svg")));
    QFont heading = ui.productName->font();
    heading.setPointSizeF(heading.pointSizeF() * headingScale);
    heading.setBold(true);
    ui.productName->setFont(heading);

    auto controller = ViewController::initWithCoder({ window.shared_from_this() });
    controller->progressIndicator = window.outlet(ui.progressIndicator);
    controller->resultPainView = window.outlet(ui.resultPainView);
    controller->resultPainViewHeightConstraint
        = window.outlet(new HeightConstraintQt(*ui.resultPainView));
    controller->resultTextScrollView = window.outlet(ui.resultText);
    controller->resultText = window.outlet(ui.resultText);
    controller->resultButton = window.outlet(ui.resultButton);
    window.setDefaultButton(*ui.resultButton);
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
