import os
import re
import time
from datetime import datetime

from machine import BUNDLE, LOG, SOURCE, InstallerTest, read, read_log, read_tree, remove, write

TRACE = "/tmp/trace"
OUTSIDE = "/tmp/outside"


class Log(InstallerTest):
    def trace(self, *arguments):
        """The system calls of a run on the log, and those that create or remove something."""
        self.run_installer(*arguments, env=os.environ | {"TZ": "LOC-5:45"}, command=[
            "strace", "--follow-forks", "--decode-fds=path", "--string-limit=1024", "--output=" + TRACE,
            "--trace=openat,write,fdatasync,mkdirat,linkat,unlinkat,syncfs",
            os.environ["INSTALLER"]])
        calls = re.findall(r"^\d+ +(\w+)\((.*)", read(TRACE), re.MULTILINE)
        return [(call, rest) for call, rest in calls if LOG in rest or "/Applications" in rest]

    def test_each_entry_is_one_write_and_on_the_disk_before_the_next_step(self):
        write(SOURCE + "quillbarn.app/folder/file")
        for arguments in ["-install", SOURCE], ["-uninstall"]:
            with self.subTest(arguments=arguments):
                began = time.time() // 1
                calls = self.trace(*arguments)
                for line in read(LOG).splitlines():
                    stamp = datetime.strptime(line[:19] + "+0545", "%Y/%m/%d-%H:%M:%S%z").timestamp()
                    self.assertTrue(began <= stamp <= time.time(), line)
                opened = [rest for call, rest in calls if call == "openat" and "O_APPEND" in rest]
                self.assertEqual(len(opened), 1)
                calls = [call if LOG in rest or call == "syncfs" else "step"
                         for call, rest in calls if call != "openat"]
                self.assertEqual([call for call in calls if call in ("write", "fdatasync")],
                                 ["write", "fdatasync"] * len(read_log()))
                before = [calls[i - 1] for i, call in enumerate(calls) if call == "step"]
                self.assertEqual([call for call in before if call != "step"], ["fdatasync"] * 3)
                self.assertEqual(calls[-5:], ["syncfs", *["write", "fdatasync"] * 2])  # completed, exit

    def test_something_is_in_its_place(self):
        kept, new = OUTSIDE + "/kept", OUTSIDE + "/new"
        write(kept, "kept")
        os.chown(kept, 65534, 65534)
        outside = read_tree(OUTSIDE)
        for name, put in {
                "link": lambda: os.symlink(kept, LOG), "link to nothing": lambda: os.symlink(new, LOG),
                "hard link": lambda: os.link(kept, LOG), "pipe": lambda: os.mkfifo(LOG),
                "folder": lambda: os.mkdir(LOG)}.items():
            with self.subTest(name):
                remove(LOG)
                write(BUNDLE + "/file")
                put()
                reader = os.open(LOG if name == "pipe" else kept, os.O_RDONLY | os.O_NONBLOCK)
                installer = self.start("-uninstall")
                self.screen.await_window()
                os.close(reader)
                self.assertEqual(installer.wait(60), 0)
                self.assertFalse(os.path.exists(BUNDLE))
                self.assertEqual(read_tree(OUTSIDE), outside)
                if name == "link to nothing":
                    self.assertFalse(os.path.islink(LOG))
                    self.assertIn("d completed", read_log())
