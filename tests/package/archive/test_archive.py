"""The archive for a download: what is in it, that it is whole, and that it can be made again."""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import zipfile

ROOT = pathlib.Path(os.environ["VELLORA_ROOT"])
PACKAGES = pathlib.Path(os.environ["VELLORA_PACKAGES"])
ARCHES = os.environ["VELLORA_ARCHES"].split()
sys.path.insert(0, str(ROOT / "tools"))

import doc_pages  # noqa: E402

EVERY_ONE = ("README.md", "CHANGELOG.md", "LICENSE", "install.cmd", "uninstall.cmd", "steps.cmd", "SHA256SUMS",
             "docs/installing.md", "docs/reference/events.md", "docs/pictures/vellora.png", "samples/README.md",
             "samples/cpp/main.cpp", "samples/script/countries.vbs", "idl/VelloraCTL.idl")
OF_ARCH = ("{0}/VelloraCTL.ocx", "{0}/VelloraCTL.ocx.debug", "{0}/VelloraCTL.tlb", "{0}/VelloraCTL.manifest",
           "samples/programs/{0}/cpp.exe", "samples/programs/{0}/form.vbs")


class ArchiveTest(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        cls.place = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.place.cleanup)
        cls.folder = pathlib.Path(cls.place.name)
        with zipfile.ZipFile(PACKAGES / "first.zip") as archive:
            cls.entries = archive.infolist()
            archive.extractall(cls.folder)

    def names(self):
        return {entry.filename for entry in self.entries}

    def test_the_same_commit_gives_the_same_bytes(self):
        self.assertEqual((PACKAGES / "first.zip").read_bytes(), (PACKAGES / "second.zip").read_bytes())
        self.assertEqual(1, len({entry.date_time for entry in self.entries}))
        self.assertEqual(sorted(self.names()), [entry.filename for entry in self.entries])

    def test_everything_is_there(self):
        wanted = {*EVERY_ONE, *(name.format(arch) for name in OF_ARCH for arch in ARCHES)}
        self.assertEqual(set(), wanted - self.names())
        self.assertEqual([], [name for name in self.names() if "__pycache__" in name or name.endswith(".making")])

    def test_the_sums_are_right_and_of_every_file(self):
        done = subprocess.run(["sha256sum", "--check", "--strict", "--quiet", "SHA256SUMS"], cwd=self.folder,
                              capture_output=True, text=True, check=False)
        self.assertEqual((0, ""), (done.returncode, done.stdout + done.stderr))
        lines = (self.folder / "SHA256SUMS").read_text(encoding="ascii").splitlines()
        self.assertEqual(sorted(self.names() - {"SHA256SUMS"}), [line.split("  ", 1)[1] for line in lines])

    def test_no_link_is_dead(self):
        for page in self.folder.rglob("*.md"):
            for link in doc_pages.links_of(page):
                path, _, part = link.partition("#")
                target = (page.parent / path).resolve() if path else page
                with self.subTest(page=page.relative_to(self.folder), link=link):
                    self.assertTrue(target.exists())
                    self.assertIn(self.folder.resolve(), target.parents)
                    if part and target.suffix == ".md":
                        self.assertIn(part, doc_pages.anchors_of(target))

    def test_scripts_are_as_the_command_processor_wants_them(self):
        for name in ("install.cmd", "uninstall.cmd", "steps.cmd"):
            content = (self.folder / name).read_bytes()
            with self.subTest(script=name):
                self.assertEqual(content.count(b"\n"), content.count(b"\r\n"))
                self.assertEqual([], re.findall(rb"@[A-Z]+@", content), "a gap that was not filled in")
                labels = set(re.findall(rb"(?m)^:(\w+)", content))
                self.assertEqual(set(), set(re.findall(rb"(?:goto|call) :(\w+)", content)) - labels)

    def test_scripts_call_steps_that_there_are(self):
        steps = set(re.findall(rb"(?m)^:(\w+)", (self.folder / "steps.cmd").read_bytes()))
        for name in ("install.cmd", "uninstall.cmd"):
            called = set(re.findall(rb'steps\.cmd" (\w+)', (self.folder / name).read_bytes()))
            self.assertEqual(set(), called - steps, name)

    def test_it_names_the_version_of_its_libraries(self):
        version = re.search(r"VelloraCTL VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))[1]
        for arch in ARCHES:
            self.assertIn(f'version="{version}.0"', (self.folder / arch / "VelloraCTL.manifest").read_text())
        self.assertIn(f"VelloraCTL {version} is installed", (self.folder / "install.cmd").read_text())
