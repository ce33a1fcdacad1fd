# SPDX-License-Identifier: GPL-3.0-or-later
"""The program on a display and a bus of its own, worked as a screen reader works it: by the names of what it shows."""
import json
import os
import re
import signal
import subprocess
import tempfile
import time
import unittest
from collections import namedtuple
from contextlib import suppress
from functools import partial
from pathlib import Path
from xml.etree import ElementTree

import dbus.bus
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

TIMEOUT = 30
PROGRAM, NAME = os.environ["PELLORY_PROGRAM"], "io.github.pellory.Pellory"
READER, NOTIFICATIONS, DUNST = "org.a11y.Bus", "org.freedesktop.Notifications", "org.dunstproject.cmd0"
WATCHER = "org.kde.StatusNotifierWatcher"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
ACCESSIBLE, ACTION, PROPERTIES = "org.a11y.atspi.Accessible", "org.a11y.atspi.Action", "org.freedesktop.DBus.Properties"
ACTIVE, FOCUSABLE, SHOWING = 1 << 1, 1 << 11, 1 << 25
ROLES = {"dialog", "frame", "window", "check box", "combo box", "label", "page tab", "page tab list", "push button",
         "text"}
Node = namedtuple("Node", "window name states place")


def eventually(condition):
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        with suppress(dbus.DBusException):  # a window may go while it is asked
            if found := condition():
                return found
        time.sleep(0.05)
    raise AssertionError(f"{TIMEOUT} s without success")


class DesktopTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        bus = f"unix:path={self.folder}/bus"
        folders = dict.fromkeys(("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"), str(self.folder))
        self.environment = folders | {
            "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_LOGGING_RULES": "pellory.*=true",
            "DBUS_SESSION_BUS_ADDRESS": bus, "DBUS_SYSTEM_BUS_ADDRESS": bus,
            "ASAN_OPTIONS": "detect_leaks=0"}  # QtDBus leaks what nobody waits for any more
        self.start_display()
        # One bus for everything, by the rules of that of screen readers: anybody may do anything.
        rules = "--config-file=/usr/share/defaults/at-spi2/accessibility.conf"
        self.start("dbus-daemon", rules, "--nofork", f"--address={bus}")
        self.bus = eventually(lambda: dbus.bus.BusConnection(bus, mainloop=DBusGMainLoop()))
        self.addCleanup(self.bus.close)
        reader = self.mock(READER, "/org/a11y/bus", READER, "/org/a11y/bus", READER)
        reader("AddMethod", "sssss", READER, "GetAddress", "", "s", f"ret = '{bus}'")
        self.start("/usr/libexec/at-spi2-registryd", service=REGISTRY[0])

    def start_display(self):
        display = self.start("Xvfb", "-noreset", "-displayfd", "1")  # a server that resets refuses whoever comes then
        self.environment["DISPLAY"] = ":" + eventually(lambda: re.search(r"^(\d+)\n", display.said(), re.MULTILINE))[1]

    def start(self, *command, service=None):
        """Starts a child that does not outlive this process; what it has said is shown in the end."""
        said = self.folder / f"{time.monotonic_ns()}.log"
        with open(said, "wb") as log:
            child = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *command], env=self.environment,
                                     stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        self.addCleanup(lambda: (child.terminate(), child.wait(TIMEOUT), print(*command, "\n" + child.said())))
        child.said = said.read_text
        eventually(lambda: not service or self.bus.name_has_owner(service))
        return child

    def assert_handed_over(self, program):
        """Another start leads to the window of the program, which stays the only one."""
        owner = self.bus.get_name_owner(NAME)
        self.assertEqual(self.start(PROGRAM).wait(TIMEOUT), 0)
        eventually(lambda: self.titles(ACTIVE) == ["Pellory"] and self.on_display(program, "Pellory"))
        self.assertEqual((self.bus.get_name_owner(NAME), program.poll()), (owner, None))

    def tell(self, place, interface, method, signature="", *arguments):
        return self.bus.call_blocking(*place, interface, method, signature, arguments)

    def mock(self, name, path, *options):
        self.start("/usr/bin/python3", "-m", "dbusmock", "-l", "/dev/null", *options, service=name)
        return partial(self.tell, (name, path), "org.freedesktop.DBus.Mock")

    def walk(self, place, window=""):
        states = self.tell(place, ACCESSIBLE, "GetState")[0]
        if states & SHOWING:
            name = str(self.tell(place, PROPERTIES, "Get", "ss", ACCESSIBLE, "Name"))
            yield Node(window, name, states, place)
            for child in self.tell(place, ACCESSIBLE, "GetChildren"):
                yield from self.walk(child, window or name)

    def shown(self, name=None, states=SHOWING):
        return [node for program in self.tell(REGISTRY, ACCESSIBLE, "GetChildren")
                for window in self.tell(program, ACCESSIBLE, "GetChildren")
                for node in self.walk(window) if name in (None, node.name) and node.states & states]

    def titles(self, states=SHOWING):
        # Since Qt 6.11 a window's accessible name is its whole title.
        return [node.name.removesuffix(" — Pellory") for node in self.shown(None, states) if not node.window]

    def listen(self):
        """From now on self.spoken is what Orca says: of events without a text in them it says only two kinds."""
        self.spoken, self.awaited, self.reached = [], [], None
        self.bus.add_signal_receiver(self.speak, dbus_interface="org.a11y.atspi.Event.Object", member_keyword="event",
                                     sender_keyword="sender", path_keyword="path")
        self.tell((REGISTRY[0], "/org/a11y/atspi/registry"), REGISTRY[0], "RegisterEvent", "sass", "object:", [], "")

    def speak(self, detail, is_on, _, value, *_properties, event, sender, path):
        place = (sender, path)
        with suppress(dbus.DBusException):  # what has gone by now is not said
            ask = partial(self.tell, place, PROPERTIES, "Get", "ss", ACCESSIBLE)
            if (event, detail, is_on) == ("StateChanged", "focused", 1) and place != self.reached:
                self.reached, self.name = place, None
                self.name = ask("Name")
                text = f"{self.name} {ask('Description')}"
                self.spoken += [text] * (text not in self.spoken)  # the focus may return
            elif (event, detail, is_on) == ("StateChanged", "showing", 1):
                if self.tell(place, ACCESSIBLE, "GetRoleName") == "notification":
                    self.spoken.append(ask("Name"))
            elif event == "Announcement" or detail == "accessible-name" and place == self.reached:
                if isinstance(value, str) and value != self.name:
                    self.spoken.append(value)

    def hear(self, *texts):
        """Waits until each of these has been said; neither these nor those before have been said twice."""
        def heard(text):
            while GLib.MainContext.default().iteration(False):
                pass
            return sum(text in spoken for spoken in self.spoken)
        self.awaited += texts
        eventually(lambda: all(heard(text) for text in self.awaited))
        self.assertEqual([text for text in self.awaited if heard(text) > 1], [])
        return True

    def press(self, *names, then):
        """Presses what has these names, each as soon as it is there; then another name appears, or something holds."""
        for name in names:
            self.tell(eventually(lambda: self.shown(name, FOCUSABLE))[0].place, ACTION, "DoAction", "i", 0)
        eventually(then if callable(then) else lambda: self.shown(then))

    def track(self, *wrapper, then):
        """Starts the program, skips the first run and turns tracking on."""
        program = self.start(*wrapper, PROGRAM)
        self.press("Skip", "Done", then=lambda: self.titles() == ["Pellory"])
        self.press("Settings", "Office Networks", "Enable Automatic Tracking", then=then)
        return program

    def on_display(self, program, title="", *command):
        search = ["xdotool", "search", "--all", "--onlyvisible", "--pid", str(program.pid), "--name", f"^{title}"]
        return subprocess.run(search + [*command], env=self.environment, capture_output=True, timeout=TIMEOUT).stdout

    def close_windows(self, program, *titles):
        for title in titles:
            self.on_display(program, title, "windowfocus")
            eventually(lambda: self.titles(ACTIVE) == [title])
            self.on_display(program, title, "key", "--window", "0", "ctrl+w")
            eventually(lambda: not self.on_display(program, title))

    def test_controls_have_names_and_roles(self):
        controls = set()  # and the windows themselves, which are in none
        self.start(PROGRAM)
        steps = [("Back" if step == 1 else "Next", f"Step {step} of 5") for step in (2, 1, 2, 3, 4, 5)]
        for label, then in [*steps, ("Done", lambda: self.titles() == ["Pellory"]), ("Quarter", "Last Quarter"),
                            ("Calendar View Settings", "Show Quarter Stats"), ("Help", "Weekend Day"),
                            ("Settings", "Goals"), ("Counting", "Set Workdays"),
                            ("Office Networks", "Scan"), ("General", "Launch at login")]:
            self.press(label, then=then)
            for window, name, states, place in self.shown():
                role = str(self.tell(place, ACCESSIBLE, "GetRoleName"))
                # A scroll bar is known by what it scrolls.
                if not window or states & FOCUSABLE or self.tell(place, ACTION, "GetActions") and role != "scroll bar":
                    controls.add((window, role, name))
        self.assertEqual([control for control in controls if not control[2].strip() or control[1] not in ROLES], [])
        self.assertEqual(len({window for window, _, _ in controls}), 6)
        self.assertGreaterEqual(len([name for _, _, name in controls if name.endswith(", Unknown")]), 90)

    def test_tells_a_screen_reader_what_happens(self):
        self.listen()
        program = self.start(PROGRAM)
        key = partial(self.on_display, program, "Pellory", "key", "--window", "0")
        for step in ("Step 2 of 5. Your goals. On average", "Step 3 of 5. Always there", "Step 4 of 5. Days that mark",
                     "Step 5 of 5. All set. These are your choices. "):
            self.press("Next", then=lambda: self.hear(step))
        self.press("Done", then=lambda: self.titles() == ["Pellory"])
        self.on_display(program, "Pellory", "windowfocus")
        day, place = [(node.name.removesuffix("Unknown"), node.place) for node in self.shown()
                      if node.name.endswith(", Unknown")][9]
        self.press(day + "Unknown", then=day + "In the Office")
        self.hear(day + "In the Office")
        key("3")
        self.hear(day + "Out of Office")
        self.tell(place, ACTION, "DoAction", "i", 1)
        self.tell(eventually(lambda: self.shown("Vacation Day"))[0].place, ACTION, "DoAction", "i", 0)
        self.hear(day + "Vacation Day")
        key("Right", "Return")
        self.hear("2026 Unknown")  # the details of the next day
        key("Tab", "n", "Escape")
        self.hear("Unknown, has a note")
        quarter = next(node for node in self.shown() if node.name.startswith("Progress of the quarter: 0 days"))
        self.press(quarter.name, then=lambda: self.hear("Plan until "))
        key("Escape")
        self.press("Tracking Off", then="Last check")
        self.hear("Tracking Off Wi-Fi: ")
        key("Escape")
        self.assertEqual([text for text in self.spoken if ": Vacation Day" in text], [])  # which the day has said
        key("ctrl+z")
        self.hear("Taken back: ")
        self.press("Help", then=lambda: self.hear("Legend: Unknown: Ctrl with a click, or key 1. In the"))
        self.press("Settings", "Add Goal", then=lambda: self.hear("Input must be a number between 0.0 and 7.0"))
        self.press("Office Networks", "Enable Automatic Tracking", then=lambda: self.hear("but Wi-Fi is turned off."))
        next(self.folder.glob("*/*.store")).unlink()
        self.on_display(program, "Pellory", "windowfocus")
        self.hear("Data File Missing. ")

    def test_goes_on_without_a_window_while_it_tracks(self):
        server = self.mock(NOTIFICATIONS, "/org/freedesktop/Notifications", "-t", "notification_daemon",
                           "-p", '{"capabilities": "body actions"}')
        told = partial(server, "GetMethodCalls", "s", "Notify")
        program = self.track(then="Wi-Fi or Location Off")
        self.assert_handed_over(program)
        self.close_windows(program, "Settings", "Pellory")
        self.assertIn("keeps checking in the background", eventually(told)[0][1][4])
        self.assert_handed_over(program)
        program.kill()
        program.wait(TIMEOUT)
        program = self.start(PROGRAM)
        eventually(lambda: len(told()) == 2)  # the other is of the check that it cannot make
        self.close_windows(program, "Pellory")
        self.assert_handed_over(program)
        self.assertEqual(len(told()), 2)
        self.assertEqual(self.start(PROGRAM, "--check-now").wait(TIMEOUT), 0)
        eventually(lambda: program.said().count("Checking if in office via Wi-Fi") == 2)
        self.press("Settings", "Office Networks", "Enable Automatic Tracking", then="Tracking Off")
        self.close_windows(program, "Pellory", "Settings")
        self.assertEqual(program.wait(TIMEOUT), 0)

    def test_starts_at_login_without_a_window(self):
        program, entry = self.start(PROGRAM), self.folder / f"autostart/{NAME}.desktop"
        self.press("Skip", "Done", then=lambda: self.titles() == ["Pellory"])
        self.press("Settings", "General", "Launch at login", then=entry.exists)
        command = re.search("^Exec=(.*)$", entry.read_text(), re.MULTILINE)[1]
        self.press("Launch at login", then=lambda: not entry.exists())
        program.terminate()
        self.assertEqual(program.wait(TIMEOUT), 0)
        watcher = self.mock(WATCHER, "/StatusNotifierWatcher", WATCHER, "/StatusNotifierWatcher", WATCHER)
        watcher("AddMethod", "sssss", WATCHER, "RegisterStatusNotifierItem", "s", "", "")
        watcher("AddProperty", "ssv", WATCHER, "IsStatusNotifierHostRegistered", False)
        items = partial(watcher, "GetMethodCalls", "s", "RegisterStatusNotifierItem")
        symbolic = self.folder / f"icons/hicolor/symbolic/apps/{NAME}-symbolic.svg"
        symbolic.parent.mkdir(parents=True)
        symbolic.touch()
        program = self.start("sh", "-c", f"exec {command}", service=NAME)
        eventually(lambda: "Sleeping for" in program.said())
        self.assertEqual((items(), self.titles(), self.on_display(program), items()), ([], [], b"", []))
        watcher("UpdateProperties", "sa{sv}", WATCHER, {"IsStatusNotifierHostRegistered": True})
        watcher("EmitSignal", "sssav", WATCHER, "StatusNotifierHostRegistered", "", [])
        [(_, [item])] = eventually(items)
        self.assertEqual((self.titles(), self.on_display(program)), ([], b""))
        shown = self.tell((item, "/StatusNotifierItem"), PROPERTIES, "GetAll", "s", "org.kde.StatusNotifierItem")
        self.assertEqual((shown["IconName"], len(shown["IconPixmap"])), (symbolic.stem, 3))
        self.assertIn("Pellory: Tracking Off", shown["ToolTip"])
        self.assert_handed_over(program)
        self.press("Help", then=lambda: self.titles(ACTIVE) == ["Help"])
        self.tell((item, "/StatusNotifierItem"), "org.kde.StatusNotifierItem", "Activate", "ii", 0, 0)
        eventually(lambda: self.titles(ACTIVE) == ["Pellory"] and len(items()) == 1)

    def command(self, *arguments, status=0, **environment):
        """What a command prints, or what it complains of."""
        done = subprocess.run([PROGRAM, *arguments], env=self.environment | {"DISPLAY": ""} | environment,
                              capture_output=True, encoding="utf-8", timeout=TIMEOUT)
        self.assertEqual(done.returncode, status, (arguments, done.stderr))
        self.assertEqual(bool(done.stderr), bool(status), done.stderr)
        return done.stdout.rstrip("\n") or done.stderr

    def test_does_the_same_for_scripts_with_a_window_and_without(self):
        store, provider = self.folder / "Pellory/Pellory.store", f"{NAME}.SearchProvider"
        path = "/" + NAME.replace(".", "/")
        now = time.gmtime()
        self.environment["TZ"] = f"TST{now.tm_hour - 12}"  # where it is noon now, so that no run meets midnight
        today = time.strftime("%F", now)
        self.start(PROGRAM, "--search-provider", service=provider)
        search = partial(self.tell, (provider, f"{path}/SearchProvider"), "org.gnome.Shell.SearchProvider2")
        self.assertEqual(search("GetInitialResultSet", "as", ["office"]), [])
        self.assertIn("no data yet", self.command("--status", status=1))
        for options in (["--mark", today], ["--mark", "2026-02-30=IN_OFFICE"], ["--mark", "2026-2-03=IN_OFFICE"],
                        ["--mark", f"{today}=IN"], ["--status", "--undo"], ["--json"], ["--status", "x"], ["--export"],
                        ["--none"], ["x"], ["-style", "fusion", "--at-login", "x"]):
            self.command(*options, status=2)
        self.assertEqual(list(self.folder.glob("Pellory*")), [])
        nowhere = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}
        marks = ["--mark", f"{today}=UNKNOWN", "--mark", "2020-02-29=VACATION_DAY", f"--mark={today}=IN_OFFICE"]
        self.command(*marks, **nowhere)
        self.assertEqual(store.stat().st_mode & 0o777, 0o600)
        questions = ["--status"], ["--status", "--json"], ["--export", "-"]
        alone = [self.command(*question) for question in questions]
        self.assertEqual(json.loads(alone[1])["state"], "IN_OFFICE")
        self.assertRegex(alone[2], f"\n2020-02-29,VACATION_DAY,.*\n{today},IN_OFFICE,")
        self.assertEqual([str(found) for found in search("GetInitialResultSet", "as", ["day", "needed"])],
                         ["today", "month", "quarter"])
        self.assertEqual(search("GetInitialResultSet", "as", ["days", "lost"]), [])

        search("ActivateResult", "sasu", "today", [], 0)
        eventually(lambda: self.bus.name_has_owner(NAME))
        self.assertEqual([self.command(*question) for question in questions], alone)  # the first waits for its window
        eventually(lambda: self.shown("Skip"))
        script = partial(self.tell, (NAME, path), f"{NAME}1")

        def members(text):
            interface, = (found for found in ElementTree.fromstring(text) if found.get("name") == f"{NAME}1")
            return {(member.get("name"), *((argument.get("type"), argument.get("direction"))
                                           for argument in member.iter("arg"))) for member in interface}
        offered = self.tell((NAME, path), "org.freedesktop.DBus.Introspectable", "Introspect")
        self.assertEqual(members(Path(os.environ["PELLORY_INTERFACE"]).read_bytes()), members(offered))
        self.assertEqual(script("Export"), alone[2].replace("\n", "\r\n") + "\r\n")
        changes = []
        self.bus.add_signal_receiver(lambda: changes.append(1), "Changed", f"{NAME}1")

        def changed(times):
            while GLib.MainContext.default().iteration(False):
                pass
            return len(changes) == times
        self.assertIn("another session", self.command("--undo", status=1, **nowhere))
        self.command("--mark", f"{today}=OUT_OF_OFFICE", "--mark", "2020-02-29=IN_OFFICE")
        eventually(lambda: changed(1))
        self.command("--undo")
        eventually(lambda: changed(2))
        script("Mark", "ss", today, "IN_OFFICE")  # as it is
        for method, arguments, error in (("Mark", ["2026-02-30", "IN_OFFICE"], "InvalidDate"),
                                         ("Mark", [today, "in_office"], "InvalidState"),
                                         ("RunCheck", [], "TrackingOff")):
            with self.assertRaises(dbus.DBusException) as refused:
                script(method, "s" * len(arguments), *arguments)
            self.assertEqual(refused.exception.get_dbus_name(), f"{NAME}1.Error.{error}")
        backup = Path(self.command("--backup"))
        self.assertTrue(backup.exists())
        self.assertTrue(changed(2))
        bus = "org.freedesktop.DBus"
        os.kill(self.tell((bus, "/"), bus, "GetConnectionUnixProcessID", "s", NAME), signal.SIGKILL)
        eventually(lambda: not self.bus.name_has_owner(NAME))
        self.assertEqual(self.command("--status", "--json"), alone[1])
        self.command("--undo")
        self.assertIn("nothing to take back", self.command("--undo", status=1))
        store.write_bytes(b"damaged")
        self.assertIn("cannot be used", self.command("--status", status=1))
        store.unlink()
        self.assertIn("there are backups", self.command("--mark", f"{today}=IN_OFFICE", status=1))
        self.assertFalse(store.exists())
