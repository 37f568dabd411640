"""How the open list looks: in the host's fonts, over its pictures, and within its border."""
from support.bed import move
from support.looks import NOWHERE, TEXT, YELLOW, LookTest, rgb


class FontTest(LookTest):

    def height_of_row(self):
        row = self.host.rect("row", index=0)
        return row[3] - row[1]

    def test_the_host_changes_its_font_object(self):
        self.create(rows=12)
        self.open()
        row, before = self.height_of_row(), self.picture("before")
        self.host.call("Vellora1", "HideList")
        self.host.put_of("Vellora1", "Font", "Size", 14)
        self.host.put_of("Vellora1", "Font", "Bold", True)
        self.host.do("place", control="Vellora1", place=[20, 20, 200, 24])
        control = self.control()
        self.assertGreater(control[3] - control[1], 24)
        self.open()
        shown = self.picture("after")
        self.assertGreater(self.height_of_row(), row)
        self.assertFalse(before.same(shown, self.host.rect("text")))
        list_, rows = self.host.rect("list"), self.host.list()["page"]
        self.assertEqual(8, rows)
        self.assertLessEqual(self.host.rect("row", index=7)[3], list_[3])

    def test_the_open_list_follows_the_font_object(self):
        self.create(rows=12)
        self.open()
        row = self.height_of_row()
        self.host.put_of("Vellora1", "Font", "Size", 14)
        self.assertGreater(self.height_of_row(), row)
        self.picture("after")

    def test_tiny_and_huge_fonts(self):
        for points in (1, 72):
            with self.subTest(points=points):
                self.create(font=["Tahoma", points], rows=3)
                control = self.control()
                self.host.do("combo", name="combo", place=[300, 20, 200, 300], font=["Tahoma", points], rows=[],
                             text=TEXT)
                combo = self.host.rect("edit", edit="combo")
                self.assertEqual(combo[3] - combo[1], control[3] - control[1])
                self.open()
                self.picture(f"{points}-points")
                self.host.click(self.host.middle("row", index=1))
                self.assertEqual("row 01", self.host.get("Vellora1", "Text"))
                self.host.do("destroy", control="Vellora1")
                self.host.do("remove", edit="combo")


