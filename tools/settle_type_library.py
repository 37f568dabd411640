#!/usr/bin/env python3
"""Takes the moment of its making out of a type library, so that the same sources give the same bytes.

widl writes it twice: as words in its "Created by" record and as seconds in the record that follows.

Usage: settle_type_library.py FILE.tlb
"""

import re
import sys

# A text record, padded with "W" to a multiple of four, then a VT_UI4 record with the seconds.
MADE = re.compile(rb"(Created by WIDL version [^ ]+ at )(.{24})(\nW*\x13\x00)(.{4})(WW)", re.DOTALL)
NO_DATE = b"Thu Jan  1 00:00:00 1970"


def settle(library: bytes) -> bytes:
    settled, places = MADE.subn(
        lambda made: made[1] + NO_DATE + made[3] + bytes(4) + made[5], library)
    if places != 1:
        raise SystemExit(f"settle_type_library: {places} making records where one was expected")
    return settled


def main() -> None:
    path = sys.argv[1]
    with open(path, "rb") as file:
        library = file.read()
    with open(path, "wb") as file:
        file.write(settle(library))


if __name__ == "__main__":
    main()
