"""Columns of an open list under a real mouse: moved by their headers, sized by their dividers, shown in order."""
from support.bed import CallFailed, xdotool
from support.lists import ListOfRowsTest

REORDERED = "Vellora1.ColumnReorder()"


def bag(**more):
    captions = {f"ColumnHeader{n}": caption for n, caption in enumerate(("Country", "Capital", "People"), 1)}
    return {"Columns": 3, **captions, **{f"ColumnWidth{n}": {"single": 1500} for n in (1, 2, 3)}, **more}


class ColumnTest(ListOfRowsTest):
    bag = bag()
    place = (20, 20, 340, 24)
    rows = [["Switzerland", "Bern", "8.9"], ["Norway", "Oslo", "5.5"], ["Japan", "Tokyo", "124"]]

    def header(self, column):
        return self.host.middle("header", index=column - 1)

    def divider(self, column):
        _, top, right, bottom = self.host.rect("header", index=column - 1)
        return right - 2, (top + bottom) // 2

    def order(self):
        return self.host.get("Vellora1", "ColumnOrder")

    def widths(self):
        return self.host.list()["widths"]

    def drag_header(self, column, onto):
        start, (left, top, right, bottom) = self.header(column), self.host.rect("header", index=onto - 1)
        beyond = right - 6 if left > start[0] else left + 6
        self.drag(start, (beyond, (top + bottom) // 2), steps=8)

    def drag_divider(self, column, by):
        start = self.divider(column)
        self.drag(start, (start[0] + by, start[1]))

    def assert_same(self, picture):
        """Once the header that was under the mouse has lost its light."""
        self.until_same(picture, self.host.rect("list"))

    def double_click(self, point):
        xdotool("mousemove", *point)
        self.host.counted("button_up", lambda: xdotool("click", "--repeat", 2, "--delay", 20, 1), 2)


class ReorderTest(ColumnTest):
    bag = bag(AllowColumnReorder=True)

    def test_a_header_dragged_to_another_place_takes_its_column_along(self):
        self.open()
        before = self.look("before")
        self.drag_header(1, onto=3)
        self.assert_events(REORDERED)
        self.assertEqual([2, 3, 1], self.order())
        self.assert_open()
        self.assertFalse(before.same(self.look("after"), self.host.rect("list")))
        lefts = [self.host.rect("header", index=column)[0] for column in (1, 2, 0)]
        self.assertEqual(sorted(lefts), lefts)

    def test_to_the_left_and_back(self):
        self.open()
        self.drag_header(3, onto=1)
        self.assertEqual([3, 1, 2], self.order())
        self.drag_header(3, onto=2)
        self.assert_events(REORDERED, REORDERED)
        self.assertEqual([1, 2, 3], self.order())

    def test_the_order_is_kept_for_the_next_opening(self):
        self.open()
        self.drag_header(1, onto=2)
        self.host.key("Escape")
        self.until_closed()
        self.open()
        self.assertEqual([2, 1, 3], self.order())
        self.assertEqual("Bern", self.host.get("Vellora1", "List", 0, 2))

    def test_a_row_can_be_chosen_afterwards(self):
        self.open()
        self.drag_header(1, onto=3)
        self.assert_sound()

    def test_the_event_comes_before_the_new_order(self):
        self.host.on("Vellora1", "ColumnReorder", {"do": "put", "control": "Vellora1", "member": "Text",
                                                   "value": "told"})
        self.open()
        self.drag_header(1, onto=3)
        self.assertEqual("told", self.host.get("Vellora1", "Text"))

    def test_a_handler_may_close_the_list(self):
        self.host.on("Vellora1", "ColumnReorder", {"do": "call", "control": "Vellora1", "member": "HideList"})
        self.open()
        self.drag_header(1, onto=3)
        self.until_closed()
        self.assert_sound()

    def test_a_handler_may_make_other_columns(self):
        self.host.on("Vellora1", "ColumnReorder", {"do": "put", "control": "Vellora1", "member": "Columns",
                                                   "value": 2})
        self.open()
        self.drag_header(1, onto=3)
        self.assertEqual([1, 2], sorted(self.order()))
        self.assert_sound()

    def test_a_handler_may_destroy_the_control(self):
        self.host.on("Vellora1", "ColumnReorder", {"do": "destroy", "control": "Vellora1"})
        self.open()
        self.drag_header(1, onto=3)
        self.assertEqual(0, self.host.floating())
        self.assertTrue(self.host.do("form")["alive"])


class FixedOrderTest(ColumnTest):

    def test_headers_stay_where_they_are(self):
        self.open()
        before = self.look("before")
        self.drag_header(1, onto=3)
        self.assert_events()
        self.assertEqual([1, 2, 3], self.order())
        self.assert_open()
        self.assert_same(before)

    def test_every_click_on_a_header_is_told_once(self):
        self.open()
        for column in (1, 2, 3, 1):
            self.host.click(self.header(column))
            self.assert_events(f"Vellora1.ColumnClick(I2 {column})")
        self.assert_open()

    def test_clicks_on_headers_sort_nothing(self):
        self.open()
        before = self.look("before")
        for column in (1, 2, 1, 2):
            self.host.click(self.header(column))
        self.assert_same(before)
        self.assertFalse(self.host.get("Vellora1", "Sorted"))

    def test_a_handler_may_sort_by_the_header_clicked(self):
        self.host.on("Vellora1", "ColumnClick",
                     {"do": "put", "control": "Vellora1", "member": "SortColumn", "value": 2},
                     {"do": "put", "control": "Vellora1", "member": "SortOrder", "value": 1},
                     {"do": "put", "control": "Vellora1", "member": "Sorted", "value": True})
        self.open()
        before = self.look("before")
        self.host.click(self.header(1))
        self.host.click(self.header(2))
        self.assertFalse(before.same(self.look("sorted"), self.host.rect("list")))
        self.assertEqual(["Japan", "Norway", "Switzerland"],
                         [self.host.get("Vellora1", "List", row, 1) for row in range(3)])
        self.assert_open()


class DividerTest(ColumnTest):
    bag = bag(ColumnLocked2=True)

    def test_a_divider_dragged_changes_the_width(self):
        self.open()
        before = self.widths()
        self.drag_divider(1, 30)
        self.assertEqual([before[0] + 30, *before[1:]], self.widths())
        self.drag_divider(1, -50)
        self.assertEqual([before[0] - 20, *before[1:]], self.widths())
        self.assert_open()
        self.assert_events()
        self.look("narrower")

    def test_the_new_width_is_the_columns(self):
        self.open()
        width = self.host.get("Vellora1", "ColumnWidth", 1)
        pixels = self.widths()[0]
        self.drag_divider(1, 30)
        self.assertEqual(width * (pixels + 30) / pixels, self.host.get("Vellora1", "ColumnWidth", 1))
        self.host.call("Vellora1", "HideList")
        self.open()
        self.assertEqual(pixels + 30, self.widths()[0])

    def test_a_locked_column_keeps_its_width(self):
        self.open()
        before = self.widths()
        self.drag_divider(2, 30)
        self.assertEqual(before, self.widths())
        self.double_click(self.divider(2))
        self.assertEqual(before, self.widths())
        self.assert_open()

    def test_a_double_click_fits_a_column_to_its_texts(self):
        self.open()
        before = self.widths()
        self.double_click(self.divider(1))
        after = self.widths()
        self.assertNotEqual(before[0], after[0])
        self.assertEqual(before[1:], after[1:])
        self.assert_open()

    def test_a_locked_column_is_sized_by_code(self):
        self.open()
        before = self.widths()
        self.host.put("Vellora1", "ColumnWidth", {"single": 3000}, 2)
        self.assertEqual([before[0], before[1] * 2, before[2]], self.widths())


class HiddenColumnTest(ColumnTest):
    bag = bag(ColumnHidden2=True)

    def test_a_hidden_column_cannot_be_pulled_open(self):
        self.open()
        before = self.look("before")
        self.assertEqual(0, self.widths()[1])
        right, middle = self.host.rect("header", index=0)[2], self.header(1)[1]
        for offset in (0, 2, 4):
            self.drag((right + offset, middle), (right + offset + 40, middle))
            self.assertEqual(0, self.widths()[1], offset)
        self.double_click((right + 2, middle))
        self.assertEqual(0, self.widths()[1])
        self.assert_open()
        self.assert_same(before)

    def test_its_neighbours_are_sized_as_ever(self):
        self.open()
        before = self.widths()
        self.drag_divider(3, 20)
        self.assertEqual([before[0], 0, before[2] + 20], self.widths())
        start = self.divider(1)
        self.drag((start[0] - 2, start[1]), (start[0] + 18, start[1]))
        self.assertEqual([before[0] + 20, 0, before[2] + 20], self.widths())

    def test_shown_again_it_has_its_width(self):
        self.open()
        self.host.call("Vellora1", "HideList")
        self.host.put("Vellora1", "ColumnHidden", False, 2)
        self.open()
        widths = self.widths()
        self.assertEqual(widths[0], widths[1])
        self.look("shown")


class OrderByCodeTest(ColumnTest):

    def test_shows_in_an_open_and_in_the_next_list(self):
        self.open()
        before = self.look("before")
        self.host.put("Vellora1", "ColumnOrder", [3, 1, 2])
        self.assertEqual([3, 1, 2], self.order())
        shown = self.look("open")
        self.assertFalse(before.same(shown, self.host.rect("list")))
        self.host.call("Vellora1", "HideList")
        self.open()
        self.assert_same(shown)
        lefts = [self.host.rect("header", index=column)[0] for column in (2, 0, 1)]
        self.assertEqual(sorted(lefts), lefts)
        self.assert_events()

    def test_invalid_orders_are_refused(self):
        self.host.put("Vellora1", "ColumnOrder", [2, 3, 1])
        self.open()
        before = self.look("before")
        for order in ([1, 1, 2], [0, 1, 2], [1, 2, 4], [1, 2], [1, 2, 3, 1], 3, {"texts": ["1", "2", "9"]}):
            with self.subTest(order=order):
                with self.assertRaises(CallFailed) as failed:
                    self.host.put("Vellora1", "ColumnOrder", order)
                self.assertEqual(380, failed.exception.error["number"] & 0xFFFF)
                self.assertEqual([2, 3, 1], self.order())
        self.assert_same(before)
