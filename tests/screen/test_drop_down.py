"""The drop-down list under a real mouse and real keys."""
from support.bed import ScreenTest, click, move, xdotool
from support.lists import CLICKED, CLOSED, OPENED


class ListTest(ScreenTest):
    """A control with 30 rows and an ordinary text field on a form."""

    settings = {}

    def setUp(self):
        super().setUp()
        self.host.create("Vellora1", **self.settings)
        self.host.do("edit", name="other", place=[20, 300, 120, 24])
        self.host.fill([f"row {n:02}" for n in range(30)])
        self.host.activate()
        self.host.events()

    def open(self):
        self.host.click(self.host.middle("button"))
        self.until(lambda: self.host.floating() == 1, "the list to open")

    def until_closed(self):
        self.until(lambda: self.host.floating() == 0, "the list to close")

    def text(self):
        return self.host.get("Vellora1", "Text")


class MouseTest(ListTest):

    def test_a_click_on_the_button_opens_the_list(self):
        self.picture("closed")
        self.open()
        self.assert_events(OPENED)
        self.assertTrue(self.host.focus()["in_list"])
        control, window = self.host.rect("control"), self.host.rect("floating")
        self.assertEqual([control[0], control[3], control[2] - 1], [window[0], window[1], window[2]])
        shown = self.picture("open")
        self.assertGreater(len(shown.colors(self.host.rect("row", index=1))), 1, "a row without text")

    def test_a_click_on_a_row_selects_it(self):
        self.open()
        self.host.events()
        self.host.click(self.host.middle("row", index=4))
        self.until_closed()
        self.assert_events(CLICKED, CLOSED)
        self.assertEqual("row 04", self.text())
        self.assertEqual(4, self.host.get("Vellora1", "ListIndex"))
        self.assertEqual("Vellora1", self.host.focus()["owner"])
        self.picture("selected")

    def test_a_second_click_on_the_button_closes_and_stays_closed(self):
        for _ in range(3):
            self.open()
            self.host.click(self.host.middle("button"))
            self.until_closed()
            self.assert_events(OPENED, CLOSED)
            self.assertEqual(0, self.host.floating())
        self.picture("closed-again")

    def test_the_button_looks_pressed_while_the_list_is_open(self):
        move((600, 600))
        before = self.picture("before")
        button = self.host.rect("button")
        self.host.call("Vellora1", "ShowList")
        during = self.picture("during")
        self.assertFalse(before.same(during, button), "the button looks the same while its list is open")
        self.host.call("Vellora1", "HideList")
        self.host.do("set_focus", edit="other")
        after = self.picture("after")
        self.assertTrue(before.same(after, button), "the button does not look as it did before")

    def test_a_click_elsewhere_on_the_form_closes(self):
        self.open()
        self.host.click(self.host.middle("edit", edit="other"))
        self.until_closed()
        self.assert_events(OPENED, CLOSED)
        self.assertEqual("other", self.host.focus()["owner"])

    def test_a_click_on_the_bare_form_closes(self):
        self.open()
        form = self.host.rect("form")
        self.host.click((form[2] - 40, form[3] - 40))
        self.until_closed()
        self.assert_events(OPENED, CLOSED)
        self.assertEqual("Vellora1", self.host.focus()["owner"])

    def test_a_click_on_another_programs_window_closes(self):
        other = self.start(title="Another program")
        xdotool("windowmove", "--sync", other.x_window, 700, 500)
        self.host.activate()
        self.open()
        form = other.rect("form")
        click((form[0] + 200, form[1] + 200))
        self.until_closed()
        self.assert_events(OPENED, CLOSED)
        self.until(lambda: other.do("form")["active"], "the other program to become active")
        self.picture("other-active")
        self.assertEqual(str(other.x_window), xdotool("getwindowfocus"))

    def test_the_wheel_scrolls_the_list(self):
        self.open()
        top = self.host.list()["top"]
        self.host.wheel(self.host.middle("list"), 2)
        scrolled = self.host.list()["top"]
        self.assertGreater(scrolled, top)
        self.picture("scrolled")
        self.host.wheel(self.host.middle("list"), -2)
        self.assertEqual(top, self.host.list()["top"])
        self.assertEqual(1, self.host.floating())

    def test_a_press_that_leaves_the_button_before_the_release_does_nothing(self):
        self.host.press(self.host.middle("button"))
        move((600, 400))
        self.host.release()
        self.assert_events()
        self.assertEqual(0, self.host.floating())
        self.open()
        self.assert_events(OPENED)


class ToggleTest(ListTest):
    settings = {"bag": {"ButtonStyle": 1, "Columns": 1}}

    def test_a_second_click_on_the_button_closes_and_stays_closed(self):
        for _ in range(3):
            self.open()
            self.picture("toggled")
            self.host.click(self.host.middle("button"))
            self.until_closed()
            self.assert_events(OPENED, CLOSED)
            self.assertEqual(0, self.host.floating())

    def test_the_arrow_turns_while_the_list_is_open(self):
        move((600, 600))
        before = self.picture("before")
        button = self.host.rect("button")
        self.host.call("Vellora1", "ShowList")
        self.assertFalse(before.same(self.picture("during"), button))
        self.host.call("Vellora1", "HideList")
        self.host.do("set_focus", edit="other")
        self.assertTrue(before.same(self.picture("after"), button))


