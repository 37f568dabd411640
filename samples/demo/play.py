#!/usr/bin/env python3
"""Plays the demonstration as a user would, with a real mouse and real keys, and checks what it does.

./vellora demo starts it where there is no display for a person to look at. It prints every step with the events that
followed, leaves a picture of each in VELLORA_ARTIFACTS, and ends with code 1 at the first step that went wrong.
"""
import os
import sys

ROOT = os.environ.get("VELLORA_ROOT") or os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path.insert(0, os.path.join(ROOT, "tests", "screen"))
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from player import Demo, Player  # noqa: E402
from sheet import make_sheet  # noqa: E402
from support.bed import xdotool  # noqa: E402

OPENED, CLICKED, CLOSED = "DropDown(vlOpen)", "Click()", "DropDown(vlClosed)"
FIELD = "Ordinary text field"


def zone_rows():
    """Countries and zones in the order of the list, read independently of the demonstration."""
    with open(os.path.join(os.environ["VELLORA_ZONEINFO"], "zone1970.tab"), encoding="utf-8") as file:
        lines = [line.rstrip("\n").split("\t") for line in file if not line.startswith("#")]
    return [(fields[0], fields[2]) for fields in lines]


def character_names():
    with open(os.path.join(os.environ["VELLORA_UNICODE"], "UnicodeData.txt"), encoding="utf-8") as file:
        return [line.split(";")[1] for line in file]


def zone_of(country):
    rows = zone_rows()
    index = next(i for i, (codes, _) in enumerate(rows) if codes.startswith(country))
    return index, rows[index][1]


def play_start(play, demo):
    with play.step("Look at the form as it starts", "start"):
        demo.expect_closed()
        demo.expect_state("text of Paper sizes", "A4")


def play_keys_in_list(play, demo):
    last = len(zone_rows()) - 1
    with play.step("Click the drop button of 'Time zones'", "time-zones-open", OPENED):
        demo.click_button("Time zones")
        demo.expect_open()
    with play.step("Press Page Down twice", "time-zones-page-down"):
        xdotool("key", "Next", "Next")
        demo.expect("a row further down selected", lambda: int(demo.state["selected row"]) > 2)
    with play.step("Press End", "time-zones-end"):
        xdotool("key", "End")
        demo.expect_state("selected row", str(last))
    with play.step("Press Home", "time-zones-home"):
        xdotool("key", "Home")
        demo.expect_state("selected row", "0")
        demo.expect_state("top row", "0")


def play_choosing(play, demo):
    row, zone = zone_of("JP")
    with play.step("Type 'jap' in the list", "time-zones-type-ahead"):
        xdotool("type", "--delay", "30", "jap")
        demo.expect_state("selected row", str(row))
    with play.step("Press Enter", "time-zones-enter", CLICKED, CLOSED):
        xdotool("key", "Return")
        demo.expect_closed()
        demo.expect_state("text of Time zones", zone)
        demo.expect_state("focus", "Time zones")
    with play.step("Open the list again", "time-zones-again", OPENED):
        demo.click_button("Time zones")
        demo.expect_open()
        demo.expect_state("selected row", str(row))
    chosen = demo.row_in_sight(2)
    with play.step("Click the third row in sight", "time-zones-click", CLICKED, CLOSED):
        demo.click_row(chosen)
        demo.expect_closed()
        demo.expect_state("text of Time zones", zone_rows()[chosen][1])


def play_completion(play, demo):
    with play.step("Select all and type 'europe/vi' in the text field", "time-zones-completion", more=True):
        xdotool("key", "ctrl+a")
        xdotool("type", "--delay", "30", "europe/vi")
        demo.expect_state("text of Time zones", "Europe/Vienna")


def play_long_list(play, demo):
    names = character_names()
    with play.step("Open 'Unicode characters'", "characters-open", OPENED):
        demo.click_button("Unicode characters")
        demo.expect_open()
        demo.expect_state("rows in list", "32767")
    with play.step("Press Escape", "characters-closed", CLOSED):
        xdotool("key", "Escape")
        demo.expect_closed()
    with play.step("Open 'All Unicode characters'", "all-characters-open", OPENED):
        demo.click_button("All Unicode characters")
        demo.expect_open()
        demo.expect_state("rows in list", str(len(names)))
    left, top, right, bottom = demo.rect("list")
    with play.step("Drag the grip", "all-characters-grip"):
        demo.drag((right - 5, bottom - 5), (right - 65, bottom + 55))
        demo.expect_state("list", f"{left} {top} {right - 60} {bottom + 60}")
    with play.step("Turn the wheel", "all-characters-wheel"):
        demo.wheel(10)
        demo.expect("a row further down on top", lambda: int(demo.state["top row"]) > 10)
    with play.step("Press End and turn the wheel back", "all-characters-end"):
        xdotool("key", "End")
        demo.expect_state("selected row", str(len(names) - 1))
        end = int(demo.state["top row"])
        demo.wheel(-2)
        demo.expect("a row further up on top", lambda: int(demo.state["top row"]) < end)
    chosen = demo.row_in_sight(3)
    with play.step(f"Click row {chosen}", "all-characters-click", CLICKED, CLOSED):
        demo.click_row(chosen)
        demo.expect_closed()
        demo.expect_state("text of All Unicode characters", names[chosen])


