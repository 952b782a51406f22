"""Builds the device's packages again, from a copy of the sources in another folder.

    ReproducibilityTests.py BUILD
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(__file__).resolve().parents[2]
ARCHITECTURES = ("iphoneos-arm", "iphoneos-arm64", "iphoneos-arm64e")


def output(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, **options).stdout


def copy_sources(folder):
    for name in output("git", "-C", SOURCE, "ls-files", "-co", "--exclude-standard").splitlines():
        if (SOURCE / name).exists():
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(SOURCE / name, folder / name)


def packages(source, folder, environment):
    """The bytes of the packages of a build folder, by their architecture."""
    made = {}
    for architecture in ARCHITECTURES:
        path = output(source / "scripts/deb", folder, architecture, env=environment).strip()
        made[architecture] = pathlib.Path(path).read_bytes()
    return made


class AnotherBuild(unittest.TestCase):
    def test_gives_the_same_bytes(self):
        environment = dict(os.environ, SOURCE_DATE_EPOCH="1700000000", CCACHE_DISABLE="1")
        first = packages(SOURCE, build, environment)
        # Neither the path nor the permissions of the sources affect the result.
        self.addCleanup(os.umask, os.umask(0o077))
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            copy_sources(folder)
            output("cmake", "--preset", "ios", cwd=folder, env=environment)
            output("cmake", "--build", "--preset", "ios", cwd=folder, env=environment)
            second = packages(folder, folder / "build/ios", environment)
            for architecture in ARCHITECTURES:
                self.assertTrue(first[architecture] == second[architecture], f"{architecture}: the packages differ")


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
