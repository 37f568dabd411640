"""The test container under a real mouse and real keys, as a person tries the control in it."""
import os
import tempfile
import unittest

from support.bed import artifact, click, move, photograph, wait_for, xdotool
from support.watched import WatchedSample, shown_window

TITLE = "Vellora test container$"
NOWHERE = (1270, 1015)
CHOSEN = "Vellora1.Click()"


def windows_path(path):
    return "Z:" + path.replace("/", "\\")


class ContainerTest(unittest.TestCase):

    def setUp(self):
        self.sample = WatchedSample("container", TITLE)
        self.addCleanup(self.sample.close)
        self.sample.activate()
        self.sample.expect_state("chosen", "Vellora1")
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def picture(self, name):
        move(NOWHERE)
        self.sample.read()
        photograph(artifact(f"ContainerTest-{self._testMethodName}-{name}.png"))

    def place(self, name):
        return self.sample.expect(f"the place of {name}", lambda: self.sample.state.get(name)) and self.sample.rect(name)

    def middle(self, name):
        left, top, right, bottom = self.place(name)
        return (left + right) // 2, (top + bottom) // 2

    def expect(self, name, value):
        self.sample.expect_state(name, value)

    def drag(self, start, by):
        move(start)
        xdotool("mousedown", 1)
        for step in range(1, 5):
            xdotool("mousemove", start[0] + by[0] * step // 4, start[1] + by[1] * step // 4)
        xdotool("mouseup", 1)

    def answer_with_path(self, window, path):
        wait_for(lambda: shown_window(window), f"the window {window}")
        xdotool("windowactivate", "--sync", shown_window(window))
        xdotool("type", "--delay", "5", windows_path(path))
        xdotool("key", "Return")

    def type_value(self, name, text):
        click(self.middle(f"place of property {name}"))
        xdotool("key", "F2")
        xdotool("type", "--delay", "5", text)

    def set_property(self, name, text):
        self.type_value(name, text)
        xdotool("key", "Return")

    def insert_second(self):
        click(self.middle("form"))
        self.expect("chosen", "")
        xdotool("key", "Insert")
        self.expect("chosen", "Vellora2")

    def choose_a_row_in_a_run(self):
        xdotool("key", "F5")
        self.expect("mode", "run")
        xdotool("key", "ctrl+r")
        left, top, right, bottom = self.place("place of Vellora1")
        click((right - (bottom - top) // 2, (top + bottom) // 2))
        self.sample.expect("the list to open", lambda: self.sample.state.get("list") != "closed")
        self.picture("list")
        click(self.middle("second row"))
        self.expect("list", "closed")
        self.expect("text of Vellora1", "A4")
        self.sample.expect("the event", lambda: CHOSEN in self.sample.events)

    def test_a_form_is_designed_run_saved_and_opened(self):
        self.picture("first-look")
        self.insert_second()
        before = self.place("place of Vellora2")
        self.drag(self.middle("place of Vellora2"), (0, 2 * (before[3] - before[1])))
        self.sample.expect("the control to follow the mouse",
                           lambda: self.sample.rect("place of Vellora2")[1] > before[1])
        self.set_property("Name", "Box")
        self.expect("chosen", "Box")
        self.set_property("GridLines", "True")
        self.expect("property GridLines", "True")
        self.picture("designed")
        click(self.middle("place of Vellora1"))
        self.expect("chosen", "Vellora1")
        self.choose_a_row_in_a_run()
        self.picture("run")
        xdotool("key", "F5")
        self.expect("mode", "design")
        self.expect("text of Vellora1", "Choose a paper")
        self.save_and_open()

    def save_and_open(self):
        path = os.path.join(self.folder.name, "paper.frm")
        xdotool("key", "ctrl+s")
        self.answer_with_path("^Save As$", path)
        self.expect("title", "paper.frm - Vellora test container")
        with open(path, encoding="utf-8") as file:
            self.assertIn("Begin VelloraCTL.Vellora Box", file.read())
        xdotool("key", "ctrl+n")
        self.expect("title", "Form1 - Vellora test container")
        xdotool("key", "ctrl+o")
        self.answer_with_path("^Open$", path)
        self.expect("title", "paper.frm - Vellora test container")
        self.expect("said", "paper.frm is open.")

    def test_a_form_of_the_command_line_is_opened(self):
        path = os.path.join(self.folder.name, "given.frm")
        with open(path, "w", encoding="utf-8") as file:
            file.write("VERSION 5.00\nBegin VB.Form Given\nEnd\n")
        sample = WatchedSample("container", TITLE, windows_path(path))
        self.addCleanup(sample.close)
        sample.expect_state("title", "given.frm - Vellora test container")

    def open_list_by_keys(self):
        xdotool("key", "F5")
        self.expect("mode", "run")
        xdotool("key", "ctrl+r", "F4")
        self.sample.expect("the list to open", lambda: self.sample.state.get("list", "closed") != "closed")

    def test_a_run_can_end_while_a_list_is_open(self):
        for _ in range(2):
            self.open_list_by_keys()
            xdotool("key", "F5")
            self.expect("mode", "design")
            self.expect("list", "closed")
        self.open_list_by_keys()
        xdotool("key", "ctrl+n")
        self.expect("mode", "design")
        self.expect("chosen", "")

    def hold(self, control):
        """Presses the mouse on a control and drags it a little."""
        before = self.place(f"place of {control}")
        x, y = self.middle(f"place of {control}")
        move((x, y))
        self.addCleanup(xdotool, "mouseup", 1)
        xdotool("mousedown", 1, "mousemove", x + 40, y + 40, "mousemove", x + 60, y + 60)
        self.sample.expect("the control to follow", lambda: self.sample.rect(f"place of {control}") != before)

    def test_escape_takes_a_drag_back(self):
        before = self.place("place of Vellora1")
        self.hold("Vellora1")
        xdotool("key", "Escape")
        self.sample.expect("the control to go back", lambda: self.sample.rect("place of Vellora1") == before)
        xdotool("mouseup", 1)

    def test_a_drag_ends_when_keys_choose_something_else(self):
        self.insert_second()
        first = self.place("place of Vellora1")
        self.hold("Vellora2")
        xdotool("key", "shift+Tab")
        self.expect("chosen", "Vellora1")
        xdotool("mousemove_relative", 30, 30, "mouseup", 1)
        self.hold("Vellora2")
        self.assertEqual(first, self.place("place of Vellora1"))
        for chosen in ("Vellora1", ""):
            xdotool("key", "Delete")
            self.expect("chosen", chosen)
        xdotool("mousemove_relative", 30, 30, "mouseup", 1, "key", "Insert")
        self.expect("chosen", "Vellora1")

    def test_everything_goes_by_keys(self):
        xdotool("key", "Insert")
        self.expect("chosen", "Vellora2")
        xdotool("key", "Right", "shift+Left", "ctrl+Down")
        self.expect("property Left", "360")
        self.expect("property Width", "2280")
        xdotool("key", "F6")
        self.expect("focus", "grid")
        xdotool("type", "--delay", "5", "Keys")
        xdotool("key", "Return")
        self.expect("chosen", "Keys")
        xdotool("key", "F6")
        self.expect("focus", "methods")
        xdotool("key", "Tab")
        xdotool("type", "--delay", "5", "a row")
        xdotool("key", "Return")
        self.expect("result", "Done")
        xdotool("key", "ctrl+Tab")
        self.expect("focus", "log")
        xdotool("key", "F5")
        self.expect("mode", "run")
        self.expect("focus", "form")
        xdotool("key", "ctrl+r", "F4")
        self.sample.expect("the list to open", lambda: self.sample.state.get("list", "closed") != "closed")
        xdotool("key", "Down", "Return")
        self.expect("list", "closed")
        self.expect("chosen", "Vellora1")
        xdotool("key", "Tab")
        self.expect("chosen", "Keys")
        xdotool("key", "shift+F6", "ctrl+c")
        self.expect("said", "The events are on the clipboard.")
        self.picture("run")
        xdotool("key", "F5", "Delete")
        self.expect("mode", "design")
        self.expect("chosen", "Vellora1")

    def test_members_are_chosen_from_the_open_list_by_keys(self):
        xdotool("key", "F6", "F6")
        self.expect("focus", "methods")
        said = self.sample.state["said"]
        xdotool("key", "alt+Down", "Home", "Down", "Down", "Return", "F6")
        self.expect("focus", "log")
        self.expect("said", said)

    def test_a_typed_value_counts_when_another_property_is_chosen(self):
        self.type_value("Left", "600")
        click(self.middle("place of property Top"))
        self.expect("property Left", "600")

    def test_a_typed_value_is_not_lost_by_closing(self):
        self.type_value("Left", "600")
        xdotool("key", "alt+F4")
        question = "^Vellora test container$"
        wait_for(lambda: shown_window(question), "the question")
        xdotool("key", "Escape")
        wait_for(lambda: not shown_window(question), "the question to go")
        self.expect("property Left", "600")

    def test_a_refused_value_can_be_mended_or_given_up(self):
        self.set_property("Width", "much")
        self.expect("said", 'Width: "much" is no number of twips; an inch has 1440.')
        self.picture("refused")
        xdotool("key", "Escape")
        self.expect("property Width", "3000")
        self.set_property("Width", "2400")
        self.expect("property Width", "2400")

    def test_changes_are_not_lost_without_a_question(self):
        self.insert_second()
        xdotool("key", "ctrl+n")
        question = "^Vellora test container$"
        wait_for(lambda: shown_window(question), "the question")
        self.picture("question")
        xdotool("key", "Escape")
        wait_for(lambda: not shown_window(question), "the question to go")
        self.expect("chosen", "Vellora2")
        damaged = os.path.join(self.folder.name, "damaged.frm")
        with open(damaged, "w", encoding="utf-8") as file:
            file.write("This is a letter.\n")
        xdotool("key", "ctrl+o")
        wait_for(lambda: shown_window(question), "the question")
        xdotool("key", "n")
        self.answer_with_path("^Open$", damaged)
        wait_for(lambda: shown_window(question), "the message")
        self.picture("damaged")
        xdotool("key", "Return")
        wait_for(lambda: not shown_window(question), "the message to go")
        self.expect("chosen", "Vellora2")
