"""Checks the executable of the device's bundle.

    BundleTests.py BUILD
"""

import hashlib
import pathlib
import plistlib
import sys
import unittest

from MachO import MachO
from Stubs import stubs

SOURCE = pathlib.Path(__file__).resolve().parents[2]
RESOURCES = SOURCE / "settings/resources"

MH_MAGIC_64, MH_BUNDLE = 0xFEEDFACF, 8
MH_NOUNDEFS, MH_TWOLEVEL = 0x1, 0x80
CPU_TYPE_ARM64, CPU_SUBTYPE_ARM64_ALL = 0x0100000C, 0
N_STAB, N_TYPE, N_EXT = 0xE0, 0x0E, 0x01

SHA1, SHA256 = 1, 2
AD_HOC = 2


def items():
    with open(RESOURCES / "BrimsoundSettings.plist", "rb") as file:
        return plistlib.load(file)["items"]


def information():
    with open(RESOURCES / "Info.plist", "rb") as file:
        return plistlib.load(file)


class TheExecutable(unittest.TestCase):
    def test_is_a_bundle_for_arm64(self):
        self.assertEqual(binary.magic, MH_MAGIC_64)
        self.assertEqual(binary.kind, MH_BUNDLE)
        self.assertEqual((binary.cpu, binary.cpu_kind), (CPU_TYPE_ARM64, CPU_SUBTYPE_ARM64_ALL))

    def test_runs_from_ios_9_0_on(self):
        self.assertEqual(binary.minimum_os(), (9, 0))

    def test_loads_what_it_uses_and_no_more(self):
        self.assertEqual(
            sorted(binary.libraries),
            [
                "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation",
                "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics",
                "/System/Library/Frameworks/Foundation.framework/Foundation",
                "/System/Library/Frameworks/MessageUI.framework/MessageUI",
                "/System/Library/Frameworks/UIKit.framework/UIKit",
                "/System/Library/PrivateFrameworks/AppSupport.framework/AppSupport",
                "/System/Library/PrivateFrameworks/Preferences.framework/Preferences",
                "/usr/lib/libSystem.B.dylib",
                "/usr/lib/libc++.1.dylib",
                "/usr/lib/libobjc.A.dylib",
                "@rpath/librocketbootstrap.dylib",
            ],
        )

    def test_loads_without_rocketbootstrap(self):
        self.assertEqual(binary.weak_libraries, ["@rpath/librocketbootstrap.dylib"])
        self.assertEqual(binary.weak_imports, {"_rocketbootstrap_distributedmessagingcenter_apply"})

    def test_looks_for_libraries_where_each_jailbreak_has_them(self):
        self.assertEqual(binary.run_paths, ["/usr/lib", "/var/jb/usr/lib", "@loader_path/.jbroot/usr/lib"])

    def test_finds_the_root_of_a_jailbreak_when_it_runs(self):
        self.assertEqual(binary.data.count(b"/var/jb"), 1, "only the run path")
        self.assertEqual(binary.data.count(b".jbroot"), 1, "only the run path")

    def test_shows_alerts_with_controllers(self):
        symbols = {symbol for _, symbol, _ in binary.binds}
        self.assertIn("_OBJC_CLASS_$_UIAlertController", symbols)
        self.assertNotIn("_OBJC_CLASS_$_UIAlertView", symbols)

    def test_starts_commands_without_the_systems_shell(self):
        symbols = {symbol for _, symbol, _ in binary.binds}
        self.assertIn("_posix_spawn", symbols)
        self.assertTrue(symbols.isdisjoint({"_system", "_popen", "_pclose"}))
        self.assertNotIn("system", binary.texts(), "it is not looked up by its name either")

    def test_finds_each_symbol_in_the_library_that_has_it(self):
        self.assertTrue(binary.flags & MH_TWOLEVEL)
        self.assertTrue(binary.flags & MH_NOUNDEFS)
        known = stubs(SOURCE / "platform/ios/sysroot/stubs")
        self.assertGreater(len(binary.binds), 0)
        for _, symbol, library in binary.binds:
            self.assertGreater(library, 0, f"{symbol} is looked for everywhere")
            self.assertIn(symbol, known[binary.libraries[library - 1]])

    def test_shows_no_symbol_to_other_code(self):
        self.assertEqual(binary.exports(), [])
        # Newer linkers look up the global operators new and delete in all libraries, because C++ programs may
        # replace them.
        operators = {"__Znwm", "__Znam", "__ZdlPv", "__ZdaPv"}
        self.assertLessEqual(binary.weak_binds(), operators)
        shown = [
            name for name, kind in binary.symbols() if kind & N_EXT and kind & N_TYPE and not kind & N_STAB
        ]
        self.assertEqual(shown, [])


