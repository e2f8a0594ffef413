#pragma once

#include "BundleTask.h"
#include "CommandLine.h"

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

// The controller of the installer's only window: reads the command line, starts one task and shows
// what the task reports. Main thread only, except the tasks. The spelling of "resultPain…" is
// deliberate.
class ViewController : public NSViewController {
public:
    // initWithCoder() returns nullptr if the interface file contains no window; initWithNibName()
    // loads no view.
    static std::shared_ptr<ViewController> initWithCoder(const NSCoder& coder);
    static std::shared_ptr<ViewController> initWithNibName(
        const std::string& nibName, const NSBundle* bundle);

    // Prepares the window and starts the task, or shows "invalid options".
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
    std::int64_t m_ejectLoop = 0; // attempts to unmount; see UnmountTask
    // Only tests set it: the run unmounts a fixed path, other tasks are dry runs, and the pane and
    // the window stay open, except that an install closes the window.
    bool m_test = false;

    using Mode = ::Mode;
    using CommandLineOption = ::CommandLineOption;

    // Returns the option of this run and logs it, or returns nothing.
    std::optional<CommandLineOption> parseCommandLine() const;

    // Operations on the window. Paths and messages are bytes; see TaskReport.
    void showMessage(const std::string& message);
    void setProgress(std::int64_t index, std::int64_t count);
    void setTitle(const std::string& title);
    void showResult();
    void finish(); // closes the window; in a test, enables its button
    void closeWindow();

    // Opens the pane. A screen reader reads the description with the button.
    void showFailure(const std::string& title, const std::string& description);

    // The tasks, on background threads. They return when they have reported the end of the run, but
    // unmounting continues on the main thread after its first attempt. `sourcePath` must end in
    // "/", because names are appended to it; this is not checked.
    void installBundle(const std::string& sourcePath);
    void uninstallBundle();
    void unmountDiskImage(const std::string& path);

    // Parts of the tasks; see BundleTree and BundleTask.
    using File = BundleTree::File;
    static std::vector<File> getFiles(const std::string& folder, const std::string& prefix);
    void removeBundle(TopFolder topFolder, const BundleTask::Progress& progress);

private:
    ViewController() = default;

    void prepareWindow();
    void startTask(const CommandLineOption& option);
    void enableKeyboard();
    BundleTask bundleTask(TaskReport& report) const;
    std::shared_ptr<ViewController> self();
};
