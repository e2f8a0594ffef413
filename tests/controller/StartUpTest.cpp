#include "AppDelegate.h"
#include "Logger.h"
#include "support/TestWindow.h"
#include "support/Tree.h"

#include <pthread.h>
#include <thread>
#include <unistd.h>

TEST(StartUp, aRunTellsWhatItDoesOrThatItCannotBeStarted)
{
    pthread_attr_t usual;
    pthread_getattr_default_np(&usual);
    pthread_attr_t tooLarge = usual;
    pthread_attr_setstacksize(&tooLarge, std::size_t(1) << 50);
    writeFile("/tmp/source/quillbarn.app/file");
    const std::vector<std::array<std::string, 3>> runs {
        { "-install", "Installing quillbarn", "quillbarn could not be installed" },
        { "-uninstall", "Removing quillbarn", "quillbarn could not be removed" },
        { "-install2", "Ejecting the disk image", "The disk image could not be ejected" },
    };
    for (const auto& [option, title, titleOfFailure] : runs) {
        const Lines arguments { "me", option, "/tmp/source/" };
        pthread_setattr_default_np(&tooLarge);
        const TestWindow unstarted(arguments);
        pthread_setattr_default_np(&usual);
        EXPECT_TRUE(unstarted.awaitPane());
        EXPECT_EQ(unstarted.title(), titleOfFailure);
        EXPECT_EQ(unstarted.help(),
            "The work couldn’t be started because the system refused "
            "(Resource temporarily unavailable).");

        const TestWindow window(arguments);
        EXPECT_TRUE(window.awaitEnd());
        EXPECT_EQ(window.title(), title);
        EXPECT_EQ(window.progress(), 1);
        EXPECT_FALSE(window.button.isEnabled());
        EXPECT_FALSE(window.text.isVisibleTo(window.window.get()));
    }
}

TEST(StartUp, aTestRunShowsThePaneAndLeavesTheBundleAloneAndTheWindowOpenAfterARemoval)
{
    writeFile("/tmp/source/quillbarn.app/new");
    writeFile("/Applications/quillbarn.app/old");
    for (const bool isRemoval : { true, false }) {
        const TestWindow window(isRemoval ? Lines {} : Lines { "me", "-uninstall" }, true);
        EXPECT_TRUE(window.text.isVisible());
        EXPECT_TRUE(window.awaitPane()); // after a run of its own
        EXPECT_EQ(readLog().at(1), "d unmount /Volumes/quillbarn installer/quillbarn.app");
        window.button.setEnabled(false);
        std::thread task([&] {
            isRemoval ? window.controller->uninstallBundle()
                      : window.controller->installBundle("/tmp/source/");
        });
        EXPECT_TRUE(runMainLoopUntil(
            [&] { return window.button.isEnabled() || window.window->isHidden(); }));
        task.join();
        EXPECT_EQ(window.window->isVisible(), isRemoval);
        EXPECT_EQ(readLog().back(), "d completed");
        EXPECT_EQ(readTree("/Applications/quillbarn.app"),
            (std::map<std::string, std::string> { { "old", "" } }));
    }
}

TEST(AppDelegate, endsTheLog)
{
    const auto end = [] {
        AppDelegate().applicationWillTerminate();
        sharedLogger().log("late", Logger::LogLevel::debug);
        _exit(0);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(readLog().back(), "n installer exit");
}

TEST(ViewController, itsOutletsEndWithTheWindow)
{
    auto window = std::make_unique<TestWindow>();
    const auto controller = window->controller;
    EXPECT_TRUE(controller->resultPainView.lock() && controller->view());
    EXPECT_FALSE(window->window->windowIcon().pixmap(16).isNull());
    window.reset();
    EXPECT_FALSE(controller->resultPainView.lock() || controller->view());
    EXPECT_EQ(ViewController::initWithCoder({}), nullptr);
}
