"""What tests of looks have in common: a form at rest, and controls on it in every font and colour."""
from support.bed import ScreenTest, move

# The platform's edit field and its text functions space the letters of this font alike.
BITMAP_FONT = ["MS Sans Serif", 8.25]
RED, YELLOW, BLUE = 0x0000FF, 0x00FFFF, 0xFF0000
NOWHERE = (1000, 900)
TEXT = "Typography yY"
# Numbers of system colours.
WINDOW, WINDOW_TEXT, BUTTON_FACE, BUTTON_TEXT = 5, 8, 15, 18


def rgb(color):
    return color & 255, color >> 8 & 255, color >> 16 & 255


class LookTest(ScreenTest):

    def setUp(self):
        super().setUp()
        move(NOWHERE)
        self.host.activate()

    def create(self, name="Vellora1", place=(20, 20, 200, 24), font=None, text=TEXT, rows=0, **settings):
        self.host.create(name, place, **settings)
        if font:
            self.host.set(name, "Font", {"font": font})
            self.host.do("place", control=name, place=list(place))
        self.host.put(name, "Text", text)
        self.host.fill([f"row {n:02}" for n in range(rows)], name)

    def until_same(self, picture, rect):
        """The platform takes its time to tell a window that the mouse has left it."""
        self.until(lambda: picture.same(self.picture("again"), rect), "the look of before")

    def open(self):
        self.host.call("Vellora1", "ShowList")
        self.assertEqual(1, self.host.floating())

    def control(self, name="Vellora1"):
        return self.host.rect("control", control=name)
