#include "MainInterface.h"
#include "WindowQt.h"
#include "WindowReport.h"
#include "fakes/FoundationFake.h"
#include "support/MainLoop.h"
#include "support/Tree.h"

#include <Foundation/NSProcessInfo.h>

#include <QtWidgets>

#include <future>
#include <gtest/gtest.h>
#include <pthread.h>

namespace {

const std::string logFile = "/tmp/quillbarninstaller.log";

// Returns when the work, which requires the main loop, is done.
void runInBackground(const std::function<void()>& work)
{
    const auto task = std::async(std::launch::async, work);
    EXPECT_TRUE(runMainLoopUntil(
        [&] { return task.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
}

// The window of the installer on the screen, and its controller, started with the arguments. The
// log begins at that moment. The attributes are those of the thread of the task.
struct TestWindow {
    explicit TestWindow(const std::vector<const char*>& arguments = {}, bool test = false,
        const pthread_attr_t* attributes = nullptr)
    {
        pthread_attr_t usual;
        pthread_getattr_default_np(&usual);
        NSProcessInfo::initialize(int(arguments.size()), arguments.data());
        writeFile(logFile);
        controller->m_test = test;
        if (attributes) pthread_setattr_default_np(attributes);
        window->setContentViewController(controller);
        pthread_setattr_default_np(&usual); // Qt waits for threads that draw, even if none starts
        window->makeKeyAndOrderFront();
    }

    std::string title() const { return window->windowTitle().toStdString(); }
    std::string help() const { return button.accessibleDescription().toStdString(); }

    const std::shared_ptr<WindowQt> window = std::make_shared<WindowQt>();
    const std::shared_ptr<ViewController> controller = openMainInterface(*window);
    QPlainTextEdit& text = *window->findChild<QPlainTextEdit*>();
    QProgressBar& bar = *window->findChild<QProgressBar*>();
    QPushButton& button = *window->findChild<QPushButton*>();
    const std::function<bool()> isPaneOpen = [this] { return button.isDefault(); };
    const std::function<bool()> isEnded = [this] { return window->isHidden(); };
};

// The pane opens, because there is no option. No task runs. Keys have no effect meanwhile.
struct Pane : testing::Test, TestWindow {
    Pane()
    {
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space })
            QTest::keyClick(window->windowHandle(), key);
        EXPECT_TRUE(runMainLoopUntil(isPaneOpen) && !isEnded());
    }
};

}

TEST(ViewController, TitleShowsModeAndOutcome)
{
    pthread_attr_t tooLarge;
    pthread_attr_init(&tooLarge);
    pthread_attr_setstacksize(&tooLarge, std::size_t(1) << 50);
    writeFile("/tmp/source/quillbarn.app/file");
    foundation.mountPoints = { "/tmp" };
    using Row = std::tuple<std::vector<const char*>, const char*, const char*>;
    const char* const unejected = "The disk image could not be ejected";
    for (const auto& [arguments, title, titleOfFailure] : std::initializer_list<Row> {
             { { "-install", "/tmp/source/" }, "Installing quillbarn",
                 "quillbarn could not be installed" },
             { { "-uninstall" }, "Uninstalling quillbarn", "quillbarn could not be uninstalled" },
             { { "-install2", "/" }, "Ejecting the disk image", unejected },
             { { "-install2", "/tmp/source" }, "Ejecting the disk image: trying again", unejected },
         }) {
        const TestWindow window(arguments);
        window.window->QWidget::close(); // has no effect while the task runs
        EXPECT_TRUE(runMainLoopUntil(window.isEnded));
        EXPECT_EQ(window.title(), title);
        EXPECT_EQ(window.bar.value(), window.bar.maximum());
        EXPECT_FALSE(window.button.isEnabled() || window.text.isVisibleTo(window.window.get()));

        const TestWindow unstarted(arguments, false, &tooLarge);
        EXPECT_TRUE(runMainLoopUntil(unstarted.isPaneOpen));
        EXPECT_EQ(unstarted.title(), titleOfFailure);
        EXPECT_TRUE(unstarted.help().starts_with("The operation could not be started. "));
    }
}

TEST(ViewController, DryRunChangesNothing)
{
    writeFile("/tmp/source/quillbarn.app/new");
    writeFile("/Applications/quillbarn.app/old");
    const auto before = readTree("/Applications");
    const TestWindow window({ "-uninstall" }, true);
    EXPECT_TRUE(window.text.isVisible() && runMainLoopUntil(window.isPaneOpen));
    EXPECT_NE(readFile(logFile).find("d unmount /Volumes/quillbarn installer/quillbarn.app\n"),
        std::string::npos);
    window.button.setEnabled(false);
    runInBackground([&] { window.controller->uninstallBundle(); });
    const auto isCompleted = [] { return readFile(logFile).ends_with(" d completed\n"); };
    EXPECT_TRUE(runMainLoopUntil([&] { return window.button.isEnabled(); }) && isCompleted());
    runInBackground([&] { window.controller->installBundle("/tmp/source/"); });
    EXPECT_TRUE(runMainLoopUntil(window.isEnded) && isCompleted());
    EXPECT_EQ(readTree("/Applications"), before);
}

TEST(ViewController, ListsAndRemovesContentOfBundle)
{
    std::filesystem::remove_all("/Applications/quillbarn.app");
    writeFile("/Applications/quillbarn.app/folder/file");
    const auto files = ViewController::getFiles("/Applications/quillbarn.app/", "x/");
    EXPECT_TRUE(files.size() == 2 && files[0].isDirectory && files[1].path == "x/folder/file");
    const TestWindow window;
    runInBackground([&] { window.controller->removeBundle(TopFolder::exclude, nullptr); });
    EXPECT_TRUE(std::filesystem::is_empty("/Applications/quillbarn.app"));
}

TEST_F(Pane, ShowsReportBeforeCallReturns)
{
    EXPECT_FALSE(window->windowIcon().pixmap(16).isNull());
    EXPECT_EQ(title(), "quillbarn installer: invalid options");
    EXPECT_EQ(help(), title());
    WindowReport report(controller, Mode::install);
    runInBackground([&] {
        // NOLINTBEGIN(misc-misleading-bidirectional)
        report.showMessage("2\nlines: \xFF UTF-8, \x7F\u202E\u2068");
        EXPECT_TRUE(readFile(logFile).ends_with(" d 2\\nlines: \xFF UTF-8, \x7F\u202E\u2068\n"));
        // NOLINTEND(misc-misleading-bidirectional)
        EXPECT_EQ(
            text.toPlainText(), "invalid options\n2\\nlines: \uFFFD UTF-8, \\u007f\\u202e\\u2068");
        report.setProgress(1, 4);
        EXPECT_EQ(2 * bar.value(), bar.maximum());
        report.end(std::nullopt);
    });
    EXPECT_TRUE(runMainLoopUntil(isEnded));
}

TEST_F(Pane, FollowsNewMessagesNearEnd)
{
    QScrollBar& rows = *text.verticalScrollBar();
    const auto firstLine = [&] { return text.cursorForPosition({}).blockNumber(); };
    const auto isEndVisible
        = [&] { return text.cursorForPosition(text.viewport()->rect().bottomRight()).atEnd(); };
    for (int i = 0; i <= 100; ++i)
        controller->showMessage(std::string(i < 100 ? 80 : 300, 'x'));
    for (const int rowsFromEnd : { 0, 1, 2, 60 }) {
        rows.setValue(rows.maximum() - rowsFromEnd);
        const int place = rows.value(), first = firstLine();
        controller->showMessage("new");
        const bool isNear = rowsFromEnd * text.fontMetrics().lineSpacing() < 20;
        EXPECT_EQ(rows.value(), isNear ? rows.maximum() : place) << rowsFromEnd;
        for (const QSize size : { QSize(900, 700), { 400, 380 }, { 900, 500 } }) {
            window->resize(size);
            QCoreApplication::processEvents();
            // The first size shows the end, unless it is far.
            EXPECT_TRUE(rowsFromEnd < 60 ? isEndVisible() : firstLine() == first) << size.width();
        }
    }
    controller->showResult();
    EXPECT_TRUE(isEndVisible() && window->QWidget::close());
}

TEST_F(Pane, SizeFitsScreenAndFont)
{
    QWidget& view = *window;
    const QRect screen = view.screen()->availableGeometry();
    for (const QRect& wish : { QRect(60, 70, 520, 240), { 60, 70, 520, 2000 },
             { -90, -80, 520, 240 }, { 700, 710, 520, 240 } }) {
        controller->resultPainViewHeightConstraint->setConstant(0);
        QCoreApplication::processEvents();
        view.setGeometry({ wish.topLeft(), QSize(wish.width(), 0) });
        const int least = view.height();
        controller->m_resultPainViewHeight = wish.height();
        button.setDefault(false);
        controller->showResult();
        EXPECT_TRUE(runMainLoopUntil([&] { return view.height() > least + 20; }));
        EXPECT_GT(text.mapTo(&view, text.rect().bottomRight()).y(), view.height());
        EXPECT_TRUE(runMainLoopUntil(isPaneOpen));
        EXPECT_GE(view.height(), std::min(least + wish.height(), screen.height() - 10));
        EXPECT_TRUE(screen.contains(view.windowHandle()->frameGeometry())) << wish.x();
        EXPECT_EQ(view.windowHandle()->position() == wish.topLeft(), screen.contains(wish));
    }

    text.setFont(QFont(text.font().family(), 40));
    EXPECT_GT(text.minimumSizeHint().height(), 2 * text.fontMetrics().lineSpacing());
    EXPECT_GT(text.sizeHint().height(), 12 * text.fontMetrics().lineSpacing());
}
