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
