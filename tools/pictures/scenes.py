"""What is on each picture. A scene leaves its form as it is to be photographed."""
import tempfile

from drawings import draw_icons, draw_leaf
from form import LOG_STYLE, PictureForm
from support.bed import wait_for, xdotool

COUNTRIES = [["Argentina", "Buenos Aires", "46.7", "Peso"], ["Denmark", "Copenhagen", "6.0", "Krone"],
             ["Iceland", "Reykjavik", "0.4", "Króna"], ["Japan", "Tokyo", "123.8", "Yen"],
             ["New Zealand", "Wellington", "5.3", "Dollar"], ["Peru", "Lima", "34.2", "Sol"],
             ["Portugal", "Lisbon", "10.7", "Euro"], ["Switzerland", "Bern", "9.0", "Franc"],
             ["Uruguay", "Montevideo", "3.4", "Peso"], ["Vietnam", "Hanoi", "101.0", "Dong"]]
ORDERS = [["4711", "Abrams & Daughters", "2024-03-01", "1,240.00"], ["4712", "Hofmann", "2024-03-01", "86.50"],
          ["4713", "Lindqvist Boats", "2024-03-04", "15,300.00"], ["4714", "Okafor", "2024-03-05", "412.00"],
          ["4715", "Pereira & Son", "2024-03-05", "99.90"], ["4716", "Tanaka Paper", "2024-03-07", "2,075.25"]]
INSTRUMENTS = ["Violin", "Viola", "Cello", "Double bass", "Harp", "Piano"]
DAYS = [["الأحد", "یکشنبه"], ["الاثنين", "دوشنبه"], ["الثلاثاء", "سه شنبه"], ["الأربعاء", "چهارشنبه"],
        ["الخميس", "پنجشنبه"], ["الجمعة", "جمعه"], ["السبت", "شنبه"]]
EVERY_TEXT = 2  # vlIncludeHeaders
RIGHT = 1


def vellora(take):
    """The one on the first page."""
    with PictureForm("Travel request", 500, 322) as form, tempfile.TemporaryDirectory() as folder:
        form.label("Traveller", 16, 18, 80)
        form.field("Mira Hofmann", 100, 14, 180)
        form.label("From", 16, 50, 80)
        form.field("2024-06-03", 100, 46, 90)
        form.label("until", 204, 50, 40)
        form.field("2024-06-21", 244, 46, 90)
        form.label("Destinations", 16, 82, 80)
        form.button("Send", 320, 284)
        form.button("Cancel", 406, 284)
        form.combo((100, 78, 386, 24), ["Country", "Capital", "Inhabitants", "Currency"],
                   [[*row[:2], f"{row[2]} million", row[3]] for row in COUNTRIES],
                   bag={"CheckBoxes": -1, "ButtonStyle": 1}, AutoSize=EVERY_TEXT, AllowResize=True,
                   AutoComplete=True, DropDownHeight={"single": 8},
                   objects={"HeaderIcons": {"images": draw_icons(folder, ("globe", "house", "people"))}})
        for column, icon in enumerate(("globe", "house", "people"), 1):
            form.host.put("Vellora1", "HeaderIcon", icon, column)
        for row in (1, 2, 6):
            form.host.put("Vellora1", "Checked", True, row)
        form.host.put("Vellora1", "ListIndex", 6)
        form.open()
        take(form)


def fill_a_list(take):
    with PictureForm("Orders", 440, 180) as form:
        form.label("Order", 16, 20)
        form.combo((80, 16, 344, 24), ["Number", "Customer", "Date", "Amount"], ORDERS, AutoSize=EVERY_TEXT,
                   TextColumn=2)
        form.host.put("Vellora1", "ListIndex", 2)
        form.open()
        take(form)


def headers_and_widths(take):
    with PictureForm("Orders", 456, 180) as form:
        form.label("Order", 16, 20)
        form.combo((80, 16, 160, 24), [("Number", 900), ("Customer", 1950), ("Date", 1150), ("Amount", 1050)], ORDERS,
                   TextColumn=2, DropDownWidthOffset={"single": 200 * 15})
        form.host.put("Vellora1", "ListIndex", 0)
        form.open()
        take(form)


def sort_by_header(take):
    with PictureForm("Countries", 400, 230) as form, tempfile.TemporaryDirectory() as folder:
        form.label("Country", 16, 20)
        form.combo((80, 16, 304, 24), [("Country", 1650), ("Capital", 1750), ("Currency", 1000)],
                   [[row[0], row[1], row[3]] for row in COUNTRIES], DropDownHeight={"single": 10},
                   objects={"HeaderIcons": {"images": draw_icons(folder, ("up", "down"))}})
        # What the handler on the page does when the header is clicked.
        form.host.on("Vellora1", "ColumnClick", *({"do": "put", "control": "Vellora1", **what} for what in (
            {"member": "SortColumn", "value": 2}, {"member": "Sorted", "value": True},
            {"member": "HeaderIcon", "value": "up", "args": [2]})))
        form.open()
        form.host.click(form.host.middle("header", index=1))
        wait_for(lambda: form.host.get("Vellora1", "HeaderIcon", 2) == "up", "the arrow")
        take(form)


