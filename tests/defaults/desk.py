"""Runs desk scripts on a copy of the files that come with the desk."""
import pathlib
import shutil
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
DEFAULTS = ROOT / "data" / "Default"
PRESET_FOLDERS = {"keys": "Computer Input Presets", "controls": "Control Presets", "layers": "Layer Presets"}


def presets(kind):
    """The names of the presets of a kind."""
    return sorted(path.stem for path in (DEFAULTS / PRESET_FOLDERS[kind]).glob("*.pst"))


def read_text(path):
    """A file's bytes with line ends of one character, whichever the system writes."""
    return path.read_bytes().replace(b"\r\n", b"\n")


class DataFolder:
    """A copy of data/Default, with a desk that works in it. For a with statement."""

    def __init__(self, program):
        # The desk runs in another folder.
        self.program = [str(pathlib.Path(word).resolve()) if pathlib.Path(word).exists() else word for word in program]

    def __enter__(self):
        self._temporary = tempfile.TemporaryDirectory(prefix="mirel-defaults-")
        self.path = pathlib.Path(self._temporary.name, "data")
        shutil.copytree(DEFAULTS, self.path)
        return self

    def __exit__(self, *_):
        self._temporary.cleanup()

    def run(self, lines, *options):
        """Runs the lines of a script and returns what the desk prints, as lines. Paths begin at the copy."""
        done = subprocess.run([*self.program, "script", *options, "--data", ".", "-"], cwd=self.path,
                              input="\n".join([*lines, ""]).encode(), capture_output=True)
        if done.returncode or done.stderr:
            raise AssertionError(f"exit status {done.returncode}: {done.stderr.decode()}")
        return done.stdout.decode().splitlines()
