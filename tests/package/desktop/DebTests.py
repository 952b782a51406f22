"""Builds the desktop's package twice and checks it.

    DebTests.py
"""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from Installation import SOURCE, output

ENVIRONMENT = dict(os.environ, SOURCE_DATE_EPOCH="1700000000", LC_ALL="C.UTF-8")


def build(source, **environment):
    """Builds the package and returns its path."""
    command = [source / "scripts/desktop-deb"]
    made = subprocess.run(command, env=dict(ENVIRONMENT, **environment), capture_output=True, text=True)
    assert made.returncode == 0, made.stderr
    return pathlib.Path(made.stdout.strip())


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def copy_sources(folder):
    names = output("git", "-C", SOURCE, "ls-files", "-co", "--exclude-standard").splitlines()
    for name in names:
        if (SOURCE / name).exists():
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(SOURCE / name, folder / name)
            os.utime(folder / name, (1500000000, 1500000000))


class TheDeb(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.deb = build(SOURCE)
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.root = pathlib.Path(cls.folder.name)
        output("dpkg-deb", "--raw-extract", cls.deb, cls.root)

    def field(self, name):
        return output("dpkg-deb", "--field", self.deb, name).strip()

    def packages(self, field):
        return {re.split(r"[ (]", package)[0] for package in re.split(r", | \| ", self.field(field))}

    def listing(self):
        """The mode, owner, date and name of every file."""
        for line in output("dpkg-deb", "--contents", self.deb, env=dict(ENVIRONMENT, TZ="UTC")).splitlines():
            mode, owner, _, date, time, name = line.split(maxsplit=5)
            yield mode, owner, f"{date} {time}", name

    def test_has_the_name_and_the_version_of_the_project(self):
        (version,) = re.findall(r"project\(Brimsound VERSION ([\d.]+)", (SOURCE / "CMakeLists.txt").read_text())
        architecture = output("dpkg", "--print-architecture").strip()
        self.assertEqual(self.deb.name, f"brimsound_{version}_{architecture}.deb")
        self.assertEqual(self.field("Version"), version)
        program = self.root / "usr/libexec/brimsound/mediaserverd"
        self.assertEqual(output(program, "--version"), f"mediaserverd {version}\n")

    def test_causes_no_remark_of_lintian(self):
        # Lintian also takes machine code for misspelled words. What it finds depends on the compiler.
        spelling = "--suppress-tags=spelling-error-in-binary"
        command = ("lintian", "--allow-root", "--display-info", "--pedantic", "--fail-on", "none", spelling, self.deb)
        self.assertEqual(output(*command, env=ENVIRONMENT), "")

    def test_depends_on_the_libraries_and_the_programs_it_runs(self):
        dependencies = self.packages("Depends")
        programs = [path.relative_to(self.root) for path in self.root.glob("usr/bin/*")]
        programs.append("usr/libexec/brimsound/mediaserverd")
        libraries = set()
        for program in programs:
            text = output("objdump", "--private-headers", self.root / program)
            libraries |= set(re.findall(r"NEEDED +(\S+)", text))
        self.assertIn("libpipewire-0.3.so.0", libraries)
        for library in libraries:
            # The name without the release architecture of dpkg's answer.
            owners = {line.split(":")[0] for line in output("dpkg-query", "--search", f"*/{library}").splitlines()}
            self.assertTrue(owners & dependencies, f"{library} is in {owners}")
        self.assertLessEqual({"dbus-daemon", "psmisc"}, dependencies)
        self.assertEqual([name for name in dependencies if name.endswith("-dev")], [])

    def test_recommends_what_the_sound_needs(self):
        wanted = {"rtkit", "pipewire-pulse", "wireplumber", "fonts-inter", "qt6-wayland", "xdg-utils"}
        self.assertLessEqual(wanted, self.packages("Recommends"))

    def test_belongs_to_root_and_is_readable_by_all(self):
        for mode, owner, _, name in self.listing():
            self.assertEqual(owner, "root/root", name)
            self.assertIn(mode, ("drwxr-xr-x", "-rwxr-xr-x", "-rw-r--r--"), name)

    def test_has_the_time_of_the_commit(self):
        self.assertEqual({time for _, _, time, _ in self.listing()}, {"2023-11-14 22:13"})

    def test_puts_the_files_where_debian_looks_for_them(self):
        names = {name.removeprefix("./") for _, _, _, name in self.listing()}
        expected = {
            "usr/lib/systemd/user/brimsound.service",
            "usr/share/dbus-1/services/com.quorvix.brimsound.service",
            "usr/share/doc/brimsound/changelog.gz",
            "usr/share/doc/brimsound/copyright",
            "usr/share/man/man1/brimsound.1.gz",
            "usr/share/zsh/vendor-completions/_brimsound",
        }
        self.assertLessEqual(expected, names)
        self.assertFalse([name for name in names if name.startswith(("etc", "usr/local"))])
        self.assertIn(b"ExecStart=/usr/libexec/brimsound/mediaserverd\n", self.content("usr/lib/systemd/user/brimsound.service"))

    def content(self, name):
        return (self.root / name).read_bytes()

    def test_leaves_the_service_disabled(self):
        names = {name for _, _, _, name in self.listing()}
        self.assertFalse([name for name in names if ".wants/" in name or name.endswith(".preset")])
        script = self.content("DEBIAN/postinst").decode()
        # The helper creates links for a service that an administrator has enabled, and for no other one.
        (enabling,) = [i for i, line in enumerate(script.splitlines()) if " --user enable " in line]
        before = "\n".join(script.splitlines()[:enabling])
        self.assertIn("debian-installed 'brimsound.service'", before)
        self.assertIn("was-enabled 'brimsound.service'", before)

    def test_has_valid_maintainer_scripts(self):
        for name in ("postinst", "prerm", "postrm"):
            output("sh", "-n", self.root / "DEBIAN" / name)

    def test_is_the_same_from_other_copies_of_the_sources(self):
        first = digest(self.deb)
        # Neither the path nor the permissions nor the times of the sources affect the result.
        self.addCleanup(os.umask, os.umask(0o077))
        with tempfile.TemporaryDirectory() as name:
            copy_sources(pathlib.Path(name))
            self.assertEqual(digest(build(pathlib.Path(name), CCACHE_DISABLE="1")), first)


if __name__ == "__main__":
    unittest.main()
