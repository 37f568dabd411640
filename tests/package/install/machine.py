"""A machine to install on: a Wine prefix of its own, in which nothing of the library is registered."""
import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import zipfile

ROOT = pathlib.Path(os.environ["VELLORA_ROOT"])
ARCH = os.environ["VELLORA_ARCH"]
PACKAGES = pathlib.Path(os.environ["VELLORA_PACKAGES"])
PREFIX = pathlib.Path(os.environ["VELLORA_PREFIX"])
TESTS = ROOT / "build" / ARCH / "tests"
SYSTEM = PREFIX / "drive_c" / "windows" / "system32"
CLASS = "{25E32202-6D80-4C8E-887C-F7E494F1CBF1}"
NARROW = PREFIX / "drive_c" / "windows" / "syswow64"
PATIENCE = 20.0

CREATE = 'WScript.Echo CreateObject("VelloraCTL.Vellora").Version\r\n'


def windows(path):
    """As a program of the machine names it: what lies on its own drive is not on that of the test bed."""
    drive = PREFIX / "drive_c"
    place = f"C:/{path.relative_to(drive)}" if path.is_relative_to(drive) else f"Z:{path}"
    return place.replace("/", "\\")


def wine(*words, env=None):
    """What a Windows program printed, and its exit code."""
    done = subprocess.run(command(*words), env=dict(os.environ, **(env or {})), stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, encoding="utf-8", errors="replace", check=False)
    return done.returncode, done.stdout.replace("\r", "")


def must(*words):
    """Of a program that the test itself needs."""
    done = subprocess.run(command(*words), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, encoding="utf-8", errors="replace", check=False)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(words)} ended with {done.returncode}: {done.stdout}")


def command(*words):
    wide = [] if ARCH == "x86" else ["--64"]
    return [str(ROOT / "vellora"), "wine", *wide, *words]


def files_in(folder):
    """Every file below a folder with its content."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


class Machine:

    def __init__(self, folder):
        self.folder = folder
        # Windows has this key from the beginning.
        must("reg.exe", "add", "HKCU\\Software\\Classes", "/f")
        self.programs = PREFIX / "drive_c" / "Program Files"
        self.user = self._local_folder()

    @staticmethod
    def _local_folder():
        _, printed = wine("cmd", "/c", "echo %LOCALAPPDATA%")
        return PREFIX / "drive_c" / printed.strip()[3:].replace("\\", "/")

    def unpack(self, name):
        """An archive as it was downloaded."""
        place = self.folder / name
        with zipfile.ZipFile(PACKAGES / "first.zip") as archive:
            archive.extractall(place, [n for n in archive.namelist() if self._small(n)])
        return place

    @staticmethod
    def _small(name):
        return not name.startswith(("docs/", "samples/")) and not name.endswith(".debug")

    def run(self, script, *options, processor="cmd", **env):
        """Exit code and text of install.cmd or uninstall.cmd."""
        return wine(processor, "/c", windows(script), *options, env=env)

    def has_both(self):
        """Whether it runs 32-bit programs beside 64-bit ones, and the archive has libraries for both."""
        return all((folder / "regsvr32.exe").exists() for folder in (SYSTEM, NARROW)) and \
            all((self.folder / "archive" / arch).exists() for arch in ("x86", "x64"))

    def script(self, text, *arguments):
        path = self.folder / f"script-{len(list(self.folder.iterdir()))}.vbs"
        path.write_text(text)
        return ["cscript.exe", "//nologo", windows(path), *arguments]

    def creates(self):
        """Whether a script can create the control and talk to it."""
        return wine(*self.script(CREATE))[1].startswith("VelloraCTL v")

    def registry(self):
        """All classes, of the machine and of the user, as text."""
        path = self.folder / "classes.reg"
        text = ""
        for key in ("HKLM\\Software\\Classes", "HKCU\\Software"):
            must("reg.exe", "export", key, windows(path), "/y")
            text += path.read_text(encoding="utf-16")
        return text

    def registered(self):
        """The libraries that the registry leads to, for the machine or the user, in either bitness."""
        views = [""] if ARCH == "x86" else [" /reg:32", " /reg:64"]
        lines = [f"reg.exe query {root}\\Software\\Classes\\CLSID\\{CLASS}\\InprocServer32 /ve{view} 2>nul"
                 for root in ("HKLM", "HKCU") for view in views]
        path = self.folder / "registered.cmd"
        path.write_bytes("\r\n".join(["@echo off", *lines, ""]).encode("ascii"))
        return re.findall(r"REG_SZ\s+(.*)", wine("cmd", "/c", windows(path))[1])

    @contextlib.contextmanager
    def holding(self, library):
        """While a program has the library in use."""
        program = subprocess.Popen(command(windows(TESTS / "library_holder.exe"), library), text=True,
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            if program.stdout.readline().strip() != "held":
                raise AssertionError("the program does not hold the library")
            yield
        finally:
            program.communicate(timeout=PATIENCE)

    @contextlib.contextmanager
    def certutil(self):
        """With a program for checksums in the place of the platform's own; the words that make the platform take it."""
        place, own = SYSTEM / "certutil.exe", self.folder / "certutil.exe"
        if place.exists():
            shutil.move(place, own)
        shutil.copy(TESTS / "certutil.exe", place)
        try:
            yield {"WINEDLLOVERRIDES": "mscoree,mshtml=;certutil.exe=n"}
        finally:
            place.unlink()
            if own.exists():
                shutil.move(own, place)
