"""Check boxes in front of the rows of an open list, under a real mouse and real keys."""
from support.bed import CallFailed, click
from support.lists import CLICKED, CLOSED, ListOfRowsTest


def checked(row, state):
    return f"Vellora1.ItemCheck(I2 {row}, {state}, False)"


class CheckBoxTest(ListOfRowsTest):
    bag = {"Columns": 1, "CheckBoxes": True}

    def box(self, row):
        left, top, _, bottom = self.host.rect("row", index=row)
        return left + (bottom - top) // 2, (top + bottom) // 2

    def around_box(self, row):
        left, top, _, bottom = self.host.rect("row", index=row)
        return [left, top, left + bottom - top, bottom]

    def states(self):
        return [self.host.get("Vellora1", "Checked", row) for row in range(self.host.get("Vellora1", "ListCount"))]

    def checked_rows(self):
        return [row for row, state in enumerate(self.states()) if state]

    def react(self, *reactions, times=1):
        self.host.on("Vellora1", "ItemCheck", *reactions, times=times)

    def react_by(self, member, *args, kind="call", **more):
        self.react({"do": kind, "control": "Vellora1", "member": member, "args": list(args), **more})


class MouseTest(CheckBoxTest):

    def test_a_click_on_a_box_checks_and_does_nothing_else(self):
        self.open()
        self.host.click(self.box(2))
        self.assert_events(checked(2, True))
        self.assertEqual([2], self.checked_rows())
        self.assert_open()
        self.assertEqual("", self.host.get("Vellora1", "Text"))
        self.assertEqual(-1, self.host.get("Vellora1", "ListIndex"))
        self.host.click(self.box(2))
        self.assert_events(checked(2, False))
        self.assertEqual([], self.checked_rows())

    def test_a_quick_second_click_is_a_check_of_its_own(self):
        self.open()
        point = self.box(1)
        for _ in range(5):
            self.host.click(point)
        self.assert_events(*(checked(1, state) for state in (True, False, True, False, True)))
        self.assert_open()

    def test_a_click_beside_the_box_selects(self):
        self.open()
        self.host.click(self.box(0))
        self.host.events()
        self.host.click(self.right_part("row", index=3))
        self.until_closed()
        self.assert_events(CLICKED, CLOSED)
        self.assertEqual("row 3", self.host.get("Vellora1", "Text"))
        self.assertEqual([0], self.checked_rows())

    def test_boxes_show_what_is_checked(self):
        self.open()
        before = self.look("before")
        for row in (1, 3):
            self.host.click(self.box(row))
        after = self.look("after")
        for row in range(6):
            with self.subTest(row=row):
                self.assertEqual(row not in (1, 3), before.same(after, self.around_box(row)))
        self.assertEqual([], after.differences(self.around_box(1), self.around_box(3)))
        self.assertGreater(len(before.colors(self.around_box(0))), 1, "a row without a box")

    def test_checks_are_kept_from_one_opening_to_the_next(self):
        self.open()
        self.host.click(self.box(4))
        self.host.key("Escape")
        self.until_closed()
        self.assertEqual([4], self.host.call("Vellora1", "CheckedItems"))
        shown = self.look("closed")
        self.open()
        self.assertEqual([4], self.checked_rows())
        self.host.click(self.box(4))
        self.assert_events(checked(4, False))
        self.assertGreater(shown.width, 0)

    def test_a_scrolled_list_checks_the_row_under_the_mouse(self):
        self.host.fill([f"more {n}" for n in range(30)])
        self.open()
        self.host.wheel(self.host.middle("list"), 3)
        top = self.host.list()["top"]
        self.assertGreater(top, 0)
        self.host.click(self.box(top + 2))
        self.assert_events(checked(top + 2, True))
        self.look("scrolled")


class KeyTest(CheckBoxTest):

    def test_the_space_bar_checks_the_marked_row(self):
        self.open()
        self.host.key("Down", "Down", "space")
        marked = self.host.list()["selected"]
        self.assertEqual([marked], self.checked_rows())
        self.assert_events(checked(marked, True))
        self.assert_open()
        self.host.key("space")
        self.assertEqual([], self.checked_rows())

    def test_a_row_can_be_chosen_after_the_space_bar(self):
        self.open()
        self.host.key("Down", "space")
        self.host.events()
        self.host.click(self.right_part("row", index=2))
        self.until_closed()
        self.assert_events(CLICKED, CLOSED)

    def test_the_space_bar_without_a_marked_row_checks_nothing(self):
        self.open()
        self.host.key("space")
        self.assert_events()
        self.assertEqual([], self.checked_rows())


