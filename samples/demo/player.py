"""The demonstration's player: starts demo.exe, follows what it reports, and acts as a user."""
import contextlib
import os
import shutil
import subprocess
import time

from support.bed import click, move, wait_for, xdotool
from support.watched import WatchedSample

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


class Demo(WatchedSample):
    """A running demo.exe."""

    def __init__(self, play, dpi):
        super().__init__("demo", f"^{TITLE}$", dpi=dpi)
        self.play = play

    def __enter__(self):
        self.play.demo = self
        self.activate()
        self.expect_state("form looks", "active")
        return self

    def __exit__(self, *failure):
        try:
            if not failure[0]:
                self.quit()
        finally:
            self.close()

    def quit(self):
        # Alt+F4 is for the window with the focus, which is not to be an open list.
        xdotool("key", "Escape")
        self.expect_closed()
        xdotool("key", "alt+F4")
        self.wait_for_end()

    # What it reports.

    def take_event(self, control, event):
        if event.startswith(tuple(f"{minor}(" for minor in MINOR_EVENTS)):
            return
        again = self.events[-1:] == [event]
        print(" ..." if again else f" -> {event}", end="", flush=True)
        self.events.append(event)

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
