"""Checks the device's packages.

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
BUNDLE = "Library/PreferenceBundles/BrimsoundSettings.bundle"
ENTRY = "Library/PreferenceLoader/Preferences/BrimsoundSettings.plist"


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


class Package:
    """The tests of a package. What differs between the packages is below."""

    architecture = None
    firmware = None
    # Where its files are.
    prefix = "./"

    @classmethod
    def setUpClass(cls):
        made = subprocess.run(
            [SOURCE / "scripts/deb", build, cls.architecture], check=True, capture_output=True, text=True
        )
        cls.path = pathlib.Path(made.stdout.strip())
        cls.members = members(cls.path)
        cls.files = tarfile.open(fileobj=io.BytesIO(cls.members["data.tar.gz"]))
        cls.addClassCleanup(cls.files.close)
        cls.bundle = cls.prefix + BUNDLE
        cls.entry = cls.prefix + ENTRY

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
        self.assertEqual(fields["Architecture"], self.architecture)
        self.assertEqual(
            fields["Depends"].split(", "),
            [f"firmware (>= {self.firmware})", "mobilesubstrate", "preferenceloader"],
        )
        self.assertEqual(fields["Recommends"], "com.rpetrich.rocketbootstrap")
        for field in ("Name", "Section", "Maintainer", "Author", "Description"):
            self.assertTrue(fields[field])
        self.assertEqual(self.path.name, "{Package}_{Version}_{Architecture}.deb".format(**fields))

    def test_has_the_version_that_the_bundle_has(self):
        information = self.property_list(f"{self.bundle}/Info.plist")
        version = control(self.members)["Version"]
        self.assertEqual(information["CFBundleShortVersionString"], version)
        self.assertEqual(information["CFBundleVersion"], version)

    def test_holds_the_executable_that_was_built(self):
        built = (build / "platform/ios/bundle/BrimsoundSettings").read_bytes()
        executable = self.property_list(f"{self.bundle}/Info.plist")["CFBundleExecutable"]
        self.assertEqual(self.content(f"{self.bundle}/{executable}"), built)

    def test_holds_every_resource_and_nothing_else(self):
        resources = SOURCE / "settings/resources"
        expected = {
            f"{self.bundle}/{file.relative_to(resources)}": file.read_bytes() for file in resources.rglob("*") if file.is_file()
        }
        self.assertGreater(len(expected), 0)
        found = {file.name: self.content(file.name) for file in self.files if file.isfile()}
        del found[f"{self.bundle}/BrimsoundSettings"]
        del found[self.entry]
        self.assertEqual(found, expected)

    def test_holds_the_folders_of_its_files_and_no_others(self):
        files = {pathlib.PurePosixPath(file.name) for file in self.files if file.isfile()}
        others = {pathlib.PurePosixPath(file.name) for file in self.files if not file.isfile()}
        self.assertEqual(others, {folder for file in files for folder in file.parents})

    def test_is_roots_and_readable_by_all(self):
        for file in self.files:
            self.assertEqual((file.uid, file.gid, file.uname, file.gname), (0, 0, "root", "root"), file.name)
            executable = file.isdir() or file.name == f"{self.bundle}/BrimsoundSettings"
            self.assertEqual(file.mode, 0o755 if executable else 0o644, file.name)

    def test_has_one_time_for_everything(self):
        self.assertEqual(len({file.mtime for file in self.files}), 1)

    def test_enters_the_pane_into_the_settings_app(self):
        entry = self.property_list(self.entry)["entry"]
        self.assertEqual(entry["bundle"], "BrimsoundSettings")
        self.assertEqual(entry["cell"], "PSLinkCell")
        self.assertIs(entry["isController"], True)
        self.assertEqual(entry["label"], self.property_list(f"{self.bundle}/BrimsoundSettings.plist")["title"])
        self.assertIn(f"{self.bundle}/{entry['icon']}", self.files.getnames())

    def test_has_icons_of_29_points_at_all_scales(self):
        for name, scale in (("icon.png", 1), ("icon@2x.png", 2), ("icon@3x.png", 3)):
            image = self.content(f"{self.bundle}/{name}")
            self.assertEqual(image[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack_from(">II", image, 16), (29 * scale, 29 * scale), name)



class TheRootfulPackage(Package, unittest.TestCase):
    architecture = "iphoneos-arm"
    firmware = "9.0"


class TheRootlessPackage(Package, unittest.TestCase):
    architecture = "iphoneos-arm64"
    firmware = "15.0"
    prefix = "./var/jb/"


class TheRoothidePackage(Package, unittest.TestCase):
    """Its package manager puts the files below the root of the jailbreak."""

    architecture = "iphoneos-arm64e"
    firmware = "15.0"


class APackageOfAnotherArchitecture(unittest.TestCase):
    def test_is_not_made(self):
        made = subprocess.run([SOURCE / "scripts/deb", build, "i386"], capture_output=True, text=True)
        self.assertEqual((made.returncode, made.stdout), (2, ""))
        self.assertEqual(made.stderr, "deb: there is no package of the architecture i386\n")


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
