import os
import signal

from machine import BUNDLE, LOG, SOURCE, InstallerTest, await_that, read_log, read_tree, remove, write

CONTENT = "x" * 5000
FILES = [str(number) for number in range(3000)]


def installed_files():
    return os.listdir(BUNDLE) if os.path.isdir(BUNDLE) else []


class End(InstallerTest):
    """How a run can end before it is over, or is kept from it."""

    def setUp(self):
        super().setUp()
        for name in FILES:
            write(SOURCE + "quillbarn.app/" + name, CONTENT)

    def test_a_signal_leaves_whole_files_and_whole_lines(self):
        for number in signal.SIGTERM, signal.SIGKILL:
            remove(BUNDLE)
            remove(LOG)
            installer = self.start("-install", SOURCE)
            await_that(lambda: len(installed_files()) > 100)
            installer.send_signal(number)
            self.assertEqual(installer.wait(10), -number)
            tree = read_tree(BUNDLE)
            self.assertLess(len(tree), len(FILES))
            self.assertEqual(set(tree.values()), {CONTENT})
            self.assertLessEqual(
                {entry.split()[1] for entry in read_log()}, {"installer", "install", "mkdir", "copy"})

    def test_nothing_a_person_does_closes_the_window_while_a_task_runs(self):
        installer = self.start("-install", SOURCE)
        self.screen.await_window()
        while installer.poll() is None:
            for key in "Return", "Escape", "space":
                self.screen.press(key)
            self.screen.close_window()
        self.expect_orderly_end(installer)
        self.assertEqual(read_log()[-2], "d completed")
        self.assertCountEqual(installed_files(), FILES)

    def test_the_close_control_works_once_the_window_waits(self):
        installer = self.start("-install")
        self.screen.await_window()
        while installer.poll() is None:
            self.screen.close_window()
        self.expect_orderly_end(installer)
        self.assertEqual(read_log(), ["n installer start", "d invalid options", "n installer exit"])

    def test_installers_started_together_keep_every_line_of_each_other(self):
        installers = [self.start("-uninstall") for _ in range(6)]
        for installer in installers:
            self.assertEqual(installer.wait(60), 0)
        self.assertCountEqual(
            read_log(), ["n installer start", "d uninstall ", "n uninstall bundle", "d completed",
                         "n installer exit"] * 6)

    def test_a_folder_in_the_place_of_the_log(self):
        os.mkdir(LOG)
        self.assertEqual(self.start("-install", SOURCE).wait(60), 0)
        self.assertCountEqual(installed_files(), FILES)
