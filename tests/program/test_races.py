import ctypes
import multiprocessing
import os
import re
import time

from machine import BUNDLE, LOG, SOURCE, InstallerTest, await_that, mount, read_log, read_tree, remove, write

OUTSIDE = "/tmp/outside"
LINKS = "/tmp/links"


def fill(top, names):
    for folder in "abc":
        for name in names:
            write(f"{top}/{folder}/{name}", top)


def swap_for_links(entries, pause):
    """Once the log has so many entries, each folder of the bundle in turn for a link that leads out
    of it, and back, for ever."""
    await_that(lambda: os.path.exists(LOG) and len(read_log()) >= entries)
    renameat2, exchange = ctypes.CDLL(None).renameat2, 2
    while True:
        for folder in "abc":
            link = f"{LINKS}/{folder}"
            if renameat2(-1, f"{BUNDLE}/{folder}".encode(), -1, link.encode(), exchange) < 0:
                remove(link)  # one of the two is missing
                os.symlink(f"{OUTSIDE}/{folder}", link)
        time.sleep(pause)


class Races(InstallerTest):
    """Whoever else is at work on bundle, source or log: nothing outside comes to harm."""

    def setUp(self):
        super().setUp()
        fill(SOURCE + "quillbarn.app", range(300, 600))
        self.renew()

    def renew(self, installed=range(300)):
        for path in BUNDLE, LOG, OUTSIDE, LINKS:
            remove(path)
        os.mkdir(LINKS)
        fill(BUNDLE, installed)
        fill(OUTSIDE, range(300))
        self.installed, self.outside = read_tree(BUNDLE), read_tree(OUTSIDE)

    def expect_tree(self, top, tree):
        self.expect_same(read_tree(top), tree)

    def test_a_folder_is_swapped_for_a_link(self):
        for installed, *arguments in (
                (range(300), "-uninstall"), (range(300), "-install", SOURCE), ([], "-install", SOURCE)):
            for way in (0, 0), (4, 0), (4, 0.001):
                with self.subTest(arguments=arguments, installed=installed, way=way):
                    self.renew(installed)
                    neighbour = multiprocessing.Process(target=swap_for_links, args=way, daemon=True)
                    neighbour.start()
                    log = self.run_and_press(*arguments)
                    neighbour.kill()
                    neighbour.join()
                    self.expect_tree(OUTSIDE, self.outside)
                    self.assertTrue(log[-2] == "d completed" or log[-3] == "d ", log[-3:])

    def test_a_folder_is_mounted_in_the_bundle(self):
        mount(self, BUNDLE + "/a/mounted", "--bind", OUTSIDE)
        for arguments in ["-uninstall"], ["-install", SOURCE]:
            with self.subTest(arguments=arguments):
                log = self.run_and_press(*arguments)
                self.expect_tree(OUTSIDE, self.outside)
                self.assertRegex(
                    "\n".join(log[-4:-1]),
                    f"^d remove ({BUNDLE}/a/mounted/.*[^/])/?\nd \nd “\\1” couldn’t be removed because ")

    def test_the_installed_bundle_lies_in_the_source(self):
        mount(self, "/tmp/mounted", "--bind", "/Applications")
        mount(self, "/tmp/partly/quillbarn.app/mounted", "--bind", BUNDLE + "/a")
        write("/tmp/linked/quillbarn.app/file")
        os.symlink(BUNDLE + "/a", "/tmp/linked/quillbarn.app/link")
        for source in "/tmp/mounted/", "/tmp/partly/", "/tmp/linked/":
            with self.subTest(source=source):
                log = self.run_and_press("-install", source)
                self.expect_tree(BUNDLE, self.installed)
                self.assertEqual(log[2:4] + log[5:], ["n install bundle", "d ", "n installer exit"])

    def test_something_is_in_the_place_of_the_log(self):
        kept, new = OUTSIDE + "/a/0", OUTSIDE + "/new"
        for name, put in {
                "link": lambda: os.symlink(kept, LOG), "link to nothing": lambda: os.symlink(new, LOG),
                "hard link": lambda: os.link(kept, LOG), "pipe": lambda: os.mkfifo(LOG)}.items():
            with self.subTest(name):
                self.renew()
                os.chown(kept, 65534, 65534)
                put()
                reader = os.open(LOG if name == "pipe" else kept, os.O_RDONLY | os.O_NONBLOCK)
                installer = self.start("-uninstall")
                self.screen.await_window()
                os.close(reader)
                self.assertEqual(installer.wait(60), 0)
                self.assertFalse(os.path.exists(BUNDLE))
                self.expect_tree(OUTSIDE, self.outside)
                if name == "link to nothing":
                    self.assertFalse(os.path.islink(LOG))
                    self.assertIn("d completed", read_log())

    def test_another_installer_is_at_work(self):
        slow = ["strace", "--follow-forks", "--output=/dev/null", "--trace=fdatasync",
                "--inject=fdatasync:delay_exit=1ms", os.environ["INSTALLER"]]
        installers = [self.start("-install", SOURCE, command=slow) for _ in range(2)]
        self.screen.await_window("quillbarn could not be installed")
        while any(installer.poll() is None for installer in installers):
            self.screen.press("Return")
        outcomes = re.findall("another installer is at work|d completed", "\n".join(read_log()))
        self.assertEqual(outcomes, ["another installer is at work", "d completed"])
        self.expect_tree(BUNDLE, read_tree(SOURCE + "quillbarn.app"))

    def test_another_installer_was_killed(self):
        installer = self.start("-install", SOURCE)
        await_that(lambda: os.path.exists(BUNDLE + "/b/450"))
        installer.kill()
        installer.wait()
        self.assertEqual(self.run_installer("-install", SOURCE)[-2], "d completed")
        self.expect_tree(BUNDLE, read_tree(SOURCE + "quillbarn.app"))
