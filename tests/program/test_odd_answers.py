"""A disk service that refuses, or answers with other types than documented, each on a bus of its own."""

import os
import re
import resource
import threading
import time

from disks import DetachTest, DiskImage, run
from machine import GI, await_that, read, read_log, require, start_bus

try:
    from gi.repository import Gio, GLib
except ImportError:
    GLib = None

SERVICE = "org.freedesktop.UDisks2"
DISK = "/org/freedesktop/UDisks2"  # a device, its drive and their manager in one
METHODS = """<node>
  <interface name="org.freedesktop.DBus.ObjectManager">
    <method name="GetManagedObjects"/></interface>
  <interface name="org.freedesktop.UDisks2.Filesystem">
    <method name="Unmount"><arg type="a{sv}" direction="in"/></method></interface>
  <interface name="org.freedesktop.UDisks2.Drive">
    <method name="Eject"><arg type="a{sv}" direction="in"/></method></interface></node>"""
PROPERTIES = {"MountPoints": "Filesystem", "Table": "Partition", "Drive": "Block",
              "BackingFile": "Loop", "Ejectable": "Drive"}
ODD = (("GetManagedObjects", "()"),
       ("GetManagedObjects", "({'a': 'b'},)"),
       ("GetManagedObjects", "({objectpath '/a': {'a': {'a': 'a'}}},)"),
       ("MountPoints", "[[1, 2]]"),
       ("MountPoints", "(1, 'a')"),
       ("Ejectable", "uint32 1"),
       ("Ejectable", "[true]"),
       ("bus", None),  # there is none
       *((call, answer) for call in ("GetManagedObjects", "Unmount", "Eject") for answer in ("(true,)", None)))
AS_NONE = ("Table", "''"), ("BackingFile", "<" * 50 + "''" + ">" * 50)  # a disk without these ejects as well
MOST_GROWTH = 256 << 20


class Run:
    """With the service of a disk that can be ejected, whose answers are as documented save one."""

    def __init__(self, test, image, odd=None, odd_answer=None):
        properties = {"MountPoints": f"[b'{image.mount_point}']", "Ejectable": "true",
                      "Drive": f"objectpath '{DISK}'", odd: odd_answer}
        objects = ", ".join(f"'{SERVICE}.{interface}': {{'{name}': <{properties[name]}>}}"
                            for name, interface in PROPERTIES.items() if name in properties)
        self.answers = {"GetManagedObjects": f"({{objectpath '{DISK}': {{{objects}}}}},)",
                        "Unmount": "()", "Eject": "()", odd: odd_answer}
        self.is_asked = odd == "bus"
        address = "unix:path=/nowhere" if self.is_asked else start_bus()
        if not self.is_asked:
            kind = Gio.DBusConnectionFlags
            connection = Gio.DBusConnection.new_for_address_sync(
                address, kind.AUTHENTICATION_CLIENT | kind.MESSAGE_BUS_CONNECTION, None, None)
            for interface in Gio.DBusNodeInfo.new_for_xml(METHODS).interfaces:
                connection.register_object(DISK, interface, self._answer, None, None)
            Gio.bus_own_name_on_connection(connection, SERVICE, 0, None, None)
        self.installer = test.start(
            "-install2", image.bundle, env=os.environ | {"DBUS_SYSTEM_BUS_ADDRESS": address})

    def _answer(self, connection, _sender, _path, _interface, method, _options, question):
        if not self.is_asked:
            status = read(f"/proc/{self.installer.pid}/status")
            most = int(re.search(r"VmData:\s+(\d+)", status)[1]) * 1024 + MOST_GROWTH
            resource.prlimit(self.installer.pid, resource.RLIMIT_DATA, (most, most))
        self.is_asked = True
        answer = Gio.DBusMessage.new_method_reply(question.get_message())
        if self.answers[method]:
            answer.set_body(GLib.Variant.parse(None, self.answers[method], None, None))
        else:
            answer = question.get_message().new_method_error_literal(SERVICE + ".Error.Failed", "no")
        connection.send_message(answer, Gio.DBusSendMessageFlags.NONE)


class OddAnswers(DetachTest):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        require(GI)
        super().setUpClass()

    def test_each_is_a_refusal(self):
        threading.Thread(target=GLib.MainLoop().run, daemon=True).start()
        image = DiskImage(self)
        runs = {odd: Run(self, image, *odd) for odd in ((), *AS_NONE, *ODD)}
        await_that(lambda: all(each.is_asked for each in runs.values()))
        for odd in (), *AS_NONE:
            runs[odd].installer.wait(20)
        time.sleep(2)  # for what each does about its answer
        states = {odd: each.installer.poll() for odd, each in runs.items()}
        self.assertEqual(states, dict.fromkeys(((), *AS_NONE), 0) | dict.fromkeys(ODD))  # the rest wait for another attempt
        run("umount", "--lazy", image.mount_point)
        for each in runs.values():
            self.assertEqual(each.installer.wait(20), 0)
        granted = self.log_of(image, "d failed")  # as nothing was done
        self.assertCountEqual(read_log(), granted * (1 + len(AS_NONE)) + self.log_of(image) * len(ODD))
