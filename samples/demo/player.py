"""The demonstration's player: starts demo.exe, follows what it reports, and acts as a user."""
import contextlib
import os
import shutil
import subprocess
import tempfile

from support.bed import ARCH, ROOT, click, move, wait_for, wine_command, xdotool

TITLE = "Vellora demonstration"
# Single keys and mouse movements are in the log on the form; here they would hide what matters.
MINOR_EVENTS = ("MouseMove", "MouseDown", "MouseUp", "DblClick", "KeyDown", "KeyPress", "KeyUp")


class Player:
    """Numbers the steps, tells them, and takes their pictures."""

    def __init__(self, folder):
        self.folder = folder
        self.number = 0
        self.demo = None
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(folder)

    @contextlib.contextmanager
    def step(self, what, picture, *events, more=False):
        """A step must be followed by exactly these events; `more` allows any."""
        self.number += 1
        print(f"{self.number:2}. {what}", end="", flush=True)
        yield
        self.demo.expect_events(events, more)
        print(flush=True)
        self.take_picture(picture)

    def take_picture(self, name):
        path = os.path.join(self.folder, f"{self.number:02}-{name}.png")
        subprocess.run(["import", "-window", "root", path], check=True)


class Demo:
    """A running demo.exe. It writes what happens and what is on the screen into a file, which is read here."""

    def __init__(self, play, dpi):
        self.play = play
        self.state = {}
        self.events = []
        self.folder = tempfile.TemporaryDirectory()
        path = os.path.join(self.folder.name, "log")
        program = os.path.join(ROOT, "build", ARCH, "samples", "demo", "demo.exe")
        self.process = subprocess.Popen(wine_command(program, "--log", path),
                                        env=dict(os.environ, VELLORA_DPI=str(dpi)))
        wait_for(lambda: os.path.exists(path) or not self.alive(), "the demonstration to start")
        self.lines = open(path, "rb")
        self.rest = b""

    def __enter__(self):
        self.play.demo = self
        window = wait_for(self._window, "the form")
        xdotool("windowactivate", "--sync", window)
        self.expect_state("form looks", "active")
        return self

    def __exit__(self, *failure):
        if self.alive():
            self.click_place("place of Ordinary text field")
            xdotool("key", "alt+F4")
            try:
                self.process.wait(20)
            except subprocess.TimeoutExpired:
                self.process.kill()
                raise AssertionError("the demonstration did not end") from None
        self.lines.close()
        self.folder.cleanup()
        if not failure[0] and self.process.wait() != 0:
            raise AssertionError(f"the demonstration ended with code {self.process.returncode}")

    def alive(self):
        return self.process.poll() is None

    def _window(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$"],
                               capture_output=True, text=True).stdout.split()
        return found[0] if found else None

    # What it reports.

    def read(self):
        self.rest += self.lines.read()
        *whole, self.rest = self.rest.split(b"\n")
        for line in whole:
            kind, *fields = line.decode("utf-8").split("\t")
            self._take(kind, *fields)
        if not self.alive():
            raise AssertionError(f"the demonstration ended with code {self.process.wait()}")

    def _take(self, kind, name, value=""):
        if kind == "problem":
            raise AssertionError(name)
        if kind == "state":
            self.state[name] = value
        elif not value.startswith(tuple(f"{event}(" for event in MINOR_EVENTS)):
            self.events.append(value)
            print(f" -> {value}", end="", flush=True)

    def expect(self, what, condition):
        def ask():
            self.read()
            return condition()
        wait_for(ask, what)

    def expect_state(self, name, value):
        try:
            self.expect("", lambda: self.state.get(name) == value)
        except AssertionError:
            self.read()
            raise AssertionError(f"{name}: expected {value!r}, found {self.state.get(name)!r}") from None

    def expect_open(self):
        self.expect("the list to open", lambda: self.state.get("list", "closed") != "closed")
        self.expect_state("form looks", "active")

    def expect_closed(self):
        self.expect_state("list", "closed")

    def expect_events(self, expected, more):
        try:
            self.expect("", lambda: len(self.events) >= len(expected))
        except AssertionError:
            pass
        came, self.events = self.events, []
        if came != list(expected) and not more:
            raise AssertionError(f"expected the events {list(expected)}, saw {came}")

    # Acting on it.

    def rect(self, name):
        self.read()
        return [int(number) for number in self.state[name].split()]

    def click_place(self, name):
        left, top, right, bottom = self.rect(name)
        click(((left + right) // 2, (top + bottom) // 2))

    def click_button(self, control):
        self.click_place(f"button of {control}")

    def _row(self, row):
        left, top, right, bottom = self.rect("place of top row")
        down = (row - int(self.state["top row"])) * (bottom - top)
        return left, top + down, right, bottom + down

    def click_row(self, row):
        left, top, _, bottom = self._row(row)
        click((left + 60, (top + bottom) // 2))

    def click_check_box(self, row):
        left, top, _, bottom = self._row(row)
        click((left + (bottom - top) // 2, (top + bottom) // 2))

    def wheel(self, notches):
        """Down for positive numbers."""
        left, top, right, bottom = self.rect("list")
        move(((left + right) // 2, (top + bottom) // 2))
        xdotool("click", "--repeat", abs(notches), "--delay", 10, 5 if notches > 0 else 4)
