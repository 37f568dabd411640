"""Checks the code in the documents against the interface: names, numbers of arguments, heads of event handlers.

The control is called Vellora1 in every language, so what follows that name and a dot (an arrow in C++) is a member.
"""

import re
from collections.abc import Iterator

import basic_names
from basic_names import Member
from doc_pages import Code
from idl_model import split_outside

# What a form adds to every control on it.
OF_THE_FORM = {"Left", "Top", "Width", "Height", "Visible", "SetFocus", "Name", "Parent", "TabIndex", "Move", "Object",
               "Tag", "ControlSource", "ControlInterface", "GetOcx", "Dock"}
# Languages in which a member is called as the type library declares it, optional arguments included.
ALL_ARGUMENTS = {"pascal"}

USE = re.compile(r"\b[Vv]ellora1\.(\w+)")
COM_USE = re.compile(r"\b[Vv]ellora1->(\w+)")


class CodeChecker:
    def __init__(self, members: list[Member]) -> None:
        self.members = {m.name: m for m in members if not m.is_event}
        self.events = {m.name: m for m in members if m.is_event}
        self.functions = {a.function: a for m in members if not m.is_event for a in m.accessors}

    def faults(self, code: Code) -> Iterator[str]:
        """One line for each fault, beginning with the number of the line in the page."""
        check = {"vb": self.basic, "pascal": self.pascal, "csharp": self.csharp, "cpp": self.cpp}.get(code.language)
        if check is None:
            return
        for number, line in enumerate(joined_lines(code), code.line):
            for fault in check(line):
                yield f"{number}: {fault}"

    def basic(self, line: str) -> Iterator[str]:
        yield from self.basic_handler(line)
        for statement in split_outside(without_comment(line), ":"):
            for use in USE.finditer(statement):
                calls_a_sub = use.start() == 0 and not re.match(r"\s*[(=.]", statement[use.end():])
                rest = statement[use.end():]
                count = len(split_outside(rest, ",")) if calls_a_sub else arguments_in(rest, "(", ")")
                yield from self.use(use[1], count, "vb")

    def basic_handler(self, line: str) -> Iterator[str]:
        head = re.match(r"\s*Private Sub Vellora1_(\w+)\((.*)\)", line)
        if not head:
            return
        event = self.events.get(head[1])
        if event is None:
            yield f"there is no event {head[1]}"
            return
        expected = basic_names.handler_parameters(event)
        found = [p.replace("VelloraCTL.", "") for p in split_outside(head[2], ",")]
        if found != expected:
            yield f"the handler of {head[1]} takes ({', '.join(expected)})"

    def pascal(self, line: str) -> Iterator[str]:
        head = re.match(r"procedure \w+\.Vellora1(\w+)\(A?Sender: TObject(?:; (.*))?\);", line)
        if head:
            yield from self.named_parameters(head[1], re.findall(r"(\w+)(?=[,:])", head[2] or ""))
        for use in USE.finditer(line):
            if re.fullmatch(r"On\w+", use[1]):
                if use[1][2:] not in self.events:
                    yield f"there is no event {use[1][2:]}"
                continue
            rest = line[use.end():]
            yield from self.use(use[1], max(arguments_in(rest, "(", ")"), arguments_in(rest, "[", "]")), "pascal")

    def csharp(self, line: str) -> Iterator[str]:
        for use in USE.finditer(line):
            rest = line[use.end():]
            if use[1] in self.events and re.match(r"\s*\+=", rest):
                head = re.match(r"\s*\+= \((.*?)\) =>", rest)
                if head:
                    yield from self.named_parameters(use[1], [p.split()[-1] for p in split_outside(head[1], ",")])
                continue
            yield from self.use(use[1], max(arguments_in(rest, "(", ")"), arguments_in(rest, "[", "]")), "csharp")

    def cpp(self, line: str) -> Iterator[str]:
        for use in COM_USE.finditer(line):
            function = self.functions.get(use[1])
            if function is None:
                if use[1] not in {"QueryInterface", "Release", "AddRef"}:
                    yield f"there is no function {use[1]}"
            elif arguments_in(line[use.end():], "(", ")") != len(function.parameters):
                yield f"{use[1]} takes {len(function.parameters)} arguments"

    def named_parameters(self, event_name: str, names: list[str]) -> Iterator[str]:
        event = self.events.get(event_name)
        if event is None:
            yield f"there is no event {event_name}"
        elif [n.lower() for n in names] != [p.name.lower() for p in event.parameters]:
            yield f"the parameters of {event_name} are ({', '.join(p.name for p in event.parameters)})"

    def use(self, name: str, count: int, language: str) -> Iterator[str]:
        if name in OF_THE_FORM:
            return
        member = self.members.get(name)
        if member is None:
            yield f"there is no member {name}"
            return
        most = len(member.parameters)
        least = most if language in ALL_ARGUMENTS else member.least_arguments
        # An array that a property without arguments returns may be followed by an index.
        if member.is_property and most == 0 and member.result == "Variant":
            return
        if not least <= count <= most:
            yield f"{name} takes {least if least == most else f'{least} to {most}'} arguments, not {count}"


def joined_lines(code: Code) -> list[str]:
    """A line that goes on below stands whole in its first place; the others are empty there."""
    lines, joined = code.text.splitlines(), []
    pending = 0
    for line in lines:
        if pending:
            joined[-pending] = joined[-pending][:-1].rstrip() + " " + line.strip()
            joined.append("")
            pending = pending + 1 if line.endswith(" _") else 0
        else:
            joined.append(line.strip())
            pending = 1 if line.endswith(" _") else 0
    return joined


def without_comment(line: str) -> str:
    return split_comment(line)[0]


def split_comment(line: str) -> tuple[str, str | None]:
    """The statement of a line of Basic, and what follows its apostrophe."""
    quoted = False
    for position, character in enumerate(line):
        if character == '"':
            quoted = not quoted
        elif character == "'" and not quoted:
            return line[:position].rstrip(), line[position + 1:].strip()
    return line.rstrip(), None


def arguments_in(rest: str, opening: str, closing: str) -> int:
    """How many arguments stand in the parentheses that follow at once; 0 without any."""
    if not rest.startswith(opening):
        return 0
    depth, quoted = 0, False
    for position, character in enumerate(rest):
        if character == '"':
            quoted = not quoted
        elif quoted:
            continue
        elif character in "([":
            depth += 1
        elif character in ")]":
            depth -= 1
            if depth == 0:
                return len(split_outside(rest[1:position], ","))
    return 0
