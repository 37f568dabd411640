"""A form for a picture: the host of the screen tests under visual styles, with labels and fields around the control."""
import os
import re
import subprocess

from support.bed import FormHost, move, photograph, wine_command, xdotool

FONT = ["Liberation Sans", 9]
NOWHERE = (1270, 1015)
FIELD_STYLE = 0x00800080  # a border; text that scrolls
LOG_STYLE = 0x00800844    # and lines, read only


def smooth_letters(dpi):
    """As every Windows shows them; the platform's own pictures come without."""
    for name, kind, value in (("FontSmoothing", "REG_SZ", "2"), ("FontSmoothingType", "REG_DWORD", "1")):
        subprocess.run(wine_command("reg.exe", "add", "HKCU\\Control Panel\\Desktop", "/v", name, "/t", kind,
                                    "/d", value, "/f"), check=True, capture_output=True,
                       env=dict(os.environ, VELLORA_DPI=str(dpi)))


class PictureForm:
    """Places are in pixels at 96 dots per inch."""

    def __init__(self, title, width, height, dpi=96, font=None):
        smooth_letters(dpi)
        self.dpi = dpi
        self.font = font or FONT
        self.host = FormHost("--styled", title=title, dpi=dpi)
        xdotool("windowsize", "--sync", self.host.x_window, self.scaled(width), self.scaled(height))
        self.host.activate()

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        self.host.quit()

    def scaled(self, length):
        return length * self.dpi // 96

    def place(self, x, y, width, height):
        return [self.scaled(length) for length in (x, y, width, height)]

    def window(self, name, kind, place, text="", style=0):
        self.host.do("window", name=name, **{"class": kind}, place=self.place(*place), text=text, font=self.font,
                     style=style)

    def label(self, text, x, y, width=200):
        self.window(f"label {text} {y}", "Static", (x, y, width, 16), text)

    def field(self, text, x, y, width):
        self.window(f"field {text} {y}", "Edit", (x, y, width, 22), text, FIELD_STYLE)

    def button(self, text, x, y, width=80):
        self.window(f"button {text}", "Button", (x, y, width, 26), text)

    def combo(self, place, columns, rows, name="Vellora1", bag=None, objects=None, **properties):
        """A filled control. `columns` are captions, or pairs of caption and width in twips."""
        self.host.create(name, self.place(*place), bag=bag and {"Columns": len(columns), **bag})
        for member, value in {"Font": {"font": self.font}, **(objects or {})}.items():
            self.host.set(name, member, value)
        self.host.put(name, "Columns", len(columns))
        for number, column in enumerate(columns, 1):
            caption, width = column if isinstance(column, tuple) else (column, None)
            self.host.put(name, "ColumnHeader", caption, number)
            if width:
                self.host.put(name, "ColumnWidth", width, number)
        for member, value in properties.items():
            self.host.put(name, member, value)
        self.host.fill(rows, name)
        self.host.put(name, "Text", "")
        self.host.do("place", control=name, place=self.place(*place))

    def open(self, name="Vellora1"):
        self.host.call(name, "ShowList")

    def frame(self):
        """The form with its caption, as "WIDTHxHEIGHT+X+Y" on the screen."""
        told = subprocess.run(["xprop", "-id", str(self.host.x_window), "_NET_FRAME_EXTENTS"], check=True,
                              capture_output=True, text=True).stdout
        left, right, top, bottom = map(int, re.search(r"= (.*)", told)[1].split(", "))
        x, y, end, below = self.host.rect("inside")
        return f"{end - x + left + right}x{below - y + top + bottom}+{x - left}+{y - top}"

    def take(self, path, mouse=NOWHERE):
        move(mouse)
        self.host.settle()
        photograph(path, self.frame())
        subprocess.run(["mogrify", "-strip", "-define", "png:compression-level=9", path], check=True)
