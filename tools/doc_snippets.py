"""Code in the documents that is a piece of a source file, so that it is compiled and run where that file is.

In a page `<!-- code PATH NAME -->` stands before the block; in the source the lines `// [NAME]` and `// [end]` around
the piece.
"""

import re
from pathlib import Path

from doc_pages import ROOT

PLACE = re.compile(r"<!-- code (?P<path>\S+) (?P<name>\w+) -->(?:\n```cpp\n.*?^```)?", re.DOTALL | re.MULTILINE)


def piece_of(path: Path, name: str) -> str:
    source = path.read_text(encoding="utf-8") if path.exists() else ""
    match = re.search(rf"^// \[{name}\]\n(.*?)^// \[end\]\n", source, re.DOTALL | re.MULTILINE)
    if not match:
        raise SystemExit(f"doc_snippets: {path.relative_to(ROOT)} has no piece [{name}]")
    return match[1]


def with_snippets(text: str) -> str:
    """The page with every piece as its source has it now."""
    return PLACE.sub(lambda place: f"<!-- code {place['path']} {place['name']} -->\n```cpp\n"
                     f"{piece_of(ROOT / place['path'], place['name'])}```", text)
