"""Checks the manual pages and the completions for shells.

    DocumentationTests.py BUILD
"""

import os
import pathlib
import pty
import re
import select
import subprocess
import sys
import time
import unittest

from Installation import SOURCE, Installation, output

COMPLETED = ("brimsound", "brimsound-presets", "brimsound-render")
# The state of bash when the user presses Tab at the end of a command line, whose words are the arguments.
BASH = """
source /usr/share/bash-completion/bash_completion
_completion_loader "$1"
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMP_LINE="$*" COMP_POINT=${#COMP_LINE}
function=$(complete -p "$1") function=${function#*-F } function=${function%% *}
"$function" "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
printf '%s\\n' "${COMPREPLY[@]}"
"""
ZSH = "PS1=; fpath=({}/share/zsh/site-functions $fpath); autoload -Uz compinit; compinit -D -u; echo ready\n"


def options(text):
    return set(re.findall(r"(?<![\w-])--[a-z-]+", text))


class Documentation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.installation = Installation(build)
        cls.addClassCleanup(cls.installation.close)
        cls.prefix = cls.installation.prefix
        folders = f"{cls.prefix}/bin:{cls.prefix}/libexec/brimsound:"
        cls.environment = {
            "HOME": str(cls.installation.folder),
            "PATH": folders + os.environ["PATH"],
            "XDG_DATA_DIRS": f"{cls.prefix}/share:/usr/share",
            "LC_ALL": "C.UTF-8",
            "TERM": "dumb",
        }

    def run_quietly(self, *command):
        return output(*command, env=self.environment)

    def options_of(self, program):
        found = options(self.run_quietly(program, "--help"))
        # Qt's own options.
        return found - {"--help-all"}


class AManualPage(Documentation):
    def pages(self):
        return sorted((self.prefix / "share/man").glob("*/*"))

    def text(self, page):
        return self.run_quietly("man", "--local-file", "--encoding=UTF-8", page)

    def test_is_there_for_every_program(self):
        programs = {path.name for path in (*self.prefix.glob("bin/*"), *self.prefix.glob("libexec/brimsound/*"))}
        self.assertEqual(len(programs), 4)
        self.assertLessEqual(programs, {page.stem for page in self.pages()})

    def test_causes_no_warning(self):
        for page in self.pages():
            for width in ("60", "80", "120"):
                environment = dict(self.environment, MANROFFSEQ="", MANWIDTH=width)
                output("man", "--warnings", "-E", "UTF-8", "-Tutf8", "-Z", "-l", page, env=environment)

    def test_describes_every_option(self):
        for page in self.pages():
            if page.suffix in (".1", ".8"):
                self.assertEqual(options(self.text(page)), self.options_of(page.stem) | self.others(page.stem))

    def others(self, program):
        """Options of other programs in the page."""
        return {"--user", "--now", "--unit"} if program == "mediaserverd" else set()

    def test_describes_every_command_of_a_script(self):
        source = (SOURCE / "desktop/brimsound/ScriptRunner.cpp").read_text()
        commands = re.findall(r'\{ "(\w+)", \d, \d,', source)
        self.assertGreater(len(commands), 20)
        text = self.text(self.prefix / "share/man/man5/brimsound-script.5")
        described = re.findall(r"^       (\w+)( .*)?$", text, re.MULTILINE)
        self.assertLessEqual(set(commands), {command for command, _ in described})


class Completion(Documentation):
    def in_bash(self, *words):
        return set(self.run_quietly("bash", "-c", BASH, "bash", *words).splitlines())

    def in_fish(self, line):
        text = self.run_quietly("fish", "-c", 'complete --do-complete "$argv"', line)
        return {match.split("\t")[0] for match in text.splitlines()}

    def in_zsh(self, line, expected):
        """What a terminal shows after the line and Tab, once all that is expected has appeared or after ten seconds."""
        terminal, other = pty.openpty()
        shell = subprocess.Popen(
            ["zsh", "-f", "-i"], stdin=other, stdout=other, stderr=other, env=self.environment, start_new_session=True
        )
        os.close(other)
        try:
            os.write(terminal, ZSH.format(self.prefix).encode())
            self.read(terminal, ["\nready"])
            os.write(terminal, line.encode() + b"\t\t")
            return self.read(terminal, expected)
        finally:
            shell.kill()
            shell.wait()
            os.close(terminal)

    @staticmethod
    def read(terminal, expected):
        text, end = "", time.monotonic() + 10
        while time.monotonic() < end and not all(part in text for part in expected):
            if select.select([terminal], [], [], 0.1)[0]:
                text += os.read(terminal, 4096).decode(errors="replace").replace("\r", "")
        return text

    def test_offers_every_option(self):
        for program in COMPLETED:
            expected = self.options_of(program)
            self.assertGreater(len(expected), 5)
            self.assertEqual(self.in_bash(program, "--"), expected)
            self.assertEqual(self.in_fish(f"{program} --"), expected)
            shown = self.in_zsh(f"{program} --", expected)
            self.assertEqual(options(shown) - {"--"}, expected, shown)

    def test_offers_presets(self):
        expected = {"Full bass", "Full bass/treble", "Full treble"}
        words = {name.replace(" ", "\\ ") for name in expected}
        for command in ("brimsound-render --preset", "brimsound-presets show"):
            self.assertEqual(self.in_bash(*command.split(), "Full"), words)
            self.assertEqual(self.in_bash(*command.split(), "Full\\ b"), words - {"Full\\ treble"})
            self.assertEqual(self.in_bash(*command.split(), '"Full'), expected)
            self.assertEqual(self.in_fish(f"{command} Full"), expected)
            shown = self.in_zsh(f"{command} Full", words)
            for word in words:
                self.assertIn(word, shown)

    def test_offers_files(self):
        folder = self.installation.folder / "sounds"
        folder.mkdir()
        (folder / "song.wav").touch()
        for program in ("brimsound", "brimsound --script", "brimsound-presets import", "brimsound-render"):
            self.assertEqual(self.in_bash(*program.split(), f"{folder}/so"), {f"{folder}/song.wav"})
            self.assertEqual(self.in_fish(f"{program} {folder}/so"), {f"{folder}/song.wav"})
            self.assertIn("song.wav", self.in_zsh(f"{program} {folder}/so", ["song.wav"]))


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
