"""install.cmd and uninstall.cmd as a user meets them, who has unpacked the archive."""
import pathlib
import shutil
import tempfile
import unittest

from machine import ARCH, Machine, files_in

LIBRARY = f"{ARCH}/VelloraCTL.ocx"
MISSING, NO_RIGHTS, IN_USE, NOT_REGISTERED = 3, 4, 5, 6


class InstallTest(unittest.TestCase):
    """Each test leaves the machine as it found it, which the last check of each looks after."""

    @classmethod
    def setUpClass(cls):
        cls.place = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.place.cleanup)
        cls.machine = Machine(pathlib.Path(cls.place.name))
        cls.archive = cls.machine.unpack("archive")
        cls.programs = cls.machine.programs / "VelloraCTL"
        cls.of_user = cls.machine.user / "VelloraCTL"
        cls.machine.use_certutil()
        cls.untouched = cls.machine.registry()

    def run_script(self, name, *options, archive=None, **env):
        return self.machine.run((archive or self.archive) / f"{name}.cmd", *options, **env)

    def assert_done(self, name, *options, **how):
        code, text = self.run_script(name, *options, **how)
        self.assertEqual((0, 1), (code, text.count("\n")), text)
        return text

    def assert_refused(self, code, words, name, *options, **how):
        """With a sentence that has these words, and nothing left behind."""
        got, text = self.run_script(name, *options, **how)
        self.assertEqual(code, got, text)
        self.assertIn(words, text)
        self.assertEqual([], list(self.machine.programs.glob("VelloraCTL.*")))

    def assert_untouched(self):
        self.assertEqual([], list(self.machine.programs.glob("VelloraCTL*")))
        self.assertEqual([], list(self.machine.user.glob("VelloraCTL*")))
        self.assertEqual(self.untouched.splitlines(), self.machine.registry().splitlines())

    def damaged(self, name, change):
        """An archive in which one file is not what it was."""
        place = self.machine.folder / name
        shutil.copytree(self.archive, place)
        self.addCleanup(shutil.rmtree, place)
        change(place)
        return place

    def test_for_all_users(self):
        text = self.assert_done("install")
        self.assertIn("is installed for all users", text)
        self.assertEqual((self.archive / LIBRARY).read_bytes(), (self.programs / LIBRARY).read_bytes())
        self.assertEqual("Vellora", self.machine.creates())
        first = files_in(self.programs)
        self.assert_done("install")
        self.assertEqual(first, files_in(self.programs))
        self.assertEqual("Vellora", self.machine.creates())
        self.assert_done("uninstall")
        self.assert_untouched()

    def test_for_one_user(self):
        text = self.assert_done("install", "/user")
        self.assertIn("is installed for the user", text)
        # There are platforms that find no classes of one user; see docs/platform-differences.md.
        self.assertTrue(all("AppData" in path for path in self.machine.registered()))
        self.assertTrue(self.machine.registered())
        self.assert_done("uninstall", "/user")
        self.assert_untouched()

    def test_the_installed_copy_uninstalls_itself(self):
        self.assert_done("install")
        self.assert_done("uninstall", archive=self.programs)
        self.assert_untouched()

    def test_without_copying(self):
        self.assert_done("install", "/here")
        self.assertEqual("Vellora", self.machine.creates())
        self.assertFalse(self.programs.exists())
        self.assert_done("uninstall", "/here")
        self.assertTrue((self.archive / LIBRARY).exists())
        self.assert_untouched()

    def test_while_a_program_holds_the_library(self):
        self.assert_done("install")
        before, registry = files_in(self.programs), self.machine.registry()
        with self.machine.holding():
            self.assert_refused(IN_USE, "is in use", "install")
            self.assert_refused(IN_USE, "is in use", "uninstall")
        self.assertEqual(before, files_in(self.programs))
        self.assertEqual(registry, self.machine.registry())
        self.assertEqual("Vellora", self.machine.creates())
        self.assert_done("uninstall")
        self.assert_untouched()

    def test_damaged_and_missing_files(self):
        def change(place):
            content = bytearray((place / LIBRARY).read_bytes())
            content[1000] ^= 1
            (place / LIBRARY).write_bytes(content)

        damaged = self.damaged("damaged", change)
        self.assert_refused(MISSING, "is damaged", "install", archive=damaged)
        self.assert_refused(MISSING, "is damaged", "install", archive=damaged, VELLORA_CERTUTIL_SPACES="1")
        self.assert_done("install", "/user", VELLORA_CERTUTIL_SPACES="1")
        self.assert_done("uninstall", "/user")
        (damaged / LIBRARY).unlink()
        self.assert_refused(MISSING, "is missing", "install", archive=damaged)
        self.assert_untouched()

    def test_what_cannot_be_registered_brings_the_earlier_copy_back(self):
        self.assert_done("install")
        before, registry = files_in(self.programs), self.machine.registry()
        self.machine.use_certutil(False)
        self.addCleanup(self.machine.use_certutil)
        broken = self.damaged("broken", lambda place: (place / LIBRARY).write_bytes(b"MZ, and nothing else"))
        self.assert_refused(NOT_REGISTERED, "could not be registered", "install", archive=broken)
        self.assertEqual(before, files_in(self.programs))
        self.assertEqual(registry, self.machine.registry())
        self.assertEqual("Vellora", self.machine.creates())
        self.assert_done("uninstall")
        self.assert_untouched()

    def test_a_copy_elsewhere_stays_registered_when_nothing_was_installed(self):
        self.assert_done("install", "/here")
        registry = self.machine.registry()
        self.machine.use_certutil(False)
        self.addCleanup(self.machine.use_certutil)
        broken = self.damaged("broken", lambda place: (place / LIBRARY).write_bytes(b"MZ, and nothing else"))
        self.assert_refused(NOT_REGISTERED, "could not be registered", "install", archive=broken)
        self.assertEqual(registry, self.machine.registry())
        self.assert_done("uninstall", "/here")
        self.assert_untouched()

    def test_without_the_right_to_write(self):
        nowhere = {"ProgramFiles": "Q:\\nowhere", "ProgramW6432": "Q:\\nowhere"}
        self.assert_refused(NO_RIGHTS, "There are no rights", "install", **nowhere)
        self.assert_untouched()

    def test_options(self):
        self.assert_refused(2, 'There is no option "/all"', "install", "/all")
        self.assert_refused(2, 'There is no option "/all"', "uninstall", "/user", "/all")
        self.assert_refused(MISSING, "is not installed", "uninstall")
        self.assert_refused(0, "Usage:", "install", "/?")
        self.assert_refused(0, "The files are whole", "install", "/check",
                            archive=self.damaged("checked", self.keep_what_was_unpacked))
        self.assert_untouched()

    @staticmethod
    def keep_what_was_unpacked(place):
        sums = (place / "SHA256SUMS").read_text().splitlines()
        kept = [line for line in sums if (place / line.split("  ", 1)[1]).exists()]
        (place / "SHA256SUMS").write_text("\n".join(kept) + "\n")
