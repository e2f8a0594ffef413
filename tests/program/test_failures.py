"""Failures: the text of the pane, and the state of the installed copy."""

import os
from resource import RLIMIT_FSIZE, RLIMIT_NOFILE, RLIMIT_STACK, setrlimit

from harness import *

BOTH = INSTALL, UNINSTALL
OUTSIDE = BUNDLE + "2"
SAME = "The folder “{}” could not be installed. The folder is the same as the installed folder “{}”"
IS_SYMLINK = f"The application “{BUNDLE}” could not be changed. The application is a symlink to “{OUTSIDE}”."
SPECIAL = f"“{NEW}/other” could not be copied. The source is a device, a pipe or a socket."
DANGLING = "“{}” could not be installed. A dangling symlink with the same name already exists."
FILE = "quillbarn.app/Contents/file"
FULL = f"rm -r {BUNDLE}*; mount -t tmpfs -o nr_inodes=6 none {APPLICATIONS}; mkdir -p {BUNDLE}/1/2/3; ln -s 1 {BUNDLE}/4"
EXFAT = (f"truncate -s 8M /tmp/exfat; mkfs.exfat /tmp/exfat; disk=$(losetup -f --show /tmp/exfat); "
         f"trap 'losetup -d $disk' EXIT; rm -r {BUNDLE}*; mount.exfat-fuse $disk {APPLICATIONS}; mkdir -p {BUNDLE}/left; ")
# Commands in the new bundle, the failure that they cause before the first change, and the runs.
REFUSALS = (
    ("", "The folder “/tmp/sourcequillbarn.app/” could not be read.", ("-install", SOURCE.rstrip("/"))),
    (FULL, SAME.format(BUNDLE, BUNDLE), ("-install", APPLICATIONS + "/")),
    (f"ln -s {BUNDLE} link", SAME.format(NEW + "/link", BUNDLE)),
    (f"mkdir {BUNDLE}/sub sub; bindfs {BUNDLE}/sub sub", SAME.format(NEW + "/sub", BUNDLE)),
    (f"mkdir {BUNDLE}/sub; mount --bind {OUTSIDE} {BUNDLE}/sub", "created. A mount point is on the path"),
    (f"mkdir /tmp/lower /tmp/work; mount -t overlay none {APPLICATIONS} "
     f"-o lowerdir=/tmp/lower,upperdir={SOURCE},workdir=/tmp/work", SAME.format(NEW, BUNDLE)),
    ("mkfifo other", SPECIAL), ("mknod other c 1 3", SPECIAL),
    ("ln -s . link", f"“{NEW}/link” could not be followed. The target “{NEW}/” is a folder that contains"),
    ("for i in $(seq 20); do mkdir $i; ln -s ../$((i + 1)) $i/a; cp -P $i/a $i/b; done", "Too many symlinks"),
    ("mkdir sub; for i in $(seq 1001); do ln -s sub $i; done", "Too many symlinks"),
    (f"ln -s {300 * 'x'} link", f"“{NEW}/link” could not be examined. A name or a path is too long"),
    (EXFAT + "mkdir Res res; touch Res/a res/b", "The volume does not distinguish this name from"),
    (f"ln -s {OUTSIDE} {BUNDLE}/link", f"symlink “{BUNDLE}/link” in the application points", *BOTH),
    (f"rm -r {BUNDLE} {OUTSIDE}; ln -s {OUTSIDE} {BUNDLE}", IS_SYMLINK, *BOTH),
    (f"rm -r {BUNDLE}; touch {BUNDLE}", f"“{BUNDLE}/” could not be read. The item, or a part of the", *BOTH),
    (f"touch notes; ln -s gone {BUNDLE}/notes", DANGLING.format(BUNDLE + "/notes")),
    (f"touch ../license; ln -s ../license; ln -s ../license {BUNDLE}", DANGLING.format(BUNDLE + "/license")))


