"""A disk service that refuses requests or sends malformed replies."""

import os
import re
import threading
from resource import RLIM_INFINITY, RLIMIT_DATA, prlimit

from disks import DetachTest, DiskImage
from harness import GI, LOG, read, read_log, remove, require, start_bus

SERVICE = "org.freedesktop.UDisks2"
PATH = "/org/freedesktop/UDisks2"  # one object: the device, its drive and the object manager
METHOD = '<interface name="{}"><method name="{}">{}</method></interface>'
OPTIONS = '<arg type="a{sv}" direction="in"/>'
INTERFACES = METHOD.format("org.freedesktop.DBus.ObjectManager", "GetManagedObjects", "") + "".join(
    METHOD.format(SERVICE + "." + name, method, OPTIONS) for name, method in (
        ("Filesystem", "Unmount"), ("Drive", "Eject"), ("Loop", "Delete")))
PLACE = "[b'/Volumes/quillbarn installer']"
OBJECTS = ("({objectpath 'PATH': {'SERVICE.Filesystem': {'MountPoints': <PLACE>}, 'SERVICE.Drive': "
           "{'Ejectable': <true>}, 'SERVICE.Block': {'Drive': <objectpath 'PATH'>}}},)"
           ).replace("SERVICE", SERVICE).replace("PATH", PATH).replace("PLACE", PLACE)
REPLIES = {"GetManagedObjects": OBJECTS, "Unmount": "()", "Eject": "()"}
GRANTED = [{}] + [{"GetManagedObjects": OBJECTS.replace("true>}", f"true>}}, '{SERVICE}.{end}")} for end in (
    "Partition': {'Table': <''>}",  # a property of an undocumented type is ignored
    f"Loop': {{'BackingFile': {'<' * 50}''{'>' * 50}}}",
    "Loop': {'BackingFile': <b'/image'>, 'Autoclear': <true>}")]  # detached by the unmount: no "Delete"
REFUSED = [{"GetManagedObjects": reply} for reply in (
    "()", "({'a': 'b'},)", "({objectpath '/a': {'a': {'a': 'a'}}},)", OBJECTS.replace(PLACE, "[[1, 2]]"),
    OBJECTS.replace(PLACE, "(1, 'a')"), OBJECTS.replace("true", "[true]"))]
REFUSED += [{method: reply} for method in REPLIES for reply in ("(true,)", None)]  # None: an error


class Replies(DetachTest):
    def setUp(self):
        require(GI)
        global Gio, GLib
        from gi.repository import Gio, GLib
        super().setUp()
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.bus = start_bus()
        connection = Gio.bus_get_sync(Gio.BusType.SESSION)
        for interface in Gio.DBusNodeInfo.new_for_xml(f"<node>{INTERFACES}</node>").interfaces:
            connection.register_object(PATH, interface, self.reply, None, None)
        Gio.bus_own_name_on_connection(connection, SERVICE, 0, None, None)
        threading.Thread(target=GLib.MainLoop().run, daemon=True).start()

    def reply(self, connection, _sender, _path, _interface, method, _options, call):
        memory = int(re.search(r"VmData:\s+(\d+)", read(f"/proc/{self.installer.pid}/status"))[1]) << 10
        prlimit(self.installer.pid, RLIMIT_DATA, (memory + (256 << 20), RLIM_INFINITY))
        is_unmounted = method == "GetManagedObjects" and self.last == ("Unmount", "()")
        body = "(@a{oa{sa{sv}}} {},)" if is_unmounted else self.replies[method]
        self.attempts += method == "GetManagedObjects" and not is_unmounted
        self.last = method, body
        reply = call.get_message().new_method_error_literal(SERVICE + ".Error.Failed", "no")
        if body:
            reply = Gio.DBusMessage.new_method_reply(call.get_message())
            reply.set_body(GLib.Variant.parse(None, body, None, None))
        connection.send_message(reply, Gio.DBusSendMessageFlags.NONE)

    def test_malformed_replies_are_refusals(self):
        """The outcome is "failed" after so many attempts, because the path exists."""
        image = DiskImage(self)
        answered = [(1, self.bus, each) for each in GRANTED] + [(7, self.bus, each) for each in REFUSED]
        for attempts, bus, replies in *answered, (0, "unix:path=/nowhere", {}):
            with self.subTest(bus=bus, replies=replies):
                remove(LOG)
                self.replies, self.attempts, self.last = REPLIES | replies, 0, None
                self.installer = self.start_with_fast_clock(bus, image)
                self.expect_orderly_end(self.installer)
                self.assertEqual((self.attempts, read_log()), (attempts, image.log("d failed")))
