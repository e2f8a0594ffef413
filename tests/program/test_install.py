"""Installs and uninstalls that succeed."""

import os
import signal
import struct

from harness import *

ACL = "system.posix_acl_access"


def acl_with(user):
    """Returns an ACL in the kernel's format: the owner has all permissions, the user can read and write."""
    return struct.pack("<I" + 5 * "HHi", 2, 1, 7, -1, 2, 6, user, 4, 0, -1, 16, 6, -1, 32, 0, -1)


def listing(folder):
    """Returns the paths of a bundle in the order of its listing, of folders with "/". Follows symlinks."""
    inside = [f"{folder}/{name}" for name in os.listdir(folder)]
    return sum((listing(path) if os.path.isdir(path) else [path] * os.path.exists(path) for path in inside),
               [folder + "/"])


def created():
    """Returns the log of the creation of what is in the source."""
    entries = ["d mkdir " + path[:-1] if path[-1] == "/" else "d  copy " + path for path in listing(NEW)]
    return [entry.replace(NEW, BUNDLE, 1).replace("\n", "\\n") for entry in entries]


def removed():
    """Returns the log of the removal of what is installed."""
    return [f"d remove {path}".replace("\n", "\\n") for path in reversed(listing(BUNDLE))]


class Install(InstallerTest):
    def expect(self, *arguments, option, steps=(), **options):
        self.assertEqual(self.run_installer(*arguments, **options), [
            "n installer start", "d " + option, f"n {option.split()[0]} bundle", *steps, *COMPLETED])

    def test_install_replace_and_uninstall(self):
        os.rmdir(APPLICATIONS)
        self.expect(*UNINSTALL, option="uninstall ")
        for name in "Contents/old/only", ".hidden/.file", "line\nfeed", "not \udcff UTF-8/\udcfe", " ", "練習":
            write(f"{NEW}/{name}", name)
        os.mkdir(NEW + "/empty")
        os.symlink(" ", NEW + "/link")
        wanted = read_tree(NEW) | {"folder": None, "folder/.file": ".hidden/.file"}
        for link, target in ("dangling", "nowhere"), ("loop", "loop"), ("lost", " /x"), ("folder", ".hidden"):
            os.symlink(target, f"{NEW}/{link}")
        self.expect(*INSTALL, option="install " + SOURCE, steps=created(), preexec_fn=lambda: os.umask(0o27))
        self.assertEqual((read_tree(BUNDLE), os.stat(BUNDLE).st_mode & 0o777), (wanted, 0o750))

        remove(NEW)
        write(NEW + "/Contents/MacOS/quillbarn", "second")
        # An empty path means the working directory.
        self.expect("'-install'", "''", cwd=SOURCE, option="install ", steps=removed()[:-1] + created())
        self.assertEqual(read_tree(BUNDLE), read_tree(NEW))

        for name, target in ("Versions", "Contents"), ("program", "Versions/MacOS/quillbarn"):
            os.symlink(target, f"{BUNDLE}/{name}")
        self.expect(*UNINSTALL, option="uninstall ", steps=removed())
        self.assertEqual(os.listdir(APPLICATIONS), [])
        os.chmod(APPLICATIONS, 0o733)  # cannot be listed
        self.expect(*UNINSTALL, option="uninstall ", user="nobody")

    def test_metadata_of_a_copy(self):
        write(NEW + "/shared")
        run("truncate", "--size=40000000", NEW + "/file")
        os.setxattr(NEW + "/file", "security.capability", b"\1\0\0\2\0\4".ljust(20, b"\0"))
        os.chmod(NEW + "/file", 0o6451)
        os.utime(NEW + "/file", ns=(10**18 + 123, 10**18 + 456))
        os.setxattr(NEW + "/shared", ACL, acl_with(1))
        self.run_installer(*INSTALL)
        found = os.stat(BUNDLE + "/file")
        self.assertEqual((found.st_mode & 0o7777, found.st_atime_ns, found.st_mtime_ns, found.st_size),
                         (0o451, 10**18 + 123, 10**18 + 456, 40_000_000))
        self.assertLess(512 * found.st_blocks, 4_000_000)  # a hole stays a hole
        self.assertEqual(os.listxattr(BUNDLE + "/file"), [])
        self.assertEqual(os.getxattr(BUNDLE + "/shared", ACL), acl_with(1))
        os.setxattr(NEW + "/shared", ACL, acl_with(4711))  # not mapped in the user namespace, and omitted
        self.run_installer(*INSTALL, command=["unshare", "--user", "--map-root-user", INSTALLER])
        self.expect_same(read_tree(BUNDLE), read_tree(NEW))

    def test_one_installer_at_a_time(self):
        write_files(200)
        first = self.start(*INSTALL)
        await_that(lambda: len(read_log()) > 50, pause=0)
        first.send_signal(signal.SIGSTOP)
        before = len(read_log())
        second = self.start(*UNINSTALL)
        await_that(lambda: read_log()[-2:-1] == ["d "])
        self.assertIn("could not be locked. Another program", read_log()[-1])
        first.send_signal(signal.SIGCONT)
        self.expect_orderly_end(first)
        log = read_log()
        self.assertEqual((log[before:before + 3], log[-2:]),
                         (["n installer start", "d uninstall ", "n uninstall bundle"], COMPLETED))
        self.assertEqual(sum(entry.startswith("d  copy ") for entry in log), 200)
        self.expect_same(read_tree(BUNDLE), read_tree(NEW))
