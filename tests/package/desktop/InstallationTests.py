"""Checks what `cmake --install` installs, and runs it.

    InstallationTests.py BUILD
"""

import configparser
import json
import os
import pathlib
import struct
import subprocess
import sys
import unittest
import xml.etree.ElementTree

from Installation import SOURCE, Installation, output

ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
NAME = "com.quorvix.brimsound"


def ini(text):
    """A file of sections with keys. A key that is repeated keeps its last value."""
    parser = configparser.RawConfigParser(strict=False)
    parser.optionxform = str
    parser.read_string(text)
    return parser


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.installation = Installation(build)
        cls.addClassCleanup(cls.installation.close)
        cls.prefix = cls.installation.prefix

    def text(self, name):
        return self.installation.text(name)


class TheFiles(Installed):
    def test_are_these(self):
        programs = ("brimsound", "brimsound-presets", "brimsound-render")
        expected = {f"bin/{program}" for program in programs} | {"libexec/brimsound/mediaserverd"}
        expected |= {f"share/man/man1/{program}.1" for program in programs}
        expected |= {"share/man/man5/brimsound-script.5", "share/man/man8/mediaserverd.8"}
        for program in programs:
            expected |= {
                f"share/bash-completion/completions/{program}",
                f"share/fish/vendor_completions.d/{program}.fish",
                f"share/zsh/site-functions/_{program}",
            }
        expected |= {f"share/icons/hicolor/{size}x{size}/apps/{NAME}.png" for size in ICON_SIZES}
        expected |= {
            f"share/icons/hicolor/scalable/apps/{NAME}.svg",
            f"share/applications/{NAME}.desktop",
            f"share/metainfo/{NAME}.metainfo.xml",
            f"share/mime/packages/{NAME}.xml",
            f"share/dbus-1/services/{NAME}.service",
            "share/systemd/user/brimsound.service",
        }
        resources = SOURCE / "settings/resources"
        expected |= {
            f"share/brimsound/BrimsoundSettings.bundle/{file.relative_to(resources)}"
            for file in resources.rglob("*")
            if file.is_file()
        }
        self.assertEqual(self.installation.files(), expected)

    def test_include_icons_of_the_sizes_that_their_folders_say(self):
        for size in ICON_SIZES:
            image = (self.prefix / f"share/icons/hicolor/{size}x{size}/apps/{NAME}.png").read_bytes()
            self.assertEqual(image[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack_from(">II", image, 16), (size, size))


class ThePrograms(Installed):
    def setUp(self):
        self.root = self.installation.folder / self.id()
        self.environment = {"HOME": str(self.root), "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
        for name in ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def test_play_the_demonstration(self):
        run = subprocess.run(
            [self.prefix / "bin/brimsound", "--headless", "--root", self.root]
            + ["--script", SOURCE / "desktop/brimsound/demonstration.script"],
            env=self.environment,
            capture_output=True,
            text=True,
            timeout=60,
        )
        self.assertEqual(run.returncode, 0, run.stderr)
        trace = [json.loads(line) for line in run.stdout.splitlines()]
        # The media server answered, and the texts come from the installed resources.
        self.assertEqual([line["error"] for line in trace if line["effect"] == "message" and line["error"]], [])
        self.assertEqual(trace[-1]["sliders"][0], -7.5)
        self.assertEqual(trace[-1]["sliders"][10], 7.5)
        self.assertIn("60", trace[-1]["labels"])

    def test_start_the_media_server_outside_of_the_search_path(self):
        pane = subprocess.Popen(
            [self.prefix / "bin/brimsound", "--headless", "--root", self.root, "--script", "-"],
            env=self.environment,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        try:
            pane.stdin.write("state\n")
            pane.stdin.flush()
            self.assertTrue(pane.stdout.readline())
            children = pathlib.Path(f"/proc/{pane.pid}/task/{pane.pid}/children").read_text().split()
            programs = {os.readlink(f"/proc/{child}/exe") for child in children}
        finally:
            pane.communicate()
        self.assertIn(str(self.prefix / "libexec/brimsound/mediaserverd"), programs)

    def test_work_in_a_folder_that_was_moved(self):
        moved = self.installation.folder / "moved"
        output("cp", "-a", self.prefix, moved)
        picture = self.installation.folder / "picture.png"
        subprocess.run(
            [moved / "bin/brimsound", "--headless", "--root", self.root, "--snapshot", picture],
            env=self.environment,
            check=True,
            timeout=60,
        )
        self.assertTrue(picture.read_bytes().startswith(b"\x89PNG"))


class TheService(Installed):
    def setUp(self):
        self.unit = ini(self.text("share/systemd/user/brimsound.service"))
        self.bus = ini(self.text(f"share/dbus-1/services/{NAME}.service"))["D-BUS Service"]

    def test_runs_the_installed_media_server(self):
        program = self.unit["Service"]["ExecStart"]
        self.assertEqual(program, str(self.prefix / "libexec/brimsound/mediaserverd"))
        self.assertTrue(output(program, "--version").startswith("mediaserverd "))

    def test_has_the_name_on_the_bus_that_the_pane_uses(self):
        self.assertIn(f'messagingCenterName = "{NAME}"', (SOURCE / "settings/tweak.h").read_text())
        self.assertEqual(self.bus["Name"], NAME)
        self.assertEqual(self.unit["Service"]["Type"], "dbus")
        self.assertEqual(self.unit["Service"]["BusName"], NAME)

    def test_is_started_by_the_bus_only_while_it_is_enabled(self):
        self.assertEqual(self.bus["Exec"], "/bin/false")
        self.assertNotEqual(self.bus["SystemdService"], "brimsound.service")
        self.assertEqual(self.bus["SystemdService"], self.unit["Install"]["Alias"])

    def test_starts_at_log_in_when_it_is_enabled(self):
        self.assertEqual(self.unit["Install"]["WantedBy"], "default.target")

    def test_is_started_again_except_when_another_one_runs(self):
        self.assertEqual(self.unit["Service"]["Restart"], "always")
        self.assertEqual(self.unit["Service"]["RestartPreventExitStatus"], "3")

    def test_passes_the_check_of_systemd(self):
        folder = self.installation.folder / "run"
        folder.mkdir(mode=0o700)
        # The check includes the manual page, the program, and every key.
        manuals = f"{self.prefix}/share/man:"
        environment = dict(os.environ, XDG_RUNTIME_DIR=str(folder), MANPATH=manuals)
        unit = self.prefix / "share/systemd/user/brimsound.service"
        self.assertEqual(output("systemd-analyze", "--user", "verify", unit, env=environment), "")


class TheMenuEntry(Installed):
    def setUp(self):
        self.entry = ini(self.text(f"share/applications/{NAME}.desktop"))["Desktop Entry"]

    def test_passes_the_check_without_a_hint(self):
        self.assertEqual(output("desktop-file-validate", self.prefix / f"share/applications/{NAME}.desktop"), "")

    def test_names_the_installed_program_and_icon(self):
        program, files = self.entry["Exec"].split()
        self.assertTrue((self.prefix / "bin" / program).exists())
        self.assertEqual(files, "%F")
        self.assertEqual(self.entry["Icon"], NAME)


class TheCatalogEntry(Installed):
    def setUp(self):
        self.file = self.prefix / f"share/metainfo/{NAME}.metainfo.xml"
        self.component = xml.etree.ElementTree.parse(self.file).getroot()

    def test_passes_the_check_without_a_remark(self):
        found = output("appstreamcli", "validate", "--no-net", "--pedantic", "--no-color", self.file)
        remarks = [line for line in found.splitlines() if line[1:2] == ":"]
        # Debian 12 only knows the old tag for the developer, about which Debian 13 remarks.
        self.assertEqual([line for line in remarks if " developer-" not in line], [])

    def test_names_the_menu_entry_and_the_programs(self):
        self.assertEqual(self.component.findtext("launchable"), f"{NAME}.desktop")
        programs = [program.text for program in self.component.findall("provides/binary")]
        self.assertEqual(set(programs), {path.name for path in (self.prefix / "bin").iterdir()})

    def test_has_the_version_of_the_programs(self):
        version = self.component.find("releases/release").get("version")
        self.assertEqual(output(self.prefix / "bin/brimsound-render", "--version"), f"brimsound-render {version}\n")

    def test_shows_the_pictures_of_the_documentation_in_their_sizes(self):
        pictures = self.component.findall("screenshots/screenshot/image")
        self.assertGreaterEqual(len(pictures), 3)
        for picture in pictures:
            self.assertTrue(picture.text.startswith("https://"), picture.text)
            image = (SOURCE / "docs" / picture.text.rsplit("/", 1)[1]).read_bytes()
            size = int(picture.get("width")), int(picture.get("height"))
            self.assertEqual(struct.unpack_from(">II", image, 16), size, picture.text)


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
