"""The open list pulled to another size by its grip. The pointer's shape over it cannot be read from here."""
from support.bed import CallFailed, move, xdotool
from support.lists import CLICKED, CLOSED, ListOfRowsTest


class GripTest(ListOfRowsTest):
    bag = {"Columns": 1, "AllowResize": True}
    rows = [f"row {n:02}" for n in range(30)]

    def setUp(self):
        super().setUp()
        self.open()
        self.before = self.host.rect("floating")
        self.row_below = self.before[3] - self.host.rect("list")[3]

    def grip(self, from_right=5, from_bottom=5):
        _, _, right, bottom = self.host.rect("floating")
        return right - from_right, bottom - from_bottom

    def drag_by(self, start, x, y, steps=4):
        # The pointer decides what is pulled, and has to hover before the press as a hand's does.
        move(start)
        self.host.settle()
        self.drag(start, (start[0] + x, start[1] + y), steps)

    def assert_grown(self, x, y):
        left, top, right, bottom = self.before
        self.assertEqual([left, top, right + x, bottom + y], self.host.rect("floating"))
        self.assertEqual([left, top, right + x, bottom + y - self.row_below], self.host.rect("list"))
        self.assertEqual(1, self.host.floating())
        self.assertTrue(self.host.focus()["in_list"])
        self.assert_events()


class DragTest(GripTest):

    def test_the_corner_pulls_both_ways(self):
        self.look("before")
        self.drag_by(self.grip(), 60, 40)
        self.assert_grown(60, 40)
        self.look("grown")
        self.drag_by(self.grip(), -90, -70)
        self.assert_grown(-30, -30)
        self.look("shrunk")

    def test_the_bottom_edge_pulls_down(self):
        self.drag_by(self.grip(from_right=14), 60, 40)
        self.assert_grown(0, 40)
        self.look("taller")

    def test_the_right_edge_pulls_sideways(self):
        self.drag_by(self.grip(from_bottom=14), 60, 40)
        self.assert_grown(60, 0)
        self.look("wider")

    def test_away_from_the_grip_nothing_is_pulled(self):
        beside = self.grip(from_right=60)
        self.drag_by(beside, -30, -30)
        self.assert_grown(0, 0)
        above = self.grip(from_right=60, from_bottom=60)
        move(above)
        self.host.press(above)
        self.pull(above, (above[0] + 30, above[1] + 30))
        self.assertEqual(self.before, self.host.rect("floating"))
        self.host.release()
        if self.host.floating():
            self.assertEqual(self.before, self.host.rect("floating"))
        else:
            self.open()
        self.drag_by(self.grip(), -30, -30)
        self.assert_grown(-30, -30)

    def test_the_other_button_pulls_nothing(self):
        start = self.grip()
        move(start)
        self.host.counted("button_down", lambda: xdotool("mousedown", 3))
        self.pull(start, (start[0] + 50, start[1] + 50))
        self.host.counted("button_up", lambda: xdotool("mouseup", 3))
        self.assert_grown(0, 0)

    def test_it_stays_larger_than_three_grips(self):
        left, top, right, bottom = self.before
        smallest = 3 * self.row_below + 1  # a grip is as wide as its row is high
        narrower, lower = left + smallest - right, top + smallest - bottom
        self.drag_by(self.grip(), narrower, lower)
        self.assert_grown(narrower, lower)
        self.look("smallest")
        # What would be too small on either side counts for nothing, and is not cut to size.
        for x, y in ((-1, 0), (0, -1), (-1, 60), (60, -1), (-30, -30)):
            with self.subTest(x=x, y=y):
                self.drag_by(self.grip(), x, y, steps=1)
                self.assert_grown(narrower, lower)
        self.drag_by(self.grip(), 60, 40)
        self.assert_grown(narrower + 60, lower + 40)
        self.assert_sound()

    def test_after_the_release_the_mouse_moves_alone(self):
        self.drag_by(self.grip(), 30, 30)
        self.pull(self.grip(), (700, 600))
        self.assert_grown(30, 30)

    def test_scroll_bar_and_columns_follow(self):
        page = self.host.list()["page"]
        row = self.host.rect("row", index=0)
        height = row[3] - row[1]
        self.drag_by(self.grip(), 0, 3 * height)
        self.assertEqual(page + 3, self.host.list()["page"])
        self.assertTrue(self.host.list()["vertical"])
        self.host.wheel(self.host.middle("list"), 40)
        self.assertIsNotNone(self.host.rect("row", index=29))
        self.look("scrolled-to-the-end")
        self.host.click(self.host.middle("row", index=29))
        self.until_closed()
        self.assert_events(CLICKED, CLOSED)
        self.assertEqual("row 29", self.host.get("Vellora1", "Text"))

    def test_opened_again_it_has_its_own_size(self):
        self.drag_by(self.grip(), 60, 40)
        self.host.key("Escape")
        self.until_closed()
        self.host.events()
        self.open()
        self.assert_grown(0, 0)
        self.drag_by(self.grip(), 20, 20)
        self.assert_grown(20, 20)

    def test_cannot_be_switched_while_open(self):
        with self.assertRaises(CallFailed) as failed:
            self.host.put("Vellora1", "AllowResize", False)
        self.assertEqual("Changing AllowResize property not allowed while dropdown window is showing.",
                         failed.exception.error["description"])
        self.drag_by(self.grip(), 20, 20)
        self.assert_grown(20, 20)


class BrokenOffTest(GripTest):
    """What ends a drag other than the release of the button."""

    def begin(self):
        start = self.grip()
        move(start)
        self.host.settle()
        self.host.press(start)
        self.addCleanup(xdotool, "mouseup", 1)
        self.pull(start, (start[0] + 40, start[1] + 40))
        self.until(lambda: self.host.rect("floating")[2] == self.before[2] + 40, "the list to follow")

    def assert_no_drag_goes_on(self):
        self.until_closed()
        self.pull(self.grip_place(), (600, 600))
        xdotool("mouseup", 1)
        self.host.activate()
        self.host.events()
        self.open()
        self.pull((600, 600), self.grip())
        self.pull(self.grip(), (700, 700))
        self.assert_grown(0, 0)
        self.drag_by(self.grip(), 20, 20)
        self.assert_grown(20, 20)

    def grip_place(self):
        return self.before[2] + 35, self.before[3] + 35

    def test_by_code_that_closes_the_list(self):
        self.begin()
        self.host.call("Vellora1", "HideList")
        self.assert_no_drag_goes_on()

    def test_by_another_window(self):
        self.begin()
        other = self.start(title="Another program")
        xdotool("windowactivate", "--sync", other.x_window)
        self.assert_no_drag_goes_on()

    def test_by_the_escape_key(self):
        self.begin()
        self.host.key("Escape")
        self.assert_no_drag_goes_on()

    def test_by_the_end_of_the_control(self):
        self.begin()
        self.host.do("destroy", control="Vellora1")
        self.assertEqual(0, self.host.floating())
        self.pull(self.grip_place(), (600, 600))
        xdotool("mouseup", 1)
        self.host.create("Vellora2", place=(20, 80, 200, 24))
        self.host.call("Vellora2", "ShowList")
        self.assertEqual(1, self.host.floating())
