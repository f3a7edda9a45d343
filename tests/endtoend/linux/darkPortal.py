# A desktop's portal on a session bus of its own that says that dark colours are wanted.
# Usage: darkPortal.py PROGRAM [ARGUMENT...]. Runs the program on that bus and ends with its exit code.
import subprocess
import sys

import dbusmock

PORTAL = ("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings")
IS_DARK = "ret = dbus.UInt32(1, variant_level=1)"


def main():
    dbusmock.DBusTestCase.start_session_bus()
    bus = dbusmock.DBusTestCase.get_dbus(system_bus=False)
    server = dbusmock.DBusTestCase.spawn_server(*PORTAL, system_bus=False, stdout=subprocess.DEVNULL)
    try:
        portal = bus.get_object(PORTAL[0], PORTAL[1])
        portal.AddMethod(PORTAL[2], "Read", "ss", "v", IS_DARK, dbus_interface=dbusmock.MOCK_IFACE)
        return subprocess.call(sys.argv[1:])
    finally:
        server.terminate()
        server.wait()
        dbusmock.DBusTestCase.tearDownClass()


sys.exit(main())