class KeyTest(ListTest):

    def setUp(self):
        super().setUp()
        self.host.do("set_focus", control="Vellora1")

    def marked(self):
        return self.host.list()["selected"]

    def open_by_key(self):
        self.host.key("F4")
        self.until(lambda: self.host.floating() == 1, "the list to open")

    def test_f4_opens_and_closes(self):
        self.open_by_key()
        self.assert_events(OPENED)
        self.host.key("F4")
        self.until_closed()
        self.assert_events(CLOSED)
        self.assertEqual("Vellora1", self.host.focus()["owner"])

    def test_arrows_page_and_end_keys_move_in_the_open_list(self):
        self.host.put("Vellora1", "ListIndex", 0)
        self.host.events()
        self.open_by_key()
        self.host.key("Down", "Down")
        self.assertEqual(2, self.marked())
        self.host.key("Up")
        self.assertEqual(1, self.marked())
        self.host.key("End")
        self.assertEqual(29, self.marked())
        self.picture("end")
        self.host.key("Home")
        self.assertEqual(0, self.marked())
        self.host.key("Next")
        self.assertGreater(self.marked(), 4)
        self.host.key("Prior")
        self.assertEqual(0, self.marked())
        self.assert_events(OPENED)

    def test_typed_letters_find_a_row(self):
        for n, town in enumerate(["Zurich", "Madrid", "Oslo"]):
            self.host.call("Vellora1", "AddItem", town)
        self.open_by_key()
        self.host.type("o")
        self.assertEqual(32, self.marked())

    def test_enter_selects_the_marked_row(self):
        self.host.put("Vellora1", "ListIndex", 0)
        self.open_by_key()
        self.host.key("Down", "Down", "Down")
        self.host.events()
        self.host.key("Return")
        self.until_closed()
        self.assert_events(CLICKED, CLOSED, "Vellora1.KeyUp(I2 13, I2 0)")
        self.assertEqual("row 03", self.text())
        self.assertEqual("Vellora1", self.host.focus()["owner"])
        self.picture("entered")

    def test_down_in_the_text_field_steps_through_the_rows(self):
        self.host.key("Down", "Down")
        self.assertEqual("row 01", self.text())
        self.assert_events(*["Vellora1.KeyDown(I2 40, I2 0)", CLICKED, "Vellora1.KeyUp(I2 40, I2 0)"] * 2)
        self.host.key("Up", "Up")
        self.assertEqual("row 00", self.text())

    def test_tab_leaves_no_open_list_behind(self):
        self.open_by_key()
        self.host.key("Tab")
        self.assertIn(self.host.floating(), (0, 1))
        self.host.do("set_focus", edit="other")
        self.until_closed()


