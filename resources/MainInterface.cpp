#include "MainInterface.h"

#include "AppDelegate.h"
#include "Icon.h"
#include "ViewController.h"
#include "ui_MainInterface.h"

#include <AppKit/NSApplication.h>
#include <AppKit/NSButton.h>

#include <QFontDatabase>

namespace {

constexpr double headingScale = 1.3; // of the font of the rest

std::shared_ptr<NSWindow> load(NSApplication& application)
{
    application.setDelegate(std::make_shared<AppDelegate>());
    const MainInterface interface;
    interface.connect(ViewController::initWithCoder(interface));
    return interface.window();
}

const NSMainInterface mainInterface(load);

}

MainInterface::MainInterface()
    : m_ui(std::make_unique<Ui::MainInterface>())
{
    m_ui->setupUi(&dialog());
    dialog().setWindowIcon(installerIcon());
    m_ui->resultText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QFont heading = m_ui->productName->font();
    heading.setPointSizeF(heading.pointSizeF() * headingScale);
    m_ui->productName->setFont(heading);
}

MainInterface::~MainInterface() = default;

void MainInterface::connect(const std::shared_ptr<ViewController>& controller) const
{
    controller->progressIndicator = viewOf(m_ui->progressIndicator);
    controller->resultPainView = viewOf(m_ui->resultPainView);
    controller->resultPainViewHeightConstraint = heightConstraintOf(m_ui->resultPainView);
    const Text text = textOf(m_ui->resultText);
    controller->resultTextScrollView = text.scrollView;
    controller->resultText = text.field;

    const auto button = viewOf(m_ui->resultButton);
    controller->resultButton = button;
    button->setAction([weak = std::weak_ptr(controller)](NSView* sender) {
        if (const auto target = weak.lock())
            target->resultButtonClicked(sender);
    });

    window()->setDefaultButton(button);
    window()->setContentViewController(controller);
}
