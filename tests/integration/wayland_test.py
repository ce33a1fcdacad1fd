# SPDX-License-Identifier: GPL-3.0-or-later
"""The program with Wayland. The compositor has no keyboard and no pointer, so nothing is ever in the foreground."""
import shutil

from desktop_test import NAME, TIMEOUT, PROGRAM, DesktopTest, eventually


class WaylandTest(DesktopTest):
    def start_display(self):
        if not shutil.which("weston"):
            self.skipTest("there is no weston to show the windows")
        self.environment |= {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland"}
        self.start("weston", "--backend=headless-backend.so", "--no-config", "--socket=wayland", "--idle-time=0")
        eventually((self.folder / "wayland").is_socket)

    def test_opens_and_shows_its_windows_with_wayland(self):
        program = self.track(then="Wi-Fi or Location Off")
        owner = self.bus.get_name_owner(NAME)
        self.assertEqual(self.start(PROGRAM).wait(TIMEOUT), 0)
        self.press("Help", then="Weekend Day")
        self.assertEqual((sorted(self.titles()), self.bus.get_name_owner(NAME)), (["Help", "Pellory", "Settings"], owner))
        program.terminate()
        self.assertEqual(program.wait(TIMEOUT), 0)
        program = self.start(PROGRAM, "--at-login")
        eventually(lambda: "Sleeping for" in program.said())
        self.assertEqual(self.titles(), [])
        self.assertEqual(self.start(PROGRAM).wait(TIMEOUT), 0)
        eventually(lambda: self.titles() == ["Pellory"])
        self.press("Quarter", then="Last Quarter")
