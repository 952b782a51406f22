"""Installs the programs of a build folder."""

import pathlib
import subprocess
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parents[3]


def output(*command, **options):
    """The standard output of a command that must succeed and write nothing to standard error."""
    run = subprocess.run(command, capture_output=True, text=True, **options)
    assert run.returncode == 0 and not run.stderr, f"{command}: status {run.returncode}\n{run.stdout}{run.stderr}"
    return run.stdout


class Installation:
    """The result of `cmake --install` in a temporary folder."""

    def __init__(self, build):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self._folder.name)
        self.prefix = self.folder / "prefix"
        output("cmake", "--install", build, "--prefix", self.prefix)

    def close(self):
        self._folder.cleanup()

    def files(self):
        return {str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*") if path.is_file()}

    def text(self, name):
        return (self.prefix / name).read_text()
