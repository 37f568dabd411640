"""The documents as the other tools see them: Markdown pages with sections, tables of facts and blocks of code."""

import re
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DOCS = ROOT / "docs"
REFERENCE = DOCS / "reference"

FENCE = re.compile(r"^```(?P<info>[^\n]*)\n(?P<text>.*?)^```$", re.DOTALL | re.MULTILINE)


@dataclass(frozen=True)
class Code:
    """A fenced block. `language` is the first word after the fence, `note` what follows it."""

    language: str
    note: str
    text: str
    line: int            # of its first line in the page


@dataclass(frozen=True)
class Section:
    """What stands under a heading of the second level."""

    page: Path
    name: str
    text: str
    line: int

    @property
    def codes(self) -> list[Code]:
        return codes_of(self.text, self.line)

    @property
    def facts(self) -> dict[str, str]:
        """The rows of its table: "Default", "Range" and so on."""
        return dict(re.findall(r"^\| (\w[\w ]*?) \| (.*?) \|$", self.text, re.MULTILINE))

    @property
    def first_sentence(self) -> str:
        """Of the text that a person wrote."""
        _, _, rest = self.text.partition("\n")
        prose = rest.split("<!-- end -->", 1)[-1].strip()
        paragraph = " ".join(prose.split("\n\n", 1)[0].split())
        match = re.match(r".*?\.(?=\s|$)", paragraph)
        return match[0] if match else ""


def codes_of(text: str, first_line: int = 1) -> list[Code]:
    found = []
    for match in FENCE.finditer(text):
        language, _, note = match["info"].strip().partition(" ")
        line = first_line + text.count("\n", 0, match.start("text"))
        found.append(Code(language, note.strip(), match["text"], line))
    return found


def sections_of(page: Path) -> list[Section]:
    text = page.read_text(encoding="utf-8")
    headings = list(re.finditer(r"^## (.+)$", text, re.MULTILINE))
    ends = [heading.start() for heading in headings[1:]] + [len(text)]
    return [Section(page, heading[1].strip(), text[heading.start():end], 1 + text.count("\n", 0, heading.start()))
            for heading, end in zip(headings, ends)]


def reference_pages() -> list[Path]:
    return sorted(page for page in REFERENCE.glob("*.md") if page.name != "README.md")


def all_pages() -> list[Path]:
    return sorted(DOCS.rglob("*.md"))


def anchor(heading: str) -> str:
    """As the usual viewers make it."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def anchors_of(page: Path) -> set[str]:
    text = FENCE.sub("", page.read_text(encoding="utf-8"))
    return {anchor(heading) for heading in re.findall(r"^#+ (.+)$", text, re.MULTILINE)}


def links_of(page: Path) -> list[str]:
    text = FENCE.sub("", page.read_text(encoding="utf-8"))
    return [target for target in re.findall(r"\]\(([^)\s]+)\)", text) if "://" not in target]
