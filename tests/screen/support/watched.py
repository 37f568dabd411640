"""A sample that writes what happens and what is to be seen on its window into a file, which is read here."""
import os
import subprocess
import tempfile

from support.bed import ARCH, PATIENCE, ROOT, wait_for, wine_command, xdotool


class WatchedSample:
    """A running sample. Lines of its file are a kind, a name and a value: "state" is what can be seen now, "event" what
    a control told."""

    def __init__(self, sample, title, *arguments, dpi=None):
        self.title = title
        self.state = {}
        self.events = []
        self.rest = b""
        self.folder = tempfile.TemporaryDirectory()
        path = os.path.join(self.folder.name, "log")
        program = os.path.join(ROOT, "build", ARCH, "samples", sample, f"{sample}.exe")
        environment = dict(os.environ, **({"VELLORA_DPI": str(dpi)} if dpi else {}))
        self.process = subprocess.Popen(wine_command(program, "--log", path, *arguments), env=environment)
        wait_for(lambda: os.path.exists(path) or not self.alive(), f"{sample} to start")
        self.lines = open(path, "rb")

    def activate(self):
        self.expect("the window", self.window)
        xdotool("windowactivate", "--sync", self.window())

    def close(self):
        self.process.kill()
        self.process.wait()
        self.lines.close()
        self.folder.cleanup()

    def wait_for_end(self):
        code = self.process.wait(PATIENCE)
        if code != 0:
            raise AssertionError(f"{self.title} ended with code {code}")

    def alive(self):
        return self.process.poll() is None

    def window(self):
        return shown_window(self.title)

    # What it reports.

    def read(self):
        self.rest += self.lines.read()
        *whole, self.rest = self.rest.split(b"\n")
        for line in whole:
            kind, *fields = line.decode("utf-8").split("\t")
            self.take(kind, *fields)
        if not self.alive():
            raise AssertionError(f"{self.title} ended with code {self.process.wait()}")

    def take(self, kind, name, value=""):
        if kind == "problem":
            raise AssertionError(name)
        if kind == "state":
            self.state[name] = value
        else:
            self.take_event(name, value)

    def take_event(self, control, event):
        self.events.append(f"{control}.{event}")

    def expect(self, what, condition):
        def ask():
            self.read()
            return condition()
        return wait_for(ask, what)

    def expect_state(self, name, value):
        try:
            self.expect("", lambda: self.state.get(name) == value)
        except AssertionError:
            self.read()
            raise AssertionError(f"{name}: expected {value!r}, found {self.state.get(name)!r}") from None

    def rect(self, name):
        self.read()
        return [int(number) for number in self.state[name].split()]


def shown_window(title):
    """The first window in sight whose title matches a pattern; nothing when there is none."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                           capture_output=True, text=True).stdout.split()
    return found[0] if found else None
