#!/usr/bin/env python3
"""Checks that every picture of the documents has a scene that makes it and a page that shows it, and is small."""

import ast
import sys

import doc_pages
from doc_pages import DOCS, ROOT

PICTURES = DOCS / "pictures"
MOST_BYTES = 60_000


def scene_names() -> set[str]:
    source = ast.parse((ROOT / "tools/pictures/scenes.py").read_text(encoding="utf-8"))
    tables = [node.value for node in source.body if isinstance(node, ast.Assign) and node.targets[0].id == "SCENES"]
    return {key.value for key in tables[0].keys}


def shown() -> set[str]:
    return {(page.parent / link).resolve().stem for page in doc_pages.all_pages() for link in doc_pages.links_of(page)
            if link.endswith(".png")}


def faults() -> list[str]:
    there = {path.stem: path for path in sorted(PICTURES.glob("*"))}
    return [*(f"docs/pictures/{name}.png is missing: ./vellora pictures {name}"
              for name in sorted(scene_names() - set(there))),
            *(f"docs/pictures: nothing makes {path.name}" for name, path in there.items() if name not in scene_names()),
            *(f"docs/pictures: no page shows {path.name}" for name, path in there.items() if name not in shown()),
            *(f"docs/pictures: {path.name} has {path.stat().st_size} bytes" for path in there.values()
              if path.stat().st_size > MOST_BYTES)]


def main() -> int:
    found = faults()
    print("\n".join(found) or f"{len(scene_names())} pictures are made and shown")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
