#pragma once

#include "AppKit/IBOutlet.h"
#include "AppKit/NSViewController.h"
#include "Foundation/NSError.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class NSButton;
class NSLayoutConstraint;
class NSProgressIndicator;
class NSScrollView;
class NSTextField;

// The controller of the installer's window, and the task of a run. The window is the main thread's;
// a task has a background thread of its own and reaches the window through report… alone.
class ViewController : public NSViewController {
public:
    // nullptr where the interface file holds no window.
    static std::shared_ptr<ViewController> initWithCoder(const NSCoder& coder);
    static std::shared_ptr<ViewController> initWithNibName(
        const std::string& nibName, const NSBundle* bundle);

    void viewDidLoad() override;
    void resultButtonClicked(const NSView* sender);

    IBOutlet<NSProgressIndicator> progressIndicator;
    IBOutlet<NSView> resultPainView;
    IBOutlet<NSLayoutConstraint> resultPainViewHeightConstraint;
    IBOutlet<NSScrollView> resultTextScrollView;
    IBOutlet<NSTextField> resultText;
    IBOutlet<NSButton> resultButton;

protected: // for the tests, which derive
    ViewController() = default;

    enum class Mode { install, uninstall, unmount };

    struct CommandLineOption {
        Mode mode;
        std::string path; // empty for uninstall
    };

    // What the command line asks for, which it logs; or none.
    std::optional<CommandLineOption> parseCommandLine() const;

    // The window, on the main thread. Paths and messages are bytes.
    void showMessage(const std::string& message);
    void setProgress(std::int64_t index, std::int64_t count);
    void showResult();
    void finish();
    void closeWindow();

    // The window, from a task. The first two return when the message or step is in the window, the
    // message in the log, too. The others end a task: success takes a second, then shows
    // "completed" and leaves `lastStep` to the main thread; failure opens the pane.
    void report(const std::string& message);
    void reportProgress(std::int64_t index, std::int64_t count);
    void reportSuccess(void (ViewController::*lastStep)());
    void reportFailure(const NSError& error);

    // An entry of a bundle.
    struct File {
        bool isDirectory; // or a link to one
        std::string path; // from the folder that holds the bundle, without a "/" at either end
    };

    // All entries below a folder, each folder before what it holds, under `prefix`. Both arguments
    // end in "/". Throws an NSError.
    static std::vector<File> getFiles(const std::string& directory, const std::string& prefix);

    enum class TopDirectory { exclude, include };

    // All entries of the bundle in `parent`, which ends in "/", the bundle's own folder first if
    // it is included. Throws an NSError.
    std::vector<File> listBundle(const std::string& parent, TopDirectory topDirectory) const;

    using Progress = std::function<void(std::int64_t index, std::int64_t count)>;

    // Removes the installed bundle, deepest entries first. `progress`, if any, is called on the
    // caller's thread after each. Throws an NSError at the first that can't be removed.
    void removeBundle(TopDirectory topDirectory, const Progress& progress);

    // The tasks. Each returns when it has reported its end; but unmounting continues on the main
    // thread once its first attempt has started.
    void installBundle(const std::string& sourcePath);
    void uninstallBundle();
    void unmountDiskImage(const std::string& path);

    const std::string bundleDir = "quillbarn.app";
    const std::string applicationDir = "/Applications/";
    CGFloat m_resultPainViewHeight = 0;
    std::int64_t m_ejectLoop = 0; // attempts to unmount, made by one thread after the other
    bool m_test = false; // a dry run; nothing but a test sets it

private:
    class TreeWalk;
    class UnmountTask;

    static std::string nameOf(Mode mode);
    void prepareWindow();
    void startTask(const CommandLineOption& option);
    void createEntry(const std::string& sourcePath, const File& file);
    std::shared_ptr<ViewController> self();
};
