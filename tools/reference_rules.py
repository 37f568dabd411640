"""What the reference must have: every member once, the facts a user needs of it, and code that fits the interface."""

import re
from collections import Counter
from collections.abc import Callable, Iterator

import doc_pages
from basic_names import NUMBERS, Member, members_of
from doc_code import CodeChecker, split_comment
from doc_pages import ROOT, Section
from doc_script import ERROR, PRINT
from idl_model import Interface

Key = Callable[[Section], str]


def faults(interface: Interface, sections: list[Section], key_of: Key) -> list[str]:
    members = members_of(interface)
    by_key = {f"event {m.name}" if m.is_event else m.name: m for m in members}
    found = list(completeness({*by_key, *interface.enumerations}, sections, key_of))
    for section in sections:
        place = f"{section.page.relative_to(ROOT)}: {section.name}"
        member = by_key.get(key_of(section))
        missing = member_gaps(member, section, interface) if member else general_gaps(section)
        found += [f"{place}: {gap}" for gap in missing]
    return [*found, *code_faults(members), *dead_links()]


def completeness(wanted: set[str], sections: list[Section], key_of: Key) -> Iterator[str]:
    there = Counter(key_of(section) for section in sections)
    for name in sorted(wanted - set(there)):
        yield f"docs/reference: {name} is missing"
    for name in sorted(set(there) - wanted):
        yield f"docs/reference: {name} is nothing in the interface"
    for name, times in there.items():
        if times > 1:
            yield f"docs/reference: {name} stands there {times} times"


def general_gaps(section: Section) -> Iterator[str]:
    if not section.first_sentence:
        yield "says nothing"
    if not any(code.language for code in section.codes):
        yield "has no example"


def member_gaps(member: Member, section: Section, interface: Interface) -> Iterator[str]:
    yield from general_gaps(section)
    for fact in needed_facts(member, interface):
        if fact not in section.facts:
            yield f"has no row {fact}"
    use = f"Vellora1_{member.name}" if member.is_event else f"Vellora1.{member.name}"
    if not any(re.search(rf"{re.escape(use)}\b", code.text) for code in section.codes if code.language == "vb"):
        yield f"has no example in Basic with {use}"
    if member.is_property:
        says_saved = "saved with the form" in section.facts.get("Mode", "").lower()
        if says_saved != (member.name in saved_names()):
            yield "its row Mode is wrong about being saved with the form"
    errors = section.facts.get("Errors", "none")
    if errors != "none" and not re.match(r'-?\d+ "', errors):
        yield 'its errors are neither none nor begin with a number and a text, as in 380 "Invalid property value"'
    if "as in `" in errors and errors.count("as in `") != len(ERROR.findall(errors)):
        yield "not every error that is provoked has a number and a text"


def saved_names() -> set[str]:
    """Of the properties that are saved with a form."""
    source = (ROOT / "src/control/saved_properties.cpp").read_text(encoding="utf-8")
    return set(re.findall(r'Saved(?:Column)?Property\{u"(\w+)"', source))


def needed_facts(member: Member, interface: Interface) -> Iterator[str]:
    if member.has_length:
        yield "Units"
    if member.is_event:
        return
    yield from ("Mode", "Errors")
    if member.is_property:
        yield "Default"
    given = [t for t in member.value_types if t in NUMBERS or t in interface.enumerations]
    if given and (member.writable or member.parameters):
        yield "Range"


def code_faults(members: list[Member]) -> Iterator[str]:
    checker = CodeChecker(members)
    for page in doc_pages.all_pages():
        for code in doc_pages.codes_of(page.read_text(encoding="utf-8")):
            for fault in checker.faults(code):
                yield f"{page.relative_to(ROOT)}:{fault}"
            if code.language == "vb" and not code.note:
                yield from (f"{page.relative_to(ROOT)}:{fault}" for fault in script_faults(code))


def script_faults(code: doc_pages.Code) -> Iterator[str]:
    """Of a block that is run."""
    for number, line in enumerate(code.text.splitlines(), code.line):
        statement, comment = split_comment(line)
        if not line.isascii():
            yield f"{number}: only ASCII reaches every script host unharmed"
        if PRINT.fullmatch(statement) and comment is None:
            yield f"{number}: does not say in a comment what is printed"


def dead_links() -> Iterator[str]:
    for page in [*doc_pages.all_pages(), *sorted(ROOT.glob("*.md"))]:
        for link in doc_pages.links_of(page):
            path, _, part = link.partition("#")
            target = (page.parent / path).resolve() if path else page
            if not target.exists() or (part and target.suffix == ".md" and part not in doc_pages.anchors_of(target)):
                yield f"{page.relative_to(ROOT)}: the link {link} leads nowhere"
