import itertools
import os
import re
import time

from machine import LOG, SOURCE, InstallerTest, read, read_log, write

TRACE = "/tmp/trace"


def zone_with_distinct_fields():
    """A time zone that isn't the machine's, in which month, day, hour and minute differ by now."""
    for hours, minutes in itertools.product(range(-12, 13), (45, 15)):
        zone = f"LOC{hours}:{minutes}"
        os.environ["TZ"] = zone
        time.tzset()
        now = time.localtime()
        if len({now.tm_mon, now.tm_mday, now.tm_hour, now.tm_min, now.tm_year % 100}) == 5:
            return zone
    raise AssertionError("no zone")


class Log(InstallerTest):
    def trace(self, *arguments):
        """The system calls of a run on the log, and those that create or remove something."""
        self.run_installer(*arguments, command=[
            "strace", "--follow-forks", "--decode-fds=path", "--string-limit=1024", "--output=" + TRACE,
            "--trace=openat,write,fdatasync,mkdirat,linkat,unlinkat,syncfs",
            os.environ["INSTALLER"]])
        calls = re.findall(r"^\d+ +(\w+)\((.*)", read(TRACE), re.MULTILINE)
        return [(call, rest) for call, rest in calls if LOG in rest or "/Applications" in rest]

    def test_each_entry_is_one_write_and_on_the_disk_before_the_next_step(self):
        write(SOURCE + "quillbarn.app/folder/file")
        calls = self.trace("-install", SOURCE)
        opened = [rest for call, rest in calls if call == "openat" and "O_APPEND" in rest]
        self.assertEqual(len(opened), 1)
        calls = [call if LOG in rest or call == "syncfs" else "step"
                 for call, rest in calls if call != "openat"]
        self.assertEqual([call for call in calls if call in ("write", "fdatasync")],
                         ["write", "fdatasync"] * len(read_log()))
        self.assertEqual([calls[i - 1] for i, call in enumerate(calls) if call == "step"], ["fdatasync"] * 3)
        self.assertEqual(calls[-5:], ["syncfs", *["write", "fdatasync"] * 2])  # completed, exit

    def test_the_time_is_local(self):
        before = zone_with_distinct_fields() and time.time()
        self.run_installer("-uninstall", env=os.environ.copy())
        for line in read(LOG).splitlines():
            stamp = time.mktime(time.strptime(line[:19], "%Y/%m/%d-%H:%M:%S"))
            self.assertTrue(int(before) <= stamp <= time.time(), line)
