"""The test bed of the screen tests: the host program, mouse and keyboard, and pictures of the screen.

The runner gives VELLORA_ROOT, VELLORA_ARCH (x86 or x64), VELLORA_OCX, DISPLAY and VELLORA_ARTIFACTS.
"""
import json
import os
import re
import subprocess
import threading
import time
import unittest

ROOT = os.environ.get("VELLORA_ROOT") or os.path.abspath(os.path.join(os.path.dirname(__file__), "..", "..", ".."))
ARCH = os.environ.get("VELLORA_ARCH", "x86")
PATIENCE = 20.0
DPI = int(os.environ.get("VELLORA_DPI") or 96)
TWIPS_PER_PIXEL = 1440 // DPI


def scaled(length):
    """Pixels of what is `length` pixels long at 96 dots per inch."""
    return length * DPI // 96


def wine_command(program, *arguments):
    """The command line that runs a Windows program in the bed."""
    wide = [] if ARCH == "x86" else ["--64"]
    return [os.path.join(ROOT, "vellora"), "wine", *wide, program, *arguments]


def artifact(name):
    """The path of a file to be kept for whoever looks into a failure."""
    folder = os.environ.get("VELLORA_ARTIFACTS") or os.path.join(ROOT, "build", "artifacts", ARCH)
    os.makedirs(folder, exist_ok=True)
    return os.path.join(folder, name)


def photograph(path, part=None):
    """The screen, or the part "WIDTHxHEIGHT+X+Y" of it."""
    crop = ["-crop", part, "+repage"] if part else []
    subprocess.run(["import", "-window", "root", *crop, path], check=True)


def wait_for(condition, what, patience=PATIENCE):
    """Asks until the answer is true; the answer. Fails with `what`, and a picture, when it never is."""
    end = time.monotonic() + patience
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            photograph(artifact(f"in-vain-{re.sub('[^a-z0-9]+', '-', what.lower())}.png"))
            raise AssertionError(f"waited in vain: {what}")
        time.sleep(0.02)


def xdotool(*arguments):
    words = ["xdotool", *map(str, arguments)]
    return subprocess.run(words, check=True, capture_output=True, text=True).stdout.strip()


class CallFailed(Exception):
    """A member of the control raised an error."""

    def __init__(self, error):
        super().__init__(str(error))
        self.error = error


class FormHost:
    """A form_host.exe in the bed. Members of controls are called by name."""

    def __init__(self, *arguments, title="Vellora form", dpi=None):
        program = os.path.join(ROOT, "build", ARCH, "tests", "form_host.exe")
        self.title = title
        self.process = subprocess.Popen(
            wine_command(program, *arguments, "--title", title),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8",
            env=dict(os.environ, **({"VELLORA_DPI": str(dpi)} if dpi else {})))
        self._read()
        self.x_window = wait_for(self._find_x_window, f"the window of {title}")

    def _find_x_window(self):
        pattern = "^" + re.escape(self.title) + "$"
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", pattern],
                               capture_output=True, text=True).stdout.split()
        return int(found[0]) if found else None

    def _read(self):
        hung = threading.Timer(3 * PATIENCE, self.process.kill)
        hung.start()
        line = self.process.stdout.readline()
        hung.cancel()
        if not line:
            raise AssertionError(f"the host ended with code {self.process.wait()}")
        answer = json.loads(line)
        if not answer["ok"]:
            raise CallFailed(answer["error"])
        return answer["result"]

    def do(self, command, **arguments):
        self.begin(command, **arguments)
        return self._read()

    def begin(self, command, **arguments):
        """Sends a command that a modal box holds up. Others may be done meanwhile; `finish` gives its answer."""
        self.process.stdin.write(json.dumps({"do": command, **arguments}) + "\n")
        self.process.stdin.flush()

    def finish(self):
        return self._read()

    def alive(self):
        return self.process.poll() is None

    def quit(self):
        if self.alive():
            try:
                self.process.stdin.write("quit\n")
                self.process.stdin.close()
                self.process.wait(PATIENCE)
            except (BrokenPipeError, subprocess.TimeoutExpired):
                self.process.kill()
                self.process.wait()
        self.process.stdout.close()

    # Shorthands.

    def create(self, name="Vellora1", place=(20, 20, 200, 24), **settings):
        self.do("create", name=name, place=list(place), **settings)

    def fill(self, rows, name="Vellora1"):
        for row in rows:
            item = {"texts": row} if isinstance(row, (list, tuple)) else row
            self.call(name, "AddItem", item)

    def get(self, control, member, *args):
        return self.do("get", control=control, member=member, args=list(args))

    def put(self, control, member, value, *args):
        self.do("put", control=control, member=member, value=value, args=list(args))

    def set(self, control, member, value):
        self.do("set", control=control, member=member, value=value)

    def put_of(self, control, property_name, member, value):
        """Writes a property of the object that a property of the control holds."""
        self.do("put", control=control, of=property_name, member=member, value=value)

    def call(self, control, member, *args):
        return self.do("call", control=control, member=member, args=list(args))

    def on(self, control, event, *reactions, times=1):
        self.do("on", control=control, event=event, reactions=list(reactions), times=times)

    def events(self):
        return self.do("events")

    def rect(self, what, control="Vellora1", **arguments):
        return self.do("rect", what=what, control=control, **arguments)

    def middle(self, what, **arguments):
        rect = self.rect(what, **arguments)
        if rect is None:
            raise AssertionError(f"{what} {arguments} is not on the screen")
        return (rect[0] + rect[2]) // 2, (rect[1] + rect[3]) // 2

    def floating(self):
        return self.do("floating")

    def focus(self):
        return self.do("focus")

    def caption_active(self):
        return self.do("caption")["active"]

    def list(self):
        return self.do("list")

    # Input, each with the certainty that this program has taken it.

    def counted(self, kind, action, count=1):
        before = self.do("input")[kind]
        action()
        wait_for(lambda: self.do("input")[kind] >= before + count, f"{count} more {kind}")

    def click(self, point, button=1):
        self.counted("button_up", lambda: click(point, button))

    def press(self, point):
        self.counted("button_down", lambda: (move(point), xdotool("mousedown", 1)))

    def release(self):
        self.counted("button_up", lambda: xdotool("mouseup", 1))

    def key(self, *keys):
        for name in keys:
            self.counted("key_up", lambda name=name: xdotool("key", name))

    def type(self, text):
        self.counted("key_up", lambda: xdotool("type", "--delay", "5", text), len(text))

    def wheel(self, point, notches):
        """Down for positive numbers."""
        move(point)
        button = 5 if notches > 0 else 4
        self.counted("wheel", lambda: xdotool("click", "--repeat", abs(notches), "--delay", 10, button), abs(notches))

    def settle(self):
        """Everything is on the screen afterwards: painted, and sent on when the program next waits."""
        self.do("paint")
        self.do("floating")

    def activate(self):
        xdotool("windowactivate", "--sync", self.x_window)
        wait_for(lambda: self.do("form")["active"], f"{self.title} active")


