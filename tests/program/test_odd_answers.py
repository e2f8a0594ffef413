"""A disk service that refuses requests or sends replies of undocumented types."""

import os
import re
import threading
from resource import RLIM_INFINITY, RLIMIT_DATA, prlimit

from disks import DetachTest, DiskImage
from machine import GI, LOG, read, read_log, remove, require, start_bus

SERVICE = "org.freedesktop.UDisks2"
DISK = "/org/freedesktop/UDisks2"  # one object: the device, its drive and the object manager
METHODS = """<node>
  <interface name="org.freedesktop.DBus.ObjectManager"><method name="GetManagedObjects"/></interface>""" + "".join(
    f'<interface name="{SERVICE}.{name}"><method name="{method}"><arg type="a{{sv}}" direction="in"/></method></interface>'
    for name, method in (("Filesystem", "Unmount"), ("Drive", "Eject"), ("Loop", "Delete"))) + "</node>"
MOST_GROWTH = 256 << 20  # bytes
PLACE = "[b'/Volumes/quillbarn installer']"
OBJECTS = """({objectpath '/org/freedesktop/UDisks2': {
  'org.freedesktop.UDisks2.Filesystem': {'MountPoints': <PLACE>},
  'org.freedesktop.UDisks2.Drive': {'Ejectable': <true>},
  'org.freedesktop.UDisks2.Block': {'Drive': <objectpath '/org/freedesktop/UDisks2'>}}},)""".replace("PLACE", PLACE)
ANSWERS = {"GetManagedObjects": OBJECTS, "Unmount": "()", "Eject": "()"}
# Properties of undocumented types are ignored.
MORE = f"""'org.freedesktop.UDisks2.Partition': {{'Table': <''>}},
  'org.freedesktop.UDisks2.Loop': {{'BackingFile': {'<' * 50}''{'>' * 50}}}, """
# Detached by the unmount: there is no reply to "Delete".
GONE = "'org.freedesktop.UDisks2.Loop': {'BackingFile': <b'/image'>, 'Autoclear': <true>}, "
ODD = (*(("GetManagedObjects", answer) for answer in (
           "()", "({'a': 'b'},)", "({objectpath '/a': {'a': {'a': 'a'}}},)", OBJECTS.replace(PLACE, "[[1, 2]]"),
           OBJECTS.replace(PLACE, "(1, 'a')"), OBJECTS.replace("true", "uint32 1"), OBJECTS.replace("true", "[true]"))),
       *((method, answer) for method in ANSWERS for answer in ("(true,)", None)),  # None: an error
       (None, None))  # no bus


class OddAnswers(DetachTest):
    @classmethod
    def setUpClass(cls):
        require(GI)
        global Gio, GLib
        from gi.repository import Gio, GLib
        super().setUpClass()
        cls.bus = start_bus()
        kind = Gio.DBusConnectionFlags
        cls.connection = Gio.DBusConnection.new_for_address_sync(
            cls.bus, kind.AUTHENTICATION_CLIENT | kind.MESSAGE_BUS_CONNECTION, None, None)
        for interface in Gio.DBusNodeInfo.new_for_xml(METHODS).interfaces:
            cls.connection.register_object(DISK, interface, cls._answer, None, None)
        Gio.bus_own_name_on_connection(cls.connection, SERVICE, 0, None, None)
        threading.Thread(target=GLib.MainLoop().run, daemon=True).start()

    @classmethod
    def _answer(cls, connection, _sender, _path, _interface, method, _options, question):
        memory = int(re.search(r"VmData:\s+(\d+)", read(f"/proc/{cls.installer.pid}/status"))[1]) << 10
        prlimit(cls.installer.pid, RLIMIT_DATA, (memory + MOST_GROWTH, RLIM_INFINITY))
        answer = Gio.DBusMessage.new_method_reply(question.get_message())
        if cls.answers[method]:
            answer.set_body(GLib.Variant.parse(None, cls.answers[method], None, None))
            if method == "Unmount":
                cls.answers["GetManagedObjects"] = "(@a{oa{sa{sv}}} {},)"
        else:
            answer = question.get_message().new_method_error_literal(SERVICE + ".Error.Failed", "no")
        connection.send_message(answer, Gio.DBusSendMessageFlags.NONE)

    def start_with(self, method, odd):
        type(self).answers = ANSWERS | {method: odd}
        bus = self.bus if method else "unix:path=/nowhere"
        type(self).installer = self.start("-install2", "/Volumes/quillbarn installer/quillbarn.app",
                                          env=os.environ | {"DBUS_SYSTEM_BUS_ADDRESS": bus})
        return self.installer

    def test_malformed_replies_are_refusals(self):
        image = DiskImage(self)
        for more in "", MORE, GONE:
            with self.subTest(more):
                remove(LOG)
                objects = OBJECTS.replace("'org.freedesktop.UDisks2.Drive'", more + "'org.freedesktop.UDisks2.Drive'")
                self.expect_orderly_end(self.start_with("GetManagedObjects", objects))
                self.assertEqual(read_log(), self.log_of(image, "d failed"))  # because the path still exists
        for row in ODD:
            with self.subTest(row):
                installer = self.start_with(*row)
                self.screen.await_window("Ejecting the disk image: waiting for the volume to be free")
                installer.kill()
