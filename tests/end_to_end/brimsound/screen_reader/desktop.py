"""The tests' own desktop: a session bus, an invisible screen, and the pane in its window on it.

The accessibility library looks for a desktop when it is loaded, so create it before importing reader.
"""
import json
import os
import pathlib
import plistlib
import queue
import shutil
import subprocess
import tempfile
import threading
import time

from gi.repository import Gio, GLib

PATIENCE = 20
# Programs that a test starts end with it, also when it crashes.
DEPENDENT = ("setpriv", "--pdeathsig", "TERM", "--")


class Lines:
    """The output of a program, parsed line by line as JSON."""

    def __init__(self, stream):
        self._lines = queue.Queue()
        self._thread = threading.Thread(target=self._read, args=(stream,), daemon=True)
        self._thread.start()

    def _read(self, stream):
        for line in stream:
            self._lines.put(json.loads(line))

    def next(self, wanted=lambda line: True):
        """The next line for which `wanted` is true; earlier lines are dropped."""
        while True:
            line = self._lines.get(timeout=PATIENCE)
            if wanted(line):
                return line

    def take(self):
        """All lines received so far."""
        lines = []
        while not self._lines.empty():
            lines.append(self._lines.get())
        return lines


class Program:
    """Runs a program while the context is active, and provides its output."""

    def __init__(self, *command, **options):
        self._process = subprocess.Popen((*DEPENDENT, *command), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                         text=True, **options)
        self.lines = Lines(self._process.stdout)

    def say(self, line):
        self._process.stdin.write(line + "\n")
        self._process.stdin.flush()

    def end(self):
        """Closes standard input, kills the program if it does not end, and returns its exit status."""
        self._process.stdin.close()
        try:
            status = self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self._process.kill()
            status = self._process.wait()
        self._process.stdout.close()
        return status

    def terminate(self):
        self._process.terminate()
        return self.end()


class Desktop:
    """The desktop that all tests share."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="brimsound-reader-"))
        self._programs = []
        for name in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "AT_SPI_BUS_ADDRESS", "NO_AT_BRIDGE"):
            os.environ.pop(name, None)
        os.environ.update(HOME=str(self.folder), XDG_RUNTIME_DIR=str(self.folder),
                          XDG_CONFIG_HOME=str(self.folder), XDG_CACHE_HOME=str(self.folder),
                          XDG_DATA_HOME=str(self.folder), XDG_CURRENT_DESKTOP="X-Generic", LC_ALL="C.UTF-8")
        number = self._start("Xvfb", "-displayfd", "1", "-screen", "0", "900x1200x24", "-nolisten", "tcp")
        os.environ["DISPLAY"] = ":" + number
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start("dbus-daemon", "--session", "--nofork",
                                                             "--print-address")
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._bus.set_exit_on_close(False)
        self._listen()

    def _listen(self):
        """Announces a screen reader to all programs, as a starting screen reader does."""
        self._bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                            GLib.Variant("(ssv)", ("org.a11y.Status", "ScreenReaderEnabled",
                                                   GLib.Variant("b", True))),
                            None, Gio.DBusCallFlags.NONE, -1, None)

    def wait_for(self, name):
        """Waits until the name has an owner on the session bus."""
        deadline = time.monotonic() + PATIENCE
        while not self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                      "NameHasOwner", GLib.Variant("(s)", (name,)), None,
                                      Gio.DBusCallFlags.NONE, -1, None).unpack()[0]:
            if time.monotonic() > deadline:
                raise TimeoutError(f"nobody took the name {name}")
            time.sleep(0.01)

    def post(self, name):
        """Posts a notification as another process would."""
        self._bus.emit_signal(None, "/com/quorvix/brimsound", "com.quorvix.brimsound.DarwinNotify", "Posted",
                              GLib.Variant("(s)", (name,)))
        self._bus.flush_sync()

    def _start(self, *command):
        """Starts a program that prints one line when it is ready. Returns the line."""
        program = subprocess.Popen((*DEPENDENT, *command), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self._programs.append(program)
        return program.stdout.readline().strip()

    def end(self):
        for program in reversed(self._programs):
            program.terminate()
            program.wait(PATIENCE)
            program.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)


class Pane:
    """The pane in its window with its media server, with their own device root."""

    def __init__(self, desktop, preferences=None):
        self.desktop = desktop
        self.root = pathlib.Path(tempfile.mkdtemp(dir=desktop.folder))
        self._file = self.root / "var/mobile/Library/Preferences/com.quorvix.brimsound.plist"
        if preferences is not None:
            self.write(preferences)
        self.server = Program(os.environ["MEDIASERVERD"], "--print", "--silent", "--root", self.root)
        desktop.wait_for("com.quorvix.brimsound")
        self.errors = open(self.root / "errors", "w+", encoding="utf-8")
        # The script sends nothing, so that the program keeps running and prints its trace.
        self.program = Program(os.environ["BRIMSOUND"], "--root", self.root, "--script", "-",
                               stderr=self.errors)

    def write(self, preferences):
        self._file.parent.mkdir(parents=True, exist_ok=True)
        self._file.write_bytes(plistlib.dumps(preferences, fmt=plistlib.FMT_BINARY))

    def preferences(self):
        return plistlib.loads(self._file.read_bytes())

    @staticmethod
    def activate():
        """Gives the keyboard focus to the window, as a window manager does."""
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "Brimsound",
                        "windowfocus", "--sync"], check=True, timeout=PATIENCE)

    @staticmethod
    def deactivate():
        """Takes the keyboard focus from the window: it follows the pointer, which is outside the window."""
        pointer_root = "1"
        subprocess.run(["xdotool", "windowfocus", pointer_root], check=True, timeout=PATIENCE)

    @staticmethod
    def press_keys(*keys):
        """Presses keys one after the other."""
        subprocess.run(["xdotool", "key", *keys], check=True, timeout=PATIENCE)

    def effects(self):
        """The pane's trace so far, without the lines of its log."""
        return [line for line in self.program.lines.take() if line["effect"] != "log"]

    def end(self):
        """The pane's output on standard error."""
        self.program.end()
        self.server.terminate()
        self.errors.seek(0)
        text = self.errors.read()
        self.errors.close()
        return text
