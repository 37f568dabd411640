#!/usr/bin/env python3
"""Writes the manifest with which programs use the library without registration.

Identifiers and names come from the interface, the ways containers have to treat the control from the header that also
answers them.

Usage: make_manifest.py VelloraCTL.idl control_class.h VERSION x86|amd64 VelloraCTL.manifest
"""

import re
import sys
from pathlib import Path
from xml.sax.saxutils import quoteattr

import idl_model

# The platform's own proxies: one for interfaces a type library describes, one for those called by name only.
TYPE_LIBRARY_PROXY = "00020424-0000-0000-C000-000000000046"
DISPATCH_PROXY = "00020420-0000-0000-C000-000000000046"
DISPATCH = "00020400-0000-0000-C000-000000000046"


def braced(identifier: str) -> str:
    return "{" + identifier.upper() + "}"


def element(name: str, content: str = "", /, **attributes: str) -> str:
    start = "<" + name + "".join(f" {key}={quoteattr(value)}" for key, value in attributes.items())
    return f"{start}>{content}</{name}>" if content else start + "/>"


def misc_status(header: str) -> str:
    """The manifest has the platform's own words for it, in small letters and without their prefix."""
    match = re.search(r"DWORD misc_status =([^;]*);", header)
    if not match:
        raise SystemExit("make_manifest: the header does not define misc_status")
    return ",".join(word.lower() for word in re.findall(r"OLEMISC_(\w+)", match[1]))


def proxy(name: str, interface: dict[str, str], server: str, library: str) -> str:
    return element("comInterfaceExternalProxyStub", name=name, iid=braced(interface["uuid"]),
                   proxyStubClsid32=braced(server), baseInterface=braced(DISPATCH), tlbid=library)


def manifest(interface: str, header: str, version: str, architecture: str) -> str:
    library = idl_model.attributes_of(interface, "library VelloraCTL")
    control = idl_model.attributes_of(interface, "coclass Vellora")
    library_id = braced(library["uuid"])
    name = "VelloraCTL.Vellora"
    control_class = element(
        "comClass", element("progid", name),
        clsid=braced(control["uuid"]), description="Vellora", threadingModel="Apartment", tlbid=library_id,
        progid=f"{name}.{library['version'].partition('.')[0]}", miscStatusContent=misc_status(header))
    types = element("typelib", tlbid=library_id, version=library["version"], helpdir="")
    lines = [
        '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>',
        '<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">',
        "  " + element("assemblyIdentity", type="win32", name="VelloraCTL", version=f"{version}.0",
                       processorArchitecture=architecture),
        '  <file name="VelloraCTL.ocx">',
        "    " + control_class,
        "    " + types,
        "  </file>",
        "  " + proxy("_Vellora", idl_model.attributes_of(interface, "interface _Vellora"), TYPE_LIBRARY_PROXY,
                     library_id),
        "  " + proxy("__Vellora", idl_model.attributes_of(interface, "dispinterface __Vellora"), DISPATCH_PROXY,
                     library_id),
        "</assembly>",
    ]
    return "\n".join(lines) + "\n"


def main() -> None:
    interface, header, version, architecture, output = sys.argv[1:]
    text = manifest(idl_model.without_comments(Path(interface).read_text(encoding="utf-8")),
                    Path(header).read_text(encoding="utf-8"), version, architecture)
    Path(output).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
