"""The text field under a real keyboard and a real mouse."""
import subprocess

from support.bed import TWIPS_PER_PIXEL, ScreenTest, artifact, move, photograph, xdotool


def key_events(code, *inside):
    """What one key without a modifier raises."""
    return [f"Vellora1.KeyDown(I2 {code}, I2 0)", *inside, f"Vellora1.KeyUp(I2 {code}, I2 0)"]


CHANGE = "Vellora1.Change()"
CLICK = "Vellora1.Click()"


def press(character):
    return f"Vellora1.KeyPress(I2 {ord(character)})"


class TextTest(ScreenTest):
    """A control with three fruits, and an ordinary text field, on a form."""

    settings = {"AutoComplete": True, "Columns": 1}
    rows = ("Apple", "apricot", "Banana")

    def setUp(self):
        super().setUp()
        self.host.create("Vellora1", bag=self.settings)
        self.host.do("edit", name="other", place=[20, 300, 120, 24])
        self.host.fill(self.rows)
        self.host.put("Vellora1", "Text", "Vellora1")
        self.host.activate()
        self.enter()

    def enter(self):
        self.host.do("set_focus", control="Vellora1")
        self.host.events()

    def get(self, member):
        return self.host.get("Vellora1", member)

    def text(self):
        return self.get("Text")

    def until_text(self, text):
        self.until(lambda: self.text() == text, f"the text {text}")


class TypingTest(TextTest):

    def test_a_word_is_completed_letter_by_letter(self):
        self.host.type("ap")
        self.assertEqual(("Apple", 2, "ple"), (self.text(), self.get("SelStart"), self.get("SelText")))
        self.assert_events(*key_events(65, press("a"), CLICK, CHANGE, CHANGE),
                           *key_events(80, press("p"), CHANGE, CHANGE))
        self.picture("completed")
        self.host.type("r")
        self.assertEqual(("apricot", "icot"), (self.text(), self.get("SelText")))

    def test_deleting_completes_nothing_and_raises_no_change(self):
        self.host.type("ap")
        self.host.events()
        self.host.key("BackSpace", "BackSpace", "BackSpace")
        self.assertEqual("", self.text())
        self.assert_events(*key_events(8, press("\b")) * 3)

    def test_a_text_without_a_row_stays(self):
        self.host.type("xy")
        self.assertEqual("xy", self.text())
        self.assert_events(*key_events(88, press("x"), CHANGE), *key_events(89, press("y"), CHANGE))

    def test_f4_raises_nothing_of_a_key(self):
        self.host.key("F4")
        self.until(lambda: self.host.floating() == 1, "the list to open")
        self.host.key("F4")
        self.until(lambda: self.host.floating() == 0, "the list to close")
        self.assert_events("Vellora1.DropDown(I4 0)", "Vellora1.DropDown(I4 1)")

    def test_keys_with_a_modifier_raise_no_key_down(self):
        self.host.key("Right")
        self.host.events()
        self.host.counted("key_up", lambda: xdotool("keydown", "shift", "key", "Left", "keyup", "shift"), 2)
        self.assertEqual("1", self.get("SelText"))
        self.assert_events("Vellora1.KeyUp(I2 37, I2 1)", "Vellora1.KeyUp(I2 16, I2 0)")
        for keys in ("ctrl+Down", "alt+Down", "shift+F4"):
            self.host.counted("key_up", lambda keys=keys: xdotool("key", keys), 2)
            self.assertFalse([event for event in self.host.events() if "KeyDown" in event], keys)
            self.assertEqual((-1, 0), (self.get("ListIndex"), self.host.floating()))

    def test_handlers_change_and_swallow_characters(self):
        self.host.on("Vellora1", "KeyPress", {"do": "argument", "index": 0, "value": {"short": ord("b")}})
        self.host.type("a")
        self.assertEqual("Banana", self.text())
        self.host.on("Vellora1", "KeyPress", {"do": "argument", "index": 0, "value": {"short": 0}})
        self.host.type("q")
        self.assertEqual("Banana", self.text())

    def test_handlers_change_and_swallow_keys(self):
        self.host.on("Vellora1", "KeyDown", {"do": "argument", "index": 0, "value": {"short": 40}})
        self.host.key("Home")
        self.assertEqual("Apple", self.text())
        self.host.on("Vellora1", "KeyDown", {"do": "argument", "index": 0, "value": {"short": 0}})
        self.host.key("Down")
        self.assertEqual("Apple", self.text())

    def test_control_a_selects_all(self):
        self.host.key("End")
        self.assertEqual(0, self.get("SelLength"))
        self.host.counted("key_up", lambda: xdotool("key", "ctrl+a"), 2)
        self.assertEqual("Vellora1", self.get("SelText"))

    def test_the_alignment_switched_while_typing(self):
        self.host.type("x")
        for alignment in (1, 2, 0):
            self.host.put("Vellora1", "Alignment", alignment)
            self.assertEqual("Vellora1", self.host.focus()["owner"])
            self.picture(f"alignment-{alignment}")
            self.host.key("End")
            self.host.type("y")
        self.assertEqual("xyyy", self.text())


