#include "AppDelegate.h"
#include "fakes/NSProcessInfoFake.h"
#include "fakes/NSThreadFake.h"
#include "support/LogFile.h"
#include "support/MainLoop.h"
#include "support/Screen.h"
#include "support/TestWindow.h"
#include "support/Tree.h"

#include <AppKit/NSApplication.h>
#include <AppKit/NSButton.h>
#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSProgressIndicator.h>
#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>

#include <gtest/gtest.h>
#include <pthread.h>
#include <thread>

using Lines = std::vector<std::string>;

namespace {

struct ModeRun {
    const char* option;
    double bar;
    const char* title;
    const char* titleAtEnd;
    Lines log;
};

}

TEST(StartUp, theWindowShowsWhatEachModeDoesAndHowItEnded)
{
    onPause([](double) {});
    for (const ModeRun& run : {
             ModeRun { "-install", 0, "Installing quillbarn", "quillbarn could not be installed",
                 { "n installer start", "d install /nowhere/", "n install bundle", "d ",
                     "d The folder “/nowhere/quillbarn.app/” couldn’t be opened because it "
                     "doesn’t exist (No such file or directory)." } },
             ModeRun { "-uninstall", 0, "Removing quillbarn", "Removing quillbarn",
                 { "n installer start", "d uninstall ", "n uninstall bundle", "d completed" } },
             ModeRun { "-install2", 1, "Ejecting the disk image", "Ejecting the disk image",
                 { "n installer start", "d unmount /nowhere/", "n unmount /nowhere/",
                     "d unmount /nowhere/", "d unmount succeeded" } },
         }) {
        SCOPED_TRACE(run.option);
        clearLog();
        setArguments({ "me", run.option, "/nowhere/" });
        const TestWindow window;
        const ViewController& controller = *window.controller;
        EXPECT_EQ(windowTitle(), run.title);
        EXPECT_EQ(controller.progressIndicator->doubleValue(), run.bar);
        EXPECT_EQ(controller.resultText->stringValue(), "");
        EXPECT_EQ(controller.resultTextScrollView->documentView(), controller.resultText.get());
        EXPECT_FALSE(controller.resultButton->isEnabled());
        EXPECT_FALSE(isPaneShown());
        EXPECT_EQ(controller.m_resultPainViewHeight, 240);

        const bool fails = run.title != std::string(run.titleAtEnd);
        EXPECT_TRUE(
            runMainLoopUntil([&] { return fails ? isPaneOpen(controller) : !isWindowOnScreen(); }));
        EXPECT_EQ(windowTitle(), run.titleAtEnd);
        EXPECT_EQ(controller.resultButton->isEnabled(), fails);
        EXPECT_EQ(buttonDescription(), fails ? run.log.back().substr(2) : "");
        EXPECT_EQ(readLog(), run.log);
    }
}

TEST(StartUp, aTestRunLeavesTheBundleAloneAndTheWindowOpenAfterARemoval)
{
    onPause([](double) {});
    writeFile("/tmp/source/quillbarn.app/new");
    writeFile("/Applications/quillbarn.app/old");
    for (const bool isRemoval : { true, false }) {
        setArguments({ "me" });
        const TestWindow window;
        ViewController& controller = *window.controller;
        controller.m_test = true;
        controller.resultButton->setEnabled(false);
        clearLog();
        std::thread task([&] {
            isRemoval ? controller.uninstallBundle() : controller.installBundle("/tmp/source/");
        });
        EXPECT_TRUE(runMainLoopUntil(
            [&] { return controller.resultButton->isEnabled() || !isWindowOnScreen(); }));
        task.join();
        EXPECT_EQ(isWindowOnScreen(), isRemoval);
        EXPECT_EQ(readLog().back(), "d completed");
        EXPECT_EQ(readTree("/Applications/quillbarn.app").count("old"), 1u);
    }
    removeTree("/Applications/quillbarn.app");
}

TEST(StartUp, aRemovalThatFailsSaysSoInTheTitle)
{
    writeFile("/Applications/quillbarn.app", "a file");
    setArguments({ "me", "-uninstall" });
    const TestWindow window;
    EXPECT_TRUE(runMainLoopUntil([&] { return isPaneOpen(*window.controller); }));
    EXPECT_EQ(windowTitle(), "quillbarn could not be removed");
    removeTree("/Applications/quillbarn.app");
}

