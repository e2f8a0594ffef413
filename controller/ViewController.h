#pragma once

#include "BundleTree.h"
#include "UninstallTask.h"

#include <AppKit/IBOutlet.h>
#include <AppKit/NSViewController.h>
#include <Foundation/NSGeometry.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class NSButton;
class NSLayoutConstraint;
class NSProgressIndicator;
class NSScrollView;
class NSTextField;

// The controller of the installer's window: reads the command line, picks the task of the run, and
// shows what the task reports. Main thread only, but for what is marked as a task.
class ViewController : public NSViewController {
public:
    // nullptr where the interface file holds no window.
    static std::shared_ptr<ViewController> initWithCoder(const NSCoder& coder);
    static std::shared_ptr<ViewController> initWithNibName(
        const std::string& nibName, const NSBundle* bundle);

    // Prepares the window and starts the task, or says that the options are invalid. An outlet that
    // is not connected ends the run, with a line in the log.
    void viewDidLoad() override;
    void resultButtonClicked(const NSView* sender);

    IBOutlet<NSProgressIndicator> progressIndicator;
    IBOutlet<NSView> resultPainView;
    IBOutlet<NSLayoutConstraint> resultPainViewHeightConstraint;
    IBOutlet<NSScrollView> resultTextScrollView;
    IBOutlet<NSTextField> resultText;
    IBOutlet<NSButton> resultButton;

    const std::string bundleDir = "quillbarn.app";
    const std::string applicationDir = "/Applications/";
    CGFloat m_resultPainViewHeight = 0; // of the open pane, in points
    std::int64_t m_ejectLoop = 0; // attempts to unmount, made by one thread after the other
    bool m_test = false; // a dry run; nothing but a test sets it

    enum class Mode { install, uninstall, unmount };

    // What a mode is called in the log, and in the window's title while it runs, while it waits, if
    // it ever does, and after it failed.
    struct ModeTexts {
        const char* name;
        const char* title;
        const char* waitingTitle;
        const char* failureTitle;
    };
    static const ModeTexts& textsOf(Mode mode);

    struct CommandLineOption {
        Mode mode;
        std::string path; // empty for uninstall
    };

    // What the command line asks for, which it logs; or none.
    std::optional<CommandLineOption> parseCommandLine() const;

    // The window. Paths and messages are bytes.
    void showMessage(const std::string& message);
    void setProgress(std::int64_t index, std::int64_t count);
    void showWaiting(Mode mode);
    void showResult();
    void finish();
    void closeWindow();

    // Says how the run failed to whoever reads the window's title or hears it read, and opens the
    // pane.
    void showFailure(Mode mode, const std::string& description);

    // The tasks, each on a background thread. They return when they have reported their end; but
    // unmounting continues on the main thread once its first attempt has started.
    void installBundle(const std::string& sourcePath);
    void uninstallBundle();
    void unmountDiskImage(const std::string& path);

    // What the tasks are made of: see BundleTree and UninstallTask.
    using File = BundleTree::File;
    static std::vector<File> getFiles(const std::string& folder, const std::string& prefix);
    void removeBundle(BundleTree::TopFolder topFolder, const UninstallTask::Progress& progress);

private:
    ViewController() = default;

    void requireOutlets() const;
    void prepareWindow();
    void startTask(const CommandLineOption& option);
    std::function<void()> taskOf(const CommandLineOption& option);
    void giveKeyboardToButton();
    DryRun dryRun() const { return m_test ? DryRun::yes : DryRun::no; }
    std::shared_ptr<ViewController> self();
};
