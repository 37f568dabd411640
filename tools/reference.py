#!/usr/bin/env python3
"""Keeps the documents in step with the public interface and with the sources they show.

A person writes the pages. In docs/reference there is one section per member, event or enumeration, named as in the
interface. Between the lines `<!-- interface -->` and `<!-- end -->` this program writes what the interface says of it.
What a section must have is in reference_rules.py, how code comes from a source file in doc_snippets.py.

Usage: reference.py                    writes those blocks, the index and the code from sources
       reference.py --check            fails when a page differs from the interface or lacks something
       reference.py --scripts FOLDER   makes scripts that try what the pages say
"""

import re
import sys
from pathlib import Path

import basic_names
import doc_pages
import doc_script
import doc_snippets
import idl_model
import reference_rules
from basic_names import Member
from doc_pages import REFERENCE, ROOT, Section
from idl_model import Interface

BLOCK = re.compile(r"<!-- interface -->\n.*?<!-- end -->", re.DOTALL)
INDEX = REFERENCE / "README.md"


def block(lines: list[str]) -> str:
    return "\n".join(["<!-- interface -->", *lines, "<!-- end -->"])


def access(member: Member) -> list[str]:
    facts = []
    if member.is_property:
        facts.append("read and write" if member.writable else "read only")
    facts.append(f"identifier {member.first.id}")
    if "bindable" in member.first.flags:
        facts.append("can be bound to data")
    if member.is_property and "nonbrowsable" in member.first.flags:
        facts.append("not in the property list of form designers")
    if member.first.id == 0:
        facts.append("the default member")
    if not member.is_event:
        facts.append("C++ " + ", ".join(f"`{a.function}`" for a in member.accessors))
    return facts


def member_block(member: Member, interface: Interface) -> str:
    lines = ["```", basic_names.signature(member, interface), "```", ""]
    if member.first.help:
        lines += [f"*{member.first.help}*", ""]
    sentence = "; ".join(access(member))
    return block([*lines, sentence[0].upper() + sentence[1:] + ".", ""])


def users_of(enumeration: str, members: list[Member]) -> list[Member]:
    return [m for m in members if enumeration in m.value_types]


def enumeration_block(name: str, interface: Interface, places: dict[str, str]) -> str:
    members = basic_names.members_of(interface)
    used_by = ", ".join(f"[{m.name}]({places[key_of(m)]})" for m in users_of(name, members))
    rows = [f"| `{key}` | {value} |" for key, value in interface.enumerations[name].items()]
    return block(["| Name | Value |", "| --- | --- |", *rows, "", f"Used by {used_by}.", ""])


def key_of(member: Member) -> str:
    return f"event {member.name}" if member.is_event else member.name


def place_of(section: Section) -> str:
    return f"{section.page.name}#{doc_pages.anchor(section.name)}"


def section_key(section: Section) -> str:
    return f"event {section.name}" if section.page.stem == "events" else section.name


def all_sections() -> list[Section]:
    return [s for page in doc_pages.reference_pages() for s in doc_pages.sections_of(page)]


def index_block(sections: list[Section], interface: Interface) -> str:
    kinds = {key_of(m): m.kind for m in basic_names.members_of(interface)}
    kinds |= dict.fromkeys(interface.enumerations, "enumeration")
    rows = [f"| [{s.name}]({place_of(s)}) | {kinds.get(section_key(s), '')} | {s.first_sentence} |"
            for s in sorted(sections, key=lambda s: (s.name.lower(), s.page.name))]
    return block(["| Name | Kind | What it is |", "| --- | --- | --- |", *rows])


def block_for(section: Section, interface: Interface, places: dict[str, str]) -> str | None:
    if section.name in interface.enumerations:
        return enumeration_block(section.name, interface, places)
    members = {key_of(m): m for m in basic_names.members_of(interface)}
    member = members.get(section_key(section))
    return member_block(member, interface) if member else None


def wanted_page(page: Path, interface: Interface, places: dict[str, str]) -> str:
    text = page.read_text(encoding="utf-8")
    for section in doc_pages.sections_of(page):
        wanted = block_for(section, interface, places)
        if wanted is None:
            continue
        if BLOCK.search(section.text):
            renewed = BLOCK.sub(lambda _: wanted, section.text, count=1)
        else:
            heading, _, rest = section.text.partition("\n")
            renewed = f"{heading}\n\n{wanted}\n\n{rest.lstrip()}"
        text = text.replace(section.text, renewed, 1)
    return text


def wanted_pages(interface: Interface) -> dict[Path, str]:
    sections = all_sections()
    places = {section_key(s): place_of(s) for s in sections}
    pages = {page: doc_snippets.with_snippets(page.read_text(encoding="utf-8")) for page in doc_pages.all_pages()}
    for page in doc_pages.reference_pages():
        pages[page] = wanted_page(page, interface, places)
    pages[INDEX] = BLOCK.sub(lambda _: index_block(sections, interface), pages[INDEX], count=1)
    return pages


def check(interface: Interface) -> list[str]:
    faults = reference_rules.faults(interface, all_sections(), section_key)
    for page, text in wanted_pages(interface).items():
        if page.read_text(encoding="utf-8") != text:
            place = page.relative_to(ROOT)
            faults.append(f"{place}: differs from the interface or from a source; tools/reference.py renews it")
    return faults


def main(arguments: list[str]) -> int:
    interface = idl_model.read(ROOT / "idl/VelloraCTL.idl")
    if arguments == ["--check"]:
        faults = check(interface)
        print("\n".join(faults) or f"{len(doc_pages.all_pages())} documents agree with idl/VelloraCTL.idl")
        return 1 if faults else 0
    if len(arguments) == 2 and arguments[0] == "--scripts":
        members = {m.name: m for m in basic_names.members_of(interface) if not m.is_event}
        doc_script.write_scripts(Path(arguments[1]), doc_pages.all_pages(), interface, members)
        return 0
    if arguments:
        print(__doc__)
        return 2
    for page, text in wanted_pages(interface).items():
        page.write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
