#include "support/TestWindow.h"
#include "support/Tree.h"

#include <AppKit/NSScrollView.h>
#include <AppKit/NSTextField.h>

#include <pthread.h>
#include <thread>

namespace {

struct ModeRun {
    Lines arguments;
    double bar;
    std::string title; // as long as it runs
    std::string titleAtEnd; // the window's last one, whether it has closed or waits
    std::string help; // none: the window closes by itself
    Lines log;
};

}

TEST(StartUp, theWindowShowsWhatARunDoesAndHowItEnded)
{
    const std::string missing
        = "The folder “/nowhere/quillbarn.app/” couldn’t be opened because it "
          "doesn’t exist (No such file or directory).";
    for (const ModeRun& run :
        {
            ModeRun { { "me", "-install", "/nowhere/" }, 0, "Installing quillbarn",
                "quillbarn could not be installed", missing,
                { "d install /nowhere/", "n install bundle", "d ", "d " + missing } },
            ModeRun { { "me", "-uninstall", "/nowhere/" }, 0, "Removing quillbarn",
                "Removing quillbarn", "", { "d uninstall ", "n uninstall bundle", "d completed" } },
            ModeRun { { "me", "-install2", "/nowhere/" }, 1, "Ejecting the disk image",
                "Ejecting the disk image", "",
                { "d unmount /nowhere/", "n unmount /nowhere/", "d unmount /nowhere/",
                    "d unmount succeeded" } },
            ModeRun { { "me" }, 0, "quillbarn installer", "quillbarn installer", "invalid options",
                { "d invalid options" } },
        }) {
        SCOPED_TRACE(run.title);
        const TestWindow window(run.arguments);
        const ViewController& controller = *window.controller;
        EXPECT_EQ(window.title(), run.title);
        EXPECT_EQ(window.progress(), run.bar);
        EXPECT_EQ(window.bar.maximum(), 1000);
        EXPECT_EQ(controller.m_resultPainViewHeight, 240);
        EXPECT_EQ(controller.resultTextScrollView->documentView(), controller.resultText.lock());
        EXPECT_EQ(window.button.isEnabled(), run.arguments.size() == 1);
        EXPECT_EQ(window.text.isVisible(), run.arguments.size() == 1);

        EXPECT_TRUE(run.help.empty() ? window.awaitEnd() : window.awaitPane());
        EXPECT_EQ(window.title(), run.titleAtEnd);
        EXPECT_EQ(window.help(), run.help);
        Lines log = run.log;
        log.insert(log.begin(), "n installer start");
        EXPECT_EQ(readLog(), log);
        if (!run.help.empty()) {
            EXPECT_TRUE(run.help.ends_with(window.lastRow())) << window.lastRow();
            window.button.click();
        }
        EXPECT_TRUE(window.window->isHidden());
    }
}

TEST(StartUp, aTestRunLeavesTheBundleAloneAndTheWindowOpenAfterARemoval)
{
    writeFile("/tmp/source/quillbarn.app/new");
    writeFile("/Applications/quillbarn.app/old");
    for (const bool isRemoval : { true, false }) {
        const TestWindow window;
        ViewController& controller = *window.controller;
        controller.m_test = true;
        window.button.setEnabled(false);
        clearLog();
        std::thread task([&] {
            isRemoval ? controller.uninstallBundle() : controller.installBundle("/tmp/source/");
        });
        EXPECT_TRUE(runMainLoopUntil(
            [&] { return window.button.isEnabled() || window.window->isHidden(); }));
        task.join();
        EXPECT_EQ(window.window->isVisible(), isRemoval);
        EXPECT_EQ(readLog().back(), "d completed");
        EXPECT_EQ(readTree("/Applications/quillbarn.app").count("old"), 1u);
    }
    std::filesystem::remove_all("/Applications/quillbarn.app");
}

TEST(StartUp, aRemovalThatCannotBeDoneOrStartedSaysSoInTheTitle)
{
    pthread_attr_t usual;
    pthread_getattr_default_np(&usual);
    pthread_attr_t tooLarge = usual;
    pthread_attr_setstacksize(&tooLarge, std::size_t(1) << 50);
    writeFile("/Applications/quillbarn.app", "a file");
    for (const bool hasThread : { true, false }) {
        pthread_setattr_default_np(hasThread ? &usual : &tooLarge);
        const TestWindow window({ "me", "-uninstall" });
        pthread_setattr_default_np(&usual);
        EXPECT_TRUE(window.awaitPane());
        EXPECT_EQ(window.title(), "quillbarn could not be removed");
        EXPECT_EQ(window.help()
                == "The work couldn’t be started because the system refused "
                   "(Resource temporarily unavailable).",
            !hasThread);
    }
    std::filesystem::remove_all("/Applications/quillbarn.app");
}

TEST(ViewController, itsOutletsEndWithTheWindow)
{
    const auto outlets = [](const ViewController& c) {
        return std::array { c.progressIndicator.expired(), c.resultPainView.expired(),
            c.resultPainViewHeightConstraint.expired(), c.resultTextScrollView.expired(),
            c.resultText.expired(), c.resultButton.expired(), c.view() == nullptr };
    };
    std::array<bool, 7> gone {};
    auto window = std::make_unique<TestWindow>();
    const auto kept = window->controller;
    EXPECT_EQ(outlets(*kept), gone);
    window.reset();
    gone.fill(true);
    EXPECT_EQ(outlets(*kept), gone);
    EXPECT_EQ(outlets(*ViewController::initWithNibName("MainInterface", nullptr)), gone);
    EXPECT_EQ(ViewController::initWithCoder({}), nullptr);
}