TEST(StartUp, withoutAThreadTheRunFailsAndSaysSo)
{
    clearLog();
    setArguments({ "me", "-uninstall" });
    pthread_attr_t usual;
    pthread_getattr_default_np(&usual);
    pthread_attr_t tooLarge = usual;
    pthread_attr_setstacksize(&tooLarge, std::size_t(1) << 50);
    pthread_setattr_default_np(&tooLarge);
    const TestWindow window;
    pthread_setattr_default_np(&usual);
    EXPECT_TRUE(runMainLoopUntil([&] { return isPaneOpen(*window.controller); }));
    EXPECT_EQ(windowTitle(), "quillbarn could not be removed");
    EXPECT_EQ(readLog(),
        (Lines { "n installer start", "d uninstall ", "d ",
            "d The work couldn’t be started because the system refused (Resource temporarily "
            "unavailable)." }));
}

TEST(StartUp, withoutAnOptionThePaneOpensAndWaits)
{
    clearLog();
    setArguments({ "me" });
    const TestWindow window;
    const ViewController& controller = *window.controller;
    EXPECT_EQ(readLog(), (Lines { "n installer start", "d invalid options" }));
    EXPECT_EQ(controller.resultText->stringValue(), "invalid options\n");
    EXPECT_EQ(controller.progressIndicator->doubleValue(), 0);
    EXPECT_EQ(buttonDescription(), "invalid options");
    EXPECT_TRUE(controller.resultButton->isEnabled());
    EXPECT_TRUE(runMainLoopUntil([&] { return isPaneOpen(controller); }));
    EXPECT_TRUE(isWindowOnScreen());
    controller.resultButton->performClick();
    EXPECT_FALSE(isWindowOnScreen());
}

namespace {

struct Outlet {
    const char* name;
    std::function<void(ViewController&)> disconnect;
};

class MissingOutlet : public testing::TestWithParam<Outlet> {};

}

TEST_P(MissingOutlet, stopsTheRunInOrder)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto start = [] {
        NSApplication::sharedApplication().setDelegate(std::make_shared<AppDelegate>());
        const TestWindow window;
        GetParam().disconnect(*window.controller);
        clearLog();
        window.controller->viewDidLoad();
    };
    EXPECT_EXIT(start(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(readLog(),
        (Lines { "n installer start", std::string("e outlet not connected: ") + GetParam().name,
            "n installer exit" }));
}

INSTANTIATE_TEST_SUITE_P(StartUp, MissingOutlet,
    testing::Values( //
        Outlet { "progressIndicator", [](auto& c) { c.progressIndicator = nullptr; } },
        Outlet { "resultPainView", [](auto& c) { c.resultPainView = nullptr; } },
        Outlet { "resultPainViewHeightConstraint",
            [](auto& c) { c.resultPainViewHeightConstraint = nullptr; } },
        Outlet { "resultTextScrollView", [](auto& c) { c.resultTextScrollView = nullptr; } },
        Outlet { "resultText", [](auto& c) { c.resultText = nullptr; } },
        Outlet { "resultButton", [](auto& c) { c.resultButton = nullptr; } }));

TEST(ViewController, startsEmptyAndItsOutletsEndWithTheWindow)
{
    const auto expectParts = [](const ViewController& controller, bool areThere) {
        EXPECT_EQ(controller.progressIndicator.get() != nullptr, areThere);
        EXPECT_EQ(controller.resultPainView.get() != nullptr, areThere);
        EXPECT_EQ(controller.resultPainViewHeightConstraint.get() != nullptr, areThere);
        EXPECT_EQ(controller.resultTextScrollView.get() != nullptr, areThere);
        EXPECT_EQ(controller.resultText.get() != nullptr, areThere);
        EXPECT_EQ(controller.resultButton.get() != nullptr, areThere);
        EXPECT_EQ(controller.view() != nullptr, areThere);
    };
    const auto controller = ViewController::initWithNibName("MainInterface", nullptr);
    expectParts(*controller, false);
    EXPECT_EQ(controller->bundleDir, "quillbarn.app");
    EXPECT_EQ(controller->applicationDir, "/Applications/");
    EXPECT_EQ(controller->m_resultPainViewHeight, 0);
    EXPECT_EQ(controller->m_ejectLoop, 0);
    EXPECT_FALSE(controller->m_test);
    EXPECT_EQ(ViewController::initWithCoder(NSCoder(nullptr)), nullptr);

    setArguments({ "me" });
    auto window = std::make_unique<TestWindow>();
    const auto kept = window->controller;
    expectParts(*kept, true);
    window.reset();
    expectParts(*kept, false);
}
