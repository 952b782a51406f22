#!/usr/bin/env python3
"""Installs the package, plays sound, moves a slider, upgrades and removes it.

    FreshMachineTests.py DEB

For a machine that may be changed, with an X display and sudo: see CONTRIBUTING.md. The sound system is the test's own,
with a device that exists only in software.
"""

import array
import contextlib
import json
import math
import os
import pathlib
import signal
import statistics
import subprocess
import sys
import tempfile
import time
import unittest
import wave

RATE = 48000
AMPLITUDE = 0.25
PLAIN = AMPLITUDE / math.sqrt(2)
SETTINGS = ".local/share/brimsound/var/mobile/Library/Preferences/com.quorvix.brimsound.plist"
ENGINE = "/usr/libexec/brimsound/mediaserverd"
PIPEWIRE = """
context.properties = { module.x11.bell = false }
context.objects = [ { factory = adapter args = {
    factory.name = support.null-audio-sink node.name = speakers media.class = Audio/Sink audio.position = [ FL FR ]
    priority.session = 1000 priority.driver = 1000 object.linger = true session.suspend-timeout-seconds = 0
} } ]
"""
# Up to release 0.4 the session manager is configured by scripts, then by data.
LUA = """
alsa_monitor.enabled = false
v4l2_monitor.enabled = false
libcamera_monitor.enabled = false
default_access.properties["enable-flatpak-portal"] = false
"""
DATA = """
wireplumber.profiles = { main = { hardware.audio = disabled hardware.bluetooth = disabled
    hardware.video-capture = disabled script.client.access-portal = disabled support.portal-permissionstore = disabled } }
"""


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, **options).stdout


def as_root(*command):
    root = [] if os.getuid() == 0 else ["sudo"]
    return run(*root, "env", "DEBIAN_FRONTEND=noninteractive", *command)


def eventually(condition, what, seconds=15):
    end = time.monotonic() + seconds
    while not condition():
        assert time.monotonic() < end, what
        time.sleep(0.05)


