import os
import subprocess

from machine import BUNDLE, LOG, SOURCE, InstallerTest, Screen, await_that, read_log, write

FILES = [str(number) for number in range(3000)]


def installed_files():
    return os.listdir(BUNDLE) if os.path.isdir(BUNDLE) else []


class End(InstallerTest):
    """How a run can end before it is over, or is kept from it."""

    def setUp(self):
        super().setUp()
        for name in FILES:
            write(SOURCE + "quillbarn.app/" + name, "x" * 5000)

    def test_a_display_that_dies_is_told_in_the_log(self):
        screen = Screen()
        installer = self.start("-install", SOURCE, stderr=subprocess.DEVNULL,
                               env=os.environ | {"DISPLAY": screen.display})
        await_that(lambda: len(installed_files()) > 100)
        screen.server.kill()
        self.assertEqual(installer.wait(10), 1)
        self.assertEqual(read_log()[-2:], ["e the display was lost, and the run ends here",
                                           "n installer exit"])

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
