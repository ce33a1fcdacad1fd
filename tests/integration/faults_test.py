# SPDX-License-Identifier: GPL-3.0-or-later
"""The program beside a NetworkManager that is played: what it opens, and what it does when nothing answers."""
import os
import re
import signal
import subprocess
from functools import partial

import dbus.bus

from desktop_test import PATIENCE, PROGRAM, DesktopTest, eventually


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
        eventually(lambda: bus.name_has_owner(name))
        play = partial(bus.call_blocking, name, "/org/freedesktop", "org.freedesktop.DBus.Mock")
        play("AddRadio", "ssu", ("0", "wlan0", 100))
        self.scans = partial(play, "CountScans", "s", ("0",))

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
