import ctypes
import multiprocessing
import os
import signal
import time

from machine import BUNDLE, LOG, SOURCE, InstallerTest, await_that, read_log, read_tree, remove, write

OUTSIDE = "/tmp/outside"
LINKS = "/tmp/links"


def fill(top, names):
    for folder in "abc":
        for name in names:
            write(f"{top}/{folder}/{name}", top)


def swap_for_links(swaps, pause):
    """Each folder of the bundle in turn for a link that leads out of it, and back, for ever."""
    renameat2, exchange = ctypes.CDLL(None).renameat2, 2
    while True:
        for folder in "abc":
            link = f"{LINKS}/{folder}"
            if renameat2(-1, f"{BUNDLE}/{folder}".encode(), -1, link.encode(), exchange) == 0:
                swaps.value += 1
            else:
                remove(link)  # one of the two is missing
                os.symlink(f"{OUTSIDE}/{folder}", link)
        time.sleep(pause)


class Races(InstallerTest):
    """Somebody swaps folders of the bundle for links, from the start of a run or in the middle of
    its work, with folders made or still there: nothing outside comes to harm."""

    def test_a_folder_is_swapped_for_a_link(self):
        fill(SOURCE + "quillbarn.app", range(300, 600))
        fill(OUTSIDE, range(300))
        outside = read_tree(OUTSIDE)
        for installed, *arguments in (
                (range(300), "-uninstall"), (range(300), "-install", SOURCE), ([], "-install", SOURCE)):
            for is_early, pause in (True, 0), (False, 0.001):
                with self.subTest(arguments=arguments, installed=installed, is_early=is_early, pause=pause):
                    for path in BUNDLE, LOG, LINKS:
                        remove(path)
                    os.mkdir(LINKS)
                    fill(BUNDLE, installed)
                    swaps = multiprocessing.Value("q", 0, lock=False)
                    neighbour = multiprocessing.Process(target=swap_for_links, args=(swaps, pause), daemon=True)
                    if is_early:
                        neighbour.start()
                        await_that(lambda: swaps.value or not installed)
                    installer = self.start(*arguments)
                    if not is_early:
                        await_that(lambda: os.path.exists(LOG) and len(read_log()) >= 8, pause=0)
                        installer.send_signal(signal.SIGSTOP)
                        self.assertNotIn("d completed", read_log())
                        neighbour.start()
                        await_that(lambda: swaps.value)
                        installer.send_signal(signal.SIGCONT)
                    self.press_until_closed(installer)
                    neighbour.kill()
                    neighbour.join()
                    self.assertGreater(swaps.value, 0)
                    self.expect_same(read_tree(OUTSIDE), outside)
                    log = read_log()
                    self.assertTrue(log[-2] == "d completed" or log[-3] == "d ", log[-3:])
