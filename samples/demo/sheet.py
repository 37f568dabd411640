"""Contact sheets of the control: each appearance property in its states, closed, disabled and open, beside the
platform's own combo box. One picture for each resolution, put together from pictures of the screen.
"""
import os
import subprocess
import tempfile

from support.bed import FormHost, photograph, xdotool

FONT = ["Tahoma", 8.25]
ROWS = [["A4", "210"], ["A5", "148"], ["Tabloid gy", "279"], ["B4", "250"], ["B5", "176"], ["Letter", "216"],
        ["Legal", "216"]]
HEADERS = (("Name", 1060), ("mm", 560))  # widths in twips
SAVED = {"Columns": 2, "Font": {"font": FONT}, "LeftMargin": 65535}
SAMPLES_IN_A_ROW = 3
CAPTION_FONT = "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf"
STATES = ("closed", "disabled", "open")


def rgb(red, green, blue):
    return red | green << 8 | blue << 16


def system(number):
    return number - 0x80000000


class Sample:
    """Settings and what to call them: `bag` is what the control is loaded with, `objects` are fonts and pictures,
    `then` is done when the rows are there."""

    def __init__(self, caption, *, bag=None, objects=None, then=None, height=24, **properties):
        self.caption = caption
        self.bag = bag
        self.objects = objects or {}
        self.properties = properties
        self.then = then or (lambda host, name: None)
        self.height = height


def picture(kind, width, height):
    return {"Picture": {"picture": [kind, width, height]}}


SAMPLES = (
    Sample("As it comes"),
    Sample("BackColor light green", BackColor=rgb(210, 255, 210)),
    Sample("BackColor of the system's captions", BackColor=system(2)),
    Sample("ForeColor red", ForeColor=rgb(200, 0, 0)),
    Sample("ForeColor of the system's selection", ForeColor=system(13)),
    Sample("DropDownBackColor, DropDownForeColor", DropDownBackColor=rgb(40, 40, 90),
           DropDownForeColor=rgb(255, 255, 0)),
    Sample("Font Tahoma 12", objects={"Font": {"font": ["Tahoma", 12]}}),
    Sample("Font MS Sans Serif 8", objects={"Font": {"font": ["MS Sans Serif", 8]}}),
    Sample("Font Courier New 6", objects={"Font": {"font": ["Courier New", 6]}}),
    Sample("Picture: a small bitmap", objects=picture("bitmap", 48, 40)),
    Sample("Picture: a large bitmap", objects=picture("bitmap", 600, 400)),
    Sample("Picture: an icon", objects=picture("icon", 0, 0)),
    Sample("Picture: a metafile, with GridLines", objects=picture("metafile", 100, 60), GridLines=True),
    Sample("GridLines", GridLines=True),
    Sample("ButtonStyle toggle", bag={"ButtonStyle": 1}),
    Sample("ButtonForeColor, ButtonBackColor", ButtonForeColor=rgb(255, 255, 255), ButtonBackColor=rgb(0, 90, 160),
           AllowResize=True),
    Sample("the same, toggle", bag={"ButtonStyle": 1}, ButtonForeColor=rgb(255, 255, 255),
           ButtonBackColor=rgb(0, 90, 160)),
    Sample("Alignment right", Alignment=1),
    Sample("Alignment centre", Alignment=2),
    Sample("LeftMargin 20", LeftMargin=20),
    Sample("Alignment right, RightMargin 20", Alignment=1, RightMargin=20),
    Sample("AutoHeight off", AutoHeight=False, height=40),
    Sample("Locked", Locked=True),
    Sample("HideColumnHeaders", HideColumnHeaders=True),
    Sample("CheckBoxes", bag={"CheckBoxes": -1}, then=lambda host, name: host.put(name, "Checked", True, 1)),
    Sample("AllowResize", AllowResize=True),
    Sample("Fewer rows than there is room for", DropDownHeight=9),
)


class Sheet:
    """One form, on which every sample has its turn."""

    def __init__(self, dpi, styled):
        self.dpi = dpi
        arguments = ("--styled",) if styled else ()
        self.host = FormHost(*arguments, dpi=dpi)
        xdotool("windowsize", "--sync", self.host.x_window, self.scaled(460), self.scaled(240))
        self.host.activate()

    def scaled(self, length):
        return length * self.dpi // 96

    def place(self, number, height=24):
        return [self.scaled(x) for x in (10 + number * 140, 10, 130, height)]

    def show_combo(self):
        for number, state in enumerate(STATES):
            self.host.do("combo", name=state, place=self.place(number, 200), font=FONT,
                         rows=[row[0] for row in ROWS], text="Tabloid gy")
        self.host.do("enable", edit="disabled", enabled=False)
        show_drop_down = 0x014F
        self.host.do("send", edit="open", message=show_drop_down, wparam=1, lparam=0)

    def hide_combo(self):
        for state in STATES:
            self.host.do("remove", edit=state)

    def show(self, sample):
        for number, state in enumerate(STATES):
            self._create(sample, state, number)
        self.host.put("disabled", "Enabled", False)
        self.host.call("open", "ShowList")

    def _create(self, sample, name, number):
        self.host.create(name, self.place(number), bag=sample.bag and {**SAVED, **sample.bag})
        self.host.put(name, "Columns", len(HEADERS))
        for column, (header, width) in enumerate(HEADERS, 1):
            self.host.put(name, "ColumnHeader", header, column)
            self.host.put(name, "ColumnWidth", width, column)
        self.host.put(name, "DropDownHeight", {"single": 5})
        for member, value in sample.objects.items():
            self.host.set(name, member, value)
        for member, value in sample.properties.items():
            self.host.put(name, member, value)
        self.host.fill(ROWS, name)
        sample.then(self.host, name)
        self.host.put(name, "ListIndex", 2)
        self.host.do("place", control=name, place=self.place(number, sample.height))

    def hide(self):
        self.host.call("open", "HideList")
        for state in STATES:
            self.host.do("destroy", control=state)

    def take(self, path):
        left, top, _, _ = self.host.rect("inside")
        self.host.settle()
        photograph(path, f"{self.scaled(430)}x{self.scaled(165)}+{left}+{top}")

    def close(self):
        self.host.quit()


def make_sheet(folder, dpi, styled=False):
    """The name of the sheet. `styled` is under the platform's visual styles."""
    name = f"appearance-{'styled-' if styled else ''}{dpi}.png"
    sheet = Sheet(dpi, styled)
    try:
        with tempfile.TemporaryDirectory() as parts:
            looks = f"{dpi} dots per inch" + (" under visual styles" if styled else "")
            _assemble(_photograph_all(sheet, parts), f"Closed, disabled, open at {looks}", os.path.join(folder, name))
    finally:
        sheet.close()
    return name


def _photograph_all(sheet, folder):
    """The caption and the picture of each sample."""
    path = os.path.join(folder, "combo.png")
    sheet.show_combo()
    sheet.take(path)
    sheet.hide_combo()
    taken = [("The platform's own combo box", path)]
    for number, sample in enumerate(SAMPLES):
        path = os.path.join(folder, f"{number}.png")
        sheet.show(sample)
        sheet.take(path)
        sheet.hide()
        taken.append((sample.caption, path))
    return taken


def _assemble(taken, title, path):
    captioned = [word for caption, part in taken for word in ("-label", caption, part)]
    subprocess.run(["montage", "-font", CAPTION_FONT, "-title", title, *captioned, "-pointsize", "14",
                    "-tile", f"{SAMPLES_IN_A_ROW}x", "-geometry", "+6+6", path], check=True)