class CancelTest(CheckBoxTest):

    def cancel(self, times=1):
        self.react({"do": "argument", "index": 2, "value": True}, times=times)

    def test_the_mouse_is_refused(self):
        self.open()
        before = self.look("before")
        self.cancel()
        self.host.click(self.box(1))
        self.assert_events(checked(1, True))
        self.assertEqual([], self.checked_rows())
        self.assertTrue(before.same(self.look("after"), self.around_box(1)))
        self.host.click(self.box(1))
        self.assert_events(checked(1, True))
        self.assertEqual([1], self.checked_rows())

    def test_the_space_bar_is_refused(self):
        self.open()
        self.host.key("Down")
        self.cancel()
        self.host.key("space")
        self.assert_events(checked(0, True))
        self.assertEqual([], self.checked_rows())

    def test_code_is_refused(self):
        self.open()
        self.cancel()
        self.host.put("Vellora1", "Checked", True, 3)
        self.assert_events(checked(3, True))
        self.assertEqual([], self.checked_rows())

    def test_taking_a_check_away_is_refused(self):
        self.host.put("Vellora1", "Checked", True, 3)
        self.open()
        self.cancel()
        self.host.click(self.box(3))
        self.assert_events(checked(3, False))
        self.assertEqual([3], self.checked_rows())


class CodeTest(CheckBoxTest):

    def test_checks_by_code_show_in_the_open_list(self):
        self.open()
        before = self.look("before")
        self.host.put("Vellora1", "Checked", True, 2)
        self.assert_events(checked(2, True))
        after = self.look("after")
        self.assertFalse(before.same(after, self.around_box(2)))
        self.assertTrue(before.same(after, self.around_box(3)))
        self.host.put("Vellora1", "Checked", False, 2)
        self.assertTrue(before.same(self.look("again"), self.around_box(2)))

    def test_counts_and_lists(self):
        self.assertEqual(0, self.host.get("Vellora1", "CheckedCount"))
        self.assertEqual([None], self.host.call("Vellora1", "CheckedItems"))
        self.open()
        for row in (4, 1):
            self.host.click(self.box(row))
        self.assertEqual(2, self.host.get("Vellora1", "CheckedCount"))
        self.assertEqual([1, 4], self.host.call("Vellora1", "CheckedItems"))

    def test_cannot_be_switched_off_at_run_time(self):
        with self.assertRaises(CallFailed) as failed:
            self.host.put("Vellora1", "CheckBoxes", False)
        self.assertEqual(382, failed.exception.error["number"])
        self.open()
        self.host.click(self.box(0))
        self.assertEqual([0], self.checked_rows())


class HandlerTest(CheckBoxTest):
    """What a handler may do in the middle of a check."""

    def check(self, row=2):
        self.open()
        self.host.click(self.box(row))
        self.assertTrue(self.host.alive())

    def check_and_lose_the_window(self):
        """The list goes while the button is down: what hears of the release depends on the display."""
        self.open()
        click(self.box(2))
        self.until_closed()
        self.assertTrue(self.host.alive())

    def test_removes_the_row(self):
        self.react_by("RemoveItem", {"short": 2})
        self.check()
        self.assertEqual(5, self.host.get("Vellora1", "ListCount"))
        self.assertEqual([], self.checked_rows())
        self.look("removed")
        self.assert_sound()

    def test_removes_the_row_and_cancels(self):
        self.react({"do": "call", "control": "Vellora1", "member": "RemoveItem", "args": [{"short": 2}]},
                   {"do": "argument", "index": 2, "value": True})
        self.check()
        self.assertEqual([], self.checked_rows())
        self.assert_sound()

    def test_removes_another_row_and_cancels(self):
        self.react({"do": "call", "control": "Vellora1", "member": "RemoveItem", "args": [{"short": 0}]},
                   {"do": "argument", "index": 2, "value": True})
        self.check()
        self.assertEqual([], self.checked_rows())
        self.assert_sound()

    def test_sorts_the_other_way_round(self):
        self.react({"do": "put", "control": "Vellora1", "member": "SortOrder", "value": 1},
                   {"do": "put", "control": "Vellora1", "member": "Sorted", "value": True})
        self.check(0)
        self.assertEqual("row 0", self.host.get("Vellora1", "List", 5))
        self.assertEqual([5], self.checked_rows())
        self.look("sorted")
        self.host.put("Vellora1", "Sorted", False)
        self.assert_sound()

    def test_clears_the_list(self):
        for member in ("Clear", "ClearAll"):
            with self.subTest(member=member):
                self.react_by(member)
                self.check(0)
                self.assertEqual(0, self.host.get("Vellora1", "ListCount"))
                self.look(member)
                self.assert_sound()

    def test_checks_another_row(self):
        self.react({"do": "put", "control": "Vellora1", "member": "Checked", "value": True, "args": [0]})
        self.check()
        self.assert_events(checked(2, True), checked(0, True))
        self.assertEqual([0, 2], self.checked_rows())
        self.assert_sound()

    def test_closes_the_list(self):
        self.react_by("HideList")
        self.check_and_lose_the_window()
        self.assert_events(checked(2, True), CLOSED)
        self.assertEqual("", self.host.get("Vellora1", "Text"))
        self.assert_sound()

    def test_destroys_the_control(self):
        self.react({"do": "destroy", "control": "Vellora1"})
        self.check_and_lose_the_window()
        self.host.create("Vellora2", place=(20, 80, 200, 24))
        self.host.call("Vellora2", "ShowList")
        self.assertEqual(1, self.host.floating())

    def test_fails(self):
        self.react_by("NoSuchMember")
        self.check()
        self.host.click(self.box(3))
        self.assertEqual([2, 3], self.checked_rows())
        self.assert_sound()