def move(point):
    # Two steps: a pointer that stands there already would send no movement.
    xdotool("mousemove", point[0] - 1, point[1], "mousemove", point[0], point[1])


def click(point, button=1):
    move(point)
    xdotool("click", button)


class Picture:
    """A picture of the whole screen."""

    def __init__(self, path):
        self.path = path
        data = subprocess.run(["convert", path, "-depth", "8", "ppm:-"], check=True, capture_output=True).stdout
        header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
        self.width, self.height = int(header[1]), int(header[2])
        self.data = data[header.end():]

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.data[at:at + 3])

    def colors(self, rect):
        """The colours inside a rectangle and how often each is there."""
        found = {}
        for y in range(rect[1], rect[3]):
            line = self.data[(y * self.width + rect[0]) * 3:(y * self.width + rect[2]) * 3]
            for i in range(0, len(line), 3):
                color = tuple(line[i:i + 3])
                found[color] = found.get(color, 0) + 1
        return found

    def first_pixel(self, rect, wanted):
        """Row by row, the first place in a rectangle whose colour is wanted, relative to the rectangle."""
        for y in range(rect[1], rect[3]):
            for x in range(rect[0], rect[2]):
                if wanted(self.pixel(x, y)):
                    return x - rect[0], y - rect[1]
        return None

    def differences(self, rect, other_rect, other=None):
        """Where two rectangles of one size differ, relative to them."""
        other = other or self
        return [(x, y) for y in range(rect[3] - rect[1]) for x in range(rect[2] - rect[0])
                if self.pixel(rect[0] + x, rect[1] + y) != other.pixel(other_rect[0] + x, other_rect[1] + y)]

    def same(self, other, rect):
        return all(self.data[(y * self.width + rect[0]) * 3:(y * self.width + rect[2]) * 3]
                   == other.data[(y * other.width + rect[0]) * 3:(y * other.width + rect[2]) * 3]
                   for y in range(rect[1], rect[3]))


class ScreenTest(unittest.TestCase):
    """A test with its own host; pictures carry its name."""

    host_arguments = ()

    def setUp(self):
        self.hosts = []
        self.host = self.start(*self.host_arguments)

    def start(self, *arguments, **options):
        host = FormHost(*arguments, **options)
        self.hosts.append(host)
        self.addCleanup(host.quit)
        return host

    def picture(self, name):
        for host in self.hosts:
            if host.alive():
                host.settle()
        path = artifact(f"{type(self).__name__}-{self._testMethodName}-{name}.png")
        photograph(path)
        return Picture(path)

    def until(self, condition, what):
        return wait_for(condition, what)

    def assert_events(self, *expected, host=None):
        self.assertEqual(list(expected), (host or self.host).events())