class CharactersTest(TextTest):
    rows = ("\U0001F600 grin", "\U0001F601 beam", "שלום")

    def test_characters_of_two_units_are_completed_whole(self):
        self.host.do("type", text="\U0001F601")
        self.until_text("\U0001F601 beam")
        self.assertEqual((1, " beam"), (self.get("ListIndex"), self.get("SelText")))
        self.assertEqual(1, self.host.events().count(CLICK))
        self.picture("astral")

    def test_right_to_left_text(self):
        self.host.do("type", text="של")
        # The first letter completes the text already.
        self.until(lambda: self.get("SelText") == "ום", "the second letter")
        self.assertEqual("שלום", self.text())
        self.picture("right-to-left")
        self.host.put("Vellora1", "Alignment", 1)
        self.picture("right-to-left-right-aligned")


    def test_backspace_and_the_arrows_take_a_character_of_two_units_whole(self):
        self.host.do("type", text="x\U0001F600y")
        self.until_text("x\U0001F600y")
        self.host.key("Left", "Left")
        self.assertEqual(1, self.get("SelStart"))
        self.host.key("Right", "BackSpace")
        self.assertEqual("xy", self.text())


class DeadKeyTest(TextTest):
    """An accent and then its letter, which the window system composes."""

    def setUp(self):
        # The layout has to be there before the program starts.
        subprocess.run(["setxkbmap", "us", "-variant", "intl"], check=True)
        self.addCleanup(subprocess.run, ["setxkbmap", "us"], check=True)
        super().setUp()

    def test_the_letter_arrives_composed(self):
        xdotool("key", "dead_acute", "e")
        self.until_text("é")
        events = self.host.events()
        self.assertEqual(1, events.count(CHANGE), events)


class UnusualKeysTest(TextTest):

    def test_control_with_either_shift_key(self):
        for shift in ("Shift_L", "Shift_R"):
            xdotool("keydown", "Control_L", "keydown", shift, "keyup", shift, "keyup", "Control_L")
            events = []
            self.until(lambda: events.extend(self.host.events()) or "Vellora1.KeyUp(I2 17, I2 0)" in events,
                       "the release of Ctrl")
            # Some platforms release the other shift key, too.
            self.assertEqual({"Vellora1.KeyUp(I2 16, I2 2)", "Vellora1.KeyUp(I2 17, I2 0)"},
                             set(events) - {"Vellora1.KeyUp(I2 16, I2 3)"})
        self.assertEqual(("Vellora1", 0), (self.text(), self.host.floating()))

    def test_a_character_by_its_number(self):
        self.host.counted("key_up", lambda: xdotool(
            "keydown", "alt", "key", "KP_0", "key", "KP_2", "key", "KP_2", "key", "KP_8", "keyup", "alt"), 5)
        self.assertFalse([event for event in self.host.events() if "KeyDown" in event or "DropDown" in event])
        # Not every platform makes a character of it.
        self.assertIn(self.text(), ("Vellora1", "ä"))
        self.assertEqual((-1, 0), (self.get("ListIndex"), self.host.floating()))
        self.host.type("b")
        self.assertEqual("Banana", self.text()[-6:])


