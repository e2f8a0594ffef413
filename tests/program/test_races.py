import ctypes
import multiprocessing
import os
import signal

from machine import BUNDLE, LOG, SOURCE, InstallerTest, await_that, read_log, read_tree, remove, write

OUTSIDE = "/tmp/outside"
LINKS = "/tmp/links"


def fill(top, names):
    for folder in "abc":
        for name in names:
            write(f"{top}/{folder}/{name}", top)


def swap_for_links(swaps):
    """Each folder of the bundle in turn for a link that leads out of it, and back, for ever."""
    exchange = 2
    while True:
        for folder in "abc":
            paths = f"{BUNDLE}/{folder}", f"{LINKS}/{folder}"
            if ctypes.CDLL(None).renameat2(-1, paths[0].encode(), -1, paths[1].encode(), exchange) == 0:
                swaps.value += 1
            else:
                remove(paths[1])  # one of the two is missing
                os.symlink(f"{OUTSIDE}/{folder}", paths[1])


class Races(InstallerTest):
    """Somebody swaps folders of the bundle for links, from the start of a run or in the middle of
    its work, with folders made or still there: nothing outside comes to harm."""

    def test_a_folder_is_swapped_for_a_link(self):
        fill(SOURCE + "quillbarn.app", range(300, 600))
        fill(OUTSIDE, range(300))
        outside = read_tree(OUTSIDE)
        for installed, entries, *arguments in (
                (300, 0, "-uninstall"), (300, 8, "-uninstall"), (300, 0, "-install", SOURCE),
                (300, 8, "-install", SOURCE), (0, 8, "-install", SOURCE)):
            with self.subTest(arguments=arguments, installed=installed, entries=entries):
                remove(BUNDLE, LOG, LINKS)
                os.mkdir(LINKS)
                fill(BUNDLE, range(installed))
                swaps = multiprocessing.Value("q", 0, lock=False)
                installer = self.start(*arguments)
                await_that(lambda: os.path.exists(LOG) and len(read_log()) >= entries, pause=0)
                installer.send_signal(signal.SIGSTOP)
                self.assertNotIn("d completed", read_log())
                neighbour = multiprocessing.Process(target=swap_for_links, args=[swaps], daemon=True)
                neighbour.start()
                await_that(lambda: swaps.value)
                installer.send_signal(signal.SIGCONT)
                self.press_until_closed(installer)
                neighbour.kill()
                neighbour.join()
                self.expect_same(read_tree(OUTSIDE), outside)
                log = read_log()
                self.assertTrue(log[-2] == "d completed" or log[-3] == "d ", log[-3:])
