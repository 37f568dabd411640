"""Icons in the headers of an open list, as a user sees them."""
from support.bed import ScreenTest

RED, GREEN, BLUE = (255, 0, 0), (0, 128, 0), (0, 0, 255)


class HeaderIconsTest(ScreenTest):

    def setUp(self):
        super().setUp()
        self.host.create(place=(20, 20, 360, 24))
        self.host.put("Vellora1", "Columns", 3)
        for column, caption in enumerate(("Country", "Capital", "Population"), 1):
            self.host.put("Vellora1", "ColumnHeader", caption, column)
        for row in (["Switzerland", "Bern", "8.9"], ["Norway", "Oslo", "5.5"], ["Japan", "Tokyo", "124"]):
            self.host.fill([row])
        self.host.activate()

    def assign(self, size):
        self.host.do("set", control="Vellora1", member="HeaderIcons", value={"image_list": size})
        for column, key in enumerate(("red", "green"), 1):
            self.host.put("Vellora1", "HeaderIcon", key, column)

    def open(self):
        self.host.click(self.host.middle("button"))
        self.until(lambda: self.host.floating() == 1, "the list to open")
        return self.picture("open")

    def colors(self, picture, column):
        return picture.colors(self.host.rect("header", index=column - 1))

    def test_icons_stand_in_their_headers(self):
        self.assign(16)
        shown = self.open()
        self.assertIn(RED, self.colors(shown, 1))
        self.assertIn(GREEN, self.colors(shown, 2))
        self.assertNotIn(BLUE, self.colors(shown, 3))
        for row in range(3):
            self.assertNotIn(RED, shown.colors(self.host.rect("row", index=row)))

    def test_large_icons_are_seen_whole(self):
        self.assign(32)
        shown = self.open()
        # 28 by 28 pixels inside the white border.
        self.assertEqual(28 * 28, self.colors(shown, 1)[RED])
        self.assertEqual(28 * 28, self.colors(shown, 2)[GREEN])
        self.assertIsNotNone(self.host.rect("row", index=2))

    def test_captions_are_read_beside_their_icons(self):
        self.host.put("Vellora1", "AutoSize", 2)
        self.assign(16)
        self.open()
        widths = self.host.list()["widths"]
        self.host.call("Vellora1", "HideList")
        self.host.put("Vellora1", "HeaderIcon", "", 2)
        self.host.call("Vellora1", "ShowList")
        self.assertGreaterEqual(widths[1] - self.host.list()["widths"][1], 16)
        self.picture("one-taken-away")

    def test_without_the_list_there_are_no_icons(self):
        self.assign(16)
        self.host.do("set", control="Vellora1", member="HeaderIcons", value={"nothing": True})
        self.assertNotIn(RED, self.colors(self.open(), 1))
