#!/usr/bin/env python3
"""Compares the public interface with everything that repeats a piece of it, and names each difference.

The interface is what idl/VelloraCTL.idl says. A check is a function marked with @check that yields one line for each
fault it finds; adding a check is adding such a function.

Usage: check_interface.py     (exit code 0 when everything agrees, 1 otherwise)
"""

import re
import sys
from collections import Counter
from collections.abc import Callable, Iterator
from pathlib import Path

import idl_model
from idl_model import Accessor, Interface

ROOT = Path(__file__).resolve().parent.parent
SERVER = ROOT / "src/server"

# What was published. Hosts count on it, so a change of these numbers is a decision, not a consequence.
ACCESSOR_COUNT = 111
EVENT_COUNT = 13
ENUMERATION_COUNT = 6

# Identifiers by the hundred: where the member's shim stands.
SHIM_OF_HUNDRED = {1: "dual_control.cpp", 2: "dual_items.cpp", 3: "dual_columns.cpp", 4: "dual_dropdown.cpp",
                   5: "dual_textfield.cpp"}
# The platform's own identifiers (olectl.h), and 0 for the default member.
STOCK_IDS = {"Text": 0, "BackColor": -501, "Font": -512, "ForeColor": -513, "Enabled": -514, "hWnd": -515,
             "Picture": -523, "Refresh": -550, "About": -552}

# Enumerations and events the portable code knows by another name.
PORTABLE_ENUMERATIONS = {"vlDropDownState": "DropDownState"}
PORTABLE_EVENTS = {"DblClick": "double_click"}
PORTABLE_TYPES = {"short": "std::int16_t", "float": "float", "VARIANT_BOOL": "bool"}
# By reference for the handlers' sake; what they write there is never read.
IGNORED_ANSWERS = {("DropDown", "State")}

Check = Callable[[Interface], Iterator[str]]
CHECKS: list[Check] = []


def check(function: Check) -> Check:
    CHECKS.append(function)
    return function


def source(path: Path) -> str:
    return idl_model.without_comments(path.read_text(encoding="utf-8")) if path.exists() else ""


def portable_headers() -> Iterator[Path]:
    for folder in ("host", "control", "items", "columns", "dropdown", "textfield"):
        yield from sorted((ROOT / "src" / folder).glob("*.h"))


def counted_twice(names: list[str]) -> list[str]:
    return [name for name, times in Counter(names).items() if times > 1]


def difference(what: str, expected: set[str], found: set[str]) -> Iterator[str]:
    for name in sorted(expected - found):
        yield f"{what}: {name} is missing"
    for name in sorted(found - expected):
        yield f"{what}: {name} should not be there"


# ---- The interface by itself -----------------------------------------------------------------------------------------


@check
def published_size(interface: Interface) -> Iterator[str]:
    for what, expected, found in (("accessors", ACCESSOR_COUNT, interface.accessors),
                                  ("events", EVENT_COUNT, interface.events),
                                  ("enumerations", ENUMERATION_COUNT, interface.enumerations)):
        if len(found) != expected:
            yield f"{len(found)} {what} where {expected} were published"


@check
def identifiers(interface: Interface) -> Iterator[str]:
    names: dict[int, str] = {}
    for accessor in interface.accessors:
        stock = STOCK_IDS.get(accessor.name)
        if stock is None and accessor.id // 100 not in SHIM_OF_HUNDRED:
            yield f"{accessor.function}: identifier {accessor.id} belongs to no subsystem"
        if stock is not None and accessor.id != stock:
            yield f"{accessor.function}: identifier {accessor.id} where the platform has {stock}"
        if names.setdefault(accessor.id, accessor.name) != accessor.name:
            yield f"{accessor.function}: identifier {accessor.id} is that of {names[accessor.id]}"
    if [event.id for event in interface.events] != list(range(1, len(interface.events) + 1)):
        yield "events are not numbered 1, 2, 3 and so on"


@check
def halves_agree(interface: Interface) -> Iterator[str]:
    getters = {a.name: a for a in interface.accessors if a.kind == "propget"}
    for setter in (a for a in interface.accessors if a.kind.startswith("propput")):
        getter = getters.get(setter.name)
        if getter is None:
            yield f"{setter.function}: nothing to read it with"
        elif (setter.id, setter.help, setter.flags) != (getter.id, getter.help, getter.flags):
            yield f"{setter.name}: reading and writing differ in identifier, help string or attributes"
        elif [p.name for p in setter.parameters[:-1]] != [p.name for p in getter.parameters[:-1]]:
            yield f"{setter.name}: reading and writing differ in their arguments"