def play_closing(play, demo):
    with play.step("Press F4", "f4-open", OPENED):
        xdotool("key", "F4")
        demo.expect_open()
    with play.step("Press F4 again", "f4-closed", CLOSED):
        xdotool("key", "F4")
        demo.expect_closed()
        demo.expect_state("focus", "All Unicode characters")
    with play.step("Open 'Paper sizes'", "elsewhere-open", OPENED):
        demo.click_button("Paper sizes")
        demo.expect_open()
    with play.step("Click the ordinary text field", "elsewhere-closed", CLOSED):
        demo.click_place(f"place of {FIELD}")
        demo.expect_closed()
        demo.expect_state("focus", FIELD)


def play_small_lists(play, demo):
    with play.step("Open 'Paper sizes' again", "paper-sizes-open", OPENED):
        demo.click_button("Paper sizes")
        demo.expect_open()
        demo.expect_state("selected row", "1")
    with play.step("Click the last row", "paper-sizes-click", CLICKED, CLOSED):
        demo.click_row(5)
        demo.expect_closed()
        demo.expect_state("text of Paper sizes", "Letter")
    with play.step("Click the drop button of the disabled control, then the ordinary text field", "disabled"):
        demo.click_button("Disabled")
        demo.click_place(f"place of {FIELD}")
        # The click on the field comes after the other one: if that did anything, it has happened by now.
        demo.expect_state("focus", FIELD)
        demo.expect_closed()


def play_right_to_left(play, demo):
    with play.step("Open 'Paper sizes', then 'Right to left' while that list is open", "right-to-left-open",
                   OPENED, CLOSED, OPENED):
        demo.click_button("Paper sizes")
        demo.expect_open()
        demo.click_button("Right to left")
        demo.expect_open()
    with play.step("Press Down and Enter", "right-to-left-enter", CLICKED, CLOSED):
        xdotool("key", "Down", "Return")
        demo.expect_closed()
        demo.expect_state("text of Right to left", "الاثنين")


def play_check_boxes(play, demo):
    with play.step("Open 'Check boxes'", "check-boxes-open", OPENED):
        demo.click_button("Check boxes")
        demo.expect_open()
    with play.step("Click the check box of the first row", "check-boxes-checked", "ItemCheck(0, True, False)"):
        demo.click_check_box(0)
    with play.step("Press Escape", "check-boxes-closed", CLOSED):
        xdotool("key", "Escape")
        demo.expect_closed()


def play_resolution(play, dpi):
    with Demo(play, dpi) as demo:
        with play.step(f"Look at the form at {dpi} dots per inch", f"{dpi}-start"):
            demo.expect_closed()
        with play.step("Open 'Time zones'", f"{dpi}-time-zones", OPENED):
            demo.click_button("Time zones")
            demo.expect_open()
        with play.step("Press Enter on the second row", f"{dpi}-enter", CLICKED, CLOSED):
            xdotool("key", "Home", "Down", "Return")
            demo.expect_state("text of Time zones", zone_rows()[1][1])
        with play.step("Open 'All Unicode characters'", f"{dpi}-all-characters", OPENED):
            demo.click_button("All Unicode characters")
            demo.expect_open()
        with play.step("Press Escape", f"{dpi}-closed", CLOSED):
            xdotool("key", "Escape")
            demo.expect_closed()


def make_sheets(play):
    for dpi, styled in ((96, False), (96, True), (120, False), (144, False)):
        looks = f"{dpi} dots per inch" + (" under visual styles" if styled else "")
        print(f"Contact sheet of all looks at {looks}: {make_sheet(play.folder, dpi, styled)}", flush=True)


SCENES = (play_start, play_keys_in_list, play_choosing, play_completion, play_long_list, play_closing,
          play_small_lists, play_right_to_left, play_check_boxes)


def main():
    folder = os.environ.get("VELLORA_ARTIFACTS") or os.path.join(ROOT, "build", "artifacts", "demo")
    play = Player(folder)
    try:
        with Demo(play, 96) as demo:
            for scene in SCENES:
                scene(play, demo)
        for dpi in (120, 144):
            play_resolution(play, dpi)
        make_sheets(play)
    except AssertionError as failure:
        where = f"in step {play.number}" if play.number else "at the start"
        print(f"\nFAILED {where}: {failure}")
        return 1
    finally:
        print(f"The pictures are in {folder}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
