"""The desk on a screen: its program, what a user does with mouse and keyboard, and what there is to see."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
WINE = "/usr/lib/wine/wine64"
LIMIT = 60  # Seconds, which only a hang takes.

# Colours of the desk, as (red, green, blue).
TEXT = (188, 188, 60)
BUTTON = (0, 160, 0)
BUTTON_THAT_IS_ON = (0, 255, 0)

LINE = 12  # The height of a line of the log, in pixels.


def eventually(condition, what):
    """Polls until the condition holds, and returns what it gave."""
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"never: {what}")


def xdotool(*words):
    """Sends a user's input. The X server has it, in order, when this returns."""
    return subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True).stdout


def move(x, y):
    xdotool("mousemove", x, y)


def click(x, y, button=1):
    xdotool("mousemove", x, y, "click", button)


def drag(begin, *ways):
    """Presses at a point, moves over others and releases at the last one."""
    words = ["mousemove", *begin, "mousedown", 1]
    for point in ways:
        words += ["mousemove", *point]
    xdotool(*words, "mouseup", 1)


class Picture:
    """A part of the screen, by its corner and its size."""

    def __init__(self, x, y, width, height):
        ppm = subprocess.run(["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-depth",
                              "8", "ppm:-"], capture_output=True, check=True).stdout
        _, size, _, self._pixels = ppm.split(b"\n", 3)
        self.width, self.height = map(int, size.split())

    def __eq__(self, other):
        return self._pixels == other._pixels

    def at(self, x, y):
        start = 3 * (y * self.width + x)
        return tuple(self._pixels[start:start + 3])

    def count(self, colour):
        wanted = bytes(colour)
        return sum(self._pixels[i:i + 3] == wanted for i in range(0, len(self._pixels), 3))


class Window:
    """A window of the X server."""

    def __init__(self, window):
        self._id = window

    def rect(self):
        """(x, y, width, height) on the screen."""
        shell = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", self._id).splitlines())
        return tuple(int(shell[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def point(self, x, y):
        """A point of the window, on the screen."""
        left, top, *_ = self.rect()
        return left + x, top + y

    def click(self, x, y, button=1):
        click(*self.point(x, y), button)

    def picture(self, x, y, width, height):
        return Picture(*self.point(x, y), width, height)


class Console(Window):
    """A running desk on a copy of the files that come with it. For a with statement, which ends it."""

    # The middles of buttons, from the corner of the window.
    BUTTONS = {"previous": (262, 43), "next": (288, 43), "OUT": (326, 43), "CTRL": (370, 43), "DISP": (413, 43),
               "?": (453, 43), "S": (485, 43), "R": (517, 43), "K": (550, 43)}
    OUTPUT = (18, 35, 226, 16)  # Where the output's name stands.
    LOG_TOP = 62

    def __init__(self, *options, program=None):
        self._temporary = tempfile.TemporaryDirectory(prefix="mirel-screen-")
        self.folder = pathlib.Path(self._temporary.name)
        shutil.copytree(ROOT / "data" / "Default", self.folder / "data")
        self._recording = self.folder / "played.mid"
        options = ["--data", "data", "--record", self._recording.name, *options]
        if program is not None:
            (self.folder / "test.prg").write_text(f'<ProgramFile><Program name="Test">{program}</Program></ProgramFile>')
            options += ["--program", "test.prg"]
        with open(self.folder / "output.txt", "wb") as output:
            self._process = subprocess.Popen([WINE, os.environ["MIREL_CONSOLE"], *options], cwd=self.folder,
                                             stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        try:
            self._wait_until_ready(program is not None)
        except BaseException:
            self.__exit__()
            raise

    def _wait_until_ready(self, has_program):
        super().__init__(eventually(lambda: self.find_window("Mirel Console 3 LE$"), "the desk's window shows"))
        # Everything is drawn once the last button is.
        eventually(lambda: self.button_colour("K") == BUTTON, "the desk's buttons show")
        if has_program:
            eventually(lambda: self.find_window("Test - Mirel Console 3 LE$"), "the program is loaded")
        eventually(lambda: xdotool("getwindowfocus").strip() == self._id, "the desk has the keyboard")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.wait()
        self._temporary.cleanup()

    def find_window(self, title):
        """The X window of this process with this in its title, or None."""
        found = xdotool("search", "--all", "--onlyvisible", "--pid", self._process.pid, "--name", title).split()
        return found[0] if found else None

    def is_running(self):
        return self._process.poll() is None

    def press(self, button):
        self.click(*self.BUTTONS[button])

    def button_colour(self, button):
        """The colour of its background, at a point beside the letters."""
        x, y = self.BUTTONS[button]
        return self.picture(x - 8, y - 8, 1, 1).at(0, 0)

    def output_name(self):
        """How the output's name looks."""
        return self.picture(*self.OUTPUT)

    def height(self):
        return self.rect()[3]

    def open_log(self):
        before = self.height()
        self.press("DISP")
        eventually(lambda: self.height() > before, "the log shows")

    def log(self):
        """The beginnings of its first eight lines."""
        return self.picture(12, self.LOG_TOP, 60, 96)

    def wait_for_log(self, lines):
        """Waits until it shows this many lines, up to eight; the first one is the product's name."""
        def shown():
            picture = self.log()
            return sum(any(picture.at(x, y) == TEXT for x in range(picture.width) for y in range(top, top + LINE))
                       for top in range(0, picture.height, LINE))
        eventually(lambda: shown() == lines, f"the log shows {lines} lines")

    def dialog(self, title):
        """A dialog of the desk, once it shows."""
        return Window(eventually(lambda: self.find_window(title), f"{title} shows"))

    def close(self):
        """Closes the window with its button, and returns the exit status."""
        width = self.rect()[2]
        self.click(width - 13, 12)
        return self._process.wait(timeout=LIMIT)

    def setting(self, name):
        """A setting as the closed desk left it."""
        for line in (self.folder / "data" / "settings").read_text().splitlines():
            if line.startswith(name + "="):
                return line.split(":", 1)[1]
        return None

    def played(self):
        """The channel events that the closed desk recorded, in order, as (status, d1, d2)."""
        return read_events(self._recording.read_bytes())


def read_events(midi):
    """The channel events of a MIDI file with one track."""
    events = []
    at = midi.index(b"MTrk") + 8

    def number():
        nonlocal at
        value = 0
        while True:
            byte = midi[at]
            at += 1
            value = value << 7 | byte & 0x7f
            if byte < 0x80:
                return value

    status = 0
    while at < len(midi):
        number()  # The time.
        if midi[at] >= 0x80:
            status = midi[at]
            at += 1
        if status == 0xff:
            kind = midi[at]
            at += 1
            length = number()
            at += length
            if kind == 0x2f:
                break
        elif status in (0xf0, 0xf7):
            length = number()
            at += length
        else:
            count = 1 if status & 0xe0 == 0xc0 else 2
            events.append((status, *midi[at:at + count]))
            at += count
    return events
