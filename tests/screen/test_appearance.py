"""How the closed control looks: beside the platform's own combo box, in the colours of its own and the system's, and as
the container paints it.
"""
from support.bed import DPI, move
from support.looks import (BITMAP_FONT, BLUE, BUTTON_FACE, BUTTON_TEXT, NOWHERE, RED, TEXT, WINDOW, WINDOW_TEXT, YELLOW,
                           LookTest, rgb)

TAHOMA = ["Tahoma", 8.25]


class BesideTheCombo(LookTest):
    """The platform's combo box stands beside the control, with the same font and text."""

    glows = False  # under the mouse

    def beside(self, font):
        self.create(font=font)
        self.host.do("combo", name="combo", place=[300, 20, 200, 150], font=font, rows=[], text=TEXT)
        return self.control(), self.host.rect("edit", edit="combo")

    def buttons(self):
        return self.host.rect("button"), self.host.rect("combo_button", edit="combo")

    def under_the_mouse(self, button, at_rest, name):
        move(((button[0] + button[2]) // 2, (button[1] + button[3]) // 2))
        if self.glows:
            self.until(lambda: not at_rest.same(self.picture(name), button), "the button to look hot")
        return self.picture(name)

    def assert_alike(self, picture, ours, theirs):
        size = [ours[2] - ours[0], ours[3] - ours[1]]
        self.assertEqual([theirs[2] - theirs[0], theirs[3] - theirs[1]], size)
        self.assertEqual([], picture.differences(ours, theirs)[:5])

    def test_at_rest(self):
        for font in (TAHOMA, BITMAP_FONT, ["Tahoma", 12], ["Courier New", 20]):
            with self.subTest(font=font):
                ours, theirs = self.beside(font)
                self.assert_alike(self.picture("-".join(map(str, font))), ours, theirs)
                our_button, their_button = self.buttons()
                self.assertEqual([their_button[0] - theirs[0], their_button[1] - theirs[1]],
                                 [our_button[0] - ours[0], our_button[1] - ours[1]])
                self.host.do("destroy", control="Vellora1")
                self.host.do("remove", edit="combo")

    def test_disabled_but_for_the_field_that_keeps_its_colour(self):
        ours, theirs = self.beside(TAHOMA)
        before = self.picture("enabled")
        self.host.put("Vellora1", "Enabled", False)
        self.host.do("enable", edit="combo", enabled=False)
        shown = self.picture("disabled")
        field = self.host.rect("text")
        their_button = self.buttons()[1]
        window, gray = shown.pixel(field[2] - 3, field[1] + 6), shown.pixel(their_button[0] - 5, their_button[1] + 4)
        self.assertEqual(before.pixel(field[2] - 3, field[1] + 6), window)
        for x, y in shown.differences(ours, theirs):
            self.assertEqual((window, gray), (shown.pixel(ours[0] + x, ours[1] + y),
                                              shown.pixel(theirs[0] + x, theirs[1] + y)))
        self.assertFalse(before.same(shown, self.host.rect("button")), "the button looks enabled")

    def test_the_button_under_the_mouse(self):
        self.beside(TAHOMA)
        ours, theirs = self.buttons()
        # A styled combo box that the mouse has never crossed may look as if it were over it.
        move(((theirs[0] + theirs[2]) // 2, (theirs[1] + theirs[3]) // 2))
        move(NOWHERE)
        self.until(lambda: not self.picture("at-rest").differences(ours, theirs), "both buttons to rest")
        at_rest = self.picture("at-rest")
        our_picture = self.under_the_mouse(ours, at_rest, "ours")
        their_picture = self.under_the_mouse(theirs, at_rest, "theirs")
        self.assertEqual([], our_picture.differences(ours, theirs, their_picture)[:5])
        self.until_same(at_rest, ours)

    def test_the_button_held_down(self):
        self.beside(TAHOMA)
        ours, theirs = self.buttons()
        at_rest = self.picture("at-rest")
        self.host.press(self.host.middle("button"))
        held = self.picture("ours")
        self.assertFalse(at_rest.same(held, ours), "the button does not look pressed")
        move(NOWHERE)
        self.until_same(at_rest, ours)
        self.host.release()
        self.assertEqual(0, self.host.floating())
        self.host.press(((theirs[0] + theirs[2]) // 2, (theirs[1] + theirs[3]) // 2))
        self.assertEqual([], held.differences(ours, theirs, self.picture("theirs"))[:5])
        self.host.release()

    def test_the_button_with_the_focus_looks_as_without(self):
        self.create(rows=3)
        button = self.host.rect("button")
        before = self.picture("before")
        self.host.press(self.host.middle("button"))
        move(NOWHERE)
        self.host.release()
        self.assertIn("Button", self.host.focus()["class"])
        self.until_same(before, button)


class StyledBesideTheCombo(BesideTheCombo):
    """The same under the platform's visual styles."""

    host_arguments = ("--styled",)
    glows = True


class ButtonTest(LookTest):

    def arrow(self, name):
        """For each row of the button, how many pixels have the colour of the glyph."""
        picture, button = self.picture(name), self.host.rect("button")
        counts = [sum(picture.pixel(x, y) == rgb(RED) for x in range(button[0], button[2]))
                  for y in range(button[1], button[3])]
        return [count for count in counts if count]

    def test_the_toggles_arrow_points_down_while_closed_and_up_while_open(self):
        self.create(bag={"ButtonStyle": 1, "ButtonForeColor": RED}, rows=3)
        down = self.arrow("closed")
        self.assertEqual(sorted(down, reverse=True), down)
        self.assertGreater(down[0], down[-1])
        self.open()
        self.assertEqual(down[::-1], self.arrow("open"))
        self.host.call("Vellora1", "HideList")
        self.assertEqual(down, self.arrow("closed-again"))

    def test_the_ordinary_arrow_points_down_also_while_open(self):
        self.create(rows=3)
        self.host.put("Vellora1", "ButtonForeColor", RED)
        down = self.arrow("closed")
        self.assertGreater(down[0], down[-1])
        self.open()
        self.assertEqual(down, self.arrow("open"))

    def test_an_own_colour_changes_the_colour_of_the_arrow_and_nothing_else(self):
        self.create()
        plain, button = self.picture("plain"), self.host.rect("button")
        face = plain.pixel(button[0] + 4, button[1] + 4)
        self.host.put("Vellora1", "ButtonForeColor", RED)
        coloured = self.picture("coloured")
        changed = [(plain.pixel(button[0] + x, button[1] + y), coloured.pixel(button[0] + x, button[1] + y))
                   for x, y in plain.differences(button, button, coloured)]
        recoloured = ((0, 0, 0), rgb(RED))
        self.assertIn(recoloured, changed)
        # At higher resolutions the two arrows are not of quite the same size, but both are sharp.
        resized = () if DPI == 96 else (((0, 0, 0), face), (face, rgb(RED)))
        self.assertLessEqual(set(changed), {recoloured, *resized})


class SystemColourTest(LookTest):

    def change(self, colors):
        self.host.do("system_colors", colors={str(index): color for index, color in colors.items()})

    def setUp(self):
        super().setUp()
        self.addCleanup(self.change, self.host.do("get_system_colors",
                                                  indices=[WINDOW, BUTTON_FACE, WINDOW_TEXT, BUTTON_TEXT]))

    def test_all_parts_follow_the_users_colours(self):
        self.create(rows=3)
        self.host.put("Vellora1", "AllowResize", True)
        self.open()
        self.picture("before")
        self.change({WINDOW: YELLOW, WINDOW_TEXT: BLUE, BUTTON_FACE: RED})
        shown = self.picture("after")
        for part in ("text", "row"):
            colors = shown.colors(self.host.rect(part))
            self.assertIn(rgb(YELLOW), colors, part)
            self.assertIn(rgb(BLUE), colors, part)
        self.assertIn(rgb(RED), shown.colors(self.host.rect("button")))
        floating = self.host.rect("floating")
        self.assertIn(rgb(RED), shown.colors([floating[0] + 3, floating[3] - 8, floating[0] + 40, floating[3] - 4]))

    def test_the_controls_own_colours_stay(self):
        self.create(rows=3)
        self.host.put("Vellora1", "BackColor", BLUE)
        self.change({WINDOW: YELLOW})
        shown = self.picture("after")
        self.assertIn(rgb(BLUE), shown.colors(self.host.rect("text")))
        self.assertNotIn(rgb(YELLOW), shown.colors(self.control()))


class EnabledTest(LookTest):

    def test_in_a_designer_the_button_keeps_looking_alive(self):
        self.create(design=True)
        button, text = self.host.rect("button"), self.host.rect("text")
        before = self.picture("before")
        self.host.put("Vellora1", "Enabled", False)
        after = self.picture("after")
        self.assertTrue(before.same(after, button))
        self.assertFalse(before.same(after, text), "the text does not look disabled")

    def test_at_run_time_nothing_can_be_clicked_and_all_looks_so(self):
        self.create(rows=3)
        before = self.picture("before")
        self.host.put("Vellora1", "Enabled", False)
        after = self.picture("after")
        self.assertFalse(before.same(after, self.host.rect("button")))
        self.assertFalse(before.same(after, self.host.rect("text")))
        self.host.put("Vellora1", "Enabled", True)
        self.assertTrue(before.same(self.picture("again"), self.control()))


class TextPlaceTest(LookTest):

    def left_and_right(self, name):
        """How far the text stands from the two ends of its field."""
        picture, field = self.picture(name), self.host.rect("text")
        columns = [x for x in range(field[0], field[2])
                   if any(picture.pixel(x, y) == (0, 0, 0) for y in range(field[1], field[3] - 4))]
        return columns[0] - field[0], field[2] - 1 - columns[-1]

    def test_alignment(self):
        self.create(text="Mm")
        left, right = self.left_and_right("left")
        self.assertLess(left, 6)
        self.assertGreater(right, 100)
        self.host.put("Vellora1", "Alignment", 1)
        left, right = self.left_and_right("right")
        self.assertLess(right, 8)
        self.host.put("Vellora1", "Alignment", 2)
        left, right = self.left_and_right("centre")
        self.assertLessEqual(abs(left - right), 3)

    def test_a_long_text_keeps_its_beginning_in_sight(self):
        self.create(text="A text that is much longer than the field it stands in, by far", rows=3)
        left, top, right, _ = self.host.rect("text")
        seen = [left, top, right, self.control()[3] - 2]  # the field reaches below the control
        before = self.picture("closed")
        self.open()
        self.assertTrue(before.same(self.picture("open"), seen))

    def test_margins_are_pixels(self):
        self.create(text="Mm")
        self.host.put("Vellora1", "LeftMargin", 0)
        left, _ = self.left_and_right("none")
        self.host.put("Vellora1", "LeftMargin", 25)
        self.assertEqual(left + 25, self.left_and_right("left")[0])
        self.host.put("Vellora1", "Alignment", 1)
        self.host.put("Vellora1", "RightMargin", 0)
        _, right = self.left_and_right("right-none")
        self.host.put("Vellora1", "RightMargin", 30)
        self.assertEqual(right + 30, self.left_and_right("right")[1])


class PortraitTest(LookTest):
    """What the container paints of an inactive control is what the control shows itself."""

    def assert_portrait(self, name):
        self.host.do("portrait", name="portrait", control="Vellora1", place=[300, 20, 10, 10])
        move(NOWHERE)
        shown = self.picture(name)
        control, portrait = self.control(), self.host.rect("edit", edit="portrait")
        self.assertEqual([control[2] - control[0], control[3] - control[1]],
                         [portrait[2] - portrait[0], portrait[3] - portrait[1]])
        self.assertEqual([], shown.differences(control, portrait)[:5])
        self.host.do("remove", edit="portrait")

    def test_follows_every_property(self):
        self.create(font=BITMAP_FONT, rows=3)
        self.assert_portrait("new")
        for member, value in (("BackColor", YELLOW), ("ForeColor", BLUE), ("ButtonBackColor", BLUE),
                              ("ButtonForeColor", YELLOW), ("LeftMargin", 17), ("Alignment", 1), ("RightMargin", 9),
                              ("Alignment", 2), ("Locked", True), ("Enabled", False),
                              ("ButtonBackColor", BUTTON_FACE - 0x80000000),
                              ("ButtonForeColor", BUTTON_TEXT - 0x80000000)):
            with self.subTest(member=member, value=value):
                self.host.put("Vellora1", member, value)
                # Each alignment has a field of its own, which got no font yet.
                self.host.set("Vellora1", "Font", {"font": BITMAP_FONT})
                self.assert_portrait(f"{member}-{value}")

    def test_of_a_high_one(self):
        self.create(font=BITMAP_FONT)
        self.host.put("Vellora1", "AutoHeight", False)
        self.host.do("place", control="Vellora1", place=[20, 20, 150, 50])
        self.assert_portrait("high")

    def test_of_a_loaded_toggle_in_a_designer(self):
        self.create(font=BITMAP_FONT, design=True, bag={"ButtonStyle": 1})
        self.assert_portrait("toggle")

    def test_of_a_text_too_long_for_its_field(self):
        self.create(font=BITMAP_FONT, text="A text that is much longer than the field it stands in, by far")
        self.assert_portrait("left")


class StyledPortraitTest(PortraitTest):
    host_arguments = ("--styled",)