class ThePrincipalClass(unittest.TestCase):
    def setUp(self):
        self.classes = binary.classes()

    def test_is_a_list_controller(self):
        principal = self.classes[information()["NSPrincipalClass"]]
        base = self.classes[principal.superclass]
        self.assertEqual(base.superclass, "_OBJC_CLASS_$_PSListController")
        self.assertIn("newController", principal.class_methods)

    def test_is_told_the_answer_to_an_alert(self):
        self.assertIn("alertView:clickedButtonAtIndex:", self.classes[information()["NSPrincipalClass"]].methods)

    def test_takes_the_place_of_the_list_controllers_methods(self):
        base = self.classes[self.classes[information()["NSPrincipalClass"]].superclass]
        for method in (
            "dealloc",
            "initForContentSize:",
            "readPreferenceValue:",
            "setPreferenceValue:specifier:",
            "specifiers",
            "suspend",
            "tableView:cellForRowAtIndexPath:",
            "tableView:heightForRowAtIndexPath:",
        ):
            self.assertIn(method, base.methods)

    def test_knows_every_selector_of_the_specifiers(self):
        texts = binary.texts()
        selectors = [item[key] for item in items() for key in ("get", "set", "action") if key in item]
        self.assertGreater(len(selectors), 0)
        for selector in selectors:
            self.assertIn(selector, texts)

    def test_has_views_that_are_laid_out(self):
        for name, superclass in (("BRView", "UIView"), ("BRTableViewCell", "UITableViewCell")):
            view = self.classes[name]
            self.assertEqual(view.superclass, f"_OBJC_CLASS_$_{superclass}")
            self.assertIn("setFrame:", view.methods)
            self.assertIn("layoutSubviews", view.methods)


class TheSignature(unittest.TestCase):
    def test_ends_the_file_and_its_last_segment(self):
        offset, size, _ = binary.signature()
        self.assertEqual(offset % 16, 0)
        self.assertEqual(offset + size, len(binary.data))
        last = binary.segments[-1]
        self.assertEqual(last["name"], "__LINKEDIT")
        self.assertEqual(last["offset"] + last["file_size"], len(binary.data))
        self.assertGreaterEqual(last["size"], last["file_size"])

    def test_has_a_code_directory_for_old_and_new_systems(self):
        directories = binary.code_directories()
        self.assertEqual([directory.hash_type for directory in directories], [SHA1, SHA256])
        for directory in directories:
            self.assertEqual(directory.identifier, information()["CFBundleIdentifier"])
            self.assertEqual(directory.flags, AD_HOC)
            self.assertEqual(directory.code_limit, binary.signature()[0])

    def test_is_that_of_every_page(self):
        for directory, algorithm in zip(binary.code_directories(), (hashlib.sha1, hashlib.sha256)):
            code = binary.data[: directory.code_limit]
            pages = [code[start : start + directory.page_size] for start in range(0, len(code), directory.page_size)]
            self.assertEqual(directory.hashes, [algorithm(page).digest() for page in pages])

    def test_is_that_of_the_requirements_and_of_no_info_plist(self):
        _, _, blobs = binary.signature()
        requirements = blobs[2][1]
        for directory, algorithm in zip(binary.code_directories(), (hashlib.sha1, hashlib.sha256)):
            self.assertEqual(directory.special_hashes[2], algorithm(requirements).digest())
            self.assertEqual(directory.special_hashes[1], bytes(algorithm().digest_size))


if __name__ == "__main__":
    binary = MachO(pathlib.Path(sys.argv.pop(1)) / "platform/ios/bundle/BrimsoundSettings")
    unittest.main()
