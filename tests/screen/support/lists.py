"""What tests of an open list have in common: a control with rows, opened by its button, and drags of the mouse."""
from support.bed import ScreenTest, move, scaled, xdotool

OPENED = "Vellora1.DropDown(I4 0)"
CLOSED = "Vellora1.DropDown(I4 1)"
CLICKED = "Vellora1.Click()"
NOWHERE = (1000, 900)


class ListOfRowsTest(ScreenTest):
    """A control of the settings `bag`, with the rows `rows`; the events of its making are forgotten. Its place is in
    pixels at 96 dots per inch."""

    bag = {"Columns": 1}
    place = (20, 20, 200, 24)
    rows = [f"row {n}" for n in range(6)]

    def setUp(self):
        super().setUp()
        self.host.create(place=[scaled(length) for length in self.place], bag=self.bag)
        self.host.fill(self.rows)
        self.host.activate()
        self.host.events()

    def open(self):
        self.host.click(self.host.middle("button"))
        self.until(lambda: self.host.floating() == 1, "the list to open")
        self.host.events()

    def until_closed(self):
        self.until(lambda: self.host.floating() == 0, "the list to close")

    def assert_open(self):
        self.assertEqual(1, self.host.floating())
        self.assertTrue(self.host.focus()["in_list"])

    def assert_sound(self):
        """The list opens, one of its rows can be chosen, and it closes."""
        if self.host.floating():
            self.host.call("Vellora1", "HideList")
        self.host.call("Vellora1", "AddItem", "sound", 0)
        self.open()
        self.host.click(self.right_part("row", index=0))
        self.until_closed()
        self.assertEqual("sound", self.host.get("Vellora1", "Text"))

    def right_part(self, what, **arguments):
        """A point beside any check box and icon."""
        left, top, right, bottom = self.host.rect(what, **arguments)
        return left + (right - left) * 2 // 3, (top + bottom) // 2

    def look(self, name):
        """A picture without the mouse in it."""
        move(NOWHERE)
        return self.picture(name)

    def until_same(self, picture, rect):
        """The platform takes its time to tell a window that the mouse has left it."""
        self.until(lambda: picture.same(self.look("after"), rect), "the look of before")

    def drag(self, start, end, steps=4):
        self.host.press(start)
        self.pull(start, end, steps)
        self.host.release()

    def pull(self, start, end, steps=4):
        """Moves the mouse in steps, as a hand does, with time for the program to see each."""
        for step in range(1, steps + 1):
            xdotool("mousemove", *(a + (b - a) * step // steps for a, b in zip(start, end)))
            self.host.settle()
