"""Checks the device's package.

    PackageTests.py BUILD
"""

import io
import pathlib
import plistlib
import struct
import subprocess
import sys
import tarfile
import unittest

SOURCE = pathlib.Path(__file__).resolve().parents[2]
BUNDLE = "./Library/PreferenceBundles/BrimsoundSettings.bundle"
ENTRY = "./Library/PreferenceLoader/Preferences/BrimsoundSettings.plist"


def members(deb):
    """The members of a package's archive, in their order."""
    data = deb.read_bytes()
    assert data.startswith(b"!<arch>\n")
    result, offset = {}, 8
    while offset < len(data):
        name = data[offset : offset + 16].decode().strip().rstrip("/")
        size = int(data[offset + 48 : offset + 58])
        result[name] = data[offset + 60 :][:size]
        offset += 60 + size + size % 2
    return result


def control(members):
    with tarfile.open(fileobj=io.BytesIO(members["control.tar.gz"])) as archive:
        lines = archive.extractfile("./control").read().decode().splitlines()
    return dict(line.split(": ", 1) for line in lines if not line.startswith(" "))


class ThePackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        made = subprocess.run([SOURCE / "scripts/deb", build], check=True, capture_output=True, text=True)
        cls.path = pathlib.Path(made.stdout.strip())
        cls.members = members(cls.path)
        cls.files = tarfile.open(fileobj=io.BytesIO(cls.members["data.tar.gz"]))
        cls.addClassCleanup(cls.files.close)

    def content(self, name):
        return self.files.extractfile(name).read()

    def property_list(self, name):
        return plistlib.loads(self.content(name))

    def test_is_one_that_the_devices_old_dpkg_can_unpack(self):
        self.assertEqual(list(self.members), ["debian-binary", "control.tar.gz", "data.tar.gz"])
        self.assertEqual(self.members["debian-binary"], b"2.0\n")

    def test_says_what_it_is_and_needs(self):
        fields = control(self.members)
        self.assertEqual(fields["Package"], "com.quorvix.brimsound.settings")
        self.assertEqual(fields["Architecture"], "iphoneos-arm")
        self.assertEqual(
            fields["Depends"].split(", "),
            ["firmware (>= 9.0)", "mobilesubstrate", "preferenceloader", "com.rpetrich.rocketbootstrap"],
        )
        for field in ("Name", "Section", "Maintainer", "Author", "Description"):
            self.assertTrue(fields[field])
        self.assertEqual(self.path.name, "{Package}_{Version}_{Architecture}.deb".format(**fields))

    def test_has_the_version_that_the_bundle_has(self):
        information = self.property_list(f"{BUNDLE}/Info.plist")
        version = control(self.members)["Version"]
        self.assertEqual(information["CFBundleShortVersionString"], version)
        self.assertEqual(information["CFBundleVersion"], version)

    def test_holds_the_executable_that_was_built(self):
        built = (build / "platform/ios/bundle/BrimsoundSettings").read_bytes()
        executable = self.property_list(f"{BUNDLE}/Info.plist")["CFBundleExecutable"]
        self.assertEqual(self.content(f"{BUNDLE}/{executable}"), built)

    def test_holds_every_resource_and_nothing_else(self):
        resources = SOURCE / "settings/resources"
        expected = {
            f"{BUNDLE}/{file.relative_to(resources)}": file.read_bytes() for file in resources.rglob("*") if file.is_file()
        }
        self.assertGreater(len(expected), 0)
        found = {file.name: self.content(file.name) for file in self.files if file.isfile()}
        del found[f"{BUNDLE}/BrimsoundSettings"]
        del found[ENTRY]
        self.assertEqual(found, expected)

    def test_is_roots_and_readable_by_all(self):
        for file in self.files:
            self.assertEqual((file.uid, file.gid, file.uname, file.gname), (0, 0, "root", "root"), file.name)
            executable = file.isdir() or file.name == f"{BUNDLE}/BrimsoundSettings"
            self.assertEqual(file.mode, 0o755 if executable else 0o644, file.name)

    def test_has_one_time_for_everything(self):
        self.assertEqual(len({file.mtime for file in self.files}), 1)

    def test_enters_the_pane_into_the_settings_app(self):
        entry = self.property_list(ENTRY)["entry"]
        self.assertEqual(entry["bundle"], "BrimsoundSettings")
        self.assertEqual(entry["cell"], "PSLinkCell")
        self.assertIs(entry["isController"], True)
        self.assertEqual(entry["label"], self.property_list(f"{BUNDLE}/BrimsoundSettings.plist")["title"])
        self.assertIn(f"{BUNDLE}/{entry['icon']}", self.files.getnames())

    def test_has_icons_of_29_points_at_all_scales(self):
        for name, scale in (("icon.png", 1), ("icon@2x.png", 2), ("icon@3x.png", 3)):
            image = self.content(f"{BUNDLE}/{name}")
            self.assertEqual(image[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack_from(">II", image, 16), (29 * scale, 29 * scale), name)


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
