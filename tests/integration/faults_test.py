# SPDX-License-Identifier: GPL-3.0-or-later
"""The program with a simulated NetworkManager: what it marks, what it opens, and what it does without an answer."""
import json
import os
import re
import signal
import sqlite3
import subprocess
from contextlib import closing, suppress
from datetime import datetime, timedelta, timezone
from functools import partial

import dbus.bus

from desktop_test import NOTIFICATIONS, PATIENCE, PROGRAM, DesktopTest, eventually


class FaultsTest(DesktopTest):
    def setUp(self):
        super().setUp()
        system = self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={self.folder}/system"
        rules = "--config-file=/usr/share/defaults/at-spi2/accessibility.conf"
        self.system = self.start("dbus-daemon", rules, "--nofork", f"--address={system}")
        bus = eventually(lambda: dbus.bus.BusConnection(system))
        self.addCleanup(bus.close)
        self.manager = self.start("/usr/bin/python3", "-m", "dbusmock", "-l", "/dev/null", "-t", "network_manager.py")
        self.addCleanup(self.manager.send_signal, signal.SIGCONT)
        name = "org.freedesktop.NetworkManager"
        self.has_manager = partial(bus.name_has_owner, name)
        eventually(self.has_manager)
        self.play = partial(bus.call_blocking, name, "/org/freedesktop", "org.freedesktop.DBus.Mock")
        self.play("AddRadio", "ssu", ("0", "wlan0", 100))
        self.scans = partial(self.play, "CountScans", "s", ("0",))

    def start_tracking(self, *wrapper):
        program = self.start(*wrapper, PROGRAM)
        self.press("Skip", "Done", then=lambda: self.titles() == ["Pellory"])
        self.press("Settings", "Office Networks", "Enable Automatic Tracking", then="Tracking On")
        before = self.scans()
        self.press("Run In-Office Check", then=lambda: self.scans() > before)
        return program

    def end(self, program):
        program.terminate()
        self.assertEqual(program.wait(PATIENCE), 0)

    def test_opens_nothing_to_the_internet(self):
        probe = subprocess.run(["strace", "-qq", "true"], capture_output=True, text=True, timeout=PATIENCE)
        if "Operation not permitted" in probe.stderr and os.geteuid() != 0:
            self.skipTest("this system lets nobody be traced")
        self.assertEqual(probe.returncode, 0, probe.stderr)
        trace = self.folder / "trace"
        # The tracer stands aside, so that the program is the child of this process.
        program = self.start_tracking("strace", "-D", "-f", "-q", "-e", "trace=socket,socketpair", "-o", str(trace))
        unknown = eventually(lambda: [node.name for node in self.shown() if node.name.endswith(", Unknown")])[0]
        self.press(unknown, then=unknown.replace("Unknown", "In the Office"))
        self.press("Help", then="Weekend Day")
        self.end(program)
        calls = eventually(lambda: "+++ exited with 0" in (said := trace.read_text()) and said)
        families = re.findall(r"\bsocket(?:pair)?\((\w+)", calls)
        self.assertIn("AF_UNIX", families)
        self.assertLessEqual(set(families), {"AF_UNIX", "AF_NETLINK"}, calls)

    def test_goes_on_while_nothing_answers(self):
        program = self.start_tracking()
        self.manager.send_signal(signal.SIGSTOP)
        self.press("Run In-Office Check", "Help", then="Weekend Day")
        self.press("Quarter", then="Last Quarter")
        self.assertNotIn("so it counts as off", program.said())  # it still waits, and all of that was done meanwhile
        self.system.kill()
        eventually(lambda: self.shown("Wi-Fi or Location Off"))
        self.press("Run In-Office Check", then=lambda: "Could not find the default Wi-Fi interface" in program.said())
        self.assertIn("start Pellory again when the bus is back", program.said())
        self.assert_handed_over(program)
        self.end(program)

    def stored(self):
        """The states of the days in the store."""
        with suppress(sqlite3.OperationalError), closing(sqlite3.connect(
                f"file:{self.folder}/Pellory/Pellory.store?mode=ro", uri=True)) as store:
            return {f"{year}-{month:02}-{day['id']:02}": day["state"]
                    for year, month, days in store.execute("SELECT year, month, days FROM month")
                    for day in json.loads(days) if day["id"] > 0}
        return {}

    def marks(self):
        return {day: state for day, state in self.stored().items() if state != "UNKNOWN"}

    def test_marks_a_day_at_the_office_once(self):
        now = datetime.now(timezone.utc)
        self.environment["TZ"] = f"TST{now.hour - 12}"  # where it is noon now, so that no run meets midnight
        before = now - timedelta({0: 3, 6: 2}.get(now.weekday(), 1))
        expected = {f"{now:%F}": "IN_OFFICE", f"{before:%F}": "OUT_OF_OFFICE"}
        for number, name in enumerate(("Büro", "Neighbour")):
            self.play("AddNetwork", "ssayi", ("0", str(number), name.encode(), 0))
        server = self.mock(NOTIFICATIONS, "/org/freedesktop/Notifications", "-t", "notification_daemon")

        def notices():
            return [str(arguments[3]) for _, arguments in server("GetMethodCalls", "s", "Notify")]

        program = self.start_tracking()
        eventually(lambda: notices() == ["(Not) Pellory"])
        self.press("Add \u2068Büro\u2069", "Run In-Office Check", then=lambda: notices() == ["(Not) Pellory", "Pellory"])
        eventually(lambda: self.marks() == expected)
        program.kill()
        program.wait(PATIENCE)
        scans, program = self.scans(), self.start(PROGRAM)
        eventually(lambda: "Sleeping for 1800 seconds" in program.said())
        self.assertIn("Büro", program.said())
        self.assertNotRegex(program.said(), "Neighbour|Logged as")
        self.assertEqual((self.scans(), len(notices()), self.marks()), (scans + 1, 2, expected))
        eventually(lambda: self.shown(f"{now:%A} {now.day} {now:%B %Y}, In the Office"))
        self.end(program)

    def test_starts_without_a_bus_and_after_every_end(self):
        buses = "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"
        self.environment |= dict.fromkeys(buses, "unix:path=/nonexistent")
        for end in (signal.SIGKILL, signal.SIGTERM):
            program = self.start(PROGRAM)
            eventually(lambda: "Sleeping for 1800 seconds" in program.said() and len(self.stored()) >= 90)
            program.send_signal(end)
            self.assertEqual(program.wait(PATIENCE), -end if end == signal.SIGKILL else 0)

    def test_says_that_there_is_no_radio(self):
        if os.geteuid() != 0:
            self.skipTest("only root can give NetworkManager a network of its own")
        self.manager.kill()
        eventually(lambda: not self.has_manager())
        # The real one, which sees no device of this computer and leaves nothing behind.
        daemon = self.start("unshare", "--net", "--mount", "sh", "-c", "mount -t tmpfs none /run && mkdir "
                            "/run/NetworkManager && mount -t tmpfs none /var/lib/NetworkManager && "
                            "exec /usr/sbin/NetworkManager --no-daemon --log-level=ERR")
        eventually(lambda: self.has_manager() or daemon.poll() is not None)
        if daemon.poll() is not None:
            self.skipTest("NetworkManager does not start here")
        program = self.start(PROGRAM)
        self.press("Skip", "Done", then=lambda: self.titles() == ["Pellory"])
        self.press("Settings", "Office Networks", "Enable Automatic Tracking", "Run In-Office Check",
                   then=lambda: "Could not find the default Wi-Fi interface." in program.said())
        self.end(program)
