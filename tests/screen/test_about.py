"""The about box under a real mouse and real keys."""
import subprocess

from support.bed import ScreenTest, click, xdotool

CAPTION = "^About VelloraCTL$"


class AboutTest(ScreenTest):

    def setUp(self):
        super().setUp()
        self.host.create()
        self.host.activate()
        self.host.begin("call", control="Vellora1", member="About", args=[])
        self.box = self.until(self.shown_box, "the about box")
        xdotool("windowactivate", "--sync", self.box)

    def shown_box(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", CAPTION],
                               capture_output=True, text=True).stdout.split()
        return int(found[0]) if found else None

    def assert_gone(self):
        self.host.finish()
        self.until(lambda: self.shown_box() is None, "the about box to go")
        self.assertIsNone(self.host.rect("box"))
        self.until(lambda: self.host.do("form")["active"], "the form active again")

    def test_a_click_on_ok_closes_it(self):
        shown = self.picture("shown")
        self.assertGreater(len(shown.colors(self.host.rect("box_ok"))), 1, "a button without text")
        click(self.host.middle("box_ok"))
        self.assert_gone()
        self.picture("closed")

    def test_escape_closes_it(self):
        xdotool("key", "Escape")
        self.assert_gone()

    def test_return_presses_ok(self):
        xdotool("key", "Return")
        self.assert_gone()

    def test_the_form_takes_no_click_meanwhile(self):
        self.host.events()
        click(self.host.middle("button"))
        xdotool("windowactivate", "--sync", self.box)
        xdotool("key", "Escape")
        self.assert_gone()
        self.assert_events()
        self.assertEqual(0, self.host.floating())
