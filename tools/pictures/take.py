#!/usr/bin/env python3
"""Takes the pictures of the documents: ./vellora pictures [NAME...] starts it.

Every scene is a form that is made, brought into a state with mouse and keys, and photographed into docs/pictures.
"""
import os
import sys

ROOT = os.environ["VELLORA_ROOT"]
sys.path.insert(0, os.path.join(ROOT, "tests", "screen"))

from scenes import SCENES  # noqa: E402

FOLDER = os.path.join(ROOT, "docs", "pictures")


def main(names):
    unknown = sorted(set(names) - set(SCENES))
    if unknown:
        print(f"There is no picture {', '.join(unknown)}; there are {', '.join(SCENES)}.")
        return 2
    for name in names or SCENES:
        path = os.path.join(FOLDER, f"{name}.png")
        SCENES[name](lambda form, path=path: form.take(path))
        print(f"{name}.png: {os.path.getsize(path)} bytes", flush=True)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