class PictureTest(LookTest):

    def open_with(self, kind, width, height, rows=40):
        self.create(rows=rows)
        self.host.put("Vellora1", "AutoSize", 2)
        self.host.put("Vellora1", "DropDownBackColor", YELLOW)
        self.host.set("Vellora1", "Picture", {"picture": [kind, width, height]})
        self.open()

    def test_scrolling_there_and_back_leaves_no_trace(self):
        for kind, width, height in (("bitmap", 60, 50), ("bitmap", 500, 400), ("icon", 0, 0), ("metafile", 90, 60)):
            with self.subTest(kind=kind, width=width):
                self.open_with(kind, width, height)
                list_ = self.host.rect("list")
                middle = self.host.middle("list")
                move(middle)
                before = self.picture(f"{kind}-{width}-before")
                self.host.wheel(middle, 2)
                self.assertGreater(self.host.list()["top"], 0)
                scrolled = self.picture(f"{kind}-{width}-scrolled")
                self.assertFalse(before.same(scrolled, list_))
                self.host.wheel(middle, -2)
                self.assertTrue(before.same(self.picture(f"{kind}-{width}-back"), list_))
                self.host.call("Vellora1", "HideList")
                self.host.do("destroy", control="Vellora1")

    def test_lies_in_the_corner_and_stands_still(self):
        dark = (0, 80, 0)
        self.open_with("bitmap", 60, 50)
        list_ = self.host.rect("list")
        move(self.host.middle("list"))
        corner = self.picture("before").first_pixel(list_, lambda color: color == dark)
        self.host.wheel(self.host.middle("list"), 2)
        scrolled = self.picture("scrolled")
        self.assertEqual(corner, scrolled.first_pixel(list_, lambda color: color == dark))
        shown = scrolled.colors(list_)
        self.assertGreater(shown.get(rgb(YELLOW), 0), 1000, "the list's own colour around the picture")

    def test_dragging_the_list_larger_leaves_no_trace(self):
        self.open_with("bitmap", 500, 400)
        self.host.call("Vellora1", "HideList")
        self.host.put("Vellora1", "AllowResize", True)
        self.open()
        floating = self.host.rect("floating")
        corner = (floating[2] - 5, floating[3] - 5)
        self.host.press(corner)
        for step in (10, 30, 60):
            move((corner[0] + step, corner[1] + step))
        self.host.release()
        self.until(lambda: self.host.rect("floating")[2] > floating[2] + 40, "the list to grow")
        move(NOWHERE)
        grown = self.picture("grown")
        list_ = self.host.rect("list")
        self.host.call("Vellora1", "Refresh")
        self.host.do("repaint")
        self.assertTrue(grown.same(self.picture("repainted"), list_))

    def test_nothing_takes_it_away(self):
        self.create(rows=5)
        self.open()
        before, list_ = self.picture("before"), self.host.rect("list")
        self.host.set("Vellora1", "Picture", {"picture": ["bitmap", 60, 50]})
        self.assertFalse(before.same(self.picture("with"), list_))
        self.host.set("Vellora1", "Picture", {"nothing": True})
        self.assertIsNone(self.host.get("Vellora1", "Picture"))
        self.assertTrue(before.same(self.picture("without"), list_))

    def test_the_selected_row_is_marked_over_it(self):
        self.open_with("bitmap", 500, 400)
        self.host.key("Down")
        row = self.host.rect("row", index=0)
        shown = self.picture("selected")
        marked = shown.pixel(row[2] - 30, row[1] + 3)
        self.assertEqual(marked, shown.pixel(row[2] - 60, row[3] - 3))
        self.assertGreater(shown.colors(row).get(marked, 0), (row[2] - row[0]) * (row[3] - row[1]) // 2)


class ListBorderTest(LookTest):

    def assert_border(self, name):
        floating, shown = self.host.rect("floating"), self.picture(name)
        edges = {"left": [floating[0], floating[1] + 1, floating[0] + 1, floating[3]],
                 "right": [floating[2] - 1, floating[1] + 1, floating[2], floating[3]],
                 "bottom": [floating[0], floating[3] - 1, floating[2], floating[3]]}
        for edge, rect in edges.items():
            self.assertEqual(1, len(shown.colors(rect)), edge)
            self.assertNotIn((255, 255, 255), shown.colors(rect), edge)

    def test_around_an_empty_list(self):
        self.create()
        for turn in range(3):
            self.open()
            self.assert_border(f"empty-{turn}")
            self.host.call("Vellora1", "HideList")

    def test_around_an_empty_list_of_many_rows_height(self):
        for height in (1, 4, 20):
            with self.subTest(height=height):
                self.create()
                self.host.put("Vellora1", "DropDownHeight", {"single": height})
                self.open()
                self.assert_border(f"{height}")
                self.host.call("Vellora1", "HideList")
                self.host.do("destroy", control="Vellora1")

    def test_around_a_list_that_is_emptied(self):
        self.create(rows=20)
        self.open()
        self.host.call("Vellora1", "Clear")
        self.assert_border("emptied")

    def test_around_a_list_without_headers(self):
        self.create(rows=3)
        self.host.put("Vellora1", "HideColumnHeaders", True)
        self.open()
        self.assert_border("no-headers")

    def test_around_the_grip(self):
        self.create(rows=3)
        self.host.put("Vellora1", "AllowResize", True)
        self.open()
        shown = self.picture("grip")
        left, _, right, bottom = self.host.rect("floating")
        top = self.host.rect("list")[3]
        for edge, rect in {"left": [left, top, left + 1, bottom], "right": [right - 1, top, right, bottom],
                           "bottom": [left, bottom - 1, right, bottom]}.items():
            self.assertEqual(1, len(shown.colors(rect)), edge)
        corner = [right - (bottom - top), top, right - 1, bottom - 1]
        self.assertGreater(len(shown.colors(corner)), 2, "no grip")
