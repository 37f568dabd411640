#!/usr/bin/env python3
"""Puts together the archive that is downloaded: the libraries, how to install them, samples and documents.

The same commit gives the same bytes: names are sorted, times are the commit's, and nothing else of this machine goes
in. SHA256SUMS lists every other file of the archive.

Usage: package.py ARCHIVE.zip [--quick] ARCH...        --quick takes less time and more room
"""

import hashlib
import os
import re
import subprocess
import sys
import time
import zipfile
from pathlib import Path

import idl_model

ROOT = Path(__file__).resolve().parent.parent
LIBRARY_FILES = ("VelloraCTL.ocx", "VelloraCTL.ocx.debug", "VelloraCTL.tlb", "VelloraCTL.manifest")
FOLDERS = ("docs", "samples")
FILES = ("README.md", "CHANGELOG.md", "CONTRIBUTING.md", "LICENSE", "idl/VelloraCTL.idl")
SCRIPTS = ("install.cmd", "uninstall.cmd", "steps.cmd")
SUMS = "SHA256SUMS"
EARLIEST = 315532800  # 1980-01-01: before that the format has no times


def git(*arguments: str) -> str:
    """Empty where the sources are not a repository."""
    done = subprocess.run(["git", "-C", str(ROOT), *arguments], capture_output=True, text=True, check=False)
    return done.stdout if done.returncode == 0 else ""


def version() -> str:
    match = re.search(r"project\(VelloraCTL VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))
    if not match:
        raise SystemExit("package: CMakeLists.txt tells no version")
    return match[1]


def class_identifier() -> str:
    interface = idl_model.without_comments((ROOT / "idl/VelloraCTL.idl").read_text(encoding="utf-8"))
    return "{" + idl_model.attributes_of(interface, "coclass Vellora")["uuid"].upper() + "}"


def commit_time() -> int:
    return max(EARLIEST, int(git("log", "-1", "--format=%ct").strip() or os.environ.get("SOURCE_DATE_EPOCH", 0)))


def tracked(folder: str) -> list[str]:
    listed = git("ls-files", "--", folder).splitlines()
    found = listed or [str(path.relative_to(ROOT)) for path in (ROOT / folder).rglob("*") if path.is_file()]
    return [name for name in found if "__pycache__" not in name and (ROOT / name).exists()]


def script(name: str) -> bytes:
    """With the line ends without which the command processor loses its place."""
    text = (ROOT / "package" / name).read_text(encoding="utf-8")
    text = text.replace("@VERSION@", version()).replace("@CLSID@", class_identifier())
    return text.replace("\n", "\r\n").encode("ascii")


def sample_programs(arch: str) -> dict[str, bytes]:
    folder = ROOT / "build" / arch / "package"
    return {f"samples/programs/{arch}/{path.name}": path.read_bytes() for path in folder.iterdir()}


def contents(arches: list[str]) -> dict[str, bytes]:
    files = {name: (ROOT / name).read_bytes() for folder in FOLDERS for name in tracked(folder)}
    files |= {name: (ROOT / name).read_bytes() for name in FILES}
    files |= {name: script(name) for name in SCRIPTS}
    for arch in arches:
        files |= {f"{arch}/{name}": (ROOT / "dist" / arch / name).read_bytes() for name in LIBRARY_FILES}
        files |= sample_programs(arch)
    return files


def sums(files: dict[str, bytes]) -> bytes:
    return "".join(f"{hashlib.sha256(files[name]).hexdigest()}  {name}\n" for name in sorted(files)).encode("ascii")


def write(archive: Path, files: dict[str, bytes], level: int) -> None:
    moment = time.gmtime(commit_time())[:6]
    making = archive.with_suffix(".making")
    with zipfile.ZipFile(making, "w") as out:
        for name in sorted(files):
            entry = zipfile.ZipInfo(name, moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3
            entry.external_attr = 0o100644 << 16
            out.writestr(entry, files[name], compresslevel=level)
    making.replace(archive)


def main(arguments: list[str]) -> None:
    level = 1 if "--quick" in arguments else 9
    archive, *arches = (word for word in arguments if word != "--quick")
    files = contents(arches)
    files[SUMS] = sums(files)
    Path(archive).parent.mkdir(parents=True, exist_ok=True)
    write(Path(archive), files, level)


if __name__ == "__main__":
    main(sys.argv[1:])
