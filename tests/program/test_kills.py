import os
import random
import shutil
import time

from machine import BUNDLE, LOG, SOURCE, InstallerTest, await_that, read, read_log, read_tree, remove, write

KILLS = int(os.environ.get("KILLS", "30"))
OLD = "/tmp/old/quillbarn.app"
NEW = SOURCE + "quillbarn.app"
INSTALL, UNINSTALL = ("-install", SOURCE), ("-uninstall",)


def draw(bundle, content):
    for number in range(40):
        size = 1_000_000 if number % 10 == 0 else number * 1000
        write(f"{bundle}/folder {number % 7}/{content} {number % 3}/{number}", content * size)
        write(f"{bundle}/folder {number % 7}/{number}", content)
    os.symlink("folder 1/1", bundle + "/link")
    return read_tree(bundle)


class Kill(InstallerTest):
    """It comes at every moment of a run: what is there is whole, and the next run goes on from it."""

    def kill(self, option, installed, steps):
        for path in BUNDLE, LOG:
            remove(path)
        if installed:
            shutil.copytree(installed, BUNDLE, symlinks=True)
        installer = self.start(*option)
        await_that(lambda: os.path.exists(LOG) and read(LOG).count("\n") >= 3 + steps, pause=0)
        time.sleep(random.random() * 0.002)  # as long as a large file takes
        installer.kill()
        installer.wait()

    def test_at_every_moment(self):
        remove(OLD)
        old, new, held = draw(OLD, "old"), draw(NEW, "new"), 0
        scenarios = ((INSTALL, None, len(new)), (UNINSTALL, OLD, len(old)),
                     (INSTALL, OLD, len(old) + len(new)))
        for number in range(KILLS):
            option, installed, steps = scenarios[number % 3]
            with self.subTest(number=number, option=option, installed=installed):
                self.kill(option, installed, steps * number // KILLS)
                self.assertLessEqual(set(os.listdir("/Applications")), {"quillbarn.app"})
                self.assertLessEqual(read_tree(BUNDLE).items(), old.items() | new.items())
                for entry in read_log():
                    self.assertRegex(entry, "^[nd] .")
                if number % 2:  # each takes a second
                    option, tree = (UNINSTALL, {}) if number % 4 == 3 else (INSTALL, new)
                    self.assertEqual(self.run_installer(*option)[-2], "d completed")
                    self.assertEqual((read_tree(BUNDLE), os.path.exists(BUNDLE)), (tree, bool(tree)))
                held += 1
        print(f"kill matrix: {KILLS} tried, {held} held", flush=True)
