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

from desktop_test import ACTIVE, DUNST, NOTIFICATIONS, TIMEOUT, PROGRAM, PROPERTIES, DesktopTest, eventually


class FaultsTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.start_system()

    def start_system(self):
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
        program = self.track(*wrapper, then="Tracking On")
        before = self.scans()
        self.press("Run In-Office Check", then=lambda: self.scans() > before)
        return program

    def end(self, program):
        program.terminate()
        self.assertEqual(program.wait(TIMEOUT), 0)

    def test_goes_on_while_nothing_answers_and_opens_nothing_to_the_internet(self):
        trace = self.folder / "trace"
        # The tracer stands aside, so that the program is the child of this process.
        tracer = ("strace", "-D", "-f", "-q", "-e", "trace=socket,socketpair", "-o", str(trace))
        is_traced = subprocess.run([*tracer, "true"], env=self.environment, timeout=TIMEOUT).returncode == 0
        program = self.start_tracking(*tracer if is_traced else ())
        self.manager.send_signal(signal.SIGSTOP)
        self.press("Run In-Office Check", "Help", then="Weekend Day")
        self.press("Quarter", then="Last Quarter")
        self.assertNotIn("so it counts as off", program.said())  # it still waits, and all of that was done meanwhile
        self.system.kill()
        eventually(lambda: self.shown("Wi-Fi or Location Off"))
        self.press("Run In-Office Check", then=lambda: "NetworkManager is not running" in program.said())
        self.start_system()
        eventually(lambda: self.shown("Tracking On"))
        self.assert_handed_over(program)
        self.end(program)
        if not is_traced:
            self.skipTest("all held but the last: this system lets nobody be traced")
        calls = eventually(lambda: "+++ exited with 0" in (said := trace.read_text()) and said)
        self.assertLessEqual(set(re.findall(r"\bsocket(?:pair)?\((\w+)", calls)), {"AF_UNIX", "AF_NETLINK"}, calls)

    def marks(self):
        with suppress(sqlite3.OperationalError), closing(sqlite3.connect(self.folder / "Pellory/Pellory.store")) as store:
            return {f"{year}-{month:02}-{day['id']:02}": day["state"]
                    for year, month, days in store.execute("SELECT year, month, days FROM month")
                    for day in json.loads(days) if day["state"] != "UNKNOWN"}
        return {}

    def test_marks_a_day_at_the_office_once(self):
        now = datetime.now(timezone.utc)
        self.environment["TZ"] = f"TST{now.hour - 12}"  # where it is noon now, so that no run meets midnight
        before = now - timedelta({0: 3, 6: 2}.get(now.weekday(), 1))
        expected = {f"{now:%F}": "IN_OFFICE", f"{before:%F}": "OUT_OF_OFFICE"}
        for number, name in enumerate(("Büro", "Neighbour")):
            self.play("AddNetwork", "ssayi", ("0", str(number), name.encode(), 0))
        (self.folder / "dunst").mkdir()
        (self.folder / "dunst/dunstrc").write_text('[undo]\nsummary = "(Not) Pellory"\naction_name = undo\n')
        self.start("dunst", service=NOTIFICATIONS)
        dunst = partial(self.tell, (NOTIFICATIONS, "/org/freedesktop/Notifications"))

        def notices():
            return sum(dunst(PROPERTIES, "Get", "ss", DUNST, f"{kind}Length") for kind in ("displayed", "history"))

        program = self.start_tracking()
        eventually(lambda: notices() == 2)  # about the day before, and to whoever has asked for the check
        self.press("Add \u2068Büro\u2069", "Run In-Office Check", then=lambda: notices() == 3)
        eventually(lambda: self.marks() == expected)
        on_screen = partial(dunst, PROPERTIES, "Get", "ss", DUNST, "displayedLength")
        before_undo = on_screen()
        dunst(DUNST, "NotificationAction", "u", 0)  # which undoes the mark of the day before, and closes it
        del expected[f"{before:%F}"]
        eventually(lambda: self.marks() == expected and on_screen() < before_undo)
        dunst(DUNST, "NotificationAction", "u", 0)
        eventually(lambda: self.titles(ACTIVE) == ["Pellory"])
        program.kill()
        program.wait(TIMEOUT)
        scans, program = self.scans(), self.start(PROGRAM)
        eventually(lambda: "Sleeping for 1800 seconds" in program.said())
        self.assertIn("Büro", program.said())
        self.assertNotRegex(program.said(), "Neighbour|Logged as")
        self.assertEqual((self.scans(), notices(), self.marks()), (scans + 1, 3, expected))
        eventually(lambda: self.shown(f"{now:%A} {now.day} {now:%B %Y}, In the Office"))
        self.play("SetPermission", "s", ("no",))
        eventually(lambda: "Location permission changed from authorizedAlways to denied" in program.said())
        self.play("SetPermission", "s", ("yes",))
        self.play("SetScan", "sis", ("0", -1, ""))  # one that never ends
        self.start(PROGRAM, "--check-now")
        eventually(lambda: self.scans() == scans + 2)
        self.end(program)
        self.assertNotIn("Error", program.said())

    def test_starts_without_a_bus_and_after_every_end(self):
        buses = "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"
        self.environment |= dict.fromkeys(buses, "unix:path=/nonexistent") | {"XDG_DATA_HOME": "ignored/relative"}
        for end in (signal.SIGKILL, signal.SIGTERM):
            program = self.start(PROGRAM)
            eventually(lambda: "Sleeping for 1800 seconds" in program.said())
            second = self.start(PROGRAM)
            eventually(lambda: self.on_display(second, "Pellory", "windowfocus", "key", "Return") or second.poll())
            self.assertEqual(second.wait(TIMEOUT), 1)
            program.send_signal(end)
            self.assertEqual(program.wait(TIMEOUT), -end if end == signal.SIGKILL else 0)
        self.assertTrue((self.folder / ".local/share/Pellory/Pellory.store").exists())

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
        program = self.track(then="Wi-Fi or Location Off")
        self.press("Run In-Office Check", then=lambda: "Could not find default interface for" in program.said())
        self.end(program)