def check_boxes(take):
    with PictureForm("Ensemble", 330, 160) as form:
        form.label("Instruments", 16, 20)
        form.combo((110, 16, 204, 24), ["Instrument"], INSTRUMENTS, bag={"CheckBoxes": -1}, AutoSize=EVERY_TEXT)
        for row in (0, 2, 3):
            form.host.put("Vellora1", "Checked", True, row)
        form.label("3 of 6 chosen", 16, 48, 90)
        form.open()
        take(form)


def icons_and_picture(take):
    with PictureForm("Countries", 400, 220) as form, tempfile.TemporaryDirectory() as folder:
        form.label("Country", 16, 20)
        form.combo((80, 16, 304, 24), [("Country", 1350), ("Capital", 1450), ("Millions", 1350)],
                   [row[:3] for row in COUNTRIES], DropDownHeight={"single": 9},
                   objects={"HeaderIcons": {"images": draw_icons(folder, ("globe", "house", "people"))},
                            "Picture": {"picture_file": draw_leaf(folder)}})
        for column, icon in enumerate(("globe", "house", "people"), 1):
            form.host.put("Vellora1", "HeaderIcon", icon, column)
        form.open()
        take(form)


def find_and_complete(take):
    with PictureForm("Countries", 330, 90) as form:
        form.label("Country", 16, 20)
        form.label("Type the first letters.", 80, 48)
        form.combo((80, 16, 234, 24), ["Country"], [row[0] for row in COUNTRIES], AutoComplete=True)
        form.host.do("set_focus", control="Vellora1")
        form.host.type("sw")
        wait_for(lambda: form.host.get("Vellora1", "Text") == "Switzerland", "the completion")
        take(form)


def resizable_list(take):
    with PictureForm("Orders", 470, 250) as form:
        form.label("Order", 16, 20)
        form.combo((80, 16, 200, 24), ["Number", "Customer", "Date", "Amount"], ORDERS * 5, AutoSize=EVERY_TEXT,
                   TextColumn=2, AllowResize=True, DropDownHeight={"single": 5})
        form.open()
        # Eight pixels at a time, as the keys pull.
        for key, times in (("Right", 20), ("Down", 4)):
            for _ in range(times):
                form.host.key(f"ctrl+shift+{key}")
        take(form)


def right_to_left(take):
    with PictureForm("Calendar", 330, 180, font=["Tahoma", 9]) as form:
        form.combo((16, 16, 200, 24), ["فارسی", "العربية"], [[b, a] for a, b in DAYS], Alignment=RIGHT, TextColumn=2,
                   AutoSize=EVERY_TEXT)
        form.label("اليوم", 230, 20, 80)
        form.host.put("Vellora1", "ListIndex", 1)
        form.open()
        take(form)


def high_dpi(take):
    with PictureForm("Orders", 440, 180, dpi=144) as form:
        form.label("Order", 16, 20)
        form.combo((80, 16, 344, 24), [("Number", 900), ("Customer", 1950), ("Date", 1150), ("Amount", 1000)], ORDERS,
                   TextColumn=2)
        form.host.put("Vellora1", "ListIndex", 2)
        form.open()
        take(form)


def told(event):
    """As the page writes it: the state by its name."""
    name, _, arguments = event.removeprefix("Vellora1.").partition("(")
    arguments = arguments.rstrip(")").split(", ") if arguments != ")" else []
    values = [argument.split(" ")[-1] for argument in arguments]
    if name == "DropDown":
        values = ["vlOpen" if values[0] == "0" else "vlClosed"]
    return f"{name}({', '.join(values)})"


def events_in_order(take):
    with PictureForm("What happens", 330, 150) as form:
        form.label("Country", 16, 20)
        form.combo((80, 16, 234, 24), ["Country"], [row[0] for row in COUNTRIES], AutoComplete=True)
        form.label("Events", 16, 54)
        form.host.events()
        form.host.click(form.host.middle("button"))
        wait_for(form.host.floating, "the list to open")
        form.host.click(form.host.middle("row", index=3))
        wait_for(lambda: not form.host.floating(), "the list to close")
        lines = [told(event) for event in form.host.events()]
        form.window("log", "Edit", (80, 50, 234, 84), "\r\n".join(lines), LOG_STYLE)
        take(form)


def saving(take):
    with PictureForm("Property page", 430, 315) as form:
        form.combo((10, 16, 200, 24), ["Country", "Capital"], [], AllowResize=True)
        form.host.do("page", control="Vellora1", page=1)
        take(form)


def accessibility_and_keys(take):
    with PictureForm("Countries", 400, 210) as form:
        form.label("Country", 16, 20)
        form.combo((80, 16, 304, 24), [("Country", 1500), ("Capital", 1550), ("Currency", 1050)],
                   [[row[0], row[1], row[3]] for row in COUNTRIES], AllowColumnReorder=True, AllowResize=True)
        form.open()
        form.host.key("F6", "Right")
        take(form)


SCENES = {"vellora": vellora, "fill-a-list": fill_a_list, "headers-and-widths": headers_and_widths,
          "sort-by-header": sort_by_header, "check-boxes": check_boxes, "icons-and-picture": icons_and_picture,
          "find-and-complete": find_and_complete, "resizable-list": resizable_list, "right-to-left": right_to_left,
          "high-dpi": high_dpi, "events-in-order": events_in_order, "saving": saving,
          "accessibility-and-keys": accessibility_and_keys}
