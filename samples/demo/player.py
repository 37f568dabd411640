"""The demonstration's player: starts demo.exe, follows what it reports, and acts as a user."""
import contextlib
import os
import shutil
import subprocess
import tempfile
import time

from support.bed import ARCH, PATIENCE, ROOT, click, move, wait_for, wine_command, xdotool

TITLE = "Vellora demonstration"
HAND_PAUSE = 0.4  # seconds
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
        wait_for(lambda: screen() == screen(), "the screen to come to rest")
        # The screen around the form is empty.
        subprocess.run(["import", "-window", "root", "-trim", "+repage", path], check=True)


def screen():
    return subprocess.run(["import", "-window", "root", "rgb:-"], check=True, capture_output=True).stdout


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
        self.expect("the form", self._window)
        xdotool("windowactivate", "--sync", self._window())
        self.expect_state("form looks", "active")
        return self

    def __exit__(self, *failure):
        try:
            if not failure[0]:
                self.quit()
        finally:
            self.process.kill()
            self.process.wait()
            self.lines.close()
            self.folder.cleanup()

    def quit(self):
        # Alt+F4 is for the window with the focus, which is not to be an open list.
        xdotool("key", "Escape")
        self.expect_closed()
        xdotool("key", "alt+F4")
        code = self.process.wait(PATIENCE)
        if code != 0:
            raise AssertionError(f"the demonstration ended with code {code}")

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
            again = self.events[-1:] == [value]
            print(" ..." if again else f" -> {value}", end="", flush=True)
            self.events.append(value)

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

    def row_in_sight(self, number):
        self.read()
        return int(self.state["top row"]) + number

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

    def drag(self, start, end):
        # The control looks where the pointer is when it learns of the press; a hand leaves it there for a moment.
        move(start)
        xdotool("mousedown", 1)
        time.sleep(HAND_PAUSE)
        move(end)
        time.sleep(HAND_PAUSE)
        xdotool("mouseup", 1)

    def wheel(self, notches):
        """Down for positive numbers."""
        left, top, right, bottom = self.rect("list")
        move(((left + right) // 2, (top + bottom) // 2))
        xdotool("click", "--repeat", abs(notches), "--delay", 10, 5 if notches > 0 else 4)
