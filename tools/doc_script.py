"""Makes scripts of the documents, so that what they say is tried with the real control.

A block marked `vb` is run as it stands, with a new control as Vellora1; `Debug.Print EXPRESSION ' TEXT` in it becomes
a check that the expression gives this text. Of a member's table of facts, `Default` is compared with a new control
where it begins with a value in code style, and every error that ends in "as in `STATEMENT`" is provoked by it.
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

from basic_names import Member
from doc_code import split_comment
from doc_pages import DOCS, Code, codes_of, sections_of
from idl_model import Interface

ERROR = re.compile(r'(-?\d+) "([^"]*)"(?:(?!<br>).)*?as in `([^`]+)`')
PRINT = re.compile(r"\s*Debug\.Print (.+)")
EMPTY = "(empty)"


@dataclass
class Script:
    """Basic statements, and how many checks they make."""

    lines: list[str] = field(default_factory=list)
    checks: int = 0
    procedures: int = 0

    def procedure(self, name: str, body: list[str], checks: int) -> None:
        """Runs the body with a control of its own; that it came to its end is a check too."""
        self.procedures += 1
        head = f"Example{self.procedures}"
        self.lines += [f"Sub {head}(Vellora1)", *body, "End Sub", "On Error Resume Next",
                       f'{head} CreateObject("VelloraCTL.Vellora")', f"CheckError {quoted(name)}, 0, \"\"",
                       "On Error Goto 0", ""]
        self.checks += checks + 1


def quoted(text: str) -> str:
    return '"' + text.replace('"', '""') + '"'


def add_example(script: Script, name: str, code: Code) -> None:
    body, checks = [], 0
    for number, line in enumerate(code.text.splitlines(), code.line):
        statement, comment = split_comment(line)
        printed = PRINT.fullmatch(statement)
        if printed and comment is not None:
            expected = "" if comment == EMPTY else comment
            line = f"Check {quoted(f'{name}, line {number}')}, {quoted(expected)}, CStr({printed[1]})"
            checks += 1
        body.append(line)
    # What an example traps is its own affair.
    if any("On Error Resume Next" in line for line in body):
        body.append("Err.Clear")
    script.procedure(name, body, checks)


def add_default(script: Script, page: str, member: Member, fact: str) -> None:
    value = re.match(r"`([^`]+)`", fact)
    if not value or not member.is_property:
        return
    names = [p.name for p in member.parameters if "optional" not in p.attributes]
    arguments = ", ".join("0" if name == "ItemIndex" else "1" for name in names)
    expression = f"Vellora1.{member.name}" + (f"({arguments})" if arguments else "")
    name = f"{page}: default of {member.name}"
    is_object = value[1] == "Nothing"
    actual = f"CStr({expression} Is Nothing)" if is_object else f"CStr({expression})"
    expected = quoted(str(True)) if is_object else f"CStr({value[1]})"
    body = ['Vellora1.AddItem "row"'] if "ItemIndex" in names else []
    script.procedure(name, [*body, f"Check {quoted(name)}, {expected}, {actual}"], 1)


def add_errors(script: Script, page: str, member: Member, fact: str) -> None:
    for number, description, statement in ERROR.findall(fact):
        name = f"{page}: {member.name}, error {number} of {statement}"
        body = ["Dim x", "On Error Resume Next", statement,
                f"CheckError {quoted(name)}, {number}, {quoted(description)}"]
        script.procedure(name, body, 1)


def reference_script(page: Path, members: dict[str, Member]) -> Script:
    script = Script()
    for section in sections_of(page):
        for code in section.codes:
            if code.language == "vb" and not code.note:
                add_example(script, f"{page.stem}: {section.name}", code)
        member = members.get(section.name)
        if member is not None and not member.is_event:
            add_default(script, page.stem, member, section.facts.get("Default", ""))
            add_errors(script, page.stem, member, section.facts.get("Errors", ""))
    return script


def page_script(page: Path) -> Script:
    script = Script()
    for code in codes_of(page.read_text(encoding="utf-8")):
        if code.language == "vb" and not code.note:
            add_example(script, page.stem, code)
    return script


def write_scripts(folder: Path, pages: list[Path], interface: Interface, members: dict[str, Member]) -> None:
    """One script for each page that has something to try; what stood in the folder goes."""
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.glob("*.vbs"):
        old.unlink()
    constants = [f"Const {name} = {value}" for values in interface.enumerations.values()
                 for name, value in values.items()]
    for page in pages:
        in_reference = page.parent.name == "reference"
        script = reference_script(page, members) if in_reference else page_script(page)
        if not script.checks:
            continue
        name = "-".join(page.relative_to(DOCS).with_suffix("").parts)
        text = "\n".join([*constants, "", *script.lines, f'WScript.Echo "1..{script.checks}"', ""])
        (folder / f"{name}.vbs").write_text(text, encoding="utf-8")
