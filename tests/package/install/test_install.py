"""install.cmd and uninstall.cmd as a user meets them, who has unpacked the archive."""
import pathlib
import shutil
import tempfile
import unittest

from machine import ARCH, Machine, files_in, windows

LIBRARY = f"{ARCH}/VelloraCTL.ocx"
INSTALLED = f"C:\\Program Files\\VelloraCTL\\{ARCH}\\VelloraCTL.ocx"
DONE, OPTION, FILES, RIGHTS, IN_USE, REGISTRY = 0, 2, 3, 4, 5, 6


class InstallTest(unittest.TestCase):
    """Each test leaves the machine as it found it, which its last line and the end of all look after."""

    @classmethod
    def setUpClass(cls):
        cls.place = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.place.cleanup)
        cls.machine = Machine(pathlib.Path(cls.place.name))
        cls.archive = cls.machine.unpack("archive")
        cls.programs = cls.machine.programs / "VelloraCTL"
        cls.user = cls.machine.user / "VelloraCTL"
        # The script host registers things of its own when it first runs.
        cls.machine.creates()
        cls.untouched = cls.machine.registry()

    @classmethod
    def tearDownClass(cls):
        before, after = set(cls.untouched.splitlines()), set(cls.machine.registry().splitlines())
        if before != after:
            raise AssertionError(f"left in the registry: {sorted(before ^ after)}")

    def assert_says(self, code, words, name, *options, archive=None, **env):
        """It ends with this code and a sentence that has these words, and leaves no folder half made."""
        got, text = self.machine.run((archive or self.archive) / f"{name}.cmd", *options, **env)
        self.assertEqual(code, got, text)
        self.assertIn(words, text)
        for folder in (self.machine.programs, self.machine.user):
            self.assertEqual([], list(folder.glob("VelloraCTL.*")))

    def assert_untouched(self):
        self.assertEqual([], list(self.machine.programs.glob("VelloraCTL*")))
        self.assertEqual([], list(self.machine.user.glob("VelloraCTL*")))
        self.assertEqual([], self.machine.registered())

    def changed(self, change, library=LIBRARY):
        """An archive in which a library is not what it was."""
        place = self.machine.folder / self._testMethodName
        shutil.copytree(self.archive, place)
        self.addCleanup(shutil.rmtree, place)
        (place / library).write_bytes(change((place / library).read_bytes()))
        return place

    def test_for_all_users(self):
        """Also installed again; what fails leaves the installed copy working."""
        self.assert_says(DONE, "is installed for all users", "install")
        self.assertEqual((self.archive / LIBRARY).read_bytes(), (self.programs / LIBRARY).read_bytes())
        before, registered = files_in(self.programs), self.machine.registered()
        with self.machine.holding(INSTALLED):
            self.assert_says(IN_USE, "is in use", "install")
            self.assert_says(IN_USE, "is in use", "uninstall")
        broken = self.changed(lambda content: content[:5000])
        self.assert_says(REGISTRY, "could not be registered", "install", archive=broken)
        self.assertEqual(before, files_in(self.programs))
        self.assertEqual(registered, self.machine.registered())
        self.assertTrue(self.machine.creates())
        self.assert_says(DONE, "is installed", "install")
        self.assertEqual(before, files_in(self.programs))
        self.assert_says(DONE, "is uninstalled for all users", "uninstall", archive=self.programs)
        # A platform that keeps a running script open leaves its folder; see docs/platform-differences.md.
        if self.programs.exists():
            self.assertLessEqual(set(files_in(self.programs)), {"uninstall.cmd"})
            shutil.rmtree(self.programs)
        self.assert_untouched()

    def test_both_bitnesses_from_a_32_bit_command_processor(self):
        if not self.machine.has_both():
            self.skipTest("there is one bitness here")
        narrow = "C:\\windows\\syswow64\\cmd.exe"
        self.assert_says(DONE, "is installed", "install", processor=narrow)
        registered = self.machine.registered()
        self.assertEqual(["x64", "x86"], sorted(path.split("\\")[-2] for path in registered))
        # The 64-bit one is registered by then.
        broken = self.changed(lambda content: content[:5000], "x86/VelloraCTL.ocx")
        self.assert_says(REGISTRY, "could not be registered", "install", archive=broken)
        self.assertEqual(registered, self.machine.registered())
        self.assert_says(DONE, "is uninstalled", "uninstall", processor=narrow)
        self.assert_untouched()

    def test_a_copy_elsewhere_stays_registered_when_installing_fails(self):
        self.assert_says(DONE, "is installed", "install", "/here")
        self.assertTrue(self.machine.creates())
        registered = self.machine.registered()
        broken = self.changed(lambda content: content[:5000])
        self.assert_says(REGISTRY, "could not be registered", "install", archive=broken)
        self.assertFalse(self.programs.exists())
        self.assertEqual(registered, self.machine.registered())
        self.assert_says(DONE, "is uninstalled", "uninstall", "/here")
        self.assertTrue((self.archive / LIBRARY).exists())
        self.assert_untouched()

    def test_for_one_user(self):
        """Also again, with a file of others in both of its folders and an older library."""
        self.assert_says(DONE, "is installed for the user", "install", "/user")
        installed, others = files_in(self.user), {"notes.txt": b"one", f"{ARCH}/notes.txt": b"two"}
        for name, content in {**others, LIBRARY: b"older"}.items():
            (self.user / name).write_bytes(content)
        self.assert_says(DONE, "is installed for the user", "install", "/user")
        self.assertEqual({**installed, **others}, files_in(self.user))
        # There are platforms that find no classes of one user; see docs/platform-differences.md.
        self.assertTrue(self.machine.registered())
        self.assertTrue(all("AppData" in path for path in self.machine.registered()))
        self.assert_says(DONE, "is uninstalled for the user", "uninstall", "/user")
        self.assertEqual(others, files_in(self.user))
        shutil.rmtree(self.user)
        self.assert_untouched()

    def test_unpacked_where_it_would_be_copied_to(self):
        shutil.copytree(self.archive, self.user)
        unpacked = files_in(self.user)
        self.assert_says(DONE, "is installed for the user", "install", "/user", archive=self.user)
        self.assertTrue(self.machine.registered())
        self.assert_says(DONE, "is uninstalled for the user", "uninstall", "/user", archive=self.user)
        self.assertEqual(unpacked, files_in(self.user))
        shutil.rmtree(self.user)
        self.assert_untouched()

    def test_files_that_are_damaged_or_missing(self):
        with self.machine.certutil() as words:
            for spaces in ({}, {"VELLORA_CERTUTIL_SPACES": "1"}):
                self.assert_says(DONE, "The files are whole", "install", "/check", archive=self.small(), **words,
                                 **spaces)
            damaged = self.changed(lambda content: content[:1000] + bytes([content[1000] ^ 1]) + content[1001:])
            self.assert_says(FILES, f'{ARCH}\\VelloraCTL.ocx" is damaged', "install", archive=damaged, **words)
        self.assert_says(DONE, "is not known", "install", "/check", archive=self.small())
        (damaged / LIBRARY).unlink()
        self.assert_says(FILES, f'{ARCH}\\VelloraCTL.ocx" is missing', "install", archive=damaged)
        self.assert_untouched()

    def where_nothing_can_be_written(self):
        """A script that goes on as install.cmd. The platform gives every program its own ProgramFiles."""
        path = self.machine.folder / "nowhere.cmd"
        path.write_text("@set ProgramFiles=Q:\\nowhere\n@set ProgramW6432=Q:\\nowhere\n"
                        f"@{windows(self.archive)}\\install.cmd\n", newline="\r\n")
        return path

    def small(self):
        """An archive of three files, all of which are looked at."""
        place = self.machine.folder / "small"
        place.mkdir(exist_ok=True)
        names = ("install.cmd", "steps.cmd", LIBRARY)
        for name in names:
            (place / name).parent.mkdir(exist_ok=True)
            shutil.copy(self.archive / name, place / name)
        lines = (self.archive / "SHA256SUMS").read_text().splitlines()
        (place / "SHA256SUMS").write_text("".join(f"{line}\n" for line in lines if line.split("  ")[1] in names))
        return place

    def test_what_cannot_be_done(self):
        code, text = self.machine.run(self.where_nothing_can_be_written())
        self.assertEqual((RIGHTS, True), (code, "There are no rights" in text), text)
        self.assert_says(OPTION, 'There is no option "/all"', "install", "/user", "/all")
        self.assert_says(OPTION, 'There is no option "/all"', "uninstall", "/all")
        self.assert_says(FILES, "is not installed", "uninstall")
        self.assert_says(DONE, "Usage:", "install", "/?")
        self.assert_untouched()
