"""The package manager itself, with a phone's folders and records."""

import dataclasses
import os

from case import BUNDLE, GOOD, INJECTED, PackageCase
from fake_phone import DPKG, PROVIDED, FakePhone
from package import tar
from package.control import md5sums

NAME = "com.corvane.dozewell2"
LIBRARY = f"{INJECTED}/Dozewell2.dylib"


def with_version(name, version):
    """What is provided, with this package in another version."""
    return [
        dataclasses.replace(package, version=version) if package.name == name else package
        for package in PROVIDED
    ]


class Install(PackageCase):
    def setUp(self):
        super().setUp()
        self.phone = FakePhone(self.folder / "phone")
        self.before = self.phone.files()

    def succeeds(self, *words):
        outcome = self.phone.dpkg(*words)
        self.assertEqual((outcome.returncode, outcome.stderr), (0, ""), outcome.stdout)
        return outcome.stdout

    def is_installed(self):
        """As it is in the package, with nothing else changed."""
        for entry in self.package.data:
            path = self.phone.root / entry.name
            self.assertTrue(path.is_file() if entry.info.isreg() else path.is_dir(), entry.name)
            if entry.info.isreg():
                self.assertEqual(path.read_bytes(), entry.data, entry.name)
                self.assertEqual(path.stat().st_mode & 0o7777, 0o644, entry.name)
                if os.geteuid() == 0:
                    self.assertEqual((path.stat().st_uid, path.stat().st_gid), (0, 0), entry.name)
        after = self.phone.files()
        self.assertEqual({name: after.get(name) for name in self.before}, self.before)
        self.assertEqual(self.succeeds("--verify", NAME), "")

    def nothing_stays(self):
        self.assertEqual(self.phone.files(), self.before)
        self.assertEqual(sorted((self.phone.root / DPKG / "info").glob(f"{NAME}*")), [])
        status = (self.phone.root / DPKG / "status").read_text(encoding="utf-8")
        self.assertNotIn("dozewell", status)
        self.assertEqual(status.count("Package: "), len(PROVIDED))

    def test_installs_and_goes_again(self):
        for word in ("--remove", "--purge"):
            with self.subTest(word):
                self.succeeds("--install", str(GOOD))
                self.is_installed()
                self.succeeds(word, NAME)
                self.nothing_stays()

    def test_files_lie_behind_the_links(self):
        self.succeeds("--install", str(GOOD))
        phone = self.phone.root
        self.assertTrue((phone / "var/jb").is_symlink())
        self.assertTrue((phone / "var/jb/usr/lib/TweakInject/Dozewell2.dylib").is_file())

    def test_upgrades(self):
        self.succeeds("--install", str(GOOD))
        self.succeeds("--install", str(self.next_version()))
        self.is_installed()
        self.assertFalse((self.phone.root / BUNDLE / "timerIcon.png").exists())
        self.succeeds("--purge", NAME)
        self.nothing_stays()

    def test_older_version_can_come_back(self):
        newer = self.next_version()
        self.succeeds("--install", str(newer))
        outcome = self.phone.dpkg("--install", str(GOOD))
        self.assertEqual(outcome.returncode, 0)
        self.assertIn("downgrading", outcome.stderr)
        self.package = None
        PackageCase.setUp(self)
        self.is_installed()

    def test_verification_sees_a_changed_file(self):
        self.succeeds("--install", str(GOOD))
        path = self.phone.root / LIBRARY
        path.write_bytes(path.read_bytes() + b"\0")
        found = self.phone.dpkg("--verify", NAME).stdout
        self.assertEqual(found.split(), ["??5??????", LIBRARY[1:]])

    def test_needs_what_it_depends_on(self):
        for missing in PROVIDED:
            with self.subTest(missing.name):
                self.is_refused([package for package in PROVIDED if package != missing])

    def test_is_for_ios_15_alone(self):
        for version, fits in (("14.8", False), ("15.0", True), ("15.8.3", True), ("16.0", False),
                              ("17.2", False)):
            with self.subTest(version):
                provided = with_version("firmware", version)
                if fits:
                    self.phone = FakePhone(self.folder / version, provided)
                    self.succeeds("--install", str(GOOD))
                else:
                    self.is_refused(provided)

    def test_needs_new_enough_libraries(self):
        self.is_refused(with_version("ws.hbang.common", "1.17.1"))
        self.is_refused(with_version("preferenceloader", "2.2.2"))

    def is_refused(self, provided):
        phone = FakePhone(self.folder / f"refusing-{len(list(self.folder.iterdir()))}", provided)
        outcome = phone.dpkg("--install", str(GOOD))
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("dependency problems", outcome.stderr)

    def next_version(self):
        """With a file more, one fewer, and one that is another."""
        self.replace_in_control(b"Version: ", b"Version: 9")
        self.package.data.remove(self.entry(f"{BUNDLE}/timerIcon.png"))
        self.package.data.append(tar.file_entry(f"{BUNDLE}/new.txt", b"new", 0))
        self.entry(f"{BUNDLE}/Info.plist").data += b"\n"
        self.entry("./md5sums").data = md5sums(self.package.data).encode()
        return self.written("next.deb")