class Failure(InstallerTest):
    def setUp(self):
        require("bindfs", "mkfs.exfat", "mount.exfat-fuse")
        super().setUp()
        remove(OUTSIDE, "/tmp/lower", "/tmp/work")
        write(NEW + "/Contents/file", "x" * 2_000_000)
        write(BUNDLE + "/kept", "old")
        write(OUTSIDE + "/file")

    def expect(self, commands, failure, *runs, step=None, left=None, **options):
        """Expects the failure after that step. Unless stated otherwise, the installed copy is unchanged."""
        for arguments in runs or (INSTALL,):
            with self.subTest(commands=commands, arguments=arguments):
                self.setUp()
                run("sh", "-ec", commands, cwd=NEW)
                installed, outside = read_tree(APPLICATIONS), read_tree(OUTSIDE)
                *_, last, empty, text = self.run_until_failure(*arguments, **options)
                self.assertEqual((last, empty), (step or f"n {arguments[0][1:]} bundle", "d "))
                self.assertIn(failure, text)
                self.expect_same(read_tree(APPLICATIONS), left or installed)
                self.assertEqual(read_tree(OUTSIDE), outside)

    def test_refusal_before_first_change(self):
        for case in REFUSALS:
            self.expect(*case)
        self.expect("touch other; chmod 0 other; chown nobody /tmp/mounted; "  # shown as readable
                    f"setpriv --reuid nobody bindfs --no-allow-other -p a+r {SOURCE} /tmp/mounted",
                    "quillbarn.app/other” could not be read.", ("-install", MOUNTED + "/"), user="nobody")
        for language, failure in (("xx:de_AT:fr", "Der Ordner „{}“ konnte nicht gelesen werden. Das Objekt"),
                                  ("ar_EG", "تعذّرت قراءة المجلد «\u2066{}\u2069». العنصر أو أحد")):
            self.expect("rm -r $PWD", failure.format(NEW + "/"), env={"LANGUAGE": language})

    def test_failure_at_an_entry(self):
        self.expect(f"rm -r {OUTSIDE}", "(EFBIG). The copy of quillbarn in “/Applications” is incomplete.",
                    step=f"d  copy {APPLICATIONS}/{FILE}", left=dict.fromkeys([FILE[:13], FILE[:22]]),
                    preexec_fn=lambda: setrlimit(RLIMIT_FSIZE, (1_000_000, 1_000_000)))
        self.expect(f"cd {BUNDLE}; rm *; mkdir sub; mount --bind {OUTSIDE} sub", "A mount point is on the",
                    UNINSTALL, step=f"d remove {BUNDLE}/sub/file")

    def test_tolerated_volumes(self):
        """A full volume, and names that the volume distinguishes although they are equal in uppercase."""
        for commands in FULL + "; touch a A", EXFAT + "touch straße STRASSE":
            self.setUp()
            run("sh", "-ec", commands, cwd=NEW)
            self.assertIn("d completed", self.run_installer(*INSTALL))

    def test_tolerated_symlinks(self):
        for path in NEW, BUNDLE:
            os.symlink("..file", path + "/link")  # dangling in a copy that a killed install left
        write(NEW + "/..file")
        self.assertIn("d completed", self.run_installer(*INSTALL))
        self.expect_same(read_tree(BUNDLE), read_tree(NEW))
        self.addCleanup(os.chdir, "/")
        os.chdir(BUNDLE)
        for _ in range(250):  # more than 4,095 bytes
            os.mkdir(20 * "d")
            os.chdir(20 * "d")
        os.symlink(OUTSIDE, "link")
        self.assertIn(f"points to “{OUTSIDE}”, outside", self.run_until_failure(*UNINSTALL)[-1])
        run("ln", "-sfn", BUNDLE + "/link", "link")
        self.assertIn("d completed", self.run_installer(*UNINSTALL))

    def test_resource_limits(self):
        self.expect_no_start(r".* could not be started. The installer has too many open files \(EMFILE\).",
                             preexec_fn=lambda: setrlimit(RLIMIT_NOFILE, (20, 20)))
        write(NEW + 400 * "/d" + "/file")
        run("sh", "-ec", "mkdir sub; for i in $(seq 1000); do ln -s sub $i; done", cwd=NEW)
        for limit in (RLIMIT_NOFILE, (128, 128)), (RLIMIT_STACK, (128 << 10, 128 << 10)):
            self.assertIn("d completed", self.run_installer(*INSTALL, preexec_fn=lambda: setrlimit(*limit)))