# ---- The shims that implement it -------------------------------------------------------------------------------------


def shim_of(accessor: Accessor) -> str:
    return SHIM_OF_HUNDRED[1 if accessor.name in STOCK_IDS else accessor.id // 100]


def shim_bodies() -> dict[str, list[tuple[str, str]]]:
    """File name to (function, body) of every member of DualVellora in it."""
    body = re.compile(r"^(?:STDMETHODIMP|HRESULT(?: STDMETHODCALLTYPE)?) DualVellora::(\w+)\((?:.*?)\) (?:noexcept )?"
                      r"\{(.*?)^\}", re.DOTALL | re.MULTILINE)
    return {path.name: body.findall(source(path)) for path in sorted(SERVER.glob("dual_*.cpp"))}


@check
def every_accessor_has_a_body(interface: Interface) -> Iterator[str]:
    bodies = shim_bodies()
    for name in SHIM_OF_HUNDRED.values():
        expected = {a.function for a in interface.accessors if shim_of(a) == name}
        found = [function for function, _ in bodies.get(name, [])]
        yield from difference(f"src/server/{name}", expected, set(found))
        for function in counted_twice(found):
            yield f"src/server/{name}: {function} stands there twice"


# ---- The portable code that repeats values of it ---------------------------------------------------------------------


def portable_enumerations() -> dict[str, dict[str, int]]:
    pattern = re.compile(r"enum\s+(?:class\s+)?(\w+)\s*:\s*std::int32_t\s*\{([^{}]*)\}")
    return {name: idl_model.parse_enumerations(f"enum {name} {{{members}}}")[name]
            for path in portable_headers() for name, members in pattern.findall(source(path))}


def short_name(member: str) -> str:
    return member.removeprefix("vl").lower()


@check
def enumerations_agree(interface: Interface) -> Iterator[str]:
    portable = portable_enumerations()
    for name, members in interface.enumerations.items():
        portable_name = PORTABLE_ENUMERATIONS.get(name, name)
        found = portable.get(portable_name)
        if found is None:
            yield f"no portable header declares {portable_name}"
            continue
        same_names = portable_name == name
        expected = {m if same_names else short_name(m): value for m, value in members.items()}
        if expected != found:
            yield f"{portable_name} is {found} where the interface has {expected}"


def snake_case(name: str) -> str:
    return re.sub(r"(?<=[a-z])(?=[A-Z])", "_", name).lower()


def portable_signature(event: Accessor) -> tuple[str, ...]:
    types = []
    for parameter in event.parameters:
        base = parameter.type.rstrip("*")
        base = PORTABLE_TYPES.get(base) or PORTABLE_ENUMERATIONS.get(base, base)
        answered = parameter.type.endswith("*") and (event.name, parameter.name) not in IGNORED_ANSWERS
        types.append(base + ("&" if answered else ""))
    return tuple(types)


@check
def events_agree(interface: Interface) -> Iterator[str]:
    declared = re.findall(r"virtual void (\w+)\((.*?)\) = 0;", source(ROOT / "src/host/events.h"))
    found = [(name, tuple(p.rsplit(" ", 1)[0] for p in parameters.split(", ") if p)) for name, parameters in declared]
    expected = [(PORTABLE_EVENTS.get(e.name, snake_case(e.name)), portable_signature(e)) for e in interface.events]
    for wanted, there in zip(expected, found):
        if wanted != there:
            yield f"src/host/events.h: {there[0]}{there[1]} where the interface has {wanted[0]}{wanted[1]}"
    if len(expected) != len(found):
        yield f"src/host/events.h: {len(found)} events where the interface has {len(expected)}"


# ---- What is saved with a form ---------------------------------------------------------------------------------------


SAVED_DEFAULTS = {"no_text": ("String", '""'), "no": ("Boolean", "False"), "yes": ("Boolean", "True"),
                  "long_0": ("Long", "0"), "integer_1": ("Integer", "1"), "fixed<std::int32_t{-1}>": ("Long", "-1"),
                  "single_0": ("Single", "0"), "single_8": ("Single", "8"),
                  "no_picture": ("object", "Nothing"), "no_image_list": ("object", "Nothing"),
                  "ambient_font": ("object", "the container's font"),
                  "std::u16string()": ("String", '""'), "automatic_width": ("Single", "-1"),
                  "false": ("Boolean", "False")}
SAVED_ARRAYS = {"before_columns": "", "columns": "*n*", "after_columns": ""}


def saved_default(expression: str) -> tuple[str, str]:
    color = re.fullmatch(r"fixed_color<system_color::(\w+)>", expression)
    if not color:
        return SAVED_DEFAULTS.get(expression, ("?", expression))
    values = dict(re.findall(r"OleColor (\w+) = 0x(\w+);", source(ROOT / "src/runtime/system_colors.h")))
    return "Long", "&H" + values[color[1]]


def saved_settings() -> list[tuple[str, str, str]]:
    text = source(ROOT / "src/control/saved_properties.cpp")
    rows = []
    for array, suffix in SAVED_ARRAYS.items():
        body = re.search(rf"std::array {array}\{{(.*?)^\}};", text, re.DOTALL | re.MULTILINE)
        entries = re.findall(r'Property\{u"(\w+)",\s*(.*?),\s', body[1]) if body else []
        rows += [(key + suffix, *saved_default(default)) for key, default in entries]
    return rows


def documented_settings() -> list[tuple[str, ...]]:
    text = (ROOT / "docs/settings-format.md").read_text(encoding="utf-8")
    table = re.search(r"^\| Key \| Type \| Default \|\n.*?\n(.*?)\n\n", text, re.DOTALL | re.MULTILINE)
    lines = table[1].splitlines() if table else []
    return [tuple(cell.strip() for cell in line.strip("|").split("|")) for line in lines]


@check
def saved_settings_are_documented(_: Interface) -> Iterator[str]:
    saved, documented = saved_settings(), documented_settings()
    for wanted, there in zip(saved, documented):
        if wanted != there:
            yield f"docs/settings-format.md: {there} where src/control/saved_properties.cpp has {wanted}"
    if len(saved) != len(documented) or not saved:
        yield f"docs/settings-format.md: {len(documented)} settings where {len(saved)} are saved"


@check
def saved_settings_are_properties(interface: Interface) -> Iterator[str]:
    properties = {accessor.name for accessor in interface.accessors if accessor.kind != "method"}
    for key, _, _ in saved_settings():
        if key.removesuffix("*n*") not in properties:
            yield f"src/control/saved_properties.cpp: {key} is no property"


@check
def example_bytes_are_golden(_: Interface) -> Iterator[str]:
    text = (ROOT / "docs/settings-format.md").read_text(encoding="utf-8")
    shown = "".join(re.findall(r"^    ((?:[0-9A-F]{2} ?)+)$", text, re.MULTILINE))
    if bytes.fromhex(shown) != (ROOT / "tests/golden/settings-1-example.bin").read_bytes():
        yield "docs/settings-format.md: the example is not tests/golden/settings-1-example.bin"


@check
def guide_names_the_version(_: Interface) -> Iterator[str]:
    version = re.search(r"project\(VelloraCTL VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1] + ".0"
    named = re.findall(r'name="VelloraCTL" version="([\d.]+)"', (ROOT / "docs/installing.md").read_text())
    if named != [version]:
        yield f"docs/installing.md names the versions {named} in its manifest where {version} is shipped"


# ---- The property pages ----------------------------------------------------------------------------------------------


@check
def pages_show_what_they_say(interface: Interface) -> Iterator[str]:
    setters = {accessor.id: accessor.name for accessor in interface.accessors if accessor.kind == "propput"}
    text = (SERVER / "property_pages.cpp").read_text(encoding="utf-8")
    shown = re.findall(r"^ *(\d+), +// (\w+)$", text, re.MULTILINE)
    if not shown:
        yield "no property is on any page"
    for identifier, name in shown:
        if setters.get(int(identifier)) != name:
            yield f"{identifier} is {setters.get(int(identifier), 'nothing that can be written')}, not {name}"


def main() -> int:
    interface = idl_model.read(ROOT / "idl/VelloraCTL.idl")
    faults = [f"{one.__name__}: {fault}" for one in CHECKS for fault in one(interface)]
    for fault in faults:
        print(fault)
    if not faults:
        print(f"{len(CHECKS)} checks: everything agrees with idl/VelloraCTL.idl")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
