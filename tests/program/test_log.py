import os
import re
import time
from datetime import datetime

from machine import BUNDLE, LOG, SOURCE, InstallerTest, read, read_log, read_tree, remove, write

TRACE = "/tmp/trace"
KEPT, NEW = "/tmp/outside/kept", "/tmp/outside/new"


class Log(InstallerTest):
    def trace(self, *arguments):
        """The system calls of a run on the log, and those that change the bundle, by their names."""
        self.run_installer(*arguments, env=os.environ | {"TZ": "LOC-5:45"}, command=[
            "strace", "--follow-forks", "--decode-fds=path", "--output=" + TRACE,
            "--trace=openat,write,fdatasync,mkdirat,linkat,unlinkat,syncfs", os.environ["INSTALLER"]])
        for call, rest in re.findall(r"^\d+ +(\w+)\((.*)", read(TRACE), re.MULTILINE):
            self.assertRegex(rest, "^(?!.*O_TMPFILE)|, 0600\\)")  # nobody else sees what is unfinished
            if LOG in rest and (call != "openat" or "O_APPEND" in rest):
                yield call
            elif "/Applications" in rest and call != "openat":
                yield call if call == "syncfs" else "step"

    def test_each_entry_is_on_the_disk_before_the_next_step_and_all_steps_before_the_end(self):
        write(SOURCE + "quillbarn.app/folder/file")
        entry = " write fdatasync"
        for arguments, steps in (["-install", SOURCE], 3), (["-uninstall"], 3), (["-uninstall"], 0):
            with self.subTest(arguments=arguments, steps=steps):
                began = time.time() // 1
                self.assertRegex(" ".join(self.trace(*arguments)), (
                    f"^openat(?:{entry}){{3}}(?:{entry}(?: step)+){{{steps}}} syncfs(?:{entry}){{2}}$"))
                for line in read(LOG).splitlines():
                    stamp = datetime.strptime(line[:19] + "+0545", "%Y/%m/%d-%H:%M:%S%z").timestamp()
                    self.assertTrue(began <= stamp <= time.time(), line)

    def test_something_is_in_its_place(self):
        write(KEPT, "kept")
        os.chown(KEPT, 65534, 65534)
        for put, *arguments in ((os.symlink, KEPT, LOG), (os.symlink, NEW, LOG), (os.link, KEPT, LOG),
                                (os.mkfifo, LOG), (os.mkdir, LOG)):
            with self.subTest(put=put, arguments=arguments):
                remove(LOG)
                write(BUNDLE + "/file")
                put(*arguments)
                reader = os.open(LOG if put == os.mkfifo else KEPT, os.O_RDONLY | os.O_NONBLOCK)
                self.assertEqual(self.start("-uninstall").wait(60), 0)
                self.assertEqual(os.read(reader, 99), b"" if put == os.mkfifo else b"kept")
                os.close(reader)
                self.assertFalse(os.path.exists(BUNDLE))
                self.assertEqual(read_tree("/tmp/outside"), {"kept": "kept"})
                if NEW in arguments:
                    self.assertFalse(os.path.islink(LOG))
                    self.assertIn("d completed", read_log())