def levels(samples):
    """The root mean square of each 10 ms of the first of two channels."""
    left = samples[::2]
    blocks = [left[i : i + RATE // 100] for i in range(0, len(left) - RATE // 100 + 1, RATE // 100)]
    return [math.sqrt(sum(value * value for value in block) / len(block)) / 32768 for block in blocks]


def engines():
    """The processes that run an installed engine, also one whose file was removed."""
    found = []
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if os.readlink(process / "exe").split(" ")[0] == ENGINE:
                found.append(int(process.name))
    return found


class TheSession:
    """A session bus, PipeWire, its session manager and its PulseAudio server, with one device."""

    def __init__(self, home):
        self.home = home
        self.processes = []
        run_folder = home / "run"
        run_folder.mkdir(mode=0o700)
        for name, text in (
            ("pipewire/pipewire.conf.d/10-test.conf", PIPEWIRE),
            ("wireplumber/main.lua.d/51-test.lua", LUA),
            ("wireplumber/bluetooth.lua.d/51-test.lua", "bluez_monitor.enabled = false\n"),
            ("wireplumber/wireplumber.conf.d/51-test.conf", DATA),
        ):
            (home / ".config" / name).parent.mkdir(parents=True, exist_ok=True)
            (home / ".config" / name).write_text(text)
        self.environment = {
            "HOME": str(home),
            "PATH": "/usr/bin:/bin",
            "LANG": "C.UTF-8",
            "DISPLAY": os.environ["DISPLAY"],
            "XDG_RUNTIME_DIR": str(run_folder),
            "PULSE_RUNTIME_PATH": str(run_folder / "pulse"),
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={run_folder}/bus",
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={run_folder}/none",
        }
        self.start("dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={run_folder}/bus")
        eventually((run_folder / "bus").exists, "there is no session bus")
        self.start("pipewire")
        eventually((run_folder / "pipewire-0").exists, "PipeWire does not start")
        self.start("wireplumber")
        self.start("pipewire-pulse")
        eventually(lambda: "speakers" in self.run("pw-metadata", "0", "default.audio.sink"), "there is no device")

    def start(self, *command):
        with open(self.home / "log", "a") as log:
            process = subprocess.Popen(command, env=self.environment, stdout=log, stderr=log)
        self.processes.append(process)
        return process

    def run(self, *command, **options):
        return run(*command, env=self.environment, stderr=subprocess.DEVNULL, **options)

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(10)

    def record(self, seconds, action=lambda: None):
        """The levels of the device while the action runs, and for that long after it."""
        file = self.home / "recorded.wav"
        recorder = self.start(
            "pw-record", "--target", "speakers", "-P", "{ stream.capture.sink=true node.dont-reconnect=true }",
            "--rate", str(RATE), "--channels", "2", "--format", "s16", str(file),
        )  # fmt: skip
        time.sleep(1)
        action()
        time.sleep(seconds)
        recorder.send_signal(signal.SIGINT)
        recorder.wait(10)
        self.processes.remove(recorder)
        with wave.open(str(file)) as recorded:
            return levels(array.array("h", recorded.readframes(recorded.getnframes())))

    def level(self):
        return statistics.median(self.record(1)[50:])

    def targets(self):
        """The sinks that the player's stream is linked to."""
        objects = json.loads(self.run("pw-dump"))
        names = {
            item["id"]: item["info"]["props"].get("node.name", "")
            for item in objects
            if item["type"] == "PipeWire:Interface:Node"
        }
        links = [item["info"] for item in objects if item["type"] == "PipeWire:Interface:Link"]
        return {names[link["input-node-id"]] for link in links if names[link["output-node-id"]] == "pw-play"}


class ThePackage(unittest.TestCase):
    def test_is_installed_heard_upgraded_and_removed(self):
        install = ("apt-get", "install", "-y", "-qq")
        as_root("apt-get", "update", "-qq")
        as_root(*install, deb)
        home = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        session = TheSession(home)
        self.addCleanup(session.close)
        tone = home / "tone.wav"
        with wave.open(str(tone), "wb") as file:
            file.setnchannels(2)
            file.setsampwidth(2)
            file.setframerate(RATE)
            sine = (int(AMPLITUDE * 32767 * math.sin(2 * math.pi * i / 48)) for i in range(RATE))
            second = array.array("h", (value for value in sine for _ in "lr"))
            file.writeframes(second.tobytes() * 300)

        session.start("pw-play", str(tone))
        eventually(lambda: session.targets() == {"speakers"}, "the player does not play")
        self.expect("without the equalizer", session.level(), PLAIN)

        window = session.start("brimsound")
        eventually(lambda: session.targets() == {"brimsound"}, "the stream is not moved")
        self.assertEqual(len(engines()), 1)
        self.expect("with the window, flat", session.level(), PLAIN)

        # The fifth band is that of 1 kHz. The other pane uses the window's engine.
        trace = session.run("brimsound", "--headless", "--script", "-", input="touch 5\ndrag 5 -6\nlift 5\n")
        self.assertEqual([json.loads(line).get("error") for line in trace.splitlines()][0], None)
        self.assertTrue((home / SETTINGS).exists())
        lowered = PLAIN * 10 ** (-6 / 20)
        self.expect("1 kHz lowered by 6 dB", session.level(), lowered)

        (before,) = engines()
        found = session.record(3, lambda: as_root(*install, "--reinstall", deb))
        eventually(lambda: engines() and before not in engines(), "the upgrade keeps the old engine")
        self.assertEqual(os.readlink(f"/proc/{engines()[0]}/exe"), ENGINE)
        different = sum(abs(level - lowered) > 0.05 * lowered for level in found[50:-50]) / 100
        print(f"during an upgrade: not equalized for {different:.2f} s", file=sys.stderr)
        self.expect("after an upgrade", session.level(), lowered)

        as_root("apt-get", "remove", "-y", "-qq", "brimsound")
        eventually(lambda: not engines(), "an engine survives the removal")
        eventually(lambda: session.targets() == {"speakers"}, "the stream is not given back")
        self.expect("after the removal", session.level(), PLAIN)
        self.assertTrue((home / SETTINGS).exists())
        self.assertFalse(pathlib.Path("/usr/libexec/brimsound").exists())
        window.terminate()

    def expect(self, what, level, wanted):
        print(f"{what}: {level:.4f}, {20 * math.log10(level / PLAIN):+.2f} dB", file=sys.stderr)
        self.assertAlmostEqual(level, wanted, delta=0.03 * wanted)


if __name__ == "__main__":
    deb = str(pathlib.Path(sys.argv.pop(1)).resolve())
    unittest.main()