class ClipboardTest(TextTest):

    def control(self, letter):
        self.host.counted("key_up", lambda: xdotool("key", f"ctrl+{letter}"), 2)

    def test_copies_cuts_pastes_and_undoes(self):
        self.control("c")
        self.assertEqual("Vellora1", self.host.do("clipboard"))
        self.control("x")
        self.assertEqual("", self.text())
        self.control("z")
        self.assertEqual("Vellora1", self.text())
        self.host.key("End")
        self.control("v")
        self.assertEqual("Vellora1Vellora1", self.text())
        self.assertEqual([CHANGE] * 3, [event for event in self.host.events() if event == CHANGE])

    def test_pasting_is_not_completed(self):
        self.host.do("clipboard", text="ap")
        self.control("v")
        self.assertEqual("ap", self.text())
        self.assertIn(CHANGE, self.host.events())

    def test_pasting_stops_at_the_end_of_the_line_and_at_the_limit(self):
        self.host.do("clipboard", text="first\r\nsecond")
        self.control("v")
        self.assertEqual("first", self.text())
        self.host.put("Vellora1", "MaxLength", 7)
        self.control("v")
        self.assertEqual("firstfi", self.text())

    def test_a_locked_field_is_only_read(self):
        self.host.put("Vellora1", "Locked", True)
        self.host.do("clipboard", text="pasted")
        for letter in "vxz":
            self.control(letter)
        self.host.type("q")
        self.host.key("BackSpace", "Delete")
        self.assertEqual("Vellora1", self.text())
        self.control("a")
        self.control("c")
        self.assertEqual("Vellora1", self.host.do("clipboard"))
        self.picture("locked")
        self.host.key("Down")
        self.assertEqual("Apple", self.text())


class MouseTest(TextTest):

    def test_a_drag_selects(self):
        text = self.host.rect("text")
        middle = (text[1] + text[3]) // 2
        self.host.press((text[0] + 3, middle))
        move((text[2] - 4, middle))
        self.host.release()
        self.assertEqual("Vellora1", self.get("SelText"))
        self.picture("dragged")
        events = self.host.events()
        self.assertEqual(["Vellora1.MouseDown(I2 1", "Vellora1.MouseUp(I2 1"],
                         [event.split(",")[0] for event in events])

    def test_a_double_click_selects_a_word(self):
        self.host.put("Vellora1", "Text", "two words")
        self.host.events()
        text = self.host.rect("text")
        point = (text[0] + 8, (text[1] + text[3]) // 2)
        self.host.counted("button_up", lambda: (move(point), xdotool("click", "--repeat", 2, "--delay", 30, 1)), 2)
        self.assertEqual("two", self.get("SelText").strip())
        self.assertEqual(["MouseDown", "MouseUp", "DblClick", "MouseUp"],
                         [event.split(".")[1].split("(")[0] for event in self.host.events()])

    def test_the_place_of_a_click_is_in_twips(self):
        text = self.host.rect("text")
        self.host.click((text[0] + 10, text[1] + 5))
        x, y = 10 * TWIPS_PER_PIXEL, 5 * TWIPS_PER_PIXEL
        self.assertEqual(f"Vellora1.MouseDown(I2 1, I2 0, R4 {x}, R4 {y})", self.host.events()[0])

    def test_the_right_button_brings_the_menu(self):
        self.host.put("Vellora1", "SelLength", 0)
        point = self.host.middle("text")
        move(point)
        xdotool("click", 3)
        photograph(artifact("MouseTest-menu.png"))
        # From the end: Select All is the last of the menu's commands.
        self.host.key("Up")
        xdotool("key", "Return")
        self.until(lambda: self.get("SelText") == "Vellora1", "everything to be selected")


class LooksTest(TextTest):

    def test_disabled_and_locked(self):
        plain = self.picture("plain")
        self.host.put("Vellora1", "Locked", True)
        self.assertTrue(plain.same(self.picture("locked"), self.host.rect("text")), "a locked field looks different")
        self.host.put("Vellora1", "Enabled", False)
        self.assertFalse(plain.same(self.picture("disabled"), self.host.rect("text")))


class DialogTest(TextTest):
    host_arguments = ("--dialog",)

    def test_tab_goes_on_and_comes_back(self):
        self.host.counted("key_down", lambda: xdotool("key", "Tab"))
        self.until(lambda: self.host.focus()["owner"] == "other", "the next field to have the focus")
        self.host.counted("key_down", lambda: xdotool("key", "shift+Tab"), 2)
        self.until(lambda: self.host.focus()["owner"] == "Vellora1", "the control to have the focus")
        self.assertEqual("Vellora1", self.get("SelText"))

    def test_tab_leaves_an_open_list(self):
        self.host.key("F4")
        self.until(lambda: self.host.floating() == 1, "the list to open")
        xdotool("key", "Tab")
        self.until(lambda: self.host.floating() == 0, "the list to close")
        self.until(lambda: self.host.focus()["owner"] == "other", "the next field to have the focus")
