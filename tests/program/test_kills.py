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
    def test_what_is_there_is_whole_at_every_moment_and_the_next_run_goes_on_from_it(self):
        old, new = draw(OLD, "old"), draw(NEW, "new")
        scenarios = ((INSTALL, False, len(new)), (UNINSTALL, True, len(old)), (INSTALL, True, len(old) + len(new)))
        for number in range(KILLS):
            option, is_installed, steps = scenarios[number % 3]
            with self.subTest(number=number, option=option, is_installed=is_installed):
                remove(BUNDLE, LOG)
                if is_installed:
                    shutil.copytree(OLD, BUNDLE, symlinks=True)
                installer = self.start(*option)
                lines = 3 + steps * number // KILLS
                await_that(lambda: os.path.exists(LOG) and read(LOG).count("\n") >= lines, pause=0)
                time.sleep(random.random() * 0.002)  # as long as a large file takes
                installer.kill()
                installer.wait()
                self.assertLessEqual(set(os.listdir("/Applications")), {"quillbarn.app"})
                self.assertLessEqual(read_tree(BUNDLE).items(), old.items() | new.items())
                for entry in read_log():
                    self.assertRegex(entry, "^[nd] .")
                if number % 2:  # each takes a second
                    option, tree = (UNINSTALL, {}) if number % 4 == 3 else (INSTALL, new)
                    self.assertEqual(self.run_installer(*option)[-2], "d completed")
                    self.assertEqual((read_tree(BUNDLE), os.path.exists(BUNDLE)), (tree, bool(tree)))
