"""A machine to install on: a Wine prefix of its own, in which nothing of the library is registered."""
import os
import pathlib
import re
import shutil
import subprocess
import time
import zipfile

ROOT = pathlib.Path(os.environ["VELLORA_ROOT"])
ARCH = os.environ["VELLORA_ARCH"]
PACKAGES = pathlib.Path(os.environ["VELLORA_PACKAGES"])
PREFIX = pathlib.Path(os.environ["VELLORA_PREFIX"])
SYSTEM = PREFIX / "drive_c" / "windows" / "system32"
PATIENCE = 20.0

CREATE = 'WScript.Echo TypeName(CreateObject("VelloraCTL.Vellora"))\r\n'
# Holds the library until the second file appears; the first one tells that it does.
HOLD = """Set control = CreateObject("VelloraCTL.Vellora")
Set files = CreateObject("Scripting.FileSystemObject")
files.CreateTextFile(WScript.Arguments(0)).Close
Do Until files.FileExists(WScript.Arguments(1))
    WScript.Sleep 50
Loop
"""


def windows(path):
    return "Z:" + str(path).replace("/", "\\")


def wine(*words, env=None):
    """What a Windows program printed, and its exit code."""
    done = subprocess.run(command(*words), env=dict(os.environ, **(env or {})), stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, encoding="utf-8", errors="replace", check=False)
    return done.returncode, done.stdout.replace("\r", "")


def command(*words):
    wide = [] if ARCH == "x86" else ["--64"]
    return [str(ROOT / "vellora"), "wine", *wide, *words]


def files_in(folder):
    """Every file below a folder with its content."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


class Machine:

    def __init__(self, folder):
        self.folder = folder
        wine("cmd", "/c", "exit")
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

    def run(self, script, *options, **env):
        """Exit code and text of install.cmd or uninstall.cmd."""
        return wine("cmd", "/c", windows(script), *options, env=env)

    def script(self, text, *arguments):
        path = self.folder / f"script-{len(list(self.folder.iterdir()))}.vbs"
        path.write_text(text)
        return ["cscript.exe", "//nologo", windows(path), *arguments]

    def creates(self):
        """What a script gets that creates the control."""
        return wine(*self.script(CREATE))[1].strip()

    def registry(self):
        """All classes, of the machine and of the user, as text."""
        path = self.folder / "classes.reg"
        text = ""
        for key in ("HKLM\\Software\\Classes", "HKCU\\Software"):
            wine("reg.exe", "export", key, windows(path), "/y")
            text += path.read_text(encoding="utf-16")
        return text

    def registered(self):
        """The libraries that the registry leads to."""
        return set(re.findall(r'InprocServer32\]\s+@="([^"]*VelloraCTL\.ocx)"', self.registry()))

    def holding(self):
        return Holding(self)

    def use_certutil(self, stand_in=True):
        place = SYSTEM / "certutil.exe"
        place.unlink(missing_ok=True)
        if stand_in:
            shutil.copy(ROOT / "build" / ARCH / "tests" / "certutil.exe", place)


class Holding:
    """A program that has the library loaded."""

    def __init__(self, machine):
        self.ready, self.stop = machine.folder / "ready", machine.folder / "stop"
        self.words = machine.script(HOLD, windows(self.ready), windows(self.stop))

    def __enter__(self):
        self.program = subprocess.Popen(command(*self.words), stdin=subprocess.DEVNULL)
        end = time.monotonic() + PATIENCE
        while not self.ready.exists():
            if time.monotonic() > end or self.program.poll() is not None:
                raise AssertionError("the program that holds the library did not start")
            time.sleep(0.02)
        return self

    def __exit__(self, *failure):
        self.stop.touch()
        self.program.wait(PATIENCE)
        self.ready.unlink()
        self.stop.unlink()