class FormTest(ListTest):
    """What happens to the form while its list is open."""

    def caption(self):
        """A point of it: whoever draws it, it ends where the form's inside begins."""
        left, top, _, _ = self.host.rect("inside")
        return left + 200, top - 8

    def test_the_caption_stays_active(self):
        self.host.do("caption")
        self.open()
        self.assertTrue(self.host.caption_active())
        self.picture("active")
        self.host.call("Vellora1", "HideList")
        self.assertTrue(self.host.caption_active())

    def test_using_the_list_leaves_the_caption_active(self):
        self.open()
        before = self.picture("before")
        left, top, right, bottom = self.host.rect("list")
        for down_the_scroll_bar in (bottom - 10, bottom - 10, (top + bottom) // 2):
            self.host.click((right - 10, down_the_scroll_bar))
        self.assertGreater(self.host.list()["top"], 0)
        self.assertTrue(self.host.caption_active())
        self.assertEqual(1, self.host.floating())
        form, inside = self.host.rect("form"), self.host.rect("inside")
        caption = [form[0], form[1], form[2], inside[1]]
        self.assertTrue(self.picture("after").same(before, caption), "the caption changed its look")

    def test_another_window_activated_by_the_window_manager_closes(self):
        other = self.start(title="Another program")
        self.host.activate()
        self.open()
        xdotool("windowactivate", "--sync", other.x_window)
        self.until_closed()
        self.assert_events(OPENED, CLOSED)
        self.host.activate()
        self.assertEqual("Vellora1", self.host.focus()["owner"])
        self.assertEqual(0, self.host.floating())

    def test_the_moved_form_leaves_no_list_behind(self):
        self.open()
        control = self.host.rect("control")
        xdotool("windowmove", "--sync", self.host.x_window, 300, 260)
        self.until(lambda: self.host.rect("control") != control, "the form to move")
        self.until_closed()
        self.assert_events(OPENED, CLOSED)
        self.open()
        self.assertEqual(self.host.rect("control")[0], self.host.rect("floating")[0])
        self.assertEqual(self.host.rect("control")[3], self.host.rect("floating")[1])
        self.picture("reopened")

    def test_a_caption_dragged_with_the_mouse_closes(self):
        self.open()
        move(self.caption())
        xdotool("mousedown", 1, "mousemove_relative", "--sync", 40, 40, "mouseup", 1)
        self.until_closed()
        self.assert_events(OPENED, CLOSED)

    def test_the_minimised_form_takes_its_list_along(self):
        self.open()
        xdotool("windowminimize", self.host.x_window)
        self.until(lambda: self.host.do("form")["minimised"], "the form to be minimised")
        self.until_closed()
        self.assert_events(OPENED, CLOSED)
        self.picture("minimised")
        self.host.call("Vellora1", "ShowList")
        self.assertEqual(0, self.host.floating())
        self.assert_events()
        self.host.activate()
        self.until(lambda: not self.host.do("form")["minimised"], "the form to be restored")
        self.open()

    def test_the_closed_form_leaves_nothing_behind(self):
        self.open()
        self.host.do("destroy_form")
        self.assertEqual(0, self.host.floating())
        self.picture("gone")

    def test_ended_program_leaves_nothing_behind(self):
        self.open()
        self.picture("before")
        self.host.quit()
        self.assertEqual(0, self.host.process.returncode)


class HandlerTest(ListTest):
    """What handlers of a host may do in the middle of it all."""

    def test_the_control_is_destroyed_as_its_list_opens(self):
        self.host.on("Vellora1", "DropDown", {"do": "destroy", "control": "Vellora1"})
        self.host.click(self.host.middle("button"))
        self.assertEqual(0, self.host.floating())
        self.assertEqual(OPENED, self.host.events()[0])

    def test_the_control_is_destroyed_by_the_click_on_a_row(self):
        self.open()
        self.host.on("Vellora1", "Click", {"do": "destroy", "control": "Vellora1"})
        self.host.click(self.host.middle("row", index=2))
        self.assertEqual(0, self.host.floating())
        self.host.create("Vellora2", place=(20, 80, 200, 24))
        self.host.call("Vellora2", "ShowList")
        self.assertEqual(1, self.host.floating())
        self.picture("successor")

    def test_the_form_is_destroyed_by_the_click_on_a_row(self):
        self.open()
        self.host.on("Vellora1", "Click", {"do": "destroy_form"})
        self.host.click(self.host.middle("row", index=2))
        self.assertEqual(0, self.host.floating())
        self.assertFalse(self.host.do("form")["alive"])

    def test_the_list_is_cleared_as_it_opens(self):
        self.host.on("Vellora1", "DropDown", {"do": "call", "control": "Vellora1", "member": "Clear"})
        self.open()
        self.assertEqual(0, self.host.get("Vellora1", "ListCount"))
        self.picture("cleared")
        self.host.click(self.host.middle("button"))
        self.until_closed()

    def test_another_row_is_chosen_in_click(self):
        self.open()
        self.host.on("Vellora1", "Click", {"do": "put", "control": "Vellora1", "member": "ListIndex", "value": 9})
        self.host.click(self.host.middle("row", index=2))
        self.until_closed()
        self.assertEqual("row 09", self.text())


class TwoControlsTest(ListTest):

    def setUp(self):
        super().setUp()
        self.host.create("Vellora2", place=(300, 20, 200, 24))
        self.host.fill(["x", "y", "z"], "Vellora2")

    def test_one_list_after_the_other(self):
        self.open()
        self.host.click(self.host.middle("button", control="Vellora2"))
        self.until(lambda: "Vellora2.DropDown(I4 0)" in self.seen(), "the second list to open")
        self.assertEqual(1, self.host.floating())
        self.assertEqual(self.host.rect("control", control="Vellora2")[0], self.host.rect("floating")[0])
        self.assertEqual([OPENED, CLOSED, "Vellora2.DropDown(I4 0)"], self.all)
        self.picture("second")
        self.host.click(self.host.middle("row", index=1))
        self.until_closed()
        self.assertEqual("y", self.host.get("Vellora2", "Text"))
        self.assertEqual("Vellora1", self.text())

    def seen(self):
        self.all = getattr(self, "all", []) + self.host.events()
        return self.all


class MdiTest(ListTest):
    host_arguments = ("--mdi",)

    def test_the_frame_stays_active(self):
        self.host.do("caption")
        self.open()
        self.assertTrue(self.host.caption_active())
        self.picture("mdi-open")
        self.host.click(self.host.middle("row", index=3))
        self.until_closed()
        self.assertTrue(self.host.caption_active())
        self.assertEqual("row 03", self.text())


class DialogTest(ListTest):
    host_arguments = ("--dialog",)

    def test_works_in_a_dialog(self):
        self.open()
        self.picture("dialog-open")
        self.host.key("Down")
        self.assertEqual(0, self.host.list()["selected"])
        self.host.key("Return")
        self.until_closed()
        self.assertEqual("row 00", self.text())
        self.assert_events(OPENED, CLICKED, CLOSED, "Vellora1.KeyUp(I2 13, I2 0)")
