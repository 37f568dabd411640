"""The public interface as idl/VelloraCTL.idl declares it: members, events and enumerations.

Reads the subset of the language that file uses and stops at anything it cannot make sense of.
"""

import re
from dataclasses import dataclass, field
from pathlib import Path


@dataclass(frozen=True)
class Parameter:
    name: str
    type: str            # with its stars: "short*"
    attributes: tuple[str, ...]

    @property
    def is_result(self) -> bool:
        return "retval" in self.attributes


@dataclass(frozen=True)
class Accessor:
    """One entry of the function table: half a property, a method or an event."""

    name: str
    kind: str            # "propget", "propput", "propputref" or "method"
    id: int
    help: str
    flags: frozenset[str]
    parameters: tuple[Parameter, ...]

    @property
    def function(self) -> str:
        """Its name in the generated header."""
        return {"propget": "get_", "propput": "put_", "propputref": "putref_", "method": ""}[self.kind] + self.name


@dataclass
class Interface:
    accessors: list[Accessor] = field(default_factory=list)
    events: list[Accessor] = field(default_factory=list)
    enumerations: dict[str, dict[str, int]] = field(default_factory=dict)


def split_outside(text: str, separator: str) -> list[str]:
    """Splits where no parenthesis, bracket or string is open."""
    parts, depth, quoted, start = [], 0, False, 0
    for position, character in enumerate(text):
        if character == '"':
            quoted = not quoted
        elif quoted:
            continue
        elif character in "([":
            depth += 1
        elif character in ")]":
            depth -= 1
        elif character == separator and depth == 0:
            parts.append(text[start:position])
            start = position + 1
    parts.append(text[start:])
    return [part.strip() for part in parts if part.strip()]


def without_comments(text: str) -> str:
    return re.sub(r'("[^"]*")|//[^\n]*|/\*.*?\*/', lambda match: match[1] or " ", text, flags=re.DOTALL)


def block_after(text: str, heading: str) -> str:
    """What stands between the braces that follow the heading."""
    match = re.search(heading + r"\s*\{([^{}]*)\}", text)
    if not match:
        raise SystemExit(f"idl_model: nothing matches {heading!r}")
    return match[1]


def parse_parameter(text: str) -> Parameter:
    match = re.fullmatch(r"\[(?P<attributes>[^\]]*)\]\s*(?P<type>[\w\s]+?\s*\**)\s*(?P<name>\w+)", text)
    if not match:
        raise SystemExit(f"idl_model: not a parameter: {text}")
    return Parameter(match["name"], re.sub(r"\s+(?=\*)", "", match["type"].strip()),
                     tuple(split_outside(match["attributes"], ",")))


def parse_accessor(text: str) -> Accessor:
    match = re.fullmatch(r"\[(?P<attributes>.*?)\]\s*(?:HRESULT|void)\s+(?P<name>\w+)\((?P<parameters>.*)\)", text,
                         re.DOTALL)
    if not match:
        raise SystemExit(f"idl_model: not a member: {text}")
    attributes = split_outside(match["attributes"], ",")
    kind = next((a for a in attributes if a.startswith("prop")), "method")
    values = {a.split("(", 1)[0]: a.split("(", 1)[1][:-1] for a in attributes if "(" in a}
    return Accessor(match["name"], kind, int(values["id"]), values.get("helpstring", "").strip('"'),
                    frozenset(a for a in attributes if "(" not in a and a != kind),
                    tuple(parse_parameter(p) for p in split_outside(match["parameters"], ",")))


def parse_enumerations(text: str) -> dict[str, dict[str, int]]:
    return {
        name: {key.strip(): int(value, 0) for key, value in (m.split("=") for m in split_outside(members, ","))}
        for name, members in re.findall(r"enum\s+(\w+)\s*\{([^{}]*)\}", text)
    }


def attributes_of(text: str, heading: str) -> dict[str, str]:
    """What stands in brackets before the heading: "uuid" to its number, a word without argument to nothing."""
    match = re.search(r"\[([^\[\]]*)\]\s*" + heading + r"\b", text)
    if not match:
        raise SystemExit(f"idl_model: no attributes before {heading!r}")
    parts = (part.partition("(") for part in split_outside(match[1], ","))
    return {name.strip(): argument.rstrip(")").strip('"') for name, _, argument in parts}


def read(path: Path) -> Interface:
    text = without_comments(path.read_text(encoding="utf-8"))
    members = block_after(text, r"interface\s+_Vellora\s*:\s*IDispatch")
    events = block_after(text, r"dispinterface\s+__Vellora").split("methods:")[1]
    return Interface([parse_accessor(m) for m in split_outside(members, ";")],
                     [parse_accessor(e) for e in split_outside(events, ";")],
                     parse_enumerations(text))
