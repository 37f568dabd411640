"""The open list without a mouse: headers clicked, sized and moved, columns fitted, the list pulled larger."""
from support.lists import ListOfRowsTest


class ListKeysTest(ListOfRowsTest):
    place = (20, 20, 340, 24)
    rows = [["Switzerland", "Bern", "8.9"], ["Norway", "Oslo", "5.5"], ["Japan", "Tokyo", "124"]]
    captions = {f"ColumnHeader{n}": caption for n, caption in enumerate(("Country", "Capital", "People"), 1)}
    bag = {"Columns": 3, "AllowColumnReorder": True, "AllowResize": True, **captions,
           **{f"ColumnWidth{n}": {"single": 1500} for n in (1, 2, 3)}}

    def setUp(self):
        super().setUp()
        self.host.call("Vellora1", "ShowList")
        self.until(lambda: self.host.focus()["in_list"], "the list to open")
        self.host.events()
        self.before = self.look("before")

    def header(self, column):
        return self.host.rect("header", index=column - 1)

    def widths(self):
        return self.host.list()["widths"]

    def assert_marked(self, *columns, picture):
        """These headers look otherwise than at first, the others as they did."""
        for column in (1, 2, 3):
            with self.subTest(picture=picture, column=column):
                self.assertEqual(column not in columns, self.before.same(self.look(picture), self.header(column)))

    def test_the_marked_header_has_a_frame_of_dots(self):
        self.host.key("F6")
        self.assert_marked(1, picture="first")
        self.host.key("Right")
        self.assert_marked(2, picture="second")
        left, top, right, bottom = self.header(2)
        dots = self.before.differences(self.header(2), self.header(2), self.look("second-again"))
        self.assertEqual([], [(x, y) for x, y in dots if 3 < x < right - left - 4 and 3 < y < bottom - top - 4])
        self.assertGreater(len(dots), right - left - 8)
        self.host.key("F6")
        self.assert_marked(picture="none")
        self.assert_open()

    def test_space_and_enter_click_it(self):
        self.host.key("F6", "Right", "space", "Return")
        self.assert_events("Vellora1.ColumnClick(I2 2)", "Vellora1.ColumnClick(I2 2)")
        self.assert_open()

    def test_the_mark_follows_a_column_that_is_sized_and_moved(self):
        width = self.widths()[0]
        self.host.key("F6", "shift+Right", "shift+Right")
        self.assertEqual(width + 16, self.widths()[0])
        self.look("wider")
        self.host.key("ctrl+Right")
        self.assert_events("Vellora1.ColumnReorder()")
        self.assertEqual([2, 1, 3], self.host.get("Vellora1", "ColumnOrder"))
        self.look("moved")
        self.host.key("shift+Left", "shift+Left", "ctrl+Left", "F6")
        self.assert_marked(picture="as-before")
        self.assertTrue(self.before.same(self.look("the-same"), self.host.rect("list")))

    def test_the_mark_goes_with_its_column(self):
        self.host.on("Vellora1", "ColumnClick",
                     {"do": "put", "control": "Vellora1", "member": "Columns", "value": {"short": 2}, "args": []})
        self.host.key("F6", "Right", "Right", "space")
        self.assertEqual(2, self.host.get("Vellora1", "Columns"))
        self.assertTrue(self.before.same(self.look("gone"), self.header(1)))

    def test_columns_are_fitted(self):
        self.host.key("ctrl+KP_Add")
        self.assertNotIn(self.widths()[0], (100, 0))
        self.assertEqual(3, len(set(self.widths())))
        self.look("fitted")

    def test_the_list_is_pulled_larger(self):
        left, top, right, bottom = self.host.rect("floating")
        _, row_top, _, row_bottom = self.host.rect("row", index=0)
        self.host.key("ctrl+shift+Down", "ctrl+shift+Right")
        self.assertEqual([left, top, right + 8, bottom + row_bottom - row_top], self.host.rect("floating"))
        self.look("larger")
        self.host.key("ctrl+shift+Up", "ctrl+shift+Left")
        self.assertEqual([left, top, right, bottom], self.host.rect("floating"))
        self.assert_open()

    def test_escape_leaves_the_headers_and_then_the_list(self):
        self.host.key("F6", "Escape")
        self.assert_open()
        self.assert_marked(picture="rows-again")
        self.host.key("Escape")
        self.until_closed()
        self.host.call("Vellora1", "ShowList")
        self.assert_marked(picture="opened-again")

    def test_the_rows_have_their_keys_afterwards(self):
        self.host.key("F6", "Right", "Down", "Return")
        self.until_closed()
        self.assertEqual(0, self.host.get("Vellora1", "ListIndex"))
