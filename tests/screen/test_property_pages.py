"""The property pages, by themselves and in the platform's own property window.

Whether OK takes the values over cannot be seen here: the window of this platform's emulation asks no page to.
"""
import subprocess

from support.bed import ScreenTest, xdotool

CAPTION = "^Properties for Vellora1$"


class PropertyPagesTest(ScreenTest):

    def setUp(self):
        super().setUp()
        self.host.create(design=True)
        self.host.activate()

    def open(self):
        self.host.begin("properties", control="Vellora1")
        window = self.until(self.shown_window, "the property window")
        xdotool("windowactivate", "--sync", window)
        xdotool("windowmove", "--sync", window, 300, 300)

    def shown_window(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", CAPTION],
                               capture_output=True, text=True).stdout.split()
        return int(found[0]) if found else None

    def close(self):
        xdotool("key", "Escape")
        self.host.finish()
        self.until(lambda: self.shown_window() is None, "the property window to go")

    def test_the_verb_shows_all_pages_and_escape_changes_nothing(self):
        self.open()
        xdotool("type", "Hello")
        xdotool("key", "Tab", "Tab")
        xdotool("type", "12")
        self.picture("field-filled-in")
        self.close()
        self.assertEqual("Vellora1", self.host.get("Vellora1", "Text"))
        self.assertEqual(0, self.host.get("Vellora1", "MaxLength"))

    def test_every_page_shows_its_properties(self):
        for number, page in enumerate(("field", "list", "columns", "looks")):
            self.host.do("page", control="Vellora1", page=number)
            self.picture(page + "-page")
