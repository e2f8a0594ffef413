"""The log: order and durability of its entries, and obstacles in its place."""

import os
import re
from datetime import datetime

from harness import *

EXISTING = "/tmp/other/file"


class Log(InstallerTest):
    def trace(self, *arguments):
        """Yields the system calls on the log, and "step" for those that change the bundle."""
        self.run_installer(*arguments, env={"TZ": "LOC-5:45"}, command=traced(
            "openat,write,fdatasync,mkdirat,linkat,unlinkat,syncfs,execve", "--decode-fds=path"))
        for call, rest in re.findall(r"^\d+ +(\w+)\((.*)", read("/tmp/trace"), re.MULTILINE):
            self.assertRegex(rest, "^(?!.*O_TMPFILE)|, 0600\\)")  # nobody else can read an unfinished file
            if call == "execve" or LOG in rest and (call != "openat" or "O_APPEND" in rest):
                yield call
            elif "/Applications" in rest and call != "openat":
                yield call if call == "syncfs" else "step"

    def test_log_is_flushed_per_entry(self):
        write(NEW + "/folder/file")
        entry = " write fdatasync"
        for arguments, steps in (INSTALL, 3), (UNINSTALL, 3), (UNINSTALL, 0):
            began = datetime.now().timestamp() // 1
            self.assertRegex(" ".join(self.trace(*arguments)), (
                f"^execve openat(?:{entry}){{3}}(?:{entry}(?: step)+){{{steps}}} syncfs(?:{entry}){{2}}$"))
            for line in read(LOG).splitlines():
                stamp = datetime.strptime(line[:19] + "+0545", "%Y/%m/%d-%H:%M:%S%z").timestamp()
                self.assertTrue(began <= stamp <= datetime.now().timestamp(), line)

    def test_unsuitable_log_file(self):
        write(EXISTING, "kept")
        os.chown(EXISTING, 65534, 65534)
        for create, *source in (os.symlink, EXISTING), (os.link, EXISTING), (os.mkfifo,), (os.mkdir,):
            with self.subTest(create=create):
                remove(LOG)
                write(BUNDLE + "/file")
                create(*source, LOG)
                reader = os.open(LOG, os.O_RDONLY | os.O_NONBLOCK)
                self.assertEqual(self.start(*UNINSTALL).wait(60), 0)
                self.assertEqual((os.path.exists(BUNDLE), read_tree("/tmp/other")), (False, {"file": "kept"}))
                if create == os.mkfifo:
                    self.assertEqual(os.read(reader, 99), b"")

    def test_log_without_standard_streams(self):
        """The log file does not get one of their numbers, and thus no messages of the toolkit."""
        os.symlink("/tmp/missing", LOG)  # is replaced
        self.start(*UNINSTALL, command=["sh", "-c", 'exec "$0" "$@" <&- >&- 2>&-', INSTALLER],
                   env={"QT_LOGGING_RULES": "", "QT_DEBUG_PLUGINS": "1"}).wait(20)
        self.assertFalse(os.path.islink(LOG))
        self.assertEqual(read_log(), ["n installer start", "d uninstall ", "n uninstall bundle", *COMPLETED])
