# A system bus of the test's own with a logind that only remembers what it is asked.
# Usage: mockLogind.py grant|refuse|late|none. Prints the bus's address, then answers the lines of standard input:
# "list" with the inhibitors that are held, one a line, and a dot; "empty" with "yes" once none is held, "one" with "yes"
# once a single one is. Ends with its input.
import os
import subprocess
import sys
import time

import dbus
import dbusmock

LOGIND = ("org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager")
LATE = 0.4  # seconds
REFUSES = 'raise dbus.exceptions.DBusException("not for you", name="org.freedesktop.DBus.Error.AccessDenied")'
ANSWERS_LATE = f"import os, time; time.sleep({LATE}); ret = os.open('/dev/null', os.O_RDONLY)"


def say(text):
    print(text, flush=True)


def start(kind):
    bus = dbusmock.DBusTestCase.get_dbus(system_bus=True)
    if kind == "none":
        return None, None
    if kind == "grant":
        return dbusmock.DBusTestCase.spawn_server_template("logind", {}, stdout=subprocess.DEVNULL)
    process = dbusmock.DBusTestCase.spawn_server(*LOGIND, system_bus=True, stdout=subprocess.DEVNULL)
    logind = bus.get_object(LOGIND[0], LOGIND[1])
    logind.AddMethod("", "Inhibit", "ssss", "h", REFUSES if kind == "refuse" else ANSWERS_LATE,
                     dbus_interface=dbusmock.MOCK_IFACE)
    return process, logind


def inhibitors(logind):
    return logind.ListInhibitors(dbus_interface=LOGIND[2])


def comes_to_hold(logind, count, seconds):
    end = time.monotonic() + seconds
    while len(inhibitors(logind)) != count:
        if time.monotonic() > end:
            return False
        time.sleep(0.01)
    return True


def answer(logind, line):
    if line == "list":
        for what, who, why, mode, *_ in inhibitors(logind):
            say(f"{what}|{who}|{why}|{mode}")
        say(".")
    elif line in ("empty", "one"):
        say("yes" if comes_to_hold(logind, 0 if line == "empty" else 1, 5) else "no")


def main():
    dbusmock.DBusTestCase.start_system_bus()
    process, logind = start(sys.argv[1])
    say(os.environ["DBUS_SYSTEM_BUS_ADDRESS"])
    for line in sys.stdin:
        answer(logind, line.strip())
    if process is not None:
        process.terminate()
        process.wait()
    dbusmock.DBusTestCase.tearDownClass()


main()
