#pragma once

#include "BundleTask.h"

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

    // Prepares the window and starts the task, or says that the options are invalid.
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

    struct CommandLineOption {
        Mode mode;
        std::string path; // empty for uninstall
    };

    // What the command line asks for, which it logs; or none.
    std::optional<CommandLineOption> parseCommandLine() const;

    // The window. Paths and messages are bytes.
    void showMessage(const std::string& message);
    void setProgress(std::int64_t index, std::int64_t count);
    void setTitle(const std::string& title);
    void showResult();
    void finish();
    void closeWindow();

    // Opens the pane, whose button says how the run failed to whoever hears it read.
    void showFailure(const std::string& description);

    // The tasks, each on a background thread. They return when they have reported their end; but
    // unmounting continues on the main thread once its first attempt has started.
    void installBundle(const std::string& sourcePath);
    void uninstallBundle();
    void unmountDiskImage(const std::string& path);

    // What the tasks are made of: see BundleTree and BundleTask.
    using File = BundleTree::File;
    static std::vector<File> getFiles(const std::string& folder, const std::string& prefix);
    void removeBundle(TopFolder topFolder, const BundleTask::Progress& progress);

private:
    ViewController() = default;

    void prepareWindow();
    void startTask(const CommandLineOption& option);
    void giveKeyboardToButton();
    DryRun dryRun() const { return m_test ? DryRun::yes : DryRun::no; }
    std::shared_ptr<ViewController> self();
};
