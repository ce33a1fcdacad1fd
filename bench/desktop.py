# SPDX-License-Identifier: GPL-3.0-or-later
"""A display, a bus and the programs that are measured on them."""

import contextlib
import json
import os
import re
import signal
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUS = """<busconfig><type>session</type><listen>unix:dir={folder}</listen><policy context="default">
<allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>"""


def output_of(command, **options):
    done = subprocess.run(command, capture_output=True, text=True, stdin=subprocess.DEVNULL, timeout=900, **options)
    if done.returncode != 0:
        sys.exit(f"bench: {' '.join(map(str, command))} failed:\n{done.stdout}{done.stderr}")
    return done.stdout


@contextlib.contextmanager
def service(*command):
    """Runs a process that writes one line when it is ready, and yields that line."""
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as process:
        try:
            if not (line := process.stdout.readline().strip()):
                sys.exit(f"bench: {command[0]} did not start")
            yield line
        finally:
            process.terminate()


class Desktop:
    """A display and a bus of its own, and an environment that keeps the user's files and services out of it."""

    def __init__(self, build, scratch, stack):
        self.build, self.scratch = build, scratch
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "QT_QPA_PLATFORM": "xcb"}
        for name in ("HOME", "TMPDIR", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"):
            (scratch / name).mkdir(mode=0o700)
            self.environment[name] = str(scratch / name)
        screen = ("-screen", "0", "1280x1024x24", "-noreset", "-nolisten", "tcp")
        display = stack.enter_context(service("Xvfb", "-displayfd", "1", *screen))
        config = scratch / "bus.conf"
        config.write_text(BUS.format(folder=scratch))
        bus = stack.enter_context(service("dbus-daemon", "--nofork", f"--config-file={config}", "--print-address"))
        self.environment |= {"DISPLAY": f":{display}", "DBUS_SESSION_BUS_ADDRESS": bus, "DBUS_SYSTEM_BUS_ADDRESS": bus}

    def run(self, program, *arguments):
        return output_of([self.build / "bench" / program, *map(str, arguments)], env=self.environment)

    @contextlib.contextmanager
    def hanging(self, name, *options):
        """A service that owns its name and never answers."""
        command = ["/usr/bin/python3", "-m", "dbusmock", "-l", "/dev/null", *options]
        bus = "org.freedesktop.DBus"
        ask = ["dbus-send", "--session", "--print-reply", f"--dest={bus}", "/", f"{bus}.NameHasOwner", f"string:{name}"]
        with subprocess.Popen(command, cwd=ROOT / "tests/integration", env=self.environment) as process:
            try:
                deadline = time.monotonic() + 30
                while "true" not in output_of(ask, env=self.environment):
                    if time.monotonic() > deadline or process.poll() is not None:
                        sys.exit(f"bench: {name} did not appear on the bus")
                    time.sleep(0.1)
                process.send_signal(signal.SIGSTOP)
                yield
            finally:
                process.kill()


class Program:
    """A program with a window. Started once at first, so that its files are in memory."""

    def __init__(self, desktop, name, *arguments, months=0, is_empty=False):
        self.command = [desktop.build / name, *arguments]
        self.first_paint = [desktop.build / "bench/FirstPaint", *self.command]
        self.is_empty = is_empty
        data = desktop.scratch / f"{months}-months"
        self.store = data / "Pellory/Pellory.store"
        self.environment = desktop.environment | {"XDG_DATA_HOME": str(data)}
        if months:
            self.store.parent.mkdir(parents=True)
            desktop.run("FillStore", self.store, months)
        self.start()

    def start(self):
        """Milliseconds from the start to the painted window."""
        return self.window(output_of(self.first_paint, env=self.environment))["milliseconds"]

    def stages(self):
        """Milliseconds that each stage of a start took, by the name under which the program logs its end."""
        environment = self.environment | {"QT_LOGGING_RULES": "pellory.start=true"}
        options = {"capture_output": True, "text": True, "stdin": subprocess.DEVNULL}
        done = subprocess.run(self.first_paint, env=environment, **options)
        before = self.window(done.stdout)["started"]
        stages = {}
        for name, now in re.findall(r"pellory\.start: (.*): ([\d.]+) ms", done.stderr):
            stages[name], before = float(now) - before, float(now)
        return stages

    @contextlib.contextmanager
    def running(self):
        """Yields the process once its window is painted."""
        pipes = {"stdin": subprocess.PIPE, "stdout": subprocess.PIPE}
        with subprocess.Popen(self.first_paint, env=self.environment, text=True, **pipes) as process:
            yield self.window(process.stdout.readline())["pid"]
            process.communicate()
        if process.returncode != 0:
            sys.exit(f"bench: {self.command[0]} did not keep running")

    @contextlib.contextmanager
    def running_at_login(self):
        """Yields the process, which shows no window."""
        command = [*self.command, "--at-login"]
        with subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL) as process:
            yield process.pid
            process.terminate()
        if process.returncode != 0:
            sys.exit(f"bench: {command} exited with status {process.returncode}")

    def window(self, line):
        window = json.loads(line)
        if (window["colours"] == 1) != self.is_empty:
            sys.exit(f"bench: {self.command[0]} painted {window['colours']} colours")
        self.size = window["width"], window["height"]
        return window
